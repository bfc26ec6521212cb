#include "glyph_messages.h"

#include <QFileInfo>
#include <QMap>

#include <cstring>
#include <utility>

namespace ClockProgram {

namespace {

using Lw::GlyphFault;
using Faults = QVector<GlyphFault>;

Faults OfKind(const Faults &faults, GlyphFault::Kind kind)
{
    Faults found;
    for (const GlyphFault &fault : faults) {
        if (fault.kind == kind)
            found.append(fault);
    }
    return found;
}

/// "_toptext, _lunar, _dateCh and 5 more"
QString Names(const Faults &faults)
{
    constexpr int kMaxListed = 3;
    QStringList names;
    for (const GlyphFault &fault : faults.mid(0, kMaxListed))
        names.append(fault.key);
    const QString listed = names.join(QStringLiteral(", "));
    return faults.size() <= kMaxListed
        ? listed
        : QStringLiteral("%1 and %2 more").arg(listed).arg(faults.size() - kMaxListed);
}

QString Images(const Faults &faults)
{
    return faults.size() == 1
        ? QStringLiteral("the glyph image %1").arg(Names(faults))
        : QStringLiteral("%1 glyph images (%2)").arg(faults.size()).arg(Names(faults));
}

Faults WithOlderFile(const Faults &faults)
{
    Faults older;
    for (const GlyphFault &fault : faults) {
        if (QFileInfo(fault.path).isFile())
            older.append(fault);
    }
    return older;
}

/// The message for images that could not be written to one directory for one reason.
QString WriteFailure(const QString &directory, int error, const Faults &faults)
{
    const QString text =
        QStringLiteral("%1: cannot write %2: %3")
            .arg(directory, Images(faults), QString::fromLocal8Bit(std::strerror(error)));
    const Faults older = WithOlderFile(faults);
    return older.isEmpty()
        ? text
        : text + QStringLiteral("; older ones are shown for %1").arg(Names(older));
}

QStringList WriteFailures(const Faults &faults)
{
    QMap<std::pair<QString, int>, Faults> groups;
    for (const GlyphFault &fault : OfKind(faults, GlyphFault::NotWritten))
        groups[{QFileInfo(fault.path).path(), fault.error}].append(fault);
    QStringList texts;
    for (auto group = groups.cbegin(); group != groups.cend(); ++group)
        texts.append(WriteFailure(group.key().first, group.key().second, *group));
    return texts;
}

QString DistinctCharacters(const Faults &faults)
{
    QString characters;
    for (const GlyphFault &fault : faults) {
        for (const char32_t code : fault.characters.toUcs4()) {
            const QString character = QString::fromUcs4(&code, 1);
            if (!characters.contains(character))
                characters += character;
        }
    }
    return characters;
}

void AppendIfAny(QStringList &texts, const Faults &faults, const QString &text)
{
    if (!faults.isEmpty())
        texts.append(text.arg(Images(faults)));
}

} // namespace

QString NoFontText()
{
    return QStringLiteral("no font is installed, so no text can be drawn");
}

GlyphMessages DescribeGlyphFaults(const QVector<Lw::GlyphFault> &faults)
{
    GlyphMessages messages;
    messages.failures = WriteFailures(faults);
    AppendIfAny(messages.failures, OfKind(faults, GlyphFault::NoFont),
                NoFontText() + QStringLiteral(": %1"));
    AppendIfAny(messages.failures, OfKind(faults, GlyphFault::TooLarge),
                QStringLiteral("%1 would be larger than 32767 pixels per side or 64 MiB; use a "
                               "smaller font or a shorter text"));
    AppendIfAny(messages.failures, OfKind(faults, GlyphFault::NoInk),
                QStringLiteral("the font draws nothing for %1"));
    const Faults lacking = OfKind(faults, GlyphFault::MissingCharacters);
    if (!lacking.isEmpty())
        messages.warnings.append(
            QStringLiteral(
                "no installed font has the characters \"%1\" of %2; boxes are drawn instead")
                .arg(DistinctCharacters(lacking), Images(lacking)));
    AppendIfAny(messages.warnings, OfKind(faults, GlyphFault::NotKept),
                QStringLiteral("cannot show %1: a clock's images may take 64 MiB of memory, "
                               "those of all clocks 256 MiB"));
    return messages;
}

} // namespace ClockProgram
