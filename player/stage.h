// All areas of a program while they play.
#pragma once

#include "area.h"
#include "failure.h"
#include "program_file.h"
#include "program_names.h"

#include <QObject>
#include <QStringList>

#include <memory>
#include <vector>

namespace ClockPlayer {

class Stage : public QObject
{
    Q_OBJECT

public:
    /// Makes the nodes. A failure leaves a stage that must not be started.
    MaybeFailure Build(const Program &program, GlyphFiles glyphFiles);
    QStringList Warnings() const { return m_warnings; }
    QSize Size() const { return m_size; }

    void Start();    ///< every area shows its first picture
    void PlayNext(); ///< every area shows its next picture now

    QVector<Lw::HNode *> Nodes() const; ///< those that still live
    QVector<Layer> Layers() const;
    QImage Screen() const; ///< the composed screen

Q_SIGNALS:
    void Changed(QRect region); ///< pixels of the screen that must be composed anew

private:
    void AddArea(Lw::INodePlugin *plugin, std::unique_ptr<Lw::HNode> node, GlyphFiles glyphFiles);

    QSize m_size;
    std::vector<std::unique_ptr<Area>> m_areas; ///< in the order of the program
    QStringList m_warnings;
};

} // namespace ClockPlayer
