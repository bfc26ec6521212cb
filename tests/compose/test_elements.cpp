// The elements of a clock, read back letter by letter from images whose columns are lettered.
#include "calendar/lunar_calendar.h"
#include "chosen_time.h"
#include "clock_node.h"
#include "compose/draw_clock_classify_image.h"
#include "compose/element_composer.h"
#include "lettered_glyphs.h"

#include <QTest>

#include <climits>

using namespace Lw::HNodeClock;

class TestElements : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_node.reset(new HClockNode);
        m_node->SetAttribute("ClockType", 1, false);
        m_node->SetAttribute("TimeZone", QStringLiteral("+00:00"), false);
        m_glyphs.reset(new LetteredGlyphs(*m_node));
        m_glyphs->WriteAll();
        m_composer.reset(new DrawClockClassifyImage);
        ChosenTime::Set("2024-03-05T13:07:42");
    }
    void cleanup() { clock_set_time_source(nullptr); }

    void DateFormats_data();
    void DateFormats();
    void DateFormatOfAnalogClock();
    void MinusKeepsTheSeparatorsWidth();
    void YearsThatFourDigitsCannotShow();
    void TimeFormats_data();
    void TimeFormats();
    void TwelveHours_data();
    void TwelveHours();
    void MarkWithoutATime_data();
    void MarkWithoutATime();
    void HiddenMarkTakesNoRoom();
    void ShownHourStaysConverted();
    void MarkIsLoadedLive();
    void Weekdays_data();
    void Weekdays();
    void UnknownWeekCodeKeepsTheImages();
    void LunarDates_data();
    void LunarDates();
    void LunarDateIgnoresDaylightSaving();
    void FramesAskForTheLunarDateOncePerDay();
    void TopText();
    void PersianDate();
    void MissingImages_data();
    void MissingImages();
    void NarrowStrips_data();
    void NarrowStrips();
    void ForeignFormats_data();
    void ForeignFormats();
    void TranslucentImagesStayTranslucent();
    void CodesAreTakenAtSetUp();
    void SetUpReadsAllFilesAnew();
    void SetUpForAnotherNode();
    void OtherElementsRestoreTheHour();
    void NothingBeforeSetUp();
    void UnchangedElementIsTheSamePixmap();

private:
    QPixmap Date(int type)
    {
        m_node->SetAttribute("DigitalDateType", type, false);
        m_composer->InitParameters(m_node.data());
        return m_composer->GetDatePixmap();
    }
    QPixmap Time(int type)
    {
        m_node->SetAttribute("DigitalTimeType", type, false);
        m_composer->InitParameters(m_node.data());
        return m_composer->GetTimePixmap();
    }
    // A digit is three columns wide in a date, two in a time.
    static QString D(const char *digits) { return LetteredGlyphs::Cells(digits, 3); }
    static QString T(const char *digits) { return LetteredGlyphs::Cells(digits, 2); }

    QScopedPointer<HClockNode> m_node;
    QScopedPointer<LetteredGlyphs> m_glyphs;
    QScopedPointer<DrawClockClassifyImage> m_composer;
};

void TestElements::DateFormats_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("columns");
    // The separator is the right half of a five-column image: columns 2 and 3, since half of five
    // is two. Canvases with separators have the full five columns for two of them, so one column
    // stays empty at the right.
    QTest::newRow("year/month/day") << 0 << D("2024") + "//" + D("03") + "//" + D("05") + "_";
    QTest::newRow("month/day/year") << 1 << D("03") + "//" + D("05") + "//" + D("2024") + "_";
    QTest::newRow("day/month/year") << 2 << D("05") + "//" + D("03") + "//" + D("2024") + "_";
    // 12 + 6 + 6 columns, half the separator image (2) and two blanks (4): 30. One blank is drawn.
    QTest::newRow("named month, day and year") << 3 << "MMMMMM__" + D("05") + D("2024") + "____";
    QTest::newRow("day, named month and year") << 4 << D("05") + "__MMMMMM" + D("2024") + "____";
    QTest::newRow("labels") << 5 << D("2024") + "YYYY" + D("03") + "MMMM" + D("05") + "DDDD";
    QTest::newRow("labels without year") << 6 << D("03") + "MMMM" + D("05") + "DDDD";
    QTest::newRow("minus, day cut by three")
        << 8 << D("2024") + "----" + D("03") + "----" + D("05").left(3);
    QTest::newRow("beyond the list") << 9 << "";
    QTest::newRow("negative") << -1 << "";
}

void TestElements::DateFormats()
{
    QFETCH(int, type);
    QFETCH(QString, columns);
    const QPixmap date = Date(type);
    QCOMPARE(LetteredGlyphs::Read(date), columns);
    QCOMPARE(date.height(), columns.isEmpty() ? 0 : 7);
}

void TestElements::DateFormatOfAnalogClock()
{
    m_node->SetAttribute("ClockType", 0, false);
    m_node->SetAttribute("AnalogDateType", 6, false);
    QCOMPARE(LetteredGlyphs::Read(Date(0)), D("03") + "MMMM" + D("05") + "DDDD");
}

void TestElements::MinusKeepsTheSeparatorsWidth()
{
    m_glyphs->Write("_Minus", "-", 7);
    QCOMPARE(LetteredGlyphs::Read(Date(8)),
             D("2024") + "-" + D("03") + "-" + D("05") + QString(3, '_'));
}

// What is no digit leaves its cell blank, also where the strip has columns past its ten cells.
void TestElements::YearsThatFourDigitsCannotShow()
{
    const QString strip = LetteredGlyphs::Cells("0123456789", 3) + "RR";
    m_glyphs->Write("_dateNumber", strip, 8);
    const QString day = "//" + D("03") + "//" + D("05") + "_";
    ChosenTime::Set(QDateTime(QDate(9999, 3, 5), QTime(0, 0), Qt::UTC));
    QCOMPARE(LetteredGlyphs::Read(Date(0)), D("9999") + day);
    ChosenTime::Set(QDateTime(QDate(10024, 3, 5), QTime(0, 0), Qt::UTC));
    QCOMPARE(LetteredGlyphs::Read(Date(0)), "___" + D("024") + day);
    ChosenTime::Set(QDateTime(QDate(7, 3, 5), QTime(0, 0), Qt::UTC));
    QCOMPARE(LetteredGlyphs::Read(Date(0)), D("0007") + day);
    ChosenTime::Set(QDateTime(QDate(-7, 3, 5), QTime(0, 0), Qt::UTC));
    QCOMPARE(LetteredGlyphs::Read(Date(0)), D("000") + "___" + day);
}

void TestElements::TimeFormats_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("instant");
    QTest::addColumn<QString>("columns");
    const QString afternoon = "2024-03-05T13:07:42";
    QTest::newRow("to the second") << 0 << afternoon << T("13") + ":" + T("07") + ":" + T("42");
    QTest::newRow("to the minute") << 1 << afternoon << T("13") + ":" + T("07");
    QTest::newRow("labels") << 2 << afternoon
                            << T("13") + "hhh" + T("07") + "mmm" + T("42") + "sss";
    QTest::newRow("labels to the minute")
        << 3 << "2024-03-05T08:15:42" << T("08") + "hhh" + T("15") + "mmm";
    QTest::newRow("short hour of one digit")
        << 4 << "2024-03-05T09:07:00" << T("9") + ":" + T("07");
    QTest::newRow("short hour of two digits")
        << 4 << "2024-03-05T10:07:00" << T("10") + ":" + T("07");
    QTest::newRow("short hour at midnight") << 4 << "2024-03-05T00:07:00" << T("0") + ":" + T("07");
    // Twelve digits' columns and two separators are reserved; the label takes three.
    QTest::newRow("beyond the list")
        << 5 << afternoon << (T("13") + "hhh" + T("07") + T("42")).left(14);
    // The same room, of which the one separator leaves a column.
    QTest::newRow("negative") << -1 << afternoon << T("13") + ":" + T("07") + T("42") + "_";
    QTest::newRow("smallest") << INT_MIN << afternoon << T("13") + ":" + T("07") + T("42") + "_";
}

void TestElements::TimeFormats()
{
    QFETCH(int, type);
    QFETCH(QString, instant);
    QFETCH(QString, columns);
    ChosenTime::Set(instant);
    const QPixmap time = Time(type);
    QCOMPARE(LetteredGlyphs::Read(time), columns);
    QCOMPARE(time.height(), 6);
}

void TestElements::TwelveHours_data()
{
    QTest::addColumn<QString>("instant");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("columns");
    QTest::newRow("midnight stays 00")
        << "2024-03-05T00:30:00" << 1 << T("00") + ":" + T("30") + "_AA";
    QTest::newRow("morning") << "2024-03-05T11:59:00" << 1 << T("11") + ":" + T("59") + "_AA";
    QTest::newRow("noon") << "2024-03-05T12:30:00" << 1 << T("12") + ":" + T("30") + "_PPP";
    QTest::newRow("afternoon") << "2024-03-05T13:30:00" << 1 << T("01") + ":" + T("30") + "_PPP";
    QTest::newRow("last hour") << "2024-03-05T23:59:00" << 1 << T("11") + ":" + T("59") + "_PPP";
    QTest::newRow("short hour after conversion")
        << "2024-03-05T13:07:00" << 4 << T("1") + ":" + T("07") + "_PPP";
    QTest::newRow("mark after seconds that are cut off")
        << "2024-03-05T08:15:42" << 3 << T("08") + "hhh" + T("15") + "mmm_AA";
}

void TestElements::TwelveHours()
{
    QFETCH(QString, instant);
    QFETCH(int, type);
    QFETCH(QString, columns);
    ChosenTime::Set(instant);
    m_node->SetAttribute("DigitalMode", 1, false);
    QCOMPARE(LetteredGlyphs::Read(Time(type)), columns);
}

void TestElements::MarkWithoutATime_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("columns");
    QTest::newRow("to the second") << 0 << "";
    QTest::newRow("to the minute") << 1 << "";
    QTest::newRow("labels") << 2 << "hhhmmmsss_PPP";
    QTest::newRow("labels to the minute") << 3 << "hhhmmm_PPP";
    QTest::newRow("short hour") << 4 << "";
    QTest::newRow("beyond the list") << 5 << "";
}

// The mark's canvas is as high as the time's, which without digits and separators is none at all.
void TestElements::MarkWithoutATime()
{
    QFETCH(int, type);
    QFETCH(QString, columns);
    m_node->SetAttribute("DigitalMode", 1, false);
    for (const char *const key : {"_timeNumber", "_timeChar"})
        m_node->SetFilePath(key, "/dev/null/none.png", QString(), -1, 3);
    const QPixmap time = Time(type);
    QCOMPARE(LetteredGlyphs::Read(time), columns);
    QCOMPARE(time.height(), columns.isEmpty() ? 0 : 6);
}

void TestElements::HiddenMarkTakesNoRoom()
{
    m_node->SetAttribute("DigitalMode", 1, false);
    m_node->SetAttribute("DigitalDispAMPM", 0, false);
    QCOMPARE(LetteredGlyphs::Read(Time(1)), T("01") + ":" + T("07"));
    m_node->SetAttribute("DigitalDispAMPM", 2, false);
    QCOMPARE(LetteredGlyphs::Read(Time(1)), T("01") + ":" + T("07") + "_PPP");
}

void TestElements::ShownHourStaysConverted()
{
    m_node->SetAttribute("DigitalMode", 1, false);
    Time(0);
    QCOMPARE(m_composer->GetTimeAP(), QStringLiteral("AM"));
    QDateTime reading;
    QCOMPARE(m_composer->CalculateTimeZone(reading), 2); // a Tuesday
    QCOMPARE(m_composer->GetTimeAP(), QStringLiteral("PM"));
    QCOMPARE(reading, QDateTime(QDate(2024, 3, 5), QTime(13, 7, 42), Qt::UTC));
}

void TestElements::MarkIsLoadedLive()
{
    m_node->SetAttribute("DigitalMode", 1, false);
    QCOMPARE(LetteredGlyphs::Read(Time(1)).right(4), QStringLiteral("_PPP"));
    m_glyphs->Write("_timePM", "pp", 6);
    QCOMPARE(LetteredGlyphs::Read(m_composer->GetTimePixmap()), T("01") + ":" + T("07") + "pp");
    m_node->SetFilePath("_timePM", "/dev/null/none.png", QString(), -1, 3);
    QCOMPARE(LetteredGlyphs::Read(m_composer->GetTimePixmap()), T("01") + ":" + T("07"));
}

void TestElements::Weekdays_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("instant");
    QTest::addColumn<QString>("columns");
    QTest::newRow("Chinese, Monday") << 0 << "2024-03-04T12:00:00"
                                     << "w";
    QTest::newRow("Chinese, Sunday") << 0 << "2024-03-10T12:00:00"
                                     << "wwwwwww";
    QTest::newRow("English, Tuesday") << 1 << "2024-03-05T12:00:00"
                                      << "xx";
    QTest::newRow("short English, Friday") << 2 << "2024-03-08T12:00:00"
                                           << "yyyyy";
    QTest::newRow("Persian, Saturday") << 3 << "2024-03-09T12:00:00"
                                       << "zzzzzz";
    QTest::newRow("unknown code at first set-up") << 4 << "2024-03-09T12:00:00"
                                                  << "";
}

void TestElements::Weekdays()
{
    QFETCH(int, code);
    QFETCH(QString, instant);
    QFETCH(QString, columns);
    ChosenTime::Set(instant);
    m_node->SetAttribute("DigitalWeekType", code, false);
    m_composer->InitParameters(m_node.data());
    QCOMPARE(LetteredGlyphs::Read(m_composer->GetWeeKPixmap()), columns);
}

void TestElements::UnknownWeekCodeKeepsTheImages()
{
    m_node->SetAttribute("DigitalWeekType", 1, false);
    m_composer->InitParameters(m_node.data());
    m_node->SetAttribute("DigitalWeekType", 4, false);
    QCOMPARE(LetteredGlyphs::Read(m_composer->GetWeeKPixmap()), QStringLiteral("xx"));
    m_composer->InitParameters(m_node.data());
    QCOMPARE(LetteredGlyphs::Read(m_composer->GetWeeKPixmap()), QStringLiteral("xx"));
}

void TestElements::LunarDates_data()
{
    QTest::addColumn<QString>("instant");
    QTest::addColumn<QString>("cells");
    // Cells a to i are the numerals one to nine, j ten, k and l the lead word, n the month word,
    // p the prefix of the first ten days, q the name of the first month. New Year's days and month
    // beginnings are those of the published calendar.
    QTest::newRow("first day of the first month") << "2024-02-10T12:00:00"
                                                  << "klqnpa";
    QTest::newRow("tenth day") << "2024-02-19T12:00:00"
                               << "klqnpj";
    QTest::newRow("eleventh day") << "2024-02-20T12:00:00"
                                  << "klqnja";
    QTest::newRow("twentieth day") << "2024-02-29T12:00:00"
                                   << "klqnbj";
    QTest::newRow("twenty-first day") << "2024-03-01T12:00:00"
                                      << "klqnbja";
    QTest::newRow("thirtieth day of the twelfth month") << "2024-02-09T12:00:00"
                                                        << "kljbncj";
    QTest::newRow("eleventh month, twenty-fifth day") << "2000-01-01T12:00:00"
                                                      << "kljanbje";
    QTest::newRow("tenth month, first day") << "2024-11-01T12:00:00"
                                            << "kljnpa";
    QTest::newRow("leap second month, first day") << "2023-03-22T12:00:00"
                                                  << "klbnpa";
    QTest::newRow("before the table") << "1900-01-31T12:00:00"
                                      << "";
    QTest::newRow("after the table") << "2051-02-11T12:00:00"
                                     << "";
}

void TestElements::LunarDates()
{
    QFETCH(QString, instant);
    QFETCH(QString, cells);
    m_composer->InitParameters(m_node.data());
    ChosenTime::Set(instant);
    const QPixmap lunar = m_composer->GetLunarPixmap();
    QCOMPARE(LetteredGlyphs::Read(lunar), LetteredGlyphs::Cells(cells, 2));
    QCOMPARE(lunar.height(), cells.isEmpty() ? 0 : 9);
}

void TestElements::LunarDateIgnoresDaylightSaving()
{
    m_node->SetAttribute("UseDaylightSavingTime", 1, false);
    m_node->SetAttribute("DaylightSavingTimeStart", QStringLiteral("3.Last.7.02:00:00"), false);
    m_node->SetAttribute("DaylightSavingTimeEnd", QStringLiteral("10.Last.7.03:00:00"), false);
    m_composer->InitParameters(m_node.data());
    // 6 June 2024 is the first day of the fifth month. With the summer hour the clock shows it
    // already, the lunar date does not.
    ChosenTime::Set("2024-06-05T23:30:00");
    QDateTime reading;
    m_composer->CalculateTimeZone(reading);
    QCOMPARE(reading.date(), QDate(2024, 6, 6));
    QCOMPARE(LetteredGlyphs::Read(m_composer->GetLunarPixmap()),
             LetteredGlyphs::Cells("kldnbji", 2)); // fourth month, twenty-ninth day
}

void TestElements::FramesAskForTheLunarDateOncePerDay()
{
    m_composer->InitParameters(m_node.data());
    const auto asksInAFrame = [this] {
        s_year = 1;
        const ElementComposer::FrameScope frame(m_composer->Elements());
        m_composer->Elements().Lunar();
        return s_year != 1;
    };
    QVERIFY(asksInAFrame());
    QVERIFY(!asksInAFrame());
    ChosenTime::Set("2024-03-06T00:00:00");
    QVERIFY(asksInAFrame());
    s_year = 1;
    m_composer->GetLunarPixmap();
    QCOMPARE(s_year, 2024);
    s_year = 1;
    m_composer->GetLunarDate();
    QCOMPARE(s_year, 2024);
}

void TestElements::TopText()
{
    m_composer->InitParameters(m_node.data());
    QCOMPARE(LetteredGlyphs::Read(m_composer->GetTopTextPixmap()), QStringLiteral("LED"));
}

void TestElements::PersianDate()
{
    // Nowruz 1403.
    ChosenTime::Set("2024-03-20T12:00:00");
    QCOMPARE(LetteredGlyphs::Read(Date(7)), D("1403") + "//" + D("01") + "//" + D("01") + "_");
    // The date code is taken at set-up, but a live 7 turns the numbers Persian.
    QCOMPARE(LetteredGlyphs::Read(Date(0)), D("2024") + "//" + D("03") + "//" + D("20") + "_");
    m_node->SetAttribute("DigitalDateType", 7, false);
    QCOMPARE(LetteredGlyphs::Read(m_composer->GetDatePixmap()),
             D("1403") + "//" + D("01") + "//" + D("01") + "_");
    // A clock that is neither analog nor digital never shows the Persian date.
    m_node->SetAttribute("ClockType", 2, false);
    QCOMPARE(LetteredGlyphs::Read(m_composer->GetDatePixmap()),
             D("2024") + "//" + D("03") + "//" + D("20") + "_");
    m_node->SetAttribute("ClockType", 1, false);
    ChosenTime::Set("1993-03-20T12:00:00");
    QCOMPARE(LetteredGlyphs::Read(m_composer->GetDatePixmap()),
             D("1993") + "//" + D("03") + "//" + D("20") + "_");
}

void TestElements::MissingImages_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("date");
    QTest::addColumn<QString>("time");
    const QString date = D("2024") + "//" + D("03") + "//" + D("05") + "_";
    const QString time = T("13") + ":" + T("07") + ":" + T("42");
    QTest::newRow("date digits") << "_dateNumber"
                                 << "////_" << time;
    QTest::newRow("date labels, whose height counts") << "_dateCh"
                                                      << "" << time;
    QTest::newRow("date separators") << "_dateChar" << D("2024") + D("03") + D("05") << time;
    QTest::newRow("time digits") << "_timeNumber" << date << "::";
    QTest::newRow("time labels, whose height counts") << "_timeCh" << date << "";
    QTest::newRow("time separator") << "_timeChar" << date << T("13") + T("07") + T("42");
}

void TestElements::MissingImages()
{
    QFETCH(QString, key);
    QFETCH(QString, date);
    QFETCH(QString, time);
    m_node->SetFilePath(key, "/dev/null/none.png", QString(), -1, 3);
    QCOMPARE(LetteredGlyphs::Read(Date(0)), date);
    QCOMPARE(LetteredGlyphs::Read(Time(0)), time);
}

void TestElements::NarrowStrips_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("date");
    QTest::addColumn<QString>("labelledDate");
    QTest::addColumn<QString>("time");
    QTest::addColumn<QString>("labelledTime");
    const QString date = D("2024") + "//" + D("03") + "//" + D("05") + "_";
    const QString labelled = D("2024") + "YYYY" + D("03") + "MMMM" + D("05") + "DDDD";
    const QString time = T("13") + ":" + T("07") + ":" + T("42");
    const QString labelledTime = T("13") + "hhh" + T("07") + "mmm" + T("42") + "sss";
    // A strip with fewer columns than cells has cells of no width.
    QTest::newRow("date digits") << "_dateNumber" << 9 << "////_"
                                 << "YYYYMMMMDDDD" << time << labelledTime;
    QTest::newRow("date labels") << "_dateCh" << 2 << date << D("20240305") << time << labelledTime;
    QTest::newRow("date separators")
        << "_dateChar" << 1 << D("20240305") + "_" << labelled << time << labelledTime;
    QTest::newRow("time digits") << "_timeNumber" << 9 << date << labelled << "::"
                                 << "hhhmmmsss";
    // The whole label image is reserved all the same.
    QTest::newRow("time labels") << "_timeCh" << 2 << date << labelled << time
                                 << T("130742") + "__";
}

void TestElements::NarrowStrips()
{
    QFETCH(QString, key);
    QFETCH(int, width);
    QFETCH(QString, date);
    QFETCH(QString, labelledDate);
    QFETCH(QString, time);
    QFETCH(QString, labelledTime);
    m_glyphs->Write(key, QString(width, 'X'), 7);
    QCOMPARE(LetteredGlyphs::Read(Date(0)), date);
    QCOMPARE(LetteredGlyphs::Read(Date(5)), labelledDate);
    QCOMPARE(LetteredGlyphs::Read(Time(0)), time);
    QCOMPARE(LetteredGlyphs::Read(Time(2)), labelledTime);
    m_glyphs->Write("_lunar", QString(16, 'X'), 9);
    m_composer->InitParameters(m_node.data());
    QVERIFY(m_composer->GetLunarPixmap().isNull());
}

void TestElements::ForeignFormats_data()
{
    QTest::addColumn<int>("pixels");
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("PNG without alpha") << int(QImage::Format_RGB32) << QByteArray("png");
    QTest::newRow("PNG with a palette") << int(QImage::Format_Indexed8) << QByteArray("png");
    QTest::newRow("PNG of 16 bits") << int(QImage::Format_RGBA64) << QByteArray("png");
    QTest::newRow("BMP") << int(QImage::Format_RGB32) << QByteArray("bmp");
    QTest::newRow("PPM") << int(QImage::Format_RGB32) << QByteArray("ppm");
}

// The content tells the format, not the name.
void TestElements::ForeignFormats()
{
    QFETCH(int, pixels);
    QFETCH(QByteArray, file);
    const QString path = m_node->GetFirstFile("_timeNumber");
    const QImage image(path);
    QVector<QRgb> palette;
    for (int x = 0; x < image.width(); x += 2)
        palette << image.pixel(x, 0);
    const auto format = static_cast<QImage::Format>(pixels);
    const QImage foreign = format == QImage::Format_Indexed8
        ? image.convertToFormat(format, palette)
        : image.convertToFormat(format);
    QVERIFY(foreign.save(path, file.constData()));
    QCOMPARE(LetteredGlyphs::Read(Time(1)), T("13") + ":" + T("07"));
}

void TestElements::TranslucentImagesStayTranslucent()
{
    QImage image(20, 6, QImage::Format_ARGB32);
    image.fill(QColor(200, 100, 50, 128));
    QVERIFY(image.save(m_node->GetFirstFile("_timeNumber"), "png"));
    const QImage time = Time(1).toImage().convertToFormat(QImage::Format_ARGB32);
    QCOMPARE(time.width(), 9);
    for (const int x : {0, 3, 5, 8}) {
        QCOMPARE(qAlpha(time.pixel(x, 0)), 128);
        // Within what is lost where colours are kept multiplied with their alpha.
        QVERIFY(qAbs(qRed(time.pixel(x, 0)) - 200) <= 1);
    }
    QCOMPARE(qAlpha(time.pixel(4, 0)), 255);
}

void TestElements::CodesAreTakenAtSetUp()
{
    Date(6);
    m_node->SetAttribute("DigitalDateType", 5, false);
    m_node->SetAttribute("ClockType", 0, false);
    m_node->SetAttribute("AnalogDateType", 8, false);
    const QString labelled = D("03") + "MMMM" + D("05") + "DDDD";
    QCOMPARE(LetteredGlyphs::Read(m_composer->GetDatePixmap()), labelled);
    // The time's are not.
    Time(0);
    m_node->SetAttribute("DigitalTimeType", 1, false);
    QCOMPARE(LetteredGlyphs::Read(m_composer->GetTimePixmap()), T("13") + ":" + T("07"));
    m_node->SetAttribute("DigitalMode", 1, false);
    QCOMPARE(LetteredGlyphs::Read(m_composer->GetTimePixmap()), T("01") + ":" + T("07") + "_PPP");
}

void TestElements::SetUpReadsAllFilesAnew()
{
    Date(0);
    m_glyphs->Write("_dateNumber", LetteredGlyphs::Cells("abcdefghij", 3), 8);
    m_glyphs->Write("_toptext", "OTHER", 5);
    m_glyphs->Write("_chWeek_2", "W", 5);
    QCOMPARE(LetteredGlyphs::Read(m_composer->GetTopTextPixmap()), QStringLiteral("LED"));
    QCOMPARE(LetteredGlyphs::Read(m_composer->GetDatePixmap()).left(12), D("2024"));
    m_composer->InitParameters(m_node.data());
    QCOMPARE(LetteredGlyphs::Read(m_composer->GetTopTextPixmap()), QStringLiteral("OTHER"));
    QCOMPARE(LetteredGlyphs::Read(m_composer->GetDatePixmap()).left(12), D("cace"));
    QCOMPARE(LetteredGlyphs::Read(m_composer->GetWeeKPixmap()), QStringLiteral("W"));
}

void TestElements::SetUpForAnotherNode()
{
    Date(0);
    HClockNode other;
    other.SetAttribute("ClockType", 1, false);
    m_composer->InitParameters(&other);
    QVERIFY(m_composer->GetDatePixmap().isNull());
    QVERIFY(m_composer->GetTimePixmap().isNull());
    QVERIFY(m_composer->GetWeeKPixmap().isNull());
    QVERIFY(m_composer->GetLunarPixmap().isNull());
    QVERIFY(m_composer->GetTopTextPixmap().isNull());
    m_node->SetAttribute("DigitalTimeType", 1, false);
    m_composer->InitParameters(m_node.data());
    QCOMPARE(LetteredGlyphs::Read(m_composer->GetTimePixmap()), T("13") + ":" + T("07"));
}

void TestElements::OtherElementsRestoreTheHour()
{
    m_node->SetAttribute("DigitalMode", 1, false);
    Time(0);
    // Lunar date and top text leave the time as it is, date and week bring it up to date.
    m_composer->GetLunarPixmap();
    m_composer->GetTopTextPixmap();
    QCOMPARE(m_composer->GetTimeAP(), QStringLiteral("AM"));
    m_composer->GetDatePixmap();
    QCOMPARE(m_composer->GetTimeAP(), QStringLiteral("PM"));
    m_composer->GetTimePixmap();
    QCOMPARE(m_composer->GetTimeAP(), QStringLiteral("AM"));
    m_composer->GetWeeKPixmap();
    QCOMPARE(m_composer->GetTimeAP(), QStringLiteral("PM"));
}

void TestElements::NothingBeforeSetUp()
{
    QVERIFY(m_composer->GetDatePixmap().isNull());
    QVERIFY(m_composer->GetTimePixmap().isNull());
    QVERIFY(m_composer->GetWeeKPixmap().isNull());
    QVERIFY(m_composer->GetLunarPixmap().isNull());
    QVERIFY(m_composer->GetTopTextPixmap().isNull());
    m_composer->InitParameters(nullptr);
    QVERIFY(m_composer->GetDatePixmap().isNull());
}

void TestElements::UnchangedElementIsTheSamePixmap()
{
    const qint64 date = Date(0).cacheKey();
    const qint64 week = m_composer->GetWeeKPixmap().cacheKey();
    ChosenTime::Advance(1000);
    QCOMPARE(m_composer->GetDatePixmap().cacheKey(), date);
    QCOMPARE(m_composer->GetWeeKPixmap().cacheKey(), week);
    ChosenTime::Set("2024-03-06T00:00:00");
    QVERIFY(m_composer->GetDatePixmap().cacheKey() != date);
    QVERIFY(m_composer->GetWeeKPixmap().cacheKey() != week);
}

QTEST_MAIN(TestElements)

#include "test_elements.moc"
