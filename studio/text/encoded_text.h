// studio/text: decodes a file's bytes to text and back, losslessly.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace ClockStudio {

/// How a text is written in its file.
struct TextForm
{
    QByteArray codec = "UTF-8"; ///< a name that QTextCodec knows
    QByteArray mark;            ///< the byte order mark; empty if none
};

struct EncodedText
{
    QString text;
    TextForm form;
};

/// Decodes a file by its byte order mark, else its XML declaration, else as UTF-8. Nothing if the
/// text would not encode back to the same bytes: the file is damaged or its encoding unknown.
std::optional<EncodedText> DecodeText(const QByteArray &bytes);

/// The bytes of a text; nullopt if the encoding cannot represent it.
std::optional<QByteArray> EncodeText(const QString &text, const TextForm &form);

/// The form after edits, which may have changed the encoding in the XML declaration.
TextForm FormAfterEdits(const QString &text, const TextForm &form);

} // namespace ClockStudio
