// The studio on a system with a single font of Latin letters: its window is in a language that the
// font has, and findings name the clocks' characters that it lacks.
#include "fonts_under_test.h"
#include "studio_under_test.h"

#include "findings/findings_panel.h"
#include "window/main_window.h"
#include "window/studio_application.h"

#include "catalogues.h"
#include "font_check.h"

#include <QMenu>
#include <QMenuBar>
#include <QStandardPaths>

using namespace ClockStudio;

namespace {

const QByteArray kFonts =
    "<fontconfig>\n<include>/etc/fonts/fonts.conf</include>\n<selectfont>"
    "<rejectfont><pattern/></rejectfont>\n<acceptfont><pattern><patelt name=\"family\">"
    "<string>DejaVu Sans Mono</string></patelt></pattern></acceptfont></selectfont></fontconfig>";

} // namespace

class TestLatinFont : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void LanguageOfTheWindow_data();
    void LanguageOfTheWindow();
    void CharactersThatAreLacking();
};

void TestLatinFont::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    const QStringList &families = ClockFit::InstalledFamilies();
    QVERIFY2(families.contains("DejaVu Sans Mono") && !families.contains("WenQuanYi Micro Hei"),
             qPrintable(families.join(", ")));
}

void TestLatinFont::LanguageOfTheWindow_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("problem");
    QTest::newRow("Chinese") << QLocale("zh_CN")
                             << "No installed font has the characters of Chinese, so the window is "
                                "in English.";
    QTest::newRow("English") << QLocale("en_GB") << QString();
}

void TestLatinFont::LanguageOfTheWindow()
{
    QFETCH(QLocale, locale);
    QLocale::setDefault(locale);
    QTEST(SetUpApplication(*qApp), "problem");
    QCOMPARE(QLocale().language(), QLocale::English);
    QCOMPARE(ClockCatalogues::Installed(), QString("en"));
    const QTemporaryDir work;
    const MainWindow window(work.path());
    QCOMPARE(window.menuBar()->actions().first()->text(), QString("&File"));
}

void TestLatinFont::CharactersThatAreLacking()
{
    StudioUnderTest studio(QByteArray(
        "<program width=\"64\" height=\"64\">\n<area x=\"0\" y=\"0\" width=\"64\" height=\"64\">\n"
        "<clock type=\"digital\" timezone=\"+08:00\"><title value=\"\xe7\xab\x99\"/></clock>"
        "</area></program>\n"));
    studio.WaitForClocks();
    FindingsPanel panel(studio.editor);
    panel.CheckAll();
    QStringList told;
    for (const ClockTool::Finding &finding : panel.Findings())
        told.append(finding.text);
    QVERIFY2(told.join('\n').contains("\xe7\xab\x99"), qPrintable(told.join('\n')));
}

int main(int argc, char **argv)
{
    return RunWithFonts<TestLatinFont>(kFonts, argc, argv);
}
#include "test_latin_font.moc"
