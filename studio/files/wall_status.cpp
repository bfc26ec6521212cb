#include "wall_status.h"

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
    return QCoreApplication::translate("ClockStudio::WallStatus", text);
}

WallStatus::State StateIn(const QJsonObject &fields, const WallStatus &status,
                          const QString &digest, const QDateTime &now)
{
    if (fields.value(QStringLiteral("format")).toInt() != 1 || !status.written.isValid())
        return WallStatus::State::Unknown;
    if (status.written.secsTo(now) > kOutdatedAfter)
        return WallStatus::State::Outdated;
    if (!status.notice.isEmpty())
        return WallStatus::State::Notice;
    return fields.value(QStringLiteral("program_sha256")).toString() == digest
        ? WallStatus::State::Plays
        : WallStatus::State::PlaysOther;
}

} // namespace

WallStatus ReadWallStatus(const QByteArray &output, const QDateTime &now)
{
    const int end = output.indexOf('\n');
    const QString digest = QString::fromLatin1(output.left(kDigestLength));
    if (end < kDigestLength)
        return {};
    const QJsonObject fields = QJsonDocument::fromJson(output.mid(end + 1)).object();
    WallStatus status;
    status.written = QDateTime::fromString(fields.value(QStringLiteral("written")).toString(),
                                           Qt::ISODateWithMs);
    status.notice = fields.value(QStringLiteral("notice")).toString();
    status.state = StateIn(fields, status, digest, now);
    return status;
}

QString StatusText(const WallStatus &status)
{
    switch (status.state) {
    case WallStatus::State::Plays:
        return Translated(
            QT_TRANSLATE_NOOP("ClockStudio::WallStatus", "The wall is playing this program."));
    case WallStatus::State::PlaysOther:
        return Translated(
            QT_TRANSLATE_NOOP("ClockStudio::WallStatus", "The wall is playing something else."));
    case WallStatus::State::Notice:
        return Translated(QT_TRANSLATE_NOOP("ClockStudio::WallStatus",
                                            "The wall shows the notice %1 instead of a program."))
            .arg(status.notice);
    case WallStatus::State::Outdated:
        return Translated(QT_TRANSLATE_NOOP("ClockStudio::WallStatus",
                                            "The wall's player has not been heard from since %1."))
            .arg(QLocale().toString(status.written.toLocalTime(), QLocale::ShortFormat));
    case WallStatus::State::Unknown:
        break;
    }
    return Translated(
        QT_TRANSLATE_NOOP("ClockStudio::WallStatus", "The wall's status cannot be read."));
}

} // namespace ClockStudio
