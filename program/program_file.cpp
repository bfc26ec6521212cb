#include "program_file.h"

#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

namespace ClockPlayer {

namespace {

const QLatin1String kProgramTag("program");
const QLatin1String kAreaTag("area");
const QLatin1String kAttributeTag("attribute");

Failure FileFailure(const QString &path, const QString &reason)
{
    return {ExitCode::ProgramError, QStringLiteral("%1: %2").arg(path, reason)};
}

/// Reads the elements of one program; the first thing wrong is kept and ends the reading.
class ProgramReader
{
public:
    explicit ProgramReader(const QString &path) { m_program.path = path; }

    Result<Program> Read(const QDomDocument &document)
    {
        m_program.document = document;
        ReadRoot(document.documentElement());
        if (m_failure)
            return *m_failure;
        return m_program;
    }

private:
    void ReadRoot(const QDomElement &root)
    {
        if (root.tagName() != kProgramTag)
            return Fail(
                root,
                QStringLiteral("the root element is <%1>, expected <program>").arg(root.tagName()));
        m_program.size.setWidth(Number(root, QStringLiteral("width"), 1));
        m_program.size.setHeight(Number(root, QStringLiteral("height"), 1));
        if (!m_failure && PixelsOf(m_program.size) > kMaximumPixels)
            return Fail(root,
                        QStringLiteral("the screen has more than %1 pixels").arg(kMaximumPixels));
        for (QDomElement child = root.firstChildElement(); !m_failure && !child.isNull();
             child = child.nextSiblingElement())
            ReadArea(child);
        if (!m_failure && m_program.areas.isEmpty())
            Fail(root, QStringLiteral("the program has no <area>"));
    }

    void ReadArea(const QDomElement &element)
    {
        if (element.tagName() != kAreaTag)
            return Fail(
                element,
                QStringLiteral("unexpected element <%1>, expected <area>").arg(element.tagName()));
        ProgramArea area;
        area.geometry = QRect(Number(element, QStringLiteral("x"), -kMaximumSide),
                              Number(element, QStringLiteral("y"), -kMaximumSide),
                              Number(element, QStringLiteral("width"), 1),
                              Number(element, QStringLiteral("height"), 1));
        area.element = element.firstChildElement();
        m_pixels += PixelsOf(area.geometry.size());
        if (m_failure)
            return;
        if (area.element.isNull() || !area.element.nextSiblingElement().isNull())
            return Fail(element, QStringLiteral("an <area> holds exactly one element"));
        if (m_pixels > kMaximumPixels || m_program.areas.size() == kMaximumAreas)
            return Fail(element,
                        QStringLiteral("too many areas: at most %1, with %2 pixels in all")
                            .arg(kMaximumAreas)
                            .arg(kMaximumPixels));
        ReadAttributes(area);
        m_program.areas.append(area);
    }

    void ReadAttributes(ProgramArea &area)
    {
        for (QDomElement child = area.element.firstChildElement(kAttributeTag); !child.isNull();
             child = child.nextSiblingElement(kAttributeTag)) {
            const QString key = child.attribute(QStringLiteral("key"));
            if (key.isEmpty() || !child.hasAttribute(QStringLiteral("value")))
                return Fail(child, QStringLiteral("an <attribute> needs a key and a value"));
            area.attributes.append({key, child.attribute(QStringLiteral("value"))});
        }
    }

    int Number(const QDomElement &element, const QString &name, int minimum)
    {
        bool isNumber = false;
        const int number = element.attribute(name).toInt(&isNumber);
        if (isNumber && number >= minimum && number <= kMaximumSide)
            return number;
        Fail(element,
             QStringLiteral("<%1> needs %2 as a whole number from %3 to %4")
                 .arg(element.tagName(), name)
                 .arg(minimum)
                 .arg(kMaximumSide));
        return minimum;
    }

    void Fail(const QDomElement &element, const QString &text)
    {
        if (!m_failure)
            m_failure = Failure {ExitCode::ProgramError, AtElement(m_program.path, element, text)};
    }

    static qint64 PixelsOf(QSize size) { return qint64(size.width()) * size.height(); }

    Program m_program;
    MaybeFailure m_failure;
    qint64 m_pixels = 0;
};

Failure SyntaxFailure(const QString &path, qint64 line, qint64 column, const QString &reason)
{
    return {ExitCode::ProgramError,
            QStringLiteral("%1:%2:%3: %4")
                .arg(path, QString::number(line), QString::number(column), reason)};
}

/// A document is walked and freed by recursion, so its depth is checked before it is built.
MaybeFailure CheckSyntax(const QByteArray &contents, const QString &path)
{
    QXmlStreamReader reader(contents);
    reader.setNamespaceProcessing(false);
    int depth = 0;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && ++depth > kMaximumDepth)
            reader.raiseError(
                QStringLiteral("elements are nested more than %1 deep").arg(kMaximumDepth));
        else if (reader.isEndElement())
            --depth;
    }
    if (!reader.hasError())
        return std::nullopt;
    return SyntaxFailure(path, reader.lineNumber(), reader.columnNumber(), reader.errorString());
}

} // namespace

Result<Program> ReadProgram(const QString &path)
{
    if (QFileInfo(path).isDir())
        return FileFailure(path, QStringLiteral("is a directory, not a program file"));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return FileFailure(path, file.errorString());
    const QByteArray contents = file.read(kMaximumFileSize + 1);
    if (contents.size() > kMaximumFileSize)
        return FileFailure(path, QStringLiteral("larger than %1 bytes").arg(kMaximumFileSize));
    return ParseProgram(contents, path);
}

Result<Program> ParseProgram(const QByteArray &contents, const QString &path)
{
    if (const MaybeFailure failure = CheckSyntax(contents, path))
        return *failure;
    QDomDocument document;
    QString reason;
    int line = 0;
    int column = 0;
    if (!document.setContent(contents, false, &reason, &line, &column))
        return SyntaxFailure(path, line, column, reason);
    return ProgramReader(path).Read(document);
}

QString AtElement(const QString &path, const QDomElement &element, const QString &text)
{
    return QStringLiteral("%1:%2: %3").arg(path, QString::number(element.lineNumber()), text);
}

} // namespace ClockPlayer
