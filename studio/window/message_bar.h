// studio/window: the window that brings everything together.
// A line above the wall with something to know or to decide, and buttons for it.
#pragma once

#include <QFrame>

#include <functional>

QT_BEGIN_NAMESPACE
class QHBoxLayout;
class QLabel;
QT_END_NAMESPACE

namespace ClockStudio {

class MessageBar : public QFrame
{
    Q_OBJECT

public:
    explicit MessageBar(QWidget *parent = nullptr);

    struct Answer
    {
        QString text;
        std::function<void()> act; ///< the bar hides before it
    };

    /// Replaces what is shown.
    void Ask(const QString &text, const QVector<Answer> &answers);
    void Say(const QString &text) { Ask(text, {}); }

private:
    QLabel *m_text;
    QHBoxLayout *m_layout;
    QVector<QWidget *> m_buttons;
};

} // namespace ClockStudio
