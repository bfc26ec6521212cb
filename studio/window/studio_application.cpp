#include "studio_application.h"

#include "catalogues.h"

#include <QApplication>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <cstring>

namespace ClockStudio {

namespace {

bool Load(QApplication &application, const QLocale &locale, const char *name,
          const QString &directory)
{
    auto *const translator = new QTranslator(&application);
    return translator->load(locale, QLatin1String(name), QStringLiteral("_"), directory)
        && QCoreApplication::installTranslator(translator);
}

/// A language that the studio lacks is replaced as a whole, so that its texts, dates, direction and
/// Qt's own texts stay in one language.
void LoadTranslations(QApplication &application)
{
    const QString catalogues = QStringLiteral(":/translations");
    if (!Load(application, QLocale(), "studio", catalogues)) {
        QLocale::setDefault(QLocale(QLocale::English));
        Load(application, QLocale(), "studio", catalogues);
    }
    Load(application, QLocale(), "qtbase", QLibraryInfo::location(QLibraryInfo::TranslationsPath));
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

void SetUpApplication(QApplication &application)
{
    QCoreApplication::setApplicationName(QStringLiteral("clock-studio"));
    QCoreApplication::setOrganizationName(QStringLiteral("clock-studio"));
    QCoreApplication::setApplicationVersion(QStringLiteral(CLOCK_STUDIO_VERSION));
    QGuiApplication::setApplicationDisplayName(QString());
    QGuiApplication::setDesktopFileName(QStringLiteral("clock-studio"));
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/clock-studio.svg")));
    LoadTranslations(application);
}

} // namespace ClockStudio
