// studio/text: a program's text, the studio's only model. Every change is an undoable edit of it.
#pragma once

#include "parsed_program.h"

#include <QObject>
#include <QUndoStack>

namespace ClockStudio {

class StudioDocument : public QObject
{
    Q_OBJECT

public:
    explicit StudioDocument(QObject *parent = nullptr);

    /// Loads a file's bytes and clears the history. False, changing nothing, for bytes that are not
    /// text.
    bool Load(const QByteArray &bytes);
    /// The bytes to save; nothing if the encoding cannot represent the text.
    std::optional<QByteArray> Bytes() const;

    const QString &Text() const { return m_text; }
    QUndoStack &History() { return m_history; }

    /// Applies edits as one undo step. Edits that change nothing are dropped; if none remain,
    /// nothing happens. Consecutive changes with the same non-empty key are merged into one step.
    void Change(const TextEdits &edits, const QString &label, const QString &mergeKey = {});
    /// The next change starts a new undo step.
    void EndMerging() { ++m_mergeSession; }

    /// The parsed text; null while it is not a valid program.
    const ParsedProgram *Parsed() const { return m_fault ? nullptr : &m_parsed; }
    /// The last valid parse since the text was loaded; an empty wall until there is one.
    const ParsedProgram &LastParsed() const { return m_parsed; }
    const std::optional<TextFault> &Fault() const { return m_fault; }

Q_SIGNALS:
    void Edited(const ClockStudio::TextEdits &edits); ///< these edits have been applied
    void Loaded();                                    ///< the whole text was replaced
    void Read(); ///< after either: Parsed() and Fault() are up to date

private:
    friend class TextCommand;
    void Perform(const TextEdits &edits);
    void ResetParsed();
    void ReadText();

    QString m_text;
    TextForm m_form;
    ParsedProgram m_parsed;
    std::optional<TextFault> m_fault;
    QUndoStack m_history;
    int m_mergeSession = 0;
};

} // namespace ClockStudio
