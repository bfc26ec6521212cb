// tools/: clock_tool fit, which writes a program with font sizes that fit on every day of a year.
#include "clock_nodes.h"
#include "commands.h"
#include "output.h"
#include "setting_edits.h"
#include "tool_arguments.h"

#include "fit.h"
#include "wall_check.h"
#include "xml_document.h"

namespace ClockTool {

namespace {

using namespace ClockFit;
using namespace Lw::HNodeClock;

constexpr char kDescription[] =
    "Writes a program with text sizes that fit: no part of a text is cut on any day of a "
    "year.\n"
    "If one text of a clock is cut, it gets the largest size that fits; if several are, all\n"
    "sizes of the clock are reduced by one factor. Nothing but these sizes changes, not even\n"
    "white space or comments. Clocks that fit are left unchanged.\n"
    "\n"
    "Each change is reported on standard error. Exit codes: 0 everything fits, 1 a clock is cut "
    "at\n"
    "every size, and is written unchanged.";

const QLatin1String kGrow("grow");

class FitCommand
{
public:
    FitCommand(const ProgramClocks &clocks, qint64 begin, bool grows)
        : m_clocks(clocks), m_check(YearFrom(begin)), m_grows(grows)
    { }

    QVector<SettingChange> Changes()
    {
        QVector<SettingChange> changes;
        for (int area = 0; area < m_clocks.Count(); ++area) {
            HClockNode &clock = m_clocks.Clock(area);
            const std::optional<FontSizes> sizes = SizesFor(area, clock);
            if (!sizes) {
                m_fits = false;
                Tell(area, QStringLiteral("no sizes fit this clock"));
                continue;
            }
            AddChanges(changes, area, clock, *sizes);
        }
        return changes;
    }

    bool FitsAll() const { return m_fits; }

private:
    std::optional<FontSizes> SizesFor(int area, HClockNode &clock)
    {
        const ClockProgram::Program &program = m_clocks.program;
        const QRect visible = VisibleOf(program.areas[area].geometry, program.size);
        if (visible.isEmpty())
            return SizesOf(clock);
        if (m_grows) {
            const CommonSizes grown = GrownSizes(m_check, clock, visible);
            if (grown.factor > 0)
                return grown.sizes;
        }
        return SizesThatFit(m_check, clock, visible);
    }

    void AddChanges(QVector<SettingChange> &changes, int area, HClockNode &clock,
                    const FontSizes &sizes)
    {
        const FontSizes own = SizesOf(clock);
        for (int font = 0; font < kGlyphFontCount; ++font) {
            const auto index = static_cast<std::size_t>(font);
            if (sizes[index] == own[index])
                continue;
            const Attribute attribute =
                FontAttributes(static_cast<GlyphFont>(font), clock.ClockType()).size;
            changes.append({area, attribute, QString::number(sizes[index])});
            Tell(area,
                 QStringLiteral("%1 changed from %3 to %2 points")
                     .arg(Key(attribute))
                     .arg(sizes[index])
                     .arg(own[index]));
        }
    }

    void Tell(int area, const QString &text) const
    {
        Say(ClockProgram::AtElement(m_clocks.program.path, m_clocks.program.areas[area].element,
                                    text));
    }

    const ProgramClocks &m_clocks;
    ClockCheck m_check;
    const bool m_grows;
    bool m_fits = true;
};

struct Fitting
{
    QVector<SettingChange> changes;
    bool fitsAll = true;
};

/// The program's clocks, which may take much memory, are freed when it returns.
Result<Fitting> FindSizes(const ToolArguments &tool, const QByteArray &contents, qint64 begin)
{
    const Result<ProgramClocks> clocks = ParseClocks(contents, tool.Positional(0));
    if (!clocks)
        return clocks.Error();
    clocks->SayWarnings();
    const MaybeFailure large = ClockProgram::CheckFrameBytes(clocks->program);
    if (large && !tool.AllowsLargeFrames())
        return *large;
    FitCommand fit(*clocks, begin, tool.IsSet(kGrow));
    const QVector<SettingChange> changes = fit.Changes();
    return Fitting {changes, fit.FitsAll()};
}

CommandResult Fit(const ToolArguments &tool, qint64 begin)
{
    const QString path = tool.Positional(0);
    const Result<QByteArray> contents = ClockProgram::ReadContents(path);
    if (!contents)
        return Report(contents.Error());
    const Result<Fitting> found = FindSizes(tool, *contents, begin);
    if (!found)
        return Report(found.Error());
    const Result<QByteArray> fitted =
        found->changes.isEmpty() ? contents : WithSettings(*contents, path, found->changes);
    if (!fitted)
        return Report(fitted.Error());
    const CommandResult delivered = Deliver(tool.Output(), *fitted);
    return delivered == ExitCode::Success && !found->fitsAll ? ExitCode::RuntimeFailure : delivered;
}

} // namespace

CommandResult RunFit(const QStringList &arguments)
{
    ToolArguments tool(QStringLiteral("fit"), QString::fromLatin1(kDescription));
    tool.AddPositional(QStringLiteral("PROGRAM.xml"), QStringLiteral("The program to fit."));
    tool.AddOutput();
    tool.AddLanguage();
    tool.AddLargeFrames();
    tool.AddYear();
    tool.AddFlag(kGrow, QStringLiteral("Also enlarge clocks that fit, as far as they still fit."));
    if (const auto ended = tool.Parse(arguments))
        return *ended;
    if (const MaybeFailure failure = tool.InstallLanguage())
        return Report(*failure);
    const Result<qint64> begin = tool.YearBegin();
    if (!begin)
        return Report(begin.Error());
    return Fit(tool, *begin);
}

} // namespace ClockTool
