// lint/: reports kinds of clocks that cannot be read, or that contradict each other.
#include "clock_lint.h"
#include "suggestion.h"

#include "clock_attributes.h"
#include "clock_sdk_tables.h"
#include "program_file.h"

namespace ClockTool {

namespace {

using namespace Lw::HNodeClock;

const QLatin1String kType(Sdk::kType);

QStringList KindWords()
{
    QStringList words;
    for (const char *name : Sdk::kTypeNames)
        words.append(QLatin1String(name));
    return words;
}

QString WordOf(int kind)
{
    return KindWords().value(kind);
}

QDomElement OlderForm(const QDomElement &clock)
{
    return clock.firstChildElement(QLatin1String(Sdk::kClockCom));
}

/// The last "attribute" child that sets the kind, which is the one that counts.
QDomElement KindSetting(const QDomElement &clock)
{
    QDomElement last;
    for (QDomElement setting = clock.firstChildElement(ClockProgram::kAttributeTag);
         !setting.isNull(); setting = setting.nextSiblingElement(ClockProgram::kAttributeTag)) {
        if (setting.attribute(QStringLiteral("key")) == Key(Attribute::ClockType))
            last = setting;
    }
    return last;
}

/// The older form's kind counts, whatever the word says.
void CheckWord(const QDomElement &clock, int readKind, Findings &findings)
{
    const QString word = clock.attribute(kType);
    if (OlderForm(clock).isNull() || !clock.hasAttribute(kType) || word == WordOf(readKind)
        || WordOf(readKind).isEmpty())
        return;
    findings.Warn(
        At(clock, kType),
        QStringLiteral("type=%1 is ignored because of <%2>, which makes this a clock of type "
                       "\"%3\"; accepted: only one of the two")
            .arg(Quoted(word), QLatin1String(Sdk::kClockCom), WordOf(readKind)),
        WordOf(readKind));
}

/// A picture clock is read as another kind, but shows none of that.
void CheckSetting(const QDomElement &clock, int readKind, int shownKind, Findings &findings)
{
    if (shownKind == readKind || shownKind == PictureClock || WordOf(shownKind).isEmpty())
        return;
    const QString key = Key(Attribute::ClockType);
    findings.Warn(At(KindSetting(clock), key),
                  QStringLiteral("%1 makes a clock of type \"%2\", but the rest is read as for "
                                 "type \"%3\"; accepted: <clock type=\"%2\">, without this setting")
                      .arg(key, WordOf(shownKind), WordOf(readKind)),
                  QString::number(readKind));
}

} // namespace

int MeantKind(const QDomElement &clock)
{
    const QStringList words = KindWords();
    return words.indexOf(Nearest(clock.attribute(kType), words));
}

void LintUnreadKind(const QDomElement &clock, Findings &findings)
{
    if (!OlderForm(clock).isNull())
        return findings.Warn(At(clock),
                             QStringLiteral("the clockType of <clockCom> cannot be read; accepted: "
                                            "0 analog, 1 digital, 2 picture"));
    const QString word = clock.attribute(kType);
    const QStringList words = KindWords();
    findings.Warn(At(clock, kType),
                  QStringLiteral("type=%1 cannot be read; accepted: \"%2\"")
                      .arg(Quoted(word), words.join(QStringLiteral("\", \""))),
                  Nearest(word, words));
}

void LintKinds(const QDomElement &clock, int readKind, int shownKind, Findings &findings)
{
    CheckWord(clock, readKind, findings);
    CheckSetting(clock, readKind, shownKind, findings);
}

} // namespace ClockTool
