#include "encoded_text.h"

#include "xml_document.h"

#include <QTextCodec>

namespace ClockStudio {

namespace {

struct Mark
{
    const char *codec;
    QByteArray bytes;
};

// The first match is used.
const Mark kMarks[] = {
    {"UTF-8", QByteArray("\xef\xbb\xbf", 3)},
    {"UTF-16LE", QByteArray("\xff\xfe", 2)},
    {"UTF-16BE", QByteArray("\xfe\xff", 2)},
};
// How a UTF-16 file without a byte order mark begins.
const Mark kBeginnings[] = {
    {"UTF-16LE", QByteArray("<\0", 2)},
    {"UTF-16BE", QByteArray("\0<", 2)},
};

bool IsUtf16(const TextForm &form)
{
    return form.codec.startsWith("UTF-16");
}

TextForm FormOf(const QByteArray &bytes)
{
    for (const Mark &mark : kMarks) {
        if (bytes.startsWith(mark.bytes))
            return {mark.codec, mark.bytes};
    }
    for (const Mark &beginning : kBeginnings) {
        if (bytes.startsWith(beginning.bytes))
            return {beginning.codec, {}};
    }
    const QByteArray declared = ClockProgram::DeclaredEncoding(
        QString::fromLatin1(bytes.left(ClockProgram::kDeclarationReach)));
    return declared.isEmpty() ? TextForm() : TextForm {declared, {}};
}

QTextCodec *CodecOf(const TextForm &form)
{
    return QTextCodec::codecForName(form.codec);
}

} // namespace

std::optional<EncodedText> DecodeText(const QByteArray &bytes)
{
    const TextForm form = FormOf(bytes);
    QTextCodec *const codec = CodecOf(form);
    if (!codec)
        return std::nullopt;
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    const QByteArray body = bytes.mid(form.mark.size());
    const EncodedText read {codec->toUnicode(body.constData(), body.size(), &state), form};
    if (EncodeText(read.text, form) != bytes)
        return std::nullopt;
    return read;
}

std::optional<QByteArray> EncodeText(const QString &text, const TextForm &form)
{
    QTextCodec *const codec = CodecOf(form);
    if (!codec)
        return std::nullopt;
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    const QByteArray body = codec->fromUnicode(text.constData(), text.size(), &state);
    if (state.invalidChars > 0)
        return std::nullopt;
    return form.mark + body;
}

TextForm FormAfterEdits(const QString &text, const TextForm &form)
{
    if (IsUtf16(form))
        return form;
    const QByteArray declared = ClockProgram::DeclaredEncoding(text);
    const bool isUsable = QTextCodec::codecForName(declared) && !declared.startsWith("UTF-16");
    if (!declared.isEmpty() && !isUsable)
        return form;
    TextForm edited = form;
    edited.codec = declared.isEmpty() ? QByteArray("UTF-8") : declared;
    if (!form.mark.isEmpty())
        edited.codec = form.codec;
    return edited;
}

} // namespace ClockStudio
