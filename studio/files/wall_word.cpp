#include "wall_word.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

namespace ClockStudio {

namespace {

constexpr int kDigestLength = 64;   // of SHA-256 in hexadecimal digits
constexpr int kOutdatedAfter = 180; // seconds; players write their status each minute

QString Translated(const char *text)
{
    return QCoreApplication::translate("ClockStudio::WallWord", text);
}

WallWord::State StateIn(const QJsonObject &status, const WallWord &word, const QString &digest,
                        const QDateTime &now)
{
    if (status.value(QStringLiteral("format")).toInt() != 1 || !word.written.isValid())
        return WallWord::State::Unknown;
    if (word.written.secsTo(now) > kOutdatedAfter)
        return WallWord::State::Outdated;
    if (!word.notice.isEmpty())
        return WallWord::State::Notice;
    return status.value(QStringLiteral("program_sha256")).toString() == digest
        ? WallWord::State::Plays
        : WallWord::State::PlaysOther;
}

} // namespace

WallWord ReadWallWord(const QByteArray &output, const QDateTime &now)
{
    const int end = output.indexOf('\n');
    const QString digest = QString::fromLatin1(output.left(kDigestLength));
    if (end < kDigestLength)
        return {};
    const QJsonObject status = QJsonDocument::fromJson(output.mid(end + 1)).object();
    WallWord word;
    word.written = QDateTime::fromString(status.value(QStringLiteral("written")).toString(),
                                         Qt::ISODateWithMs);
    word.notice = status.value(QStringLiteral("notice")).toString();
    word.state = StateIn(status, word, digest, now);
    return word;
}

QString WordText(const WallWord &word)
{
    switch (word.state) {
    case WallWord::State::Plays:
        return Translated(
            QT_TRANSLATE_NOOP("ClockStudio::WallWord", "The wall is playing this program."));
    case WallWord::State::PlaysOther:
        return Translated(
            QT_TRANSLATE_NOOP("ClockStudio::WallWord", "The wall is playing something else."));
    case WallWord::State::Notice:
        return Translated(QT_TRANSLATE_NOOP("ClockStudio::WallWord",
                                            "The wall shows the notice %1 instead of a program."))
            .arg(word.notice);
    case WallWord::State::Outdated:
        return Translated(QT_TRANSLATE_NOOP("ClockStudio::WallWord",
                                            "The wall's player has not been heard from since %1."))
            .arg(QLocale().toString(word.written.toLocalTime(), QLocale::ShortFormat));
    case WallWord::State::Unknown:
        break;
    }
    return Translated(
        QT_TRANSLATE_NOOP("ClockStudio::WallWord", "The wall's status cannot be read."));
}

} // namespace ClockStudio
