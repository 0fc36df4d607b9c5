#include <QuorvaMedia/QuorvaMedia.h>
#include "QVColor.h"


#include <QtTest/QtTest>

class tst_QVColor : public QObject
{
    Q_OBJECT

private slots:
    void colorFromHex_data();
    void colorFromHex();
};

void tst_QVColor::colorFromHex_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<int>("red");
    QTest::addColumn<int>("green");
    QTest::addColumn<int>("blue");
    QTest::newRow("light grey") << "#F2F2F2" << true << 242 << 242 << 242;
    QTest::newRow("error red") << "#A53838" << true << 165 << 56 << 56;
    QTest::newRow("no sign") << "F2F2F2" << true << 242 << 242 << 242;
    QTest::newRow("0x prefix") << "0xA53838" << true << 165 << 56 << 56;
    QTest::newRow("short form is not expanded") << "#FFF" << true << 0 << 15 << 255;
    QTest::newRow("top byte dropped, not alpha") << "#80FF0000" << true << 255 << 0 << 0;
    QTest::newRow("too large saturates to white") << "#123456789" << true << 255 << 255 << 255;
    QTest::newRow("stops at first non-digit") << "#12G456" << true << 0 << 0 << 18;
    QTest::newRow("dollar skipped as a symbol") << "$A53838" << true << 165 << 56 << 56;
    QTest::newRow("sign in the middle removed") << "#A5#3838" << true << 165 << 56 << 56;
    QTest::newRow("lower case") << "#a53838" << true << 165 << 56 << 56;
    QTest::newRow("leading blank") << " #A53838" << false << 0 << 0 << 0;
    QTest::newRow("empty") << "" << false << 0 << 0 << 0;
    QTest::newRow("lone sign") << "#" << false << 0 << 0 << 0;
    QTest::newRow("no digits") << "zz" << false << 0 << 0 << 0;
}

void tst_QVColor::colorFromHex()
{
    QFETCH(QString, text);
    QFETCH(bool, valid);
    QFETCH(int, red);
    QFETCH(int, green);
    QFETCH(int, blue);
    const QColor color = QVColor::colorFromHex(text);
    QCOMPARE(color.isValid(), valid);
    if (!valid)
        return;
    QCOMPARE(color.red(), red);
    QCOMPARE(color.green(), green);
    QCOMPARE(color.blue(), blue);
    QCOMPARE(color.alphaF(), 1.0f);
}

QTEST_APPLESS_MAIN(tst_QVColor)
#include "tst_QVColor.moc"
