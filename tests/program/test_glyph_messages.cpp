// The sentences about glyph images that went wrong.
#include "glyph_messages.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>

using ClockProgram::DescribeGlyphFaults;
using ClockProgram::GlyphMessages;
using Lw::GlyphFault;

namespace {

GlyphFault Fault(GlyphFault::Kind kind, const char *key, int error = 0, const QString &letters = {})
{
    return {kind, key, QString("/out/analog_7%1.png").arg(key), error, letters};
}

} // namespace

class TestGlyphMessages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void NothingIsSaidOfAGoodSet()
    {
        const GlyphMessages messages = DescribeGlyphFaults({});
        QVERIFY(messages.failures.isEmpty());
        QVERIFY(messages.warnings.isEmpty());
    }

    void OneSentencePerReason()
    {
        const GlyphMessages messages =
            DescribeGlyphFaults({Fault(GlyphFault::NotWritten, "_a", ENOSPC),
                                 Fault(GlyphFault::NotWritten, "_b", EACCES),
                                 Fault(GlyphFault::NotWritten, "_c", ENOSPC),
                                 Fault(GlyphFault::NotWritten, "_d", ENOSPC),
                                 Fault(GlyphFault::NotWritten, "_e", ENOSPC)});
        QCOMPARE(messages.failures,
                 (QStringList {"/out: cannot write the glyph image _b: Permission denied",
                               "/out: cannot write 4 glyph images (_a, _c, _d and 1 more): No "
                               "space left on device"}));
        QVERIFY(messages.warnings.isEmpty());
    }

    void OlderImagesAreNamed()
    {
        const QTemporaryDir directory;
        GlyphFault fault = Fault(GlyphFault::NotWritten, "_toptext", ENOSPC);
        fault.path = directory.filePath("old.png");
        QFile old(fault.path);
        QVERIFY(old.open(QFile::WriteOnly));
        QCOMPARE(DescribeGlyphFaults({fault}).failures,
                 QStringList(directory.path()
                             + ": cannot write the glyph image _toptext: No space left on device; "
                               "older ones are shown for _toptext"));
    }

    void Pictures()
    {
        const GlyphMessages messages =
            DescribeGlyphFaults({Fault(GlyphFault::NoInk, "_a"), Fault(GlyphFault::TooLarge, "_b"),
                                 Fault(GlyphFault::NoFont, "_c"), Fault(GlyphFault::NoFont, "_d")});
        QCOMPARE(
            messages.failures,
            (QStringList {"no font is installed, so no text can be drawn: 2 glyph images "
                          "(_c, _d)",
                          "the glyph image _b would be larger than 32767 pixels per side or 64 "
                          "MiB; use a smaller font or a shorter text",
                          "the font draws nothing for the glyph image _a"}));
    }

    void MissingCharactersAreAWarning()
    {
        const QString one(QChar(0x4e00));
        const QString two(QChar(0x4e8c));
        const GlyphMessages messages =
            DescribeGlyphFaults({Fault(GlyphFault::MissingCharacters, "_lunar", 0, one + two),
                                 Fault(GlyphFault::MissingCharacters, "_toptext", 0, two)});
        QVERIFY(messages.failures.isEmpty());
        QCOMPARE(messages.warnings,
                 QStringList("no installed font has the characters \"" + one + two
                             + "\" of 2 glyph images (_lunar, _toptext); boxes are drawn instead"));
    }

    void ImagesLeftOutAreAWarning()
    {
        const GlyphMessages messages = DescribeGlyphFaults(
            {Fault(GlyphFault::NotKept, "_lunar"), Fault(GlyphFault::NotKept, "_timeCh")});
        QVERIFY(messages.failures.isEmpty());
        QCOMPARE(messages.warnings,
                 QStringList("cannot show 2 glyph images (_lunar, _timeCh): a clock's images may "
                             "take 64 MiB of memory, those of all clocks 256 MiB"));
    }
};

QTEST_GUILESS_MAIN(TestGlyphMessages)
#include "test_glyph_messages.moc"
