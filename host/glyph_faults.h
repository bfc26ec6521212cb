// What went wrong when the glyph images of a clock were made or loaded, told on its node. Hosts that
// want to know ask for it after NodeAlready(), AfterUpdate() or CreateAreaRender(); all others need
// not know of it.
#pragma once

#include <QObject>
#include <QString>
#include <QVariant>
#include <QVector>

namespace Lw {

/// One image that is not what its clock should show.
struct GlyphFault
{
    enum Kind {
        NotWritten, ///< it could not be written; an older one of that name stays
        TooLarge,   ///< beyond 32767 pixels a side or 64 MiB; an older one of that name stays
        NoFont,     ///< no font is installed at all
        NoLetters,  ///< no installed font has some of its letters: boxes are drawn for them
        NoInk,      ///< it was made, and shows nothing although its text should
        NotKept,    ///< not shown: the images of its clock, or of all, would take too much memory
    };

    Kind kind = NotWritten;
    QString key;     ///< of the image
    QString path;    ///< where it was written, or should have been, under its plain name
    int error = 0;   ///< of NotWritten, the system's number
    QString letters; ///< of NoLetters, those that are lacking
};

/// The dynamic property of a node that holds the faults of its images, as a list of maps. A node
/// without faults does not have it.
inline constexpr char kGlyphFaults[] = "glyphFaults";

/// The faults of the node's last generation: of all images for what was not written, of those that
/// the clock shows for the rest. And what its last renderer does not keep. Empty for a node that
/// had none made and has no renderer, and for nodes of plugins that do not tell.
inline QVector<GlyphFault> GlyphFaultsOf(const QObject &node)
{
    QVector<GlyphFault> faults;
    for (const QVariant &each : node.property(kGlyphFaults).toList()) {
        const QVariantMap map = each.toMap();
        faults.append({static_cast<GlyphFault::Kind>(map.value(QStringLiteral("kind")).toInt()),
                       map.value(QStringLiteral("key")).toString(),
                       map.value(QStringLiteral("path")).toString(),
                       map.value(QStringLiteral("error")).toInt(),
                       map.value(QStringLiteral("letters")).toString()});
    }
    return faults;
}

/// For plugins: replaces what the node tells.
inline void SetGlyphFaults(QObject &node, const QVector<GlyphFault> &faults)
{
    QVariantList list;
    for (const GlyphFault &fault : faults)
        list.append(QVariantMap {{QStringLiteral("kind"), static_cast<int>(fault.kind)},
                                 {QStringLiteral("key"), fault.key},
                                 {QStringLiteral("path"), fault.path},
                                 {QStringLiteral("error"), fault.error},
                                 {QStringLiteral("letters"), fault.letters}});
    const bool tells = node.property(kGlyphFaults).isValid();
    if (tells || !list.isEmpty())
        node.setProperty(kGlyphFaults, list.isEmpty() ? QVariant() : QVariant(list));
}

} // namespace Lw
