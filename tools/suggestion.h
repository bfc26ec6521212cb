// Suggestions for words that are not known.
#pragma once

#include <QString>
#include <QStringList>

namespace ClockTool {

/// The number of letters to insert, remove or replace to make one text of the other.
int EditDistance(const QString &one, const QString &other);

/// The candidate nearest to a word, without regard to case; empty when none is near enough to be
/// a typing error.
QString Nearest(const QString &word, const QStringList &candidates);

/// "; did you mean "x"?" where a candidate is near, else "; accepted: " and all of them.
QString Suggestion(const QString &word, const QStringList &candidates);

/// "; did you mean "x"?" where a candidate is near, else nothing.
QString DidYouMean(const QString &word, const QStringList &candidates);

/// A text from a file in quotation marks, short and on one line.
QString Quoted(const QString &text);

} // namespace ClockTool
