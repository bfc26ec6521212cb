// The window's language, direction and plurals, by the locale.
#include "window/studio_application.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLocale>
#include <QPushButton>
#include <QtTest>

using namespace ClockStudio;

class TestLanguages : public QObject
{
    Q_OBJECT

private slots:
    void FollowTheLocale_data();
    void FollowTheLocale();
    void cleanup() { QLocale::setDefault(QLocale::c()); }
};

void TestLanguages::FollowTheLocale_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QString>("month"); // as dates are written
    QTest::addColumn<QString>("one");
    QTest::addColumn<QString>("two");
    QTest::addColumn<QString>("cancel"); // a button of Qt's
    const auto english = [](const char *name, const QLocale &locale) {
        QTest::newRow(name) << locale << Qt::LeftToRight << "March"
                            << "1 clock"
                            << "2 clocks"
                            << "Cancel";
    };
    english("none", QLocale::c());
    english("British", QLocale("en_GB"));
    english("one that the studio lacks", QLocale("de_DE"));
    english("one that the studio lacks, from right to left", QLocale("he_IL"));
    QTest::newRow("Persian") << QLocale("fa_IR") << Qt::RightToLeft << "مارس"
                             << "۱ ساعت"
                             << "۲ ساعت"
                             << "لغو";
    QTest::newRow("Chinese") << QLocale("zh_CN") << Qt::LeftToRight << "三月"
                             << "1 个时钟"
                             << "2 个时钟"
                             << "取消";
}

void TestLanguages::FollowTheLocale()
{
    QFETCH(QLocale, locale);
    QLocale::setDefault(locale);
    SetUpApplication(*qApp);
    QTEST(QApplication::layoutDirection(), "direction");
    QTEST(QLocale().monthName(3), "month");
    const auto clocks = [](int count) {
        return QCoreApplication::translate("ClockStudio::PropertyPanel", "%n clock(s)", nullptr,
                                           count);
    };
    QTEST(clocks(1), "one");
    QTEST(clocks(2), "two");
    QTEST(QDialogButtonBox(QDialogButtonBox::Cancel).button(QDialogButtonBox::Cancel)->text(),
          "cancel");
}

QTEST_MAIN(TestLanguages)
#include "test_languages.moc"
