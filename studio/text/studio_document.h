// studio/text: the program's text and what replaces parts of it.
// The one model of the studio: a program's text. Every change is an edit of it that can be undone.
#pragma once

#include "program_reading.h"

#include <QObject>
#include <QUndoStack>

namespace ClockStudio {

class StudioDocument : public QObject
{
    Q_OBJECT

public:
    explicit StudioDocument(QObject *parent = nullptr);

    /// Takes over a file's bytes; the history begins with them. False for bytes that are no text,
    /// and then nothing changes.
    bool Load(const QByteArray &bytes);
    /// The bytes to be saved; nothing where the encoding lacks a character of the text.
    std::optional<QByteArray> Bytes() const;
    const TextForm &Form() const { return m_form; }

    const QString &Text() const { return m_text; }
    QUndoStack &History() { return m_history; }

    /// Makes a change in one step of the history. Edits that replace nothing by nothing are left
    /// out; without others nothing happens. Changes that follow each other with one key, not empty,
    /// are one step.
    void Change(const TextEdits &edits, const QString &label, const QString &mergeKey = {});
    /// Ends a row of changes with one key.
    void EndMerging() { ++m_mergeSession; }

    /// What the text says; null while it is no program.
    const ProgramReading *Reading() const { return m_fault ? nullptr : &m_reading; }
    /// What the last text that was a program says.
    const ProgramReading &LastReading() const { return m_reading; }
    const std::optional<TextFault> &Fault() const { return m_fault; }

Q_SIGNALS:
    void Edited(const ClockStudio::TextEdits &edits); ///< the text has changed by these
    void Loaded();                                    ///< it is another text
    void Read(); ///< after either: reading and fault are those of the new text

private:
    friend class TextCommand;
    void Perform(const TextEdits &edits);
    void ReadText();

    QString m_text;
    TextForm m_form;
    ProgramReading m_reading;
    std::optional<TextFault> m_fault;
    QUndoStack m_history;
    int m_mergeSession = 0;
};

} // namespace ClockStudio
