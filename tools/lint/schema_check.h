// Holds a program against the schema in docs/program.rng.
#pragma once

#include "finding.h"

#include <QByteArray>

namespace ClockTool {

struct SchemaReport
{
    QVector<Finding> faults; ///< at most one a line
    /// It is known only that something within or near these elements is wrong.
    bool isVague = false;
};

/// What the schema does not allow.
SchemaReport CheckAgainstSchema(const QByteArray &contents);

} // namespace ClockTool
