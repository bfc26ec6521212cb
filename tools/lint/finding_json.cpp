#include "finding_json.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace ClockTool {

QByteArray FindingJson(const Finding &finding, const QString &file)
{
    const bool isNote = finding.severity == Severity::Note;
    const QJsonObject object = {
        {QStringLiteral("file"), file},
        {QStringLiteral("line"), finding.place.line},
        {QStringLiteral("clock"), finding.place.clock},
        {QStringLiteral("element"), finding.place.element},
        {QStringLiteral("attribute"), finding.place.attribute},
        {QStringLiteral("severity"), isNote ? QStringLiteral("note") : QStringLiteral("warning")},
        {QStringLiteral("text"), finding.text},
        {QStringLiteral("suggestion"), finding.suggestion},
    };
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

} // namespace ClockTool
