// tools/: suggestions for unknown words.
#pragma once

#include <QString>
#include <QStringList>

namespace ClockTool {

/// The candidate nearest to a word, ignoring case; empty if none is near enough to be
/// a typing error.
QString Nearest(const QString &word, const QStringList &candidates);

/// "; did you mean "x"?" where a candidate is near, else "; accepted: " and all of them.
QString Suggestion(const QString &word, const QStringList &candidates);

/// "; did you mean "x"?" where a candidate is near, else nothing.
QString DidYouMean(const QString &word, const QStringList &candidates);

/// A text from a file in quotation marks, on one line, cut after 60 characters.
QString Quoted(const QString &text);

} // namespace ClockTool
