// player/: plays a program in a window: reloading, notices and the status file. With
// Options::isKiosk it runs unattended and shows a notice when it cannot play.
#pragma once

#include "command_line.h"
#include "device_state.h"
#include "playback.h"
#include "player.h"
#include "player_window.h"
#include "process_signals.h"
#include "program_watch.h"
#include "rules_end.h"
#include "screen_guard.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QObject>
#include <QTimer>

#include <memory>

namespace Lw {
class HNode;
}

namespace ClockPlayer {

class WindowShow : public QObject
{
    Q_OBJECT

public:
    WindowShow(const Options &options, Playback::TimeControl timeControl, const Warn &warn);

    /// The signature is the file's before the program was read. In a kiosk nothing fails: a notice
    /// is shown, and the program is tried again.
    ClockProgram::MaybeFailure Play(const ClockProgram::Result<ClockProgram::Program> &program,
                                    const FileSignature &signature);
    void PrintStats();

private:
    void BeginKiosk();
    void OnSecondPresented();
    void OnIdle();
    void CheckRequiredTime();
    void CheckProgram();
    void ReloadOnSignal();
    void Reload();
    void Report();
    ClockProgram::MaybeFailure Read();
    ClockProgram::MaybeFailure Show(const ClockProgram::Program &program);
    ClockProgram::MaybeFailure CheckGlyphs() const;
    void ShowNoticeIfGlyphsMissing();
    void CheckRestarted(Lw::HNode *node);
    void ShowNotice(Notice notice);
    void ReportFault(const QString &text);
    void WriteStatusFile();
    QJsonObject Status();

    const Options m_options;
    const Warn m_warn;
    const SignalPipe m_reportSignal;
    std::unique_ptr<SignalPipe> m_reloadSignal;
    std::unique_ptr<QuietConsole> m_console;
    std::unique_ptr<ScreenGuard> m_guard;
    PlayerWindow m_window;
    Playback m_playback;
    ProgramWatch m_watch;
    std::optional<Notice> m_notice;
    QTimer m_idle; ///< fires when no seconds are presented
    QElapsedTimer m_sinceStatus;
    QString m_digest;
    QJsonArray m_faults;
    int m_faultCount = 0;
    ClockZones::RulesEnds m_rulesEnds;
    const QDateTime m_started = QDateTime::currentDateTimeUtc();
};

} // namespace ClockPlayer
