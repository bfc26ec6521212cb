#include "glyph_report.h"

#include "glyph_messages.h"
#include "node_keys.h"

#include "hnode.h"

namespace ClockPlayer {

using namespace ClockProgram;

namespace {

QString OfClock(const QString &programPath, Lw::HNode &node, const QString &text)
{
    return QStringLiteral("%1: clock %2: %3")
        .arg(programPath)
        .arg(node.GetAttributeToInt(QLatin1String(kIdKey)))
        .arg(text);
}

} // namespace

MaybeFailure CheckGlyphs(const QVector<Lw::HNode *> &nodes, const QString &programPath,
                         const Warn &warn)
{
    QStringList failures;
    for (Lw::HNode *const node : nodes) {
        const GlyphMessages messages = DescribeGlyphFaults(Lw::GlyphFaultsOf(*node));
        for (const QString &text : messages.warnings)
            warn(OfClock(programPath, *node, QStringLiteral("warning: ") + text));
        for (const QString &text : messages.failures)
            failures.append(OfClock(programPath, *node, text));
    }
    if (failures.isEmpty())
        return std::nullopt;
    return Failure {ExitCode::RuntimeFailure, failures.join(QLatin1Char('\n'))};
}

} // namespace ClockPlayer
