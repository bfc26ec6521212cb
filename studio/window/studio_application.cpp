#include "studio_application.h"

#include "catalogues.h"
#include "font_check.h"
#include "glyph_messages.h"
#include "qt_names.h"

#include <QApplication>
#include <QFile>
#include <QFontMetrics>
#include <QIcon>
#include <QLocale>
#include <QTranslator>

#include <algorithm>
#include <cstring>

namespace ClockStudio {

namespace {

// Buttons of Qt's own dialogs. Qt has no Persian catalogue, and a system may lack the others.
[[maybe_unused]] constexpr const char *kQtButtons[] = {
    QT_TRANSLATE_NOOP("QPlatformTheme", "OK"), QT_TRANSLATE_NOOP("QPlatformTheme", "Save"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Cancel"), QT_TRANSLATE_NOOP("QPlatformTheme", "Close"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Discard")};

bool Load(QApplication &application, const QLocale &locale, const char *name,
          const QString &directory)
{
    auto *const translator = new QTranslator(&application);
    return translator->load(locale, QLatin1String(name), QStringLiteral("_"), directory)
        && QCoreApplication::installTranslator(translator);
}

bool HasFontFor(const QLocale &locale)
{
    const QFontMetrics metrics(QApplication::font());
    const QVector<uint> sample = locale.nativeLanguageName().toUcs4();
    return std::all_of(sample.cbegin(), sample.cend(),
                       [&metrics](uint letter) { return metrics.inFontUcs4(letter); });
}

/// Not translated: it is about texts that cannot be shown.
QString FontProblem(const QLocale &locale)
{
    if (!ClockFit::HasFonts())
        return ClockProgram::NoFontText();
    if (HasFontFor(locale))
        return QString();
    return QStringLiteral("No installed font has the characters of %1, so the window is in "
                          "English.")
        .arg(QLocale::languageToString(locale.language()));
}

QString CatalogueFolder()
{
    return QStringLiteral(":/translations");
}

/// The first of the user's languages that the studio has. One that it lacks is replaced as a whole,
/// so that its texts, dates, direction and Qt's own texts are in one language.
QLocale WantedLocale()
{
    const QLocale system;
    for (const QString &name : system.uiLanguages()) {
        const QLocale locale(name);
        const QString language = locale.name().section(QLatin1Char('_'), 0, 0);
        if (QFile::exists(QStringLiteral("%1/studio_%2.qm").arg(CatalogueFolder(), language)))
            return locale.language() == system.language() ? system : locale;
    }
    return QLocale(QLocale::English);
}

/// The texts of the language of QLocale().
void LoadTranslations(QApplication &application)
{
    Load(application, QLocale(), "studio", CatalogueFolder());
    Load(application, QLocale(), "qtbase", QtTranslations());
    ClockCatalogues::InstallOrDefault({});
    QApplication::setLayoutDirection(QLocale().textDirection());
}

} // namespace

bool HasDisplay(int argc, char **argv)
{
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "-platform") == 0)
            return true;
    }
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY")
        || qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

QString SetUpApplication(QApplication &application)
{
    QCoreApplication::setApplicationName(QStringLiteral("clock-studio"));
    QCoreApplication::setOrganizationName(QStringLiteral("clock-studio"));
    QCoreApplication::setApplicationVersion(QStringLiteral(CLOCK_STUDIO_VERSION));
    const QLocale wanted = WantedLocale();
    const QString problem = FontProblem(wanted);
    QLocale::setDefault(problem.isEmpty() ? wanted : QLocale(QLocale::English));
    // Part of every window's title: the desktop draws it and may have fonts of its own.
    QGuiApplication::setApplicationDisplayName(ClockFit::HasFonts() ? QString() : problem);
    QGuiApplication::setDesktopFileName(QStringLiteral("clock-studio"));
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/clock-studio.svg")));
    LoadTranslations(application);
    return problem;
}

} // namespace ClockStudio
