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

/// The program's bytes with these settings. One is changed where the program sets it; otherwise
/// the attribute is added to the element that can hold it, else an "attribute" child. Fails for
/// a text that cannot be edited.
Result<QByteArray> WithSettings(const QByteArray &contents, const QString &path,
                                const QVector<SettingChange> &changes);

} // namespace ClockTool
