#include "view_positions.h"

namespace ClockStudio {

QString InEditor(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    for (const QChar lineEnd :
         {QChar('\r'), QChar(QChar::ParagraphSeparator), QChar(0xfdd0), QChar(0xfdd1)})
        text.replace(lineEnd, QLatin1Char('\n'));
    return text;
}

int ToEditor(const QString &text, int position)
{
    return position - text.left(position).count(QLatin1String("\r\n"));
}

int FromEditor(const QString &text, int position)
{
    int at = 0;
    for (int pair = text.indexOf(QLatin1String("\r\n")); pair >= 0 && pair - at < position;
         pair = text.indexOf(QLatin1String("\r\n"), at)) {
        position -= pair - at + 1;
        at = pair + 2;
    }
    return at + position;
}

} // namespace ClockStudio
