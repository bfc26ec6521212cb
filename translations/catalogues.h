// translations/: installs the translation catalogues that are shipped for the clock's texts.
#pragma once

#include <QStringList>

QT_BEGIN_NAMESPACE
class QLocale;
QT_END_NAMESPACE

namespace ClockCatalogues {

/// The codes of the languages shipped, in alphabetical order.
QStringList Languages();

/// The shipped language for a locale; English if there is none.
QString LanguageFor(const QLocale &locale);

/// Installs a language's catalogue on the application, which owns it from then on, in place of the
/// one installed before. Returns false and changes nothing if the language is not shipped or there
/// is no application.
bool Install(const QString &language);

/// The same; an empty language means that of the system locale.
bool InstallOrDefault(const QString &language);

/// The code of the installed language; empty if none is.
QString Installed();

} // namespace ClockCatalogues
