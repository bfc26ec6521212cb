// A system with few fonts, for the tests of the studio.
#pragma once

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

/// Runs a test on a system with these fonts only, as fontconfig's configuration gives them.
template<class Test>
int RunWithFonts(const QByteArray &configuration, int argc, char **argv)
{
    const QTemporaryDir directory;
    QFile file(directory.filePath(QStringLiteral("fonts.conf")));
    if (!file.open(QFile::WriteOnly) || file.write(configuration) != configuration.size())
        qFatal("no configuration of fonts");
    file.close();
    qputenv("FONTCONFIG_FILE", QFile::encodeName(file.fileName()));
    const QApplication application(argc, argv);
    Test test;
    return QTest::qExec(&test, argc, argv);
}
