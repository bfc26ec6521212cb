// A player in its window whose system clock is stepped while it plays.
#pragma once

#include "stepping_clock.h"
#include "window_player.h"

#include <QFile>
#include <QTest>

#include <memory>

class SteppedPlayer
{
public:
    /// Milliseconds from the true time, one step after the other.
    SteppedPlayer(const char *name, const QVector<qint64> &steps) : m_name(name), m_steps(steps) { }

    const char *Name() const { return m_name; }
    int Steps() const { return m_steps.size(); }
    int FollowedSteps() const { return m_followed; }   ///< that its window showed
    int ContinuedSteps() const { return m_continued; } ///< steps after which its time went on
    bool HasStarted() const { return m_player != nullptr; }
    Player &Window() { return *m_player; }

    void Start(const TestDisplay &display, const QString &program, const QString &directory)
    {
        m_offset = std::make_unique<QFile>(directory + '/' + m_name);
        m_offset->open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered);
        Shift(0);
        m_player = std::make_unique<Player>(
            display, QStringList {program, "--stats"},
            WithSteppingClock(display.Environment(), m_offset->fileName()));
    }

    // After the last step these three do nothing.
    void Step(int step)
    {
        if (step < Steps())
            Shift(m_steps[step]);
    }

    /// The window must tell the stepped time long before the second that ran at the step has ended.
    void AwaitStep(int step)
    {
        if (step < Steps())
            m_followed += QTest::qWaitFor([this] { return ShowsItsTime(); }, 3000) ? 1 : 0;
    }

    void AwaitNextSecond(int step)
    {
        if (step < Steps())
            m_continued += QTest::qWaitFor([this] { return GoesOn(); }) ? 1 : 0;
    }

    bool ShowsItsTime() { return ShiftedTime().isValid(); }

    /// Whether it shows a later time than at first after the step.
    bool GoesOn()
    {
        const QDateTime shown = ShiftedTime();
        return m_first.isValid() && shown > m_first;
    }

private:
    /// What the window shows; invalid where it is not the shifted time.
    QDateTime ShiftedTime()
    {
        const QDateTime expected = QDateTime::currentDateTimeUtc().addMSecs(m_shift).addSecs(-1);
        const QDateTime shown = m_player->Instant();
        if (!shown.isValid() || qAbs(shown.secsTo(expected)) > 1)
            return {};
        if (!m_first.isValid())
            m_first = shown;
        return shown;
    }

    void Shift(qint64 milliseconds)
    {
        m_offset->seek(0);
        m_offset->write(reinterpret_cast<const char *>(&milliseconds), sizeof milliseconds);
        m_shift = milliseconds;
        m_first = {};
    }

    const char *m_name;
    QVector<qint64> m_steps;
    std::unique_ptr<QFile> m_offset;
    std::unique_ptr<Player> m_player;
    qint64 m_shift = 0;
    QDateTime m_first; ///< shown after the step
    int m_followed = 0;
    int m_continued = 0;
};
