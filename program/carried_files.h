// program/: glyph files that come with a program, listed in the "file" elements of its clocks,
// relative to the directory of the program file.
#pragma once

#include "node_maker.h"

#include "hdata.h"

#include <QDir>
#include <QHash>
#include <QStringList>

namespace ClockProgram {

/// Checks the files that a program names. Each is read only once, as clocks share many of them.
class CarriedFiles
{
public:
    /// Relative paths begin at the directory of the program file.
    explicit CarriedFiles(const QString &programPath);

    QString PathOf(const Lw::FileRecord &record) const
    {
        return m_directory.absoluteFilePath(record.path);
    }
    /// What is wrong with a file, as the rest of a sentence after its name; empty if nothing is. It
    /// is read only where it has the recorded size, or the record has none (-1).
    QString Fault(const Lw::FileRecord &record);

private:
    QDir m_directory;
    QHash<QString, QString> m_digests; // by path
};

/// Turns the paths of the files recorded on the nodes into absolute ones. Returns a warning for
/// each file that is missing, is not a regular file, or differs from its recorded digest or size,
/// and for each clock that needs images and names none.
QStringList ResolveCarriedFiles(const Program &program, MadeNodes &made);

} // namespace ClockProgram
