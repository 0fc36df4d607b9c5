// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVColor.h"
#include <QuorvaMedia/QVTheme.h>

#include <QtTest/QtTest>
#include <QuorvaMedia/QuorvaMedia.h>

Q_DECLARE_METATYPE(QVTheme)

namespace {
struct Pair
{
    const char *name;
    QColor QVTheme::*text;
    QColor QVTheme::*under;
    double minimum;
};

// What is read on what, in every theme: text 4.5 : 1; the payout button's edge 3 : 1.
const Pair kPairs[] = {
    {"header title on header start", &QVTheme::headerText, &QVTheme::headerStart, 4.5},
    {"header title on header end", &QVTheme::headerText, &QVTheme::headerEnd, 4.5},
    {"primary text on card", &QVTheme::textPrimary, &QVTheme::card, 4.5},
    {"primary text on background", &QVTheme::textPrimary, &QVTheme::background, 4.5},
    {"secondary text on card", &QVTheme::textSecondary, &QVTheme::card, 4.5},
    {"secondary text on background", &QVTheme::textSecondary, &QVTheme::background, 4.5},
    {"accent links on card", &QVTheme::accent, &QVTheme::card, 4.5},
    {"accent on background", &QVTheme::accent, &QVTheme::background, 4.5},
    {"button text on accent", &QVTheme::card, &QVTheme::accent, 4.5},
    {"payout text on payout button", &QVTheme::payoutText, &QVTheme::payoutButton, 4.5},
    {"payout button edge on card", &QVTheme::payoutButton, &QVTheme::card, 3.0},
    {"error text on card", &QVTheme::error, &QVTheme::card, 4.5},
    {"error text on background", &QVTheme::error, &QVTheme::background, 4.5},
    {"error strip text", &QVTheme::card, &QVTheme::error, 4.5},
};

const char *const kBrands[] = {"#3F51D8", "#FFD400", "#00C2FF", "#FF5A5F", "#1DB954", "#6200EE",
                               "#000000", "#FFFFFF", "#FF9900", "#E91E63", "#795548", "#9E9E9E",
                               "#00BFA5", "#F44336", "#2196F3", "#FFEB3B"};
} // namespace

class tst_QVTheme : public QObject
{
    Q_OBJECT

private slots:
    void everyPairReads_data()
    {
        QTest::addColumn<QVTheme>("theme");
        QTest::addColumn<int>("pair");
        QList<QPair<QString, QVTheme>> themes{{QStringLiteral("light"), QVTheme::light()},
                                              {QStringLiteral("dark"), QVTheme::dark()}};
        for (const char *brand : kBrands) {
            themes.append({QStringLiteral("%1 light").arg(QLatin1String(brand)),
                           QVTheme::fromBrandColor(QColor::fromString(QLatin1String(brand)), QVTheme::Light)});
            themes.append({QStringLiteral("%1 dark").arg(QLatin1String(brand)),
                           QVTheme::fromBrandColor(QColor::fromString(QLatin1String(brand)), QVTheme::Dark)});
        }
        for (const auto &[name, theme] : themes) {
            for (int i = 0; i < int(std::size(kPairs)); ++i)
                QTest::newRow(qPrintable(name + QStringLiteral(": ") + QLatin1String(kPairs[i].name))) << theme << i;
        }
    }

    void everyPairReads()
    {
        QFETCH(QVTheme, theme);
        QFETCH(int, pair);
        const Pair &p = kPairs[pair];
        const QColor text = theme.*(p.text);
        const QColor under = theme.*(p.under);
        const double ratio = QVTheme::contrastRatio(text, under);
        QVERIFY2(ratio >= p.minimum, qPrintable(QStringLiteral("%1 on %2: %3 : 1")
                                                    .arg(text.name(), under.name())
                                                    .arg(ratio, 0, 'f', 2)));
    }

    // The wall's own look keeps its colours but for those too faint to read: the payout
    // green gets darker, with its hue, and no darker than it needs to be.
    void lightIsTheWallsOwnLook()
    {
        const QVTheme light = QVTheme::light();
        QCOMPARE(light.background, QVColor::colorFromHex(QStringLiteral("#F2F2F2")));
        QCOMPARE(light.error, QVColor::colorFromHex(QStringLiteral("#A53838")));
        QCOMPARE(light.textPrimary, QColor(Qt::black));
        QCOMPARE(light.card, QColor(Qt::white));
        const QColor green(0x22, 0xA3, 0x5A);
        QCOMPARE(light.payoutButton.toHsl().hslHue(), green.toHsl().hslHue());
        QVERIFY(QVTheme::contrastRatio(light.payoutText, light.payoutButton) < 4.7);
    }

    void brandSetsHeaderAndAccent_data()
    {
        QTest::addColumn<QString>("brand");
        QTest::addColumn<QColor>("headerText");
        QTest::newRow("yellow gets dark header text") << "#FFD400" << QColor(0x15, 0x15, 0x1E);
        QTest::newRow("indigo keeps white") << "#3F51D8" << QColor(Qt::white);
        QTest::newRow("black keeps white") << "#000000" << QColor(Qt::white);
        QTest::newRow("white gets dark") << "#FFFFFF" << QColor(0x15, 0x15, 0x1E);
    }

    void brandSetsHeaderAndAccent()
    {
        QFETCH(QString, brand);
        QFETCH(QColor, headerText);
        const QColor colour = QColor::fromString(brand);
        for (const auto scheme : {QVTheme::Light, QVTheme::Dark}) {
            const QVTheme theme = QVTheme::fromBrandColor(colour, scheme);
            QCOMPARE(theme.headerStart, colour);
            QCOMPARE(theme.headerText, headerText);
            QCOMPARE(theme.isDark(), scheme == QVTheme::Dark);
            // The accent is the brand, made readable with its hue kept.
            if (colour.hslSaturation() > 0)
                QCOMPARE(theme.accent.toHsl().hslHue(), colour.toHsl().hslHue());
        }
    }

    void contrastRatioIsWcag()
    {
        const QColor green(0x22, 0xA3, 0x5A); // the old payout button
        QCOMPARE(QVTheme::contrastRatio(Qt::black, Qt::white), 21.0);
        QVERIFY2(qAbs(QVTheme::contrastRatio(Qt::white, green) - 3.25) < 0.01, qPrintable(QString::number(QVTheme::contrastRatio(Qt::white, green))));
        QCOMPARE(QVTheme::contrastRatio(green, Qt::white), QVTheme::contrastRatio(Qt::white, green));
    }

    void colorFromHex_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QColor>("expected"); // opaque; invalid when the text is not a colour
        QTest::newRow("light grey") << "#F2F2F2" << QColor(242, 242, 242);
        QTest::newRow("error red") << "#A53838" << QColor(165, 56, 56);
        QTest::newRow("no sign") << "F2F2F2" << QColor(242, 242, 242);
        QTest::newRow("0x prefix") << "0xA53838" << QColor(165, 56, 56);
        QTest::newRow("short form is not expanded") << "#FFF" << QColor(0, 15, 255);
        QTest::newRow("top byte dropped, not alpha") << "#80FF0000" << QColor(255, 0, 0);
        QTest::newRow("too large saturates to white") << "#123456789" << QColor(255, 255, 255);
        QTest::newRow("stops at first non-digit") << "#12G456" << QColor(0, 0, 18);
        QTest::newRow("dollar skipped as a symbol") << "$A53838" << QColor(165, 56, 56);
        QTest::newRow("sign in the middle removed") << "#A5#3838" << QColor(165, 56, 56);
        QTest::newRow("lower case") << "#a53838" << QColor(165, 56, 56);
        QTest::newRow("leading blank") << " #A53838" << QColor();
        QTest::newRow("empty") << "" << QColor();
        QTest::newRow("lone sign") << "#" << QColor();
        QTest::newRow("no digits") << "zz" << QColor();
    }

    void colorFromHex()
    {
        QFETCH(QString, text);
        QFETCH(QColor, expected);
        QCOMPARE(QVColor::colorFromHex(text), expected);
    }
};

QTEST_MAIN(tst_QVTheme)
#include "tst_QVTheme.moc"
