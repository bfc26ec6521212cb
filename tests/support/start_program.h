// Starts a program as a test's child. Where the tests are emulated, so are the programs that were
// built with them: the kernel of the build machine cannot run those by itself.
#pragma once

#include <QByteArray>
#include <QFile>
#include <QProcess>
#include <QStringList>

/// What an ELF file says of its class, byte order and machine. Empty without such a file.
inline QByteArray MachineOf(const QString &program)
{
    QFile file(program);
    const QByteArray header = file.open(QFile::ReadOnly) ? file.read(20) : QByteArray();
    return header.startsWith("\177ELF") ? header.left(6) + header.mid(18) : QByteArray();
}

/// Times that are measured in an emulator are not the program's.
inline bool IsEmulated()
{
    return !qEnvironmentVariableIsEmpty("CLOCK_EMULATOR");
}

/// The command line that runs a program, with the emulator before it where it needs one.
/// CLOCK_EMULATOR is the emulator and its arguments, separated by colons; unset or empty where
/// nothing is emulated.
inline QStringList CommandLine(const QString &program, const QStringList &arguments = {})
{
    const QString emulator = qEnvironmentVariable("CLOCK_EMULATOR");
    const bool isOwn = MachineOf(program) == MachineOf(QStringLiteral("/proc/self/exe"));
    QStringList words = {program};
    if (isOwn && !emulator.isEmpty())
        words = emulator.split(':') + words;
    return words + arguments;
}

inline void StartProgram(QProcess &process, const QString &program, const QStringList &arguments)
{
    QStringList words = CommandLine(program, arguments);
    const QString first = words.takeFirst();
    process.start(first, words);
}
