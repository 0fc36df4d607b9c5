#include "QVPayoutFormatter.h"

#include <QtTest/QtTest>

class tst_QVPayoutFormatter : public QObject
{
    Q_OBJECT

private slots:
    void payoutTitle_data();
    void payoutTitle();
};

void tst_QVPayoutFormatter::payoutTitle_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("count");
    QTest::addColumn<QString>("expected");
    QTest::newRow("zero") << "en_US" << "0" << "+0";
    QTest::newRow("hundreds") << "en_US" << "250" << "+250";
    QTest::newRow("grouped") << "en_US" << "1500" << "+1,500";
    QTest::newRow("millions") << "en_US" << "1234567" << "+1,234,567";
    QTest::newRow("fraction kept to three digits") << "en_US" << "2.56789" << "+2.568";
    QTest::newRow("trailing zeros dropped") << "en_US" << "12.50" << "+12.5";
    QTest::newRow("negative") << "en_US" << "-40" << "+-40";
    QTest::newRow("not a number") << "en_US" << "lots" << "+0";
    QTest::newRow("absent") << "en_US" << QString() << "+0";
    QTest::newRow("German: comma grouping, own decimal") << "de_DE" << "1500.5" << "+1,500,5";
    QTest::newRow("French: narrow space replaced") << "fr_FR" << "1500" << "+1,500";
    QTest::newRow("Swiss apostrophe replaced") << "de_CH" << "25000" << "+25,000";
}

void tst_QVPayoutFormatter::payoutTitle()
{
    QFETCH(QString, locale);
    QFETCH(QString, count);
    QFETCH(QString, expected);
    QCOMPARE(QVPayoutFormatter(QLocale(locale)).payoutTitle(count), expected);
}

QTEST_APPLESS_MAIN(tst_QVPayoutFormatter)
#include "tst_QVPayoutFormatter.moc"
