// studio/properties: a group of controls under a heading, which may have a switch.
#pragma once

#include <QGridLayout>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QCheckBox;
class QLabel;
QT_END_NAMESPACE

namespace ClockStudio {

class Section : public QWidget
{
    Q_OBJECT

public:
    explicit Section(const QString &title);

    /// Adds a switch beside the heading that shows and hides the controls below.
    void AddSwitch(const QString &explanation);
    void SetSwitch(Qt::CheckState state);

    /// Adds a labelled row of controls. Those of the kind of the first share the width.
    void AddLine(const QString &label, const QVector<QWidget *> &controls);
    void AddWide(QWidget *control);

Q_SIGNALS:
    void Switched(bool on);

private:
    QCheckBox *m_switch = nullptr;
    QWidget *m_body;
    QGridLayout *m_grid;
    QWidget *m_heading;
};

} // namespace ClockStudio
