// Runs the real clock_tool, and writes what it reads.
#pragma once

#include "process_run.h"

#include <QFile>
#include <QTemporaryDir>

inline bool WriteText(const QString &path, const QByteArray &text)
{
    QFile file(path);
    return file.open(QFile::WriteOnly) && file.write(text) == text.size();
}

inline ProcessRun RunTool(const QStringList &arguments)
{
    return RunProcess(QStringLiteral(TOOL), arguments);
}

/// On a system without any font.
inline ProcessRun RunToolWithoutFonts(const QStringList &arguments)
{
    const QTemporaryDir directory;
    const QString fonts = directory.filePath("fonts.conf");
    if (!WriteText(fonts, "<fontconfig/>"))
        return {};
    QProcessEnvironment environment = DisplaylessEnvironment();
    environment.insert("FONTCONFIG_FILE", fonts);
    return RunProcess(QStringLiteral(TOOL), arguments, environment);
}

inline ProcessRun RunPlayer(const QStringList &arguments)
{
    return RunProcess(QStringLiteral(PLAYER), arguments);
}

inline QByteArray ReadText(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

/// A file of the source tree.
inline QString InTree(const QString &path)
{
    return QStringLiteral(SOURCE_DIR "/") + path;
}

/// A program of one area with this content, in one line.
inline QByteArray ProgramOf(const QByteArray &content)
{
    return "<program width=\"64\" height=\"32\"><area x=\"0\" y=\"0\" width=\"64\" height=\"32\">"
        + content + "</area></program>";
}
