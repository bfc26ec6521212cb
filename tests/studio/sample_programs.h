// The sample programs, and reading them, for the tests of the studio.
#pragma once

#include "text/parsed_program.h"

#include <QDir>
#include <QFile>
#include <QtTest>

inline QByteArray ContentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

inline QStringList SamplePaths()
{
    QStringList paths;
    const QDir directory(QStringLiteral(EXAMPLES));
    for (const QString &name : directory.entryList({QStringLiteral("*.xml")}))
        paths.append(directory.filePath(name));
    return paths;
}

/// A text that must be a program.
inline ClockStudio::ParsedProgram MustRead(const QString &text)
{
    auto read = ClockStudio::ReadProgramText(text, ClockStudio::TextForm());
    if (const auto *fault = std::get_if<ClockStudio::TextFault>(&read))
        qFatal("line %d: %s", fault->line, qPrintable(fault->reason));
    return std::get<ClockStudio::ParsedProgram>(read);
}
