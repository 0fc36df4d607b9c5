#include "OffersReader.h"
#include "ReplyParsers.h"

#include <QtTest/QtTest>

using namespace quorva::detail;

class tst_ReplyParsers : public QObject
{
    Q_OBJECT

private slots:
    void profile_data();
    void profile();
    void categories_data();
    void categories();
    void ticketId_data();
    void ticketId();
    void numberText_data();
    void numberText();
    void offersReadDirectlyAsGenerally_data();
    void offersReadDirectlyAsGenerally();
};

void tst_ReplyParsers::profile_data()
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

void tst_ReplyParsers::profile()
{
    QFETCH(QByteArray, body);
    QFETCH(bool, show);
    QFETCH(QString, name);
    const QVProfile parsed = parseProfile(body);
    QCOMPARE(parsed.showCurrency(), show);
    QCOMPARE(parsed.currencyName(), name);
    QCOMPARE(parsed.currencyName().isNull(), name.isNull());
}

void tst_ReplyParsers::categories_data()
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

void tst_ReplyParsers::categories()
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

void tst_ReplyParsers::ticketId_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QVariant>("expected");
    QTest::newRow("number stays a number") << QByteArray(R"({"ticket_id":250})") << QVariant(qlonglong(250));
    QTest::newRow("text") << QByteArray(R"({"ticket_id":"abc"})") << QVariant(QStringLiteral("abc"));
    QTest::newRow("missing") << QByteArray(R"({"id":1})") << QVariant();
    QTest::newRow("null") << QByteArray(R"({"ticket_id":null})") << QVariant();
    QTest::newRow("list") << QByteArray(R"([{"ticket_id":1}])") << QVariant();
}

void tst_ReplyParsers::ticketId()
{
    QFETCH(QByteArray, body);
    QFETCH(QVariant, expected);
    QCOMPARE(parseTicketId(body), expected);
}

void tst_ReplyParsers::numberText_data()
{
    QTest::addColumn<QByteArray>("number");
    QTest::addColumn<QString>("text");
    QTest::newRow("integer") << QByteArray("250") << "250";
    QTest::newRow("large integer") << QByteArray("1500000") << "1500000";
    QTest::newRow("negative") << QByteArray("-40") << "-40";
    QTest::newRow("zero") << QByteArray("0") << "0";
    QTest::newRow("fraction") << QByteArray("2.5") << "2.5";
}

void tst_ReplyParsers::numberText()
{
    QFETCH(QByteArray, number);
    QFETCH(QString, text);
    const QByteArray body = R"({"offers":[{"currency_count":)" + number + "}]}";
    const QList<QVOffer> offers = parseOffers(body);
    QCOMPARE(offers.size(), 1);
    QCOMPARE(offers[0].currencyCount(), text);
}

void tst_ReplyParsers::offersReadDirectlyAsGenerally_data()
{
    // Every body gives the same records whichever way it is read; the column says
    // whether the one-pass reader takes it or leaves it to the general one.
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("direct");
    const QByteArray full = R"({"offers":[{"offer_id":7,"name":"Puzzle","description":"Reach level 5",)"
                            R"("currency_count":250,"image_url":"//img.test/7.png","click_url":"https://c.test/7"}]})";
    QTest::newRow("a plain page") << full << 1 << true;
    QTest::newRow("spaced out") << QByteArray(" {\n \"offers\" : [ {\t\"name\" : \"A\" } ,\r\n{} ] }\n") << 2 << true;
    QTest::newRow("no offers key") << QByteArray(R"({"more":true})") << 0 << true;
    QTest::newRow("offers not a list") << QByteArray(R"({"offers":{"name":"A"}})") << 0 << true;
    QTest::newRow("elements that are not objects") << QByteArray(R"({"offers":[1,"a",null,[{}],{"name":"B"}]})") << 1 << true;
    QTest::newRow("unknown nested values") << QByteArray(R"({"x":{"y":[1,{"z":false}]},"offers":[{"tags":["a",{"b":null}],"name":"C"}],"n":-1.5e3})") << 1 << true;
    QTest::newRow("wrong types are absent") << QByteArray(R"({"offers":[{"offer_id":true,"name":5,"description":null,"currency_count":"250","image_url":[],"click_url":{}}]})") << 1 << true;
    QTest::newRow("empty texts stay texts") << QByteArray(R"({"offers":[{"name":"","image_url":"","click_url":""}]})") << 1 << true;
    QTest::newRow("escapes") << QByteArray(R"({"offers":[{"name":"a\"b\\c\/d\n\t\u00e9\u20AC"}]})") << 1 << true;
    QTest::newRow("text in UTF-8") << QByteArray("{\"offers\":[{\"name\":\"Caf\xc3\xa9 \xe2\x82\xac \xf0\x9f\x8e\xae\"}]}") << 1 << true;
    QTest::newRow("numbers") << QByteArray(R"({"offers":[{"currency_count":-0},{"currency_count":1.0},{"currency_count":1e3},)"
                                           R"({"currency_count":2.50},{"currency_count":9007199254740993},)"
                                           R"({"currency_count":12345678901234567890},{"currency_count":0.1},{"offer_id":12.5}]})")
                             << 8 << true;
    QTest::newRow("an escaped surrogate pair") << QByteArray(R"({"offers":[{"name":"\ud83c\udfae"}]})") << 1 << false;
    QTest::newRow("a key spelled with an escape") << QByteArray(R"({"offers":[{"n\u0061me":"A"}]})") << 1 << false;
    QTest::newRow("a repeated field") << QByteArray(R"({"offers":[{"name":"A","name":"B"}]})") << 1 << false;
    QTest::newRow("repeated offers") << QByteArray(R"({"offers":[{"name":"A"}],"offers":[]})") << -1 << false;
    QTest::newRow("invalid UTF-8") << QByteArray("{\"offers\":[{\"name\":\"\xc3\x28\"}]}") << 0 << false;
    QTest::newRow("trailing text") << QByteArray(R"({"offers":[{"name":"A"}]} x)") << 0 << false;
    QTest::newRow("cut short") << full.left(full.size() - 3) << 0 << false;
    QTest::newRow("a leading zero") << QByteArray(R"({"offers":[{"currency_count":012}]})") << 0 << false;
    QTest::newRow("a bare control character") << QByteArray("{\"offers\":[{\"name\":\"a\x01\"}]}") << 1 << false;
    QTest::newRow("a top-level list") << QByteArray(R"([{"offers":[]}])") << 0 << false;
    QTest::newRow("empty body") << QByteArray() << 0 << false;
    QTest::newRow("a number out of range") << QByteArray(R"({"offers":[{"currency_count":1e400}]})") << -1 << false;
    QTest::newRow("an identifier out of range") << QByteArray(R"({"offers":[{"offer_id":"a","name":"x"},{"offer_id":1e890}]})") << -1 << false;
    QTest::newRow("a skipped value out of range") << QByteArray(R"({"offers":[{"offer_id":"a"},{"x":123456789e1234567890}]})") << -1 << false;
    QTest::newRow("a skipped value too small") << QByteArray(R"({"offers":[{"name":"a"}],"n":1E-400})") << -1 << false;
    QTest::newRow("a large amount with an exponent") << QByteArray(R"({"offers":[{"currency_count":1234567890123456789E0}]})") << 1 << true;
    QTest::newRow("exponents and fractions") << QByteArray(R"({"offers":[{"currency_count":2.5e2},{"currency_count":-1E+2},{"offer_id":1e15},{"offer_id":1e16},{"currency_count":123456789012345678901234567890}]})") << 5 << true;
}

void tst_ReplyParsers::offersReadDirectlyAsGenerally()
{
    QFETCH(QByteArray, body);
    QFETCH(int, count);
    QFETCH(bool, direct);
    QCOMPARE(readOffersDirectly(body).has_value(), direct);
    const QList<QVOffer> parsed = parseOffers(body);
    const QList<QVOffer> general = parseOffersGenerally(body);
    if (count >= 0)
        QCOMPARE(parsed.size(), count);
    QCOMPARE(parsed.size(), general.size());
    for (qsizetype i = 0; i < parsed.size(); ++i) {
        const QStringList a{parsed[i].offerId(), parsed[i].offerName(), parsed[i].offerDescription(),
                            parsed[i].currencyCount(), parsed[i].imageURL(), parsed[i].clickURL()};
        const QStringList b{general[i].offerId(), general[i].offerName(), general[i].offerDescription(),
                            general[i].currencyCount(), general[i].imageURL(), general[i].clickURL()};
        for (qsizetype f = 0; f < a.size(); ++f) {
            QCOMPARE(a[f], b[f]);
            QCOMPARE(a[f].isNull(), b[f].isNull());
        }
    }
}

QTEST_APPLESS_MAIN(tst_ReplyParsers)
#include "tst_ReplyParsers.moc"
