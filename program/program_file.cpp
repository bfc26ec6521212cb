#include "program_file.h"

#include "command_support.h"

#include "number_text.h"

#include <QCryptographicHash>
#include <QStringList>

namespace ClockProgram {

namespace {

qint64 PixelsOf(QSize size)
{
    return qint64(size.width()) * size.height();
}

/// Reads the elements of one program; stops at the first error and keeps it.
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
        m_program.size.setWidth(Number(root, "width", 1));
        m_program.size.setHeight(Number(root, "height", 1));
        FailOnWrongNumbers(root);
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
        area.geometry =
            QRect(Number(element, "x", -kMaximumSide), Number(element, "y", -kMaximumSide),
                  Number(element, "width", 1), Number(element, "height", 1));
        FailOnWrongNumbers(element);
        area.element = element.firstChildElement();
        m_pixels += PixelsOf(area.geometry.size());
        if (m_failure)
            return;
        if (area.element.isNull() || !area.element.nextSiblingElement().isNull())
            return Fail(element, QStringLiteral("an <area> must contain exactly one element"));
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

    int Number(const QDomElement &element, const char *name, int minimum)
    {
        bool isNumber = false;
        const int number = Lw::NumberIn(element.attribute(QLatin1String(name)), &isNumber);
        if (isNumber && number >= minimum && number <= kMaximumSide)
            return number;
        m_wrongNumbers.append(QStringLiteral("%1 from %2 to %3")
                                  .arg(QLatin1String(name))
                                  .arg(minimum)
                                  .arg(kMaximumSide));
        return minimum;
    }

    /// Reports all wrong numbers of an element in one message.
    void FailOnWrongNumbers(const QDomElement &element)
    {
        if (!m_wrongNumbers.isEmpty())
            Fail(element,
                 QStringLiteral("<%1> needs whole numbers: %2")
                     .arg(element.tagName(), m_wrongNumbers.join(QStringLiteral(", "))));
    }

    void Fail(const QDomElement &element, const QString &text)
    {
        if (!m_failure)
            m_failure = Failure {ExitCode::ProgramError, AtElement(m_program.path, element, text)};
    }

    Program m_program;
    MaybeFailure m_failure;
    QStringList m_wrongNumbers;
    qint64 m_pixels = 0;
};

} // namespace

qint64 FrameBytes(const Program &program)
{
    constexpr int kPixel = 4;   // bytes
    constexpr int kScreens = 2; // the composed screen and the window's backing store
    constexpr int kFrames = 3;  // a renderer's two, and the dial or the pictures that it keeps
    qint64 pixels = kScreens * PixelsOf(program.size);
    for (const ProgramArea &area : program.areas)
        pixels += kFrames * PixelsOf(area.geometry.size());
    return kPixel * pixels;
}

MaybeFailure CheckFrameBytes(const Program &program)
{
    const qint64 bytes = FrameBytes(program);
    if (bytes <= kUsualFrameBytes)
        return std::nullopt;
    return Failure {
        ExitCode::ProgramError,
        AtElement(program.path, program.document.documentElement(),
                  QStringLiteral("the frames of the screen and the areas take %1 MiB, more "
                                 "than %2 (allowed by --%3)")
                      .arg((bytes + (1 << 20) - 1) >> 20)
                      .arg(kUsualFrameBytes >> 20)
                      .arg(QLatin1String(kLargeFrames)))};
}

Result<Program> ReadProgram(const QString &path)
{
    const Result<QByteArray> contents = ReadContents(path);
    if (!contents)
        return contents.Error();
    return ParseProgram(*contents, path);
}

Result<Program> ParseProgram(const QByteArray &contents, const QString &path)
{
    const Result<QDomDocument> document = ParseDocument(contents, path);
    if (!document)
        return document.Error();
    Result<Program> program = InterpretProgram(*document, path);
    if (program)
        program->digest = QCryptographicHash::hash(contents, QCryptographicHash::Sha256);
    return program;
}

Result<Program> InterpretProgram(const QDomDocument &document, const QString &path)
{
    return ProgramReader(path).Read(document);
}

} // namespace ClockProgram
