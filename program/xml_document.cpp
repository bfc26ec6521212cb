#include "xml_document.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTextCodec>
#include <QXmlStreamReader>

namespace ClockProgram {

namespace {

Failure FileFailure(const QString &path, const QString &reason)
{
    return {ExitCode::ProgramError, QStringLiteral("%1: %2").arg(path, reason)};
}

Failure TooLarge(const QString &path)
{
    return FileFailure(path, QStringLiteral("larger than %1 bytes").arg(kMaximumFileSize));
}

Failure LineFailure(const QString &path, qint64 line, const QString &reason)
{
    return {ExitCode::ProgramError,
            QStringLiteral("%1:%2: %3").arg(path, QString::number(line), reason)};
}

Result<QString> Decode(const QByteArray &contents, const QString &path)
{
    QTextCodec *codec = QTextCodec::codecForUtfText(contents, nullptr);
    const QByteArray declared =
        DeclaredEncoding(QString::fromLatin1(contents.left(kDeclarationReach)));
    if (!codec)
        codec = QTextCodec::codecForName(declared.isEmpty() ? "UTF-8" : declared);
    if (!codec)
        return LineFailure(path, 1,
                           QStringLiteral("unknown encoding \"%1\"; use UTF-8")
                               .arg(QString::fromLatin1(declared)));
    QTextCodec::ConverterState state;
    const QString text = codec->toUnicode(contents.constData(), contents.size(), &state);
    if (state.invalidChars == 0 && state.remainingChars == 0)
        return text;
    const int fault = text.indexOf(QChar(QChar::ReplacementCharacter));
    return LineFailure(path, text.left(fault).count(QLatin1Char('\n')) + 1,
                       QStringLiteral("invalid %1 text").arg(QString::fromLatin1(codec->name())));
}

/// Checks what ScanXml() does not: names and characters.
MaybeFailure CheckSyntax(const QString &text, const QString &path)
{
    QXmlStreamReader reader(text);
    reader.setNamespaceProcessing(false);
    while (!reader.atEnd())
        reader.readNext();
    if (!reader.hasError())
        return std::nullopt;
    return LineFailure(path, reader.lineNumber(),
                       QStringLiteral("is not XML: %1").arg(reader.errorString()));
}

} // namespace

QByteArray DeclaredEncoding(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral("^<\\?xml[^>]*\\sencoding\\s*=\\s*[\"']([A-Za-z0-9._:-]{1,40})[\"']"));
    return form.match(text.left(kDeclarationReach)).captured(1).toLatin1();
}

Result<QByteArray> ReadContents(const QString &path)
{
    if (QFileInfo(path).isDir())
        return FileFailure(path, QStringLiteral("is a directory, not a file"));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return FileFailure(path, file.errorString());
    const QByteArray contents = file.read(kMaximumFileSize + 1);
    if (contents.size() > kMaximumFileSize)
        return TooLarge(path);
    return contents;
}

Result<QString> CheckedText(const QByteArray &contents, const QString &path)
{
    if (contents.size() > kMaximumFileSize)
        return TooLarge(path);
    const Result<QString> text = Decode(contents, path);
    if (!text)
        return text.Error();
    if (const auto fault = ScanXml(*text))
        return LineFailure(path, fault->line, fault->text);
    if (const MaybeFailure failure = CheckSyntax(*text, path))
        return *failure;
    return text;
}

Result<QDomDocument> ParseDocument(const QByteArray &contents, const QString &path)
{
    const Result<QString> text = CheckedText(contents, path);
    if (!text)
        return text.Error();
    QDomDocument document;
    QString reason;
    int line = 0;
    if (!document.setContent(*text, false, &reason, &line))
        return LineFailure(path, line, QStringLiteral("is not XML: %1").arg(reason));
    return document;
}

QString AtElement(const QString &path, const QDomElement &element, const QString &text)
{
    return QStringLiteral("%1:%2: %3").arg(path, QString::number(element.lineNumber()), text);
}

} // namespace ClockProgram
