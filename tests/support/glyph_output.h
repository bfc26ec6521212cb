// Where glyph images of a test go, and the nodes they are made for.
#pragma once

#include "clock_node.h"
#include "glyph/draw_source_image.h"
#include "glyph/glyph_set.h"
#include "happconfig.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

/// The two output directories of the configuration, empty for each test that makes one.
class GlyphOutput
{
public:
    GlyphOutput()
    {
        Lw::HAppConfig::SetClockOutputPath(m_regular.path());
        Lw::HAppConfig::SetTempProgramImagePath(m_temporary.path());
    }

    QString Regular() const { return Lw::HAppConfig::ClockOutputPath(); }
    QString Temporary() const { return Lw::HAppConfig::TempProgramImagePath(); }
    QStringList RegularFiles() const { return FilesIn(Regular()); }
    QStringList TemporaryFiles() const { return FilesIn(Temporary()); }

    static QStringList FilesIn(const QString &directory)
    {
        return QDir(directory).entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::Hidden,
                                         QDir::Name);
    }
    static QByteArray Content(const QString &path)
    {
        QFile file(path);
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    QTemporaryDir m_regular;
    QTemporaryDir m_temporary;
};

inline void SetInt(Lw::HNodeClock::HClockNode &node, Lw::HNodeClock::Attribute attribute, int value)
{
    node.SetAttribute(Lw::HNodeClock::Key(attribute), value, false);
}

inline void SetText(Lw::HNodeClock::HClockNode &node, Lw::HNodeClock::Attribute attribute,
                    const QString &value)
{
    node.SetAttribute(Lw::HNodeClock::Key(attribute), value, false);
}

/// Every font of the node, of either type of clock.
inline void SetFonts(Lw::HNodeClock::HClockNode &node, const QString &family, int size, int colour)
{
    using namespace Lw::HNodeClock;
    for (int clockType : {AnalogClock, DigitalClock}) {
        for (int font = 0; font < kGlyphFontCount; ++font) {
            const auto attributes = FontAttributes(static_cast<GlyphFont>(font), clockType);
            SetText(node, attributes.family, family);
            SetInt(node, attributes.size, size);
            SetInt(node, attributes.colour, colour);
        }
    }
}

/// A clock of that type with the given identity, top text "LED", red 12-point DejaVu Sans.
inline void FillNode(Lw::HNodeClock::HClockNode &node, int clockType, int id)
{
    using namespace Lw::HNodeClock;
    SetInt(node, Attribute::ClockType, clockType);
    SetInt(node, Attribute::Id, id);
    SetText(node, Attribute::AnalogTopText, QStringLiteral("LED"));
    SetText(node, Attribute::DigitalTopText, QStringLiteral("LED"));
    SetFonts(node, QStringLiteral("DejaVu Sans"), 12, 0x0000ff);
}

/// The images of that type of clock, in the order in which they are generated.
inline QStringList KeysOfSet(int clockType)
{
    using namespace Lw::HNodeClock;
    QStringList keys;
    for (const GlyphImage &image : GlyphImages(GlyphOrder::Generation, clockType))
        keys << image.Key();
    return keys;
}

inline void Generate(Lw::HNodeClock::HClockNode &node, bool calcMd5 = false,
                     bool isTempUpdate = false)
{
    Lw::HNodeClock::DrwSourceIMage generator;
    generator.DrawClockSourceImage(&node, calcMd5, isTempUpdate);
}
