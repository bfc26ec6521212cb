// tools/: changes settings of clocks in a program's text, and nothing else.
#pragma once

#include "commands.h"

#include "clock_attributes.h"

#include <QByteArray>
#include <QVector>

namespace ClockTool {

/// One attribute of one clock.
struct SettingChange
{
    int area = 0; ///< counted from 0
    Lw::HNodeClock::Attribute attribute = Lw::HNodeClock::Attribute::TimeZone;
    QString value; ///< in the stored form
};

/// The program's bytes with these settings. A setting is changed where the program has it; else
/// it is added to an element that can hold it, or else as an "attribute" child. Fails for
/// a text that cannot be edited.
Result<QByteArray> WithSettings(const QByteArray &contents, const QString &path,
                                const QVector<SettingChange> &changes);

} // namespace ClockTool
