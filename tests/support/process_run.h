// Runs a real program and keeps what it said.
#pragma once

#include "start_program.h"

#include <QDir>
#include <QImage>
#include <QProcessEnvironment>
#include <QStringList>
#include <QVector>

struct ProcessRun
{
    int exitCode = -1;
    bool crashed = true;
    QString output;
    QString errors;
};

/// An environment without a display and without a choice of platform.
inline QProcessEnvironment DisplaylessEnvironment()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(QLatin1String(name));
    return environment;
}

inline ProcessRun RunProcess(const QString &program, const QStringList &arguments,
                             const QProcessEnvironment &environment = DisplaylessEnvironment())
{
    QProcess process;
    process.setProcessEnvironment(environment);
    StartProgram(process, program, arguments);
    ProcessRun run;
    if (!process.waitForFinished(120000)) {
        process.kill();
        process.waitForFinished();
        return run;
    }
    run.exitCode = process.exitCode();
    run.crashed = process.exitStatus() == QProcess::CrashExit;
    run.output = QString::fromLocal8Bit(process.readAllStandardOutput());
    run.errors = QString::fromLocal8Bit(process.readAllStandardError());
    // No program of the tree means to end so: the log of the test has to tell why.
    if (run.crashed || run.exitCode > 3)
        qWarning("%s ended with %d: %s", qPrintable(program), run.exitCode, qPrintable(run.errors));
    return run;
}

/// Runs a shell script in which "$@" is the program's command line.
inline ProcessRun RunInShell(const QString &script, const QString &program,
                             const QStringList &arguments = {})
{
    return RunProcess("sh", QStringList {"-c", script, "sh"} + CommandLine(program, arguments));
}

/// All frames of a directory in their order.
inline QVector<QImage> Frames(const QString &directory)
{
    QVector<QImage> frames;
    const QDir dir(directory);
    for (const QString &name : dir.entryList({QStringLiteral("frame_*.png")}, QDir::Files))
        frames.append(QImage(dir.filePath(name)));
    return frames;
}
