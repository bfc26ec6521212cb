// What is logged while a test runs: kept for it, or not printed.
#pragma once

#include <QMutex>
#include <QStringList>

#include <cstdio>

/// Keeps what is logged while it lives, instead of printing it. One at a time.
class CollectedMessages
{
public:
    CollectedMessages()
    {
        Clear();
        m_before = qInstallMessageHandler(&Keep);
    }
    ~CollectedMessages() { qInstallMessageHandler(m_before); }
    Q_DISABLE_COPY(CollectedMessages)

    /// "0 default text" for each message: its type as a number, its category and its text.
    static QStringList Lines()
    {
        const QMutexLocker locker(&Kept().mutex);
        return Kept().lines;
    }

    static void Clear()
    {
        const QMutexLocker locker(&Kept().mutex);
        Kept().lines.clear();
    }

private:
    struct Store
    {
        QMutex mutex;
        QStringList lines;
    };

    static Store &Kept()
    {
        static Store store;
        return store;
    }

    static void Keep(QtMsgType type, const QMessageLogContext &context, const QString &text)
    {
        const QMutexLocker locker(&Kept().mutex);
        Kept().lines << QStringLiteral("%1 %2 %3").arg(type).arg(context.category, text);
    }

    QtMessageHandler m_before;
};

/// For a whole test program. Messages that end it are printed; no memory is needed for others.
inline void SilenceMessages()
{
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
        if (type == QtFatalMsg)
            std::fprintf(stderr, "%s\n", qPrintable(text));
    });
}
