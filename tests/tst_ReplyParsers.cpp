// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "ReplyParsers.h"

#include <QtTest/QtTest>
#include "QVPayoutFormatter.h"

using namespace quorva::detail;

class tst_ReplyParsers : public QObject
{
    Q_OBJECT

private slots:
    void profile_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<bool>("show");
        QTest::addColumn<QString>("name");
        QTest::newRow("visible true") << QByteArray(R"({"profile":{"settings":{"currency":{"visible":true,"name":"Gems"}}}})") << true << "Gems";
        QTest::newRow("visible 1") << QByteArray(R"({"profile":{"settings":{"currency":{"visible":1,"name":"Gems"}}}})") << true << "Gems";
        QTest::newRow("visible 0") << QByteArray(R"({"profile":{"settings":{"currency":{"visible":0,"name":"Gems"}}}})") << false << "Gems";
        QTest::newRow("visible false") << QByteArray(R"({"profile":{"settings":{"currency":{"visible":false}}}})") << false << QString();
        QTest::newRow("visible as text") << QByteArray(R"({"profile":{"settings":{"currency":{"visible":"yes"}}}})") << false << QString();
        QTest::newRow("no settings") << QByteArray(R"({"profile":{}})") << false << QString();
        QTest::newRow("settings is a list") << QByteArray(R"({"profile":{"settings":[{"currency":{"visible":true}}]}})") << false << QString();
        QTest::newRow("name is a number") << QByteArray(R"({"profile":{"settings":{"currency":{"visible":true,"name":5}}}})") << true << QString();
        QTest::newRow("not json") << QByteArray("Bad gateway") << false << QString();
        QTest::newRow("empty") << QByteArray() << false << QString();
    }

    void profile()
    {
        QFETCH(QByteArray, body);
        QFETCH(bool, show);
        QFETCH(QString, name);
        const QVProfile parsed = parseProfile(body);
        QCOMPARE(parsed.showCurrency(), show);
        QCOMPARE(parsed.currencyName(), name);
        QCOMPARE(parsed.currencyName().isNull(), name.isNull());
    }

    void categories_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QStringList>("ids");
        QTest::addColumn<QStringList>("names");
        QTest::newRow("two in order") << QByteArray(R"([{"id":3,"name":"Games"},{"id":7,"name":"Travel"}])")
                                      << QStringList{"3", "7"} << QStringList{"Games", "Travel"};
        QTest::newRow("empty list") << QByteArray("[]") << QStringList() << QStringList();
        QTest::newRow("wrapped in an object") << QByteArray(R"({"categories":[{"id":1}]})") << QStringList() << QStringList();
        QTest::newRow("id as text is absent") << QByteArray(R"([{"id":"3","name":"Games"}])")
                                              << QStringList{QString()} << QStringList{"Games"};
        QTest::newRow("not json") << QByteArray("<html/>") << QStringList() << QStringList();
    }

    void categories()
    {
        QFETCH(QByteArray, body);
        QFETCH(QStringList, ids);
        QFETCH(QStringList, names);
        const QList<QVCategory> parsed = parseCategories(body);
        QCOMPARE(parsed.size(), ids.size());
        for (qsizetype i = 0; i < parsed.size(); ++i) {
            QCOMPARE(parsed[i].categoryId(), ids[i]);
            QCOMPARE(parsed[i].categoryId().isNull(), ids[i].isNull());
            QCOMPARE(parsed[i].categoryName(), names[i]);
        }
    }

    void ticketId_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QVariant>("expected");
        QTest::newRow("number stays a number") << QByteArray(R"({"ticket_id":250})") << QVariant(qlonglong(250));
        QTest::newRow("text") << QByteArray(R"({"ticket_id":"abc"})") << QVariant(QStringLiteral("abc"));
        QTest::newRow("missing") << QByteArray(R"({"id":1})") << QVariant();
        QTest::newRow("null") << QByteArray(R"({"ticket_id":null})") << QVariant();
        QTest::newRow("list") << QByteArray(R"([{"ticket_id":1}])") << QVariant();
    }

    void ticketId()
    {
        QFETCH(QByteArray, body);
        QFETCH(QVariant, expected);
        QCOMPARE(parseTicketId(body), expected);
    }

    void numberText_data()
    {
        QTest::addColumn<QByteArray>("number");
        QTest::addColumn<QString>("text");
        QTest::newRow("integer") << QByteArray("250") << "250";
        QTest::newRow("large integer") << QByteArray("1500000") << "1500000";
        QTest::newRow("negative") << QByteArray("-40") << "-40";
        QTest::newRow("zero") << QByteArray("0") << "0";
        QTest::newRow("fraction") << QByteArray("2.5") << "2.5";
    }

    void numberText()
    {
        QFETCH(QByteArray, number);
        QFETCH(QString, text);
        const QByteArray body = R"({"offers":[{"currency_count":)" + number + "}]}";
        const QList<QVOffer> offers = parseOffers(body);
        QCOMPARE(offers.size(), 1);
        QCOMPARE(offers[0].currencyCount(), text);
    }

    void payoutTitle_data()
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

    void payoutTitle()
    {
        QFETCH(QString, locale);
        QFETCH(QString, count);
        QFETCH(QString, expected);
        QCOMPARE(QVPayoutFormatter(QLocale(locale)).payoutTitle(count), expected);
    }
};

QTEST_APPLESS_MAIN(tst_ReplyParsers)
#include "tst_ReplyParsers.moc"
