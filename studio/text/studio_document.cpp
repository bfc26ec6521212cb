#include "studio_document.h"

#include <QUndoCommand>

#include <algorithm>

namespace ClockStudio {

namespace {

constexpr int kMergeable = 1; // QUndoCommand id of commands that may merge

/// The edits that undo these, in the order in which to apply them.
TextEdits Reverted(const TextEdits &edits)
{
    TextEdits reverted;
    for (auto edit = edits.crbegin(); edit != edits.crend(); ++edit)
        reverted.append({edit->position, edit->inserted, edit->removed});
    return reverted;
}

} // namespace

class TextCommand : public QUndoCommand
{
public:
    TextCommand(StudioDocument &document, const TextEdits &edits, const QString &label,
                const QString &mergeKey)
        : QUndoCommand(label), m_document(document), m_edits(edits), m_mergeKey(mergeKey),
          m_session(document.m_mergeSession)
    { }

    void redo() override { m_document.Perform(m_edits); }
    void undo() override
    {
        m_document.EndMerging();
        m_document.Perform(Reverted(m_edits));
    }
    int id() const override { return m_mergeKey.isEmpty() ? -1 : kMergeable; }
    bool mergeWith(const QUndoCommand *later) override
    {
        const auto *const other = static_cast<const TextCommand *>(later);
        if (other->m_mergeKey != m_mergeKey || other->m_session != m_session)
            return false;
        m_edits += other->m_edits;
        return true;
    }

private:
    StudioDocument &m_document;
    TextEdits m_edits;
    const QString m_mergeKey;
    const int m_session;
};

StudioDocument::StudioDocument(QObject *parent) : QObject(parent)
{
    ResetParsed();
}

void StudioDocument::ResetParsed()
{
    auto empty = ReadProgramText(QStringLiteral("<program width=\"256\" height=\"128\"/>"), m_form);
    m_parsed = std::get<ParsedProgram>(empty);
}

bool StudioDocument::Load(const QByteArray &bytes)
{
    const std::optional<EncodedText> read = DecodeText(bytes);
    if (!read)
        return false;
    m_text = read->text;
    m_form = read->form;
    m_history.clear();
    ResetParsed();
    EndMerging();
    emit Loaded();
    ReadText();
    return true;
}

std::optional<QByteArray> StudioDocument::Bytes() const
{
    return EncodeText(m_text, FormAfterEdits(m_text, m_form));
}

void StudioDocument::Change(const TextEdits &edits, const QString &label, const QString &mergeKey)
{
    TextEdits real;
    std::copy_if(edits.cbegin(), edits.cend(), std::back_inserter(real),
                 [](const TextEdit &edit) { return edit.removed != edit.inserted; });
    if (!real.isEmpty())
        m_history.push(new TextCommand(*this, real, label, mergeKey));
}

void StudioDocument::Perform(const TextEdits &edits)
{
    ApplyEdits(m_text, edits);
    emit Edited(edits);
    ReadText();
}

void StudioDocument::ReadText()
{
    auto read = ReadProgramText(m_text, FormAfterEdits(m_text, m_form));
    if (auto *const parsed = std::get_if<ParsedProgram>(&read)) {
        m_parsed = std::move(*parsed);
        m_fault.reset();
    } else {
        m_fault = std::get<TextFault>(read);
    }
    emit Read();
}

} // namespace ClockStudio
