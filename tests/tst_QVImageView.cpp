// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "Patience.h"
#include "ScriptedServer.h"

#include <QuorvaMedia/QuorvaMedia.h>
#include "QVImageView.h"
#include "QVImageCache.h"

#include <QtCore/QBuffer>
#include <QtGui/QImage>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickWindow>
#include <QtTest/QtTest>

#include <cstdlib>
#include <map>

using quorva::http::HttpRequest;
using quorva::http::HttpResponse;

// Picture loading in a real window over loopback.
class tst_QVImageView : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QuorvaRestAPI::sharedInstance()->addCaCertificates(m_server.caCertificates());
        m_window.resize(200, 200);
        m_window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&m_window));
        const std::map<std::string, QByteArray> pictures{{"/large", pngOf(Qt::green, 400)},
                                                         {"/red", pngOf(Qt::red)},
                                                         {"/blue", pngOf(Qt::blue)},
                                                         {"/jpeg", encoded(Qt::green, "JPEG")},
                                                         {"/bmp", encoded(Qt::green, "BMP")},
                                                         {"/gif", kGreenGif}};
        m_server.respond([pictures](const HttpRequest &request) {
            for (const auto &[folder, picture] : pictures) {
                if (request.path.starts_with(folder))
                    return HttpResponse::json(200, picture.toStdString());
            }
            if (request.path.starts_with("/page"))
                return HttpResponse::json(404, "<html>not a picture</html>");
            HttpResponse dropped;
            dropped.fault = HttpResponse::Fault::DropConnection;
            return dropped;
        });
    }

    void init()
    {
        QVImageCache::sharedImageCache()->clear();
        QVImageCache::sharedImageCache()->setLimitBytes(QVImageCache::kDefaultLimitBytes);
        m_server.clearRequests();
    }

    void cachedAddressShowsAtOnceWithoutRequest()
    {
        std::unique_ptr<QVImageView> first(newView());
        first->setImageWithURL(address(QStringLiteral("/red/1.png")));
        QVERIFY(!first->hasImage()); // nothing until the download lands
        QTRY_VERIFY(first->hasImage());
        QCOMPARE(first->image().pixelColor(0, 0), QColor(Qt::red));
        QCOMPARE(m_server.requestCount(), 1);
        QVERIFY(m_server.lastRequest().header("user-agent").find("Quorva-SDK") == std::string::npos);

        std::unique_ptr<QVImageView> second(newView());
        second->setImageWithURL(address(QStringLiteral("/red/1.png")));
        QVERIFY2(second->hasImage(), "a cached picture is shown synchronously");
        QVERIFY(!second->downloadOperation()); // no download was even started
    }

    void failedLoadKeepsThePicture()
    {
        std::unique_ptr<QVImageView> view(newView());
        view->setImageWithURL(address(QStringLiteral("/blue/2.png")));
        QTRY_VERIFY(view->hasImage());
        QSignalSpy changed(view.get(), &QVImageView::imageChanged);
        view->setImageWithURL(address(QStringLiteral("/dropped/3.png")));
        // The network layer may repeat a dropped picture GET; the outcome is the same.
        QTRY_VERIFY(view->downloadOperation()->finished);
        QCOMPARE(changed.count(), 0);
        QCOMPARE(view->image().pixelColor(0, 0), QColor(Qt::blue));
        QVERIFY(!QVImageCache::sharedImageCache()->contains(address(QStringLiteral("/dropped/3.png")).toString()));
    }

    void nonPictureClearsThePicture()
    {
        std::unique_ptr<QVImageView> view(newView());
        view->setImageWithURL(address(QStringLiteral("/blue/4.png")));
        QTRY_VERIFY(view->hasImage());
        view->setImageWithURL(address(QStringLiteral("/page/5.png")));
        QTRY_VERIFY(!view->hasImage());
        QVERIFY(!QVImageCache::sharedImageCache()->contains(address(QStringLiteral("/page/5.png")).toString()));
    }

    void startedDownloadRunsOnAfterNewAddress()
    {
        // Kept on purpose: once an earlier download has started, giving the view a new
        // uncached address does not stop it, and both pictures arrive.
        std::unique_ptr<QVImageView> view(newView());
        view->setImageWithURL(address(QStringLiteral("/red/9.png")));
        QTRY_COMPARE(m_server.requestCount(), 1);
        view->setImageWithURL(address(QStringLiteral("/blue/10.png")));
        QTRY_COMPARE(m_server.requestCount(), 2);
        QTRY_VERIFY(QVImageCache::sharedImageCache()->contains(address(QStringLiteral("/red/9.png")).toString()));
        QTRY_VERIFY(QVImageCache::sharedImageCache()->contains(address(QStringLiteral("/blue/10.png")).toString()));
        QVERIFY(view->hasImage());
    }

    void cacheIsBoundedByBytes()
    {
        QVImageCache *cache = QVImageCache::sharedImageCache();
        cache->setLimitBytes(64 * 1024);
        QImage big(64, 64, QImage::Format_ARGB32_Premultiplied); // 16 KiB each
        for (int i = 0; i < 20; ++i) {
            big.fill(QColor(i, 0, 0));
            cache->insert(QStringLiteral("k%1").arg(i), big.copy());
            QVERIFY(cache->totalBytes() <= cache->limitBytes());
        }
        QVERIFY(cache->count() <= 4);
        QVERIFY(cache->contains(QStringLiteral("k19")));
        QVERIFY(!cache->contains(QStringLiteral("k0")));
    }

    void laterAddressCancelsDownloadNotYetStarted()
    {
        std::unique_ptr<QVImageView> view(newView());
        // Both calls in one pass: the first download is cancelled before it starts.
        view->setImageWithURL(address(QStringLiteral("/red/7.png")));
        view->setImageWithURL(address(QStringLiteral("/blue/8.png")));
        QTRY_VERIFY(view->hasImage());
        // The first was dropped before it started, so by now it can no longer arrive.
        QCOMPARE(view->image().pixelColor(0, 0), QColor(Qt::blue));
        QCOMPARE(m_server.requestCount(), 1);
        QCOMPARE(m_server.lastRequest().path, std::string("/blue/8.png"));

        // A cached address cancels the stored operation, which stays stored.
        const auto operation = view->downloadOperation();
        QCOMPARE(operation->url, address(QStringLiteral("/blue/8.png")));
        QVERIFY(!operation->cancelled);
        view->setImageWithURL(address(QStringLiteral("/blue/8.png")));
        QCOMPARE(view->downloadOperation(), operation);
        QVERIFY(operation->cancelled);
    }

    void pictureIsKeptAtTheSizeShown()
    {
        // A 400-pixel picture in a 40-point view is decoded, cropped and rounded once, and
        // the cache holds it at the size shown rather than at full size.
        std::unique_ptr<QVImageView> view(newView());
        view->setCornerRadius(10);
        const QSize shown = (view->size() * m_window.effectiveDevicePixelRatio()).toSize();
        view->setImageWithURL(address(QStringLiteral("/large/11.png")));
        QTRY_VERIFY(view->hasImage());
        QCOMPARE(view->image().size(), shown);
        QCOMPARE(view->image().pixelColor(shown.width() / 2, shown.height() / 2), QColor(Qt::green));
        QCOMPARE(view->image().pixelColor(0, 0).alpha(), 0); // outside the rounded corner
        const QImage cached = QVImageCache::sharedImageCache()->object(address(QStringLiteral("/large/11.png")).toString());
        QCOMPARE(cached.size(), shown);
        QVERIFY(QVImageCache::sharedImageCache()->statistics().largestDecoded.width() < 400);

        // A view of another size shows the cached picture too, prepared for its own shape.
        std::unique_ptr<QVImageView> other(newView());
        other->setSize({20, 20});
        other->setImageWithURL(address(QStringLiteral("/large/11.png")));
        QVERIFY(other->hasImage());
        QCOMPARE(m_server.requestCount(), 1);
    }

    // Known formats are named by their first bytes, others are still probed; the
    // address's suffix says nothing.
    void everyFormatShows_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("PNG") << QStringLiteral("/red/12.jpg");
        QTest::newRow("JPEG, scaled while decoded") << QStringLiteral("/jpeg/13.png");
        QTest::newRow("GIF") << QStringLiteral("/gif/14");
        QTest::newRow("BMP, probed") << QStringLiteral("/bmp/15.png");
    }

    void everyFormatShows()
    {
        QFETCH(QString, path);
        std::unique_ptr<QVImageView> view(newView());
        view->setImageWithURL(address(path));
        QTRY_VERIFY(view->hasImage());
        const QImage shown = view->image();
        QCOMPARE(shown.size(), (view->size() * m_window.effectiveDevicePixelRatio()).toSize());
        const QColor centre = shown.pixelColor(shown.width() / 2, shown.height() / 2);
        const QColor expected = path.startsWith(QLatin1String("/red")) ? QColor(Qt::red) : QColor(Qt::green);
        // JPEG is lossy: near the colour, not equal to it.
        QVERIFY2(std::abs(centre.red() - expected.red()) < 8 && std::abs(centre.green() - expected.green()) < 8
                     && std::abs(centre.blue() - expected.blue()) < 8,
                 qPrintable(centre.name()));
    }

    // The module's icons are drawn from their SVG files in one colour, at the pixels
    // shown, again whenever the colour or the size changes.
    void iconTakesItsColourAndSize()
    {
        QQmlEngine engine;
        QQmlComponent component(&engine);
        component.setData("import QtQuick\nimport QuorvaMedia\n"
                          "QVIconImage { width: 24; height: 24; color: \"#ff0000\";"
                          " source: \"qrc:/qt-project.org/imports/QuorvaMedia/icons/header-close.svg\" }",
                          QUrl());
        std::unique_ptr<QObject> object(component.create());
        auto *icon = qobject_cast<QVImageView *>(object.get());
        QVERIFY2(icon, qPrintable(component.errorString()));
        icon->setParentItem(m_window.contentItem());
        QTRY_VERIFY(icon->hasImage());
        const qreal ratio = m_window.effectiveDevicePixelRatio();
        QCOMPARE(icon->image().size(), QSize(24, 24) * ratio);
        QCOMPARE(drawnColours(icon->image()), QSet<QRgb>{qRgb(255, 0, 0)});

        icon->setProperty("color", QColor(Qt::blue));
        QTRY_COMPARE(drawnColours(icon->image()), QSet<QRgb>{qRgb(0, 0, 255)});
        icon->setSize({40, 40});
        QTRY_COMPARE(icon->image().size(), QSize(40, 40) * ratio);

        // Mirrored for a right-to-left language: the same drawing, left to right.
        const qint64 closeKey = icon->image().cacheKey();
        icon->setProperty("source", QUrl(QStringLiteral("qrc:/qt-project.org/imports/QuorvaMedia/icons/chevron.svg")));
        QTRY_VERIFY(icon->image().cacheKey() != closeKey);
        const QImage forward = icon->image();
        icon->setProperty("mirror", true);
        QTRY_VERIFY(icon->image().cacheKey() != forward.cacheKey());
        QVERIFY(icon->image() != forward);
        QVERIFY(alphaDistance(icon->image(), forward.mirrored(true, false)) <= 2);

        QTest::ignoreMessage(QtWarningMsg, "icon not readable: qrc:/nowhere.svg");
        icon->setProperty("source", QUrl(QStringLiteral("qrc:/nowhere.svg")));
        QTRY_VERIFY(!icon->hasImage());
    }

private:
    // The colours of the pixels drawn in full (an edge pixel, partly covered, is blended).
    static QSet<QRgb> drawnColours(const QImage &image)
    {
        QSet<QRgb> colours;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor pixel = image.pixelColor(x, y);
                if (pixel.alpha() == 255)
                    colours.insert(pixel.rgb());
            }
        }
        return colours;
    }

    // The largest difference in coverage between two pictures of one size.
    static int alphaDistance(const QImage &a, const QImage &b)
    {
        int largest = 0;
        for (int y = 0; y < a.height(); ++y) {
            for (int x = 0; x < a.width(); ++x)
                largest = std::max(largest, std::abs(qAlpha(a.pixel(x, y)) - qAlpha(b.pixel(x, y))));
        }
        return largest;
    }

    // A 1 x 1 GIF whose only colour is pure green (no writer for GIF ships with Qt).
    static constexpr char kGreenGifBytes[] = "GIF89a\x01\x00\x01\x00\x80\x00\x00\x00\xff\x00\x00\x00\x00"
                                             ",\x00\x00\x00\x00\x01\x00\x01\x00\x00\x02\x02" "D\x01\x00;";
    inline static const QByteArray kGreenGif = QByteArray(kGreenGifBytes, sizeof(kGreenGifBytes) - 1);

    static QByteArray encoded(const QColor &color, const char *format)
    {
        QImage image(400, 400, QImage::Format_RGB32);
        image.fill(color);
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, format);
        return bytes;
    }

    QUrl address(const QString &path) const
    {
        return QUrl(QStringLiteral("https://%1%2").arg(m_server.baseAddress(), path));
    }

    QVImageView *newView()
    {
        auto *view = new QVImageView(m_window.contentItem());
        view->setSize({40, 40});
        return view;
    }

    ScriptedServer m_server;
    QQuickWindow m_window;
};

QTEST_MAIN(tst_QVImageView)
#include "tst_QVImageView.moc"
