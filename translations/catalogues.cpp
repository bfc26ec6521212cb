#include "catalogues.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>
#include <QPointer>
#include <QTranslator>

// Q_INIT_RESOURCE is needed for resources in a static library, and must be outside any namespace.
static void RegisterCatalogues()
{
    Q_INIT_RESOURCE(clock_catalogues);
}

namespace ClockCatalogues {

namespace {

QString s_installed; // the code of the language

} // namespace

QStringList Languages()
{
    RegisterCatalogues();
    QStringList languages;
    for (const QString &name :
         QDir(QStringLiteral(":/clock_catalogues")).entryList(QDir::Files, QDir::Name))
        languages.append(name.section(QLatin1Char('_'), 1).section(QLatin1Char('.'), 0, 0));
    return languages;
}

QString LanguageFor(const QLocale &locale)
{
    const QString language = locale.name().section(QLatin1Char('_'), 0, 0);
    return Languages().contains(language) ? language : QStringLiteral("en");
}

QString Installed()
{
    return s_installed;
}

bool Install(const QString &language)
{
    static QPointer<QTranslator> installed;
    QCoreApplication *const application = QCoreApplication::instance();
    if (!application || !Languages().contains(language))
        return false;
    auto *const translator = new QTranslator(application);
    const bool usable =
        translator->load(QStringLiteral(":/clock_catalogues/clock_%1.qm").arg(language))
        && QCoreApplication::installTranslator(translator);
    if (!usable) {
        delete translator;
        return false;
    }
    delete installed;
    installed = translator;
    s_installed = language;
    return true;
}

bool InstallOrDefault(const QString &language)
{
    return Install(language.isEmpty() ? LanguageFor(QLocale::system()) : language);
}

} // namespace ClockCatalogues
