// studio/window: a message bar above the wall, with buttons.
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
        std::function<void()> act; ///< called after the bar is hidden
    };

    /// Shows a message and its buttons in place of the current one.
    void Ask(const QString &text, const QVector<Answer> &answers);

private:
    QLabel *m_text;
    QHBoxLayout *m_layout;
    QVector<QWidget *> m_buttons;
};

} // namespace ClockStudio
