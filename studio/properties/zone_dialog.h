// studio/properties: the dialog that searches for a city's time zone.
#pragma once

#include <QDialog>

QT_BEGIN_NAMESPACE
class QLineEdit;
class QListWidget;
QT_END_NAMESPACE

namespace ClockStudio {

class ZoneDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ZoneDialog(QWidget *parent);

    QByteArray Zone() const; ///< empty where none is chosen

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void ShowMatches(const QString &search);

    QLineEdit *m_search;
    QListWidget *m_list;
};

} // namespace ClockStudio
