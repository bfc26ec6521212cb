// studio/text: a program as parsed together with the text positions of its elements.
#pragma once

#include "encoded_text.h"
#include "xml_positions.h"

#include "program_file.h"

#include <variant>

namespace ClockStudio {

struct ParsedProgram
{
    QString text;
    TextForm form;
    XmlElements elements;
    ClockProgram::Program program; ///< may have no areas: a new wall has none

    int AreaCount() const { return program.areas.size(); }
    /// Indices into the elements; areas count from 0.
    int AreaElement(int area) const { return elements.first().children[area]; }
    int ClockElement(int area) const { return elements[AreaElement(area)].children.first(); }
    QRect Geometry(int area) const { return program.areas[area].geometry; }
    QString AreaText(int area) const;
    QString ClockText(int area) const;
    /// The area that contains a position in the text; -1 if none.
    int AreaAt(int position) const;
};

/// Why a text is not a valid program.
struct TextFault
{
    QString reason;
    int line = 1; ///< counted from 1
};

std::variant<ParsedProgram, TextFault> ReadProgramText(const QString &text, const TextForm &form);

} // namespace ClockStudio
