// studio/text: the program's text and what replaces parts of it.
// A file's bytes as text, and back to the same bytes.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace ClockStudio {

/// How a text is written in its file.
struct TextForm
{
    QByteArray codec = "UTF-8"; ///< a name that QTextCodec knows
    QByteArray mark;            ///< the byte order mark, where there is one
};

struct EncodedText
{
    QString text;
    TextForm form;
};

/// A file's text by its byte order mark, else by its XML declaration, else as UTF-8. Nothing where
/// the text would not become the same bytes again: the file is damaged, or its encoding unknown.
std::optional<EncodedText> DecodeText(const QByteArray &bytes);

/// The bytes of a text. Nothing where the encoding lacks one of its characters.
std::optional<QByteArray> EncodeText(const QString &text, const TextForm &form);

/// The form of a text whose declaration may have been edited since it had another form.
TextForm FormAfterEdits(const QString &text, const TextForm &form);

/// Whether the encoding has all characters of a text.
bool CanEncode(const QString &text, const TextForm &form);

} // namespace ClockStudio
