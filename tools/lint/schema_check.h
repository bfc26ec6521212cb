// lint/: validates a program against the schema in docs/program.rng.
#pragma once

#include "finding.h"

#include <QByteArray>

namespace ClockTool {

struct SchemaReport
{
    QVector<Finding> faults; ///< at most one per line
    /// The errors only say that something in or near these elements is wrong.
    bool isVague = false;
};

/// Reports what violates the schema.
SchemaReport CheckAgainstSchema(const QByteArray &contents);

} // namespace ClockTool
