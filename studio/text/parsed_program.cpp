#include "parsed_program.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace ClockStudio {

namespace {

using ClockProgram::Failure;
using ClockProgram::ParseProgram;
using ClockProgram::Program;
using ClockProgram::Result;

QString Translated(const char *text)
{
    return QCoreApplication::translate("ClockStudio::TextFault", text);
}

/// Extracts line and reason from the parser's message, whose path is empty.
TextFault FaultOf(const Failure &failure)
{
    static const QRegularExpression form(QStringLiteral(R"(\A:([0-9]+):(?:[0-9]+:)? (.*)\z)"),
                                         QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = form.match(failure.text);
    if (!match.hasMatch())
        return {failure.text.startsWith(QLatin1String(": ")) ? failure.text.mid(2) : failure.text};
    return {match.captured(2), match.captured(1).toInt()};
}

/// A program without areas cannot be played, but is valid in the editor. Its size is checked by
/// the normal parser, with a dummy area inserted.
std::optional<Program> ReadEmptyProgram(const QString &text, const XmlElements &elements)
{
    const XmlElement &root = elements.first();
    if (root.name != ClockProgram::kProgramTag || !root.children.isEmpty())
        return std::nullopt;
    QString tag = text.mid(root.tag.begin, root.tag.Size());
    tag.chop(root.isSelfClosing ? 2 : 1);
    const QString whole = tag
        + QStringLiteral("><area x=\"0\" y=\"0\" width=\"1\" height=\"1\"><clock/></area>"
                         "</program>");
    Result<Program> program = ParseProgram(whole.toUtf8(), QString());
    if (!program)
        return std::nullopt;
    program->areas.clear();
    return *program;
}

TextFault NoElements(const QString &text)
{
    const int place = text.indexOf(QLatin1String("<!DOCTYPE"));
    if (place >= 0)
        return {
            Translated(QT_TRANSLATE_NOOP("ClockStudio::TextFault",
                                         "A program must not have a document type declaration.")),
            LineOf(text, place)};
    return {Translated(QT_TRANSLATE_NOOP("ClockStudio::TextFault", "This is not a program."))};
}

} // namespace

QString ParsedProgram::AreaText(int area) const
{
    const TextRange range = elements[AreaElement(area)].whole;
    return text.mid(range.begin, range.Size());
}

QString ParsedProgram::ClockText(int area) const
{
    const TextRange range = elements[ClockElement(area)].whole;
    return text.mid(range.begin, range.Size());
}

int ParsedProgram::AreaAt(int position) const
{
    for (int area = 0; area < AreaCount(); ++area) {
        if (elements[AreaElement(area)].whole.Contains(position))
            return area;
    }
    return -1;
}

std::variant<ParsedProgram, TextFault> ReadProgramText(const QString &text, const TextForm &form)
{
    const std::optional<QByteArray> contents = EncodeText(text, form);
    if (!contents)
        return TextFault {Translated(QT_TRANSLATE_NOOP(
            "ClockStudio::TextFault",
            "The text has a character that the file's encoding cannot represent."))};
    if (contents->size() > ClockProgram::kMaximumFileSize)
        return TextFault {Translated(
            QT_TRANSLATE_NOOP("ClockStudio::TextFault", "The text is too large for a program."))};
    const Result<Program> program = ParseProgram(*contents, QString());
    const std::optional<XmlElements> elements = FindElements(text);
    if (program) {
        if (!elements)
            return NoElements(text);
        return ParsedProgram {text, form, *elements, *program};
    }
    if (elements) {
        if (const std::optional<Program> empty = ReadEmptyProgram(text, *elements))
            return ParsedProgram {text, form, *elements, *empty};
    }
    return FaultOf(program.Error());
}

} // namespace ClockStudio
