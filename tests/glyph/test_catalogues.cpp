#include <QTest>
QTEST_APPLESS_MAIN(QObject)
