// host/: faults found while a clock's glyph images are generated or loaded, stored as a property of
// its node. Hosts that want them call GlyphFaultsOf() after NodeAlready(), AfterUpdate() or
// CreateAreaRender(); others can ignore them.
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
        NotWritten,        ///< it could not be written; an older file of that name is kept
        TooLarge,          ///< above 32767 pixels per side or 64 MiB; an older file is kept
        NoFont,            ///< no font is installed at all
        MissingCharacters, ///< some of its characters are in no installed font and are drawn as
                           ///< boxes instead
        NoInk,             ///< it was generated but is blank although its text is not
        NotKept, ///< not shown: the images of its clock, or of all, would take too much memory
    };

    Kind kind = NotWritten;
    QString key;        ///< of the image
    QString path;       ///< the path under its plain name, whether or not it was written
    int error = 0;      ///< for NotWritten: the value of errno
    QString characters; ///< for MissingCharacters: the missing ones
};

/// The dynamic property of a node that holds the faults of its images, as a list of maps. A node
/// without faults does not have it.
inline constexpr char kGlyphFaults[] = "glyphFaults";

/// The faults from the last generation and the last renderer: every image that could not be
/// written; other faults only for images that the clock shows; and the images that the renderer
/// could not load. Empty for a node that has neither generated images nor had a renderer, and for
/// nodes of plugins that do not report faults.
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

/// For plugins: replaces the faults stored on the node.
inline void SetGlyphFaults(QObject &node, const QVector<GlyphFault> &faults)
{
    QVariantList list;
    for (const GlyphFault &fault : faults)
        list.append(QVariantMap {{QStringLiteral("kind"), static_cast<int>(fault.kind)},
                                 {QStringLiteral("key"), fault.key},
                                 {QStringLiteral("path"), fault.path},
                                 {QStringLiteral("error"), fault.error},
                                 {QStringLiteral("letters"), fault.characters}});
    const bool hasFaults = node.property(kGlyphFaults).isValid();
    if (hasFaults || !list.isEmpty())
        node.setProperty(kGlyphFaults, list.isEmpty() ? QVariant() : QVariant(list));
}

} // namespace Lw
