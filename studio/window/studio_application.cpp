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

void LoadTranslations(QApplication &application)
{
    const QLocale locale;
    auto *const qt = new QTranslator(&application);
    if (qt->load(locale, QStringLiteral("qtbase"), QStringLiteral("_"),
                 QLibraryInfo::location(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(qt);
    auto *const studio = new QTranslator(&application);
    if (studio->load(locale, QStringLiteral("studio"), QStringLiteral("_"),
                     QStringLiteral(":/translations")))
        QCoreApplication::installTranslator(studio);
    ClockCatalogues::InstallChosen({});
    QApplication::setLayoutDirection(locale.textDirection());
}

} // namespace

bool HasDisplay(int argc, char **argv)
{
    for (int i = 1; i < argc; ++i) {
        const bool needsNone = std::strcmp(argv[i], "--help") == 0
            || std::strcmp(argv[i], "-h") == 0 || std::strcmp(argv[i], "--version") == 0
            || std::strcmp(argv[i], "-v") == 0;
        if (std::strcmp(argv[i], "-platform") == 0)
            return true;
        if (needsNone) {
            qputenv("QT_QPA_PLATFORM", "offscreen");
            return true;
        }
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
