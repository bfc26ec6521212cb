// Glyph files that travel with a program: the "file" elements of its clocks name them, relative to
// the directory of the program file.
#pragma once

#include "node_maker.h"

#include "hdata.h"

#include <QDir>
#include <QHash>
#include <QStringList>

namespace ClockProgram {

/// Looks at the files that a program names. Clocks share many of them: each is read once.
class CarriedFiles
{
public:
    /// Relative paths begin at the directory of the program file.
    explicit CarriedFiles(const QString &programPath);

    QString PathOf(const Lw::FileRecord &record) const
    {
        return m_directory.absoluteFilePath(record.path);
    }
    /// What is wrong with a file, to follow its name in a sentence; empty when nothing is. It is
    /// read only where it has the recorded size, or the record has none (-1).
    QString Fault(const Lw::FileRecord &record);

private:
    QDir m_directory;
    QHash<QString, QString> m_digests; // by path
};

/// Turns the paths of the files recorded on the nodes into absolute ones. Returns a warning for
/// each file that is missing, is not an ordinary file, or differs from its recorded digest or size,
/// and for each clock that needs images and names none.
QStringList ResolveCarriedFiles(const Program &program, MadeNodes &made);

} // namespace ClockProgram
