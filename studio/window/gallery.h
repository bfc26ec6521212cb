// studio/window: the start page: templates with pictures, recent files, an empty wall.
#pragma once

#include <QWidget>

#include <memory>

QT_BEGIN_NAMESPACE
class QListWidget;
class QPushButton;
QT_END_NAMESPACE

namespace ClockStudio {

class ProgramPicture;

class Gallery : public QWidget
{
    Q_OBJECT

public:
    explicit Gallery(QWidget *parent = nullptr);
    ~Gallery() override;

    /// Updates the recent files. If a program is open, a button leads back to its wall.
    void Refresh(const QStringList &recent, bool isOpen);

Q_SIGNALS:
    void TemplateChosen(const QByteArray &bytes);
    void FileChosen(const QString &path);
    void OpenWanted();
    void ReturnWanted();

private:
    QLayout *StartPart();
    void SetUpRecentPart();
    QLayout *TemplatesPart();
    void AddTemplates();
    void DrawNextPicture();
    void DrawNextClock();
    void BeginEmpty();

    QPushButton *m_return;
    QListWidget *m_templates;
    QListWidget *m_recent;
    QWidget *m_recentPart;
    int m_drawn = 0;                           ///< number of templates whose picture is drawn
    std::unique_ptr<ProgramPicture> m_picture; ///< of the next one, while it is drawn
};

} // namespace ClockStudio
