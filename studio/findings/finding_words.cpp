#include "finding_words.h"

#include "calendar/time_units.h"

#include <QDateTime>
#include <QLocale>
#include <QRegularExpression>

namespace ClockStudio {

namespace {

using namespace Lw::HNodeClock;

/// Keeps year, month and day in this order in a text from right to left.
QString FromLeftToRight(const QString &text)
{
    constexpr ushort kEmbedding = 0x202A;
    constexpr ushort kEnd = 0x202C;
    return QLocale().textDirection() == Qt::LeftToRight ? text
                                                        : QChar(kEmbedding) + text + QChar(kEnd);
}

QString LocalTime(const QDateTime &instant, const ZoneSettings &zone)
{
    const int offset = OffsetAt(zone, instant.toMSecsSinceEpoch());
    const QDateTime local = instant.toOffsetFromUtc(offset);
    const QString seconds = offset % kSecondsPerMinute == 0 ? QString() : QStringLiteral(":ss");
    const QTime size = QTime(0, 0).addSecs(qAbs(offset));
    return FromLeftToRight(QStringLiteral("%1 (UTC%2%3)")
                               .arg(local.toString(QStringLiteral("yyyy-MM-dd hh:mm:ss")),
                                    offset < 0 ? QStringLiteral("-") : QStringLiteral("+"),
                                    size.toString(QStringLiteral("hh:mm") + seconds)));
}

} // namespace

QString WithLocalTimes(QString text, const ZoneSettings &zone)
{
    static const QRegularExpression utc(
        QStringLiteral("\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\dZ"));
    int from = 0;
    for (auto match = utc.match(text); match.hasMatch(); match = utc.match(text, from)) {
        const QDateTime instant = QDateTime::fromString(match.captured(), Qt::ISODate);
        const QString local = instant.isValid() ? LocalTime(instant, zone) : match.captured();
        text.replace(match.capturedStart(), match.capturedLength(), local);
        from = match.capturedStart() + local.size();
    }
    return text;
}

} // namespace ClockStudio
