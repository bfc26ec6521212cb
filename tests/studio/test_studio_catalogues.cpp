// The studio's catalogues: complete in every language, with the texts of tables that lupdate
// cannot see.
#include "properties/property_groups.h"

#include "clock_attributes.h"

#include <QTranslator>
#include <QXmlStreamReader>
#include <QtTest>

using namespace ClockStudio;

class TestStudioCatalogues : public QObject
{
    Q_OBJECT

private slots:
    void EveryTextIsTranslated_data();
    void EveryTextIsTranslated();
    void HasTheAttributes_data() { Languages(); }
    void HasTheAttributes();
    void HasTheGroups_data() { Languages(); }
    void HasTheGroups();

private:
    static void Languages();
};

void TestStudioCatalogues::Languages()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("Persian") << "fa";
    QTest::newRow("Chinese") << "zh";
}

void TestStudioCatalogues::EveryTextIsTranslated_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("least");
    QTest::newRow("Persian") << "fa" << 300;
    QTest::newRow("Chinese") << "zh" << 300;
    QTest::newRow("English plurals") << "en" << 4;
}

void TestStudioCatalogues::EveryTextIsTranslated()
{
    QFETCH(QString, language);
    QFETCH(int, least);
    QFile file(QStringLiteral(CATALOGUES "/studio_%1.ts").arg(language));
    QVERIFY(file.open(QFile::ReadOnly));
    QXmlStreamReader xml(&file);
    QString source;
    int count = 0;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == QLatin1String("source"))
            source = xml.readElementText();
        if (!xml.isStartElement() || xml.name() != QLatin1String("translation"))
            continue;
        ++count;
        QVERIFY2(!xml.attributes().hasAttribute("type"), qPrintable(source));
        QVERIFY2(!xml.readElementText(QXmlStreamReader::IncludeChildElements).trimmed().isEmpty(),
                 qPrintable(source));
    }
    QVERIFY(!xml.hasError());
    QVERIFY(count >= least);
}

/// The texts of a table that a language lacks, in the context.
class Lacking
{
public:
    Lacking(const QString &language, const char *context) : m_context(context)
    {
        if (!m_translator.load(":/translations/studio_" + language + ".qm"))
            qFatal("no catalogue");
    }
    void Check(const char *text)
    {
        if (text && *text != '\0' && m_translator.translate(m_context, text).isEmpty())
            m_texts.append(text);
    }
    const QStringList &Texts() const { return m_texts; }

private:
    QTranslator m_translator;
    const char *m_context;
    QStringList m_texts;
};

void TestStudioCatalogues::HasTheAttributes()
{
    QFETCH(QString, language);
    Lacking lacking(language, "ClockStudio::Attributes");
    for (const auto &row : Lw::HNodeClock::kAttributeTable) {
        // The number and the GUID of a clock are not shown.
        if (row.attribute == Lw::HNodeClock::Attribute::Guid
            || row.attribute == Lw::HNodeClock::Attribute::Id)
            continue;
        lacking.Check(row.label);
        lacking.Check(row.meaning);
        for (int code = row.range.first; row.range.names && code <= row.range.last; ++code)
            lacking.Check(row.range.NameOf(code));
    }
    QCOMPARE(lacking.Texts(), QStringList());
}

void TestStudioCatalogues::HasTheGroups()
{
    QFETCH(QString, language);
    Lacking lacking(language, "ClockStudio::PropertyGroups");
    for (int i = 0; i < kPropertyGroupCount; ++i) {
        lacking.Check(kPropertyGroups[i].title);
        for (const PropertyLine &line : kPropertyGroups[i].lines)
            lacking.Check(line.label);
    }
    QCOMPARE(lacking.Texts(), QStringList());
}

QTEST_GUILESS_MAIN(TestStudioCatalogues)
#include "test_studio_catalogues.moc"
