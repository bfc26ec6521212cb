// studio/text: the program's text and what replaces parts of it.
// What a program's text says, together with where it says it.
#pragma once

#include "encoded_text.h"
#include "xml_positions.h"

#include "program_file.h"

#include <variant>

namespace ClockStudio {

struct ProgramReading
{
    QString text;
    TextForm form;
    XmlElements elements;
    ClockProgram::Program program; ///< may be without areas, as a new wall is

    int AreaCount() const { return program.areas.size(); }
    /// Indices into the elements; areas count from 0.
    int AreaElement(int area) const { return elements.first().children[area]; }
    int ClockElement(int area) const { return elements[AreaElement(area)].children.first(); }
    QRect Geometry(int area) const { return program.areas[area].geometry; }
    QString AreaText(int area) const;
    QString ClockText(int area) const;
    /// The area around a position of the text; -1 where there is none.
    int AreaAt(int position) const;
};

/// Why a text is no program.
struct TextFault
{
    QString reason;
    int line = 1; ///< from 1
};

std::variant<ProgramReading, TextFault> ReadProgramText(const QString &text, const TextForm &form);

} // namespace ClockStudio
