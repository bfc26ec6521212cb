// What the tests of the node share.
#pragma once

#include "clock_node.h"

#include "happconfig.h"

#include <QDomDocument>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>
#include <unistd.h>

/// Counts the redraws a node asks for, and at each notes the key that was written last for the
/// first time.
class RedrawLog
{
public:
    explicit RedrawLog(Lw::HNodeClock::HClockNode &node)
    {
        QObject::connect(&node, &Lw::HNodeClock::HClockNode::ReDrawSourceImage, &node,
                         [this, &node] {
                             ++m_count;
                             const QStringList keys = node.AttributeKeys();
                             m_newestKeys.append(keys.isEmpty() ? QString() : keys.last());
                         });
    }

    int Count() const { return m_count; }
    QStringList NewestKeys() const { return m_newestKeys; }

private:
    int m_count = 0;
    QStringList m_newestKeys;
};

/// A node that a listener of its signal deletes at one of the emissions.
class DeletedNode
{
public:
    using HClockNode = Lw::HNodeClock::HClockNode;

    explicit DeletedNode(int lastEmission) : m_node(new HClockNode)
    {
        QObject::connect(m_node, &HClockNode::ReDrawSourceImage, m_node, [this, lastEmission] {
            if (++m_emissions == lastEmission)
                delete m_node;
        });
    }
    Q_DISABLE_COPY(DeletedNode)

    HClockNode &Node() const { return *m_node; } ///< until it is deleted
    int Emissions() const { return m_emissions; }

private:
    HClockNode *m_node;
    int m_emissions = 0;
};

/// The root of an XML text. The document must outlive it.
inline QDomElement ParseXml(QDomDocument &document, const QString &xml)
{
    QString error;
    if (!document.setContent(xml, &error))
        qFatal("test XML does not parse: %s", qPrintable(error));
    return document.documentElement();
}

/// All attributes of a node as text, for comparison of what an operation changed.
inline QMap<QString, QString> AttributesOf(Lw::HNodeClock::HClockNode &node)
{
    QMap<QString, QString> all;
    for (const QString &key : node.AttributeKeys())
        all.insert(key, node.GetAttribute(key));
    return all;
}

/// Keys whose values differ between two snapshots, or that only the second has.
inline QStringList ChangedKeys(const QMap<QString, QString> &before,
                               const QMap<QString, QString> &after)
{
    QStringList changed;
    for (auto it = after.begin(); it != after.end(); ++it) {
        if (!before.contains(it.key()) || before.value(it.key()) != it.value())
            changed.append(it.key());
    }
    return changed;
}

/// While it lives, what the program prints goes to a file; Take() gives it back.
class CapturedOutput
{
public:
    CapturedOutput()
    {
        std::fflush(stdout);
        m_saved = dup(STDOUT_FILENO);
        m_file = std::tmpfile();
        dup2(fileno(m_file), STDOUT_FILENO);
    }
    ~CapturedOutput()
    {
        Restore();
        std::fclose(m_file);
    }
    Q_DISABLE_COPY(CapturedOutput)

    QByteArray Take()
    {
        Restore();
        std::rewind(m_file);
        QFile file;
        file.open(m_file, QIODevice::ReadOnly);
        return file.readAll();
    }

private:
    void Restore()
    {
        if (m_saved < 0)
            return;
        std::fflush(stdout);
        dup2(m_saved, STDOUT_FILENO);
        close(m_saved);
        m_saved = -1;
    }

    int m_saved = -1;
    std::FILE *m_file = nullptr;
};

inline void WriteFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

/// Null where there is no readable file.
inline QByteArray ReadFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray();
    const QByteArray bytes = file.readAll();
    return bytes.isNull() ? QByteArray("") : bytes;
}

/// A host whose clock output and temporary image directories are fresh ones.
class FreshDirectories
{
public:
    FreshDirectories()
    {
        Lw::HAppConfig::SetClockOutputPath(m_root.filePath(QStringLiteral("out")));
        Lw::HAppConfig::SetTempProgramImagePath(m_root.filePath(QStringLiteral("temp")));
        QDir(m_root.path()).mkpath(QStringLiteral("dest"));
    }
    QString Root() const { return m_root.path() + QLatin1Char('/'); }
    QString Out() const { return Root() + QStringLiteral("out/"); }
    QString Temp() const { return Root() + QStringLiteral("temp/"); }
    QString Dest() const { return Root() + QStringLiteral("dest/"); }

private:
    QTemporaryDir m_root;
};
