#include "message_bar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace ClockStudio {

MessageBar::MessageBar(QWidget *parent)
    : QFrame(parent), m_text(new QLabel(this)), m_layout(new QHBoxLayout(this))
{
    m_layout->setContentsMargins(14, 8, 14, 8);
    m_layout->setSpacing(8);
    m_text->setWordWrap(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_layout->addWidget(m_text, 1);
    setStyleSheet(QStringLiteral("ClockStudio--MessageBar { background: #f3d28b; }"
                                 "ClockStudio--MessageBar QLabel { color: #2a2000; }"));
    hide();
}

void MessageBar::Ask(const QString &text, const QVector<Answer> &answers)
{
    for (QWidget *const button : qAsConst(m_buttons))
        button->deleteLater();
    m_buttons.clear();
    m_text->setText(text);
    for (const Answer &answer : answers) {
        auto *const button = new QPushButton(answer.text, this);
        connect(button, &QPushButton::clicked, this, [this, act = answer.act] {
            hide();
            if (act)
                act();
        });
        m_layout->addWidget(button);
        m_buttons.append(button);
    }
    show();
}

} // namespace ClockStudio
