// The comparison with reference pictures itself: what it lets through and what it reports.
#include "reference_picture.h"

#include <QTemporaryDir>
#include <QtTest>

class TestPictureComparison : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void EqualPictureAgrees();
    void OnePixelIsReported();
    void ToleranceIsPerChannel();
    void AlphaCounts();
    void OtherSizeIsReported();
    void MissingReferenceIsReported();
    void NullPictureIsReported();
    void AcceptingRewrites();

private:
    QString Compare(const QImage &picture, int tolerance = 0)
    {
        return ReferencePicture::Compare(picture, QStringLiteral("picture"), tolerance,
                                         {m_folder->filePath(QStringLiteral("reference")),
                                          m_folder->filePath(QStringLiteral("difference"))});
    }
    QString Path(const char *name) { return m_folder->filePath(QLatin1String(name)); }

    QScopedPointer<QTemporaryDir> m_folder;
    QImage m_picture;
};

void TestPictureComparison::init()
{
    qunsetenv("CLOCK_ACCEPT_REFERENCES");
    m_folder.reset(new QTemporaryDir);
    m_picture = QImage(7, 5, QImage::Format_ARGB32);
    m_picture.fill(qRgba(100, 150, 200, 255));
    QVERIFY(QDir().mkpath(Path("reference")));
    QVERIFY(m_picture.save(Path("reference/picture.png")));
}

void TestPictureComparison::EqualPictureAgrees()
{
    QCOMPARE(Compare(m_picture), QString());
    QVERIFY(!QFileInfo::exists(Path("difference")));
}

void TestPictureComparison::OnePixelIsReported()
{
    m_picture.setPixel(6, 4, qRgba(101, 150, 200, 255));
    QVERIFY(Compare(m_picture).startsWith(QStringLiteral("1 pixels differ")));
    const QImage difference(Path("difference/picture-difference.png"));
    QCOMPARE(difference.pixel(6, 4), qRgb(255, 0, 0));
    QCOMPARE(difference.pixel(5, 4), qRgb(255, 255, 255));
    QCOMPARE(QImage(Path("difference/picture-actual.png")).pixel(6, 4), m_picture.pixel(6, 4));
}

void TestPictureComparison::ToleranceIsPerChannel()
{
    m_picture.setPixel(0, 0, qRgba(102, 148, 202, 255));
    QCOMPARE(Compare(m_picture, 2), QString());
    QVERIFY(!Compare(m_picture, 1).isEmpty());
}

void TestPictureComparison::AlphaCounts()
{
    m_picture.setPixel(0, 0, qRgba(100, 150, 200, 254));
    QVERIFY(!Compare(m_picture).isEmpty());
}

void TestPictureComparison::OtherSizeIsReported()
{
    QVERIFY(Compare(m_picture.copy(0, 0, 7, 4)).startsWith(QStringLiteral("7 pixels differ")));
    QVERIFY(Compare(m_picture.copy(0, 0, 8, 5)).startsWith(QStringLiteral("5 pixels differ")));
}

void TestPictureComparison::MissingReferenceIsReported()
{
    QVERIFY(QFile::remove(Path("reference/picture.png")));
    QVERIFY(Compare(m_picture).contains(QStringLiteral("(missing)")));
}

void TestPictureComparison::NullPictureIsReported()
{
    QVERIFY(!Compare(QImage()).isEmpty());
}

void TestPictureComparison::AcceptingRewrites()
{
    m_picture.setPixel(3, 3, qRgba(0, 0, 0, 0));
    qputenv("CLOCK_ACCEPT_REFERENCES", "1");
    QCOMPARE(Compare(m_picture), QString());
    qunsetenv("CLOCK_ACCEPT_REFERENCES");
    QCOMPARE(Compare(m_picture), QString());
}

QTEST_GUILESS_MAIN(TestPictureComparison)
#include "test_picture_comparison.moc"
