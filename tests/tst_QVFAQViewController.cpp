#include "Patience.h"
#include "FakeOfferService.h"
#include "FaqPropertyList.h"
#include "SupportHarness.h"

#include <QtCore/QTemporaryDir>

namespace {
// The FAQ cells on screen by row.
QMap<int, QQuickItem *> rowsOf(QVFAQViewController *faq)
{
    QMap<int, QQuickItem *> rows;
    auto *list = faq->findChild<QQuickItem *>(QStringLiteral("collectionView"));
    for (QQuickItem *cell : list->property("contentItem").value<QQuickItem *>()->childItems()) {
        if (cell->isVisible() && (qobject_cast<QVQuestionCollectionViewCell *>(cell) || qobject_cast<QVQACollectionViewCell *>(cell)))
            rows.insert(cell->property("row").toInt(), cell);
    }
    return rows;
}

bool isOpen(QQuickItem *cell)
{
    return qobject_cast<QVQACollectionViewCell *>(cell) != nullptr;
}

void tapQuestion(SupportHarness &harness, QQuickItem *cell)
{
    harness.click(cell);
}
} // namespace

class tst_QVFAQViewController : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup() { finishPendingRequests(); }

    void propertyList_data();
    void propertyList();
    void oneQuestionOpensAtATime();
    void rowsFollowTheListWidth();

private:
    FakeOfferService m_service;
};

void tst_QVFAQViewController::initTestCase()
{
    QuorvaRestAPI::sharedInstance()->addCaCertificates(m_service.server().caCertificates());
    QuorvaRestAPI::sharedInstance()->setServiceBaseAddress(m_service.baseAddress());
    QVDevice::setUserInterfaceIdiom(QVDevice::Idiom::Phone);
}

void tst_QVFAQViewController::propertyList_data()
{
    QTest::addColumn<QByteArray>("contents"); // null: no file at all
    QTest::addColumn<QStringList>("questions");
    const QByteArray entry = "<dict><key>question</key><string>Q1</string><key>answer</key><string>A1</string></dict>";
    QTest::newRow("missing file") << QByteArray() << QStringList();
    QTest::newRow("not XML") << QByteArray("question: answer") << QStringList();
    QTest::newRow("another root") << "<dict>" + entry + "</dict>" << QStringList();
    QTest::newRow("cut off") << "<plist version=\"1.0\"><array>" + entry + "<dict><key>quest" << QStringList();
    QTest::newRow("empty array") << QByteArray("<plist version=\"1.0\"><array/></plist>") << QStringList();
    QTest::newRow("entries in order, odd ones left out")
        << "<plist version=\"1.0\"><array>" + entry
               + "<dict><key>answer</key><string>no question</string></dict>"
                 "<string>not a dict</string>"
                 "<dict><key>question</key><integer>4</integer></dict>"
                 "<dict><key>question</key><string>Q2 &amp; more</string></dict></array></plist>"
        << QStringList{"Q1", "Q2 & more"};
}

void tst_QVFAQViewController::propertyList()
{
    QFETCH(QByteArray, contents);
    QFETCH(QStringList, questions);
    QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("faqs.plist"));
    if (!contents.isNull()) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(contents);
    }
    QStringList read;
    for (const auto &entry : quorva::detail::readFaqPropertyList(path))
        read << entry.question;
    QCOMPARE(read, questions);

    // A FAQ built on such a list is simply that long, and says nothing.
    QVFAQViewController faq;
    faq.viewDidLoad(path);
    QCOMPARE(faq.numberOfItems(), questions.size());
}

void tst_QVFAQViewController::oneQuestionOpensAtATime()
{
    const auto shipped = quorva::detail::readFaqPropertyList(QVFAQViewController::faqsResourcePath());
    QVERIFY(shipped.size() >= 12);
    SupportHarness harness;
    QVERIFY(harness.show());
    QVSupportViewController *support = harness.openSupport();
    QVERIFY(support);
    QVFAQViewController *faq = support->faqViewController();
    QCOMPARE(faq->numberOfItems(), shipped.size());
    QTRY_VERIFY(rowsOf(faq).size() >= 4);
    for (QQuickItem *cell : rowsOf(faq)) {
        QVERIFY(!isOpen(cell));
        QCOMPARE(cell->height(), 100.0);
    }
    QCOMPARE(rowsOf(faq).value(0)->findChild<QQuickItem *>(QStringLiteral("questionLabel"))->property("text").toString(),
             shipped.first().question);

    tapQuestion(harness, rowsOf(faq).value(1));
    QTRY_VERIFY(isOpen(rowsOf(faq).value(1)));
    QQuickItem *open = rowsOf(faq).value(1);
    QQuickItem *answer = open->findChild<QQuickItem *>(QStringLiteral("answerLabel"));
    QCOMPARE(answer->property("text").toString(), shipped.at(1).answer);
    // The row is as tall as its answer needs, and the answer fits in it.
    QVERIFY(open->height() > 100);
    QCOMPARE(open->height(), faq->heightForRow(1, open->width()));
    QVERIFY(answer->mapToItem(open, QPointF(0, answer->height())).y() <= open->height());
    QCOMPARE(rowsOf(faq).value(0)->height(), 100.0);

    // Tapping it again keeps it open; tapping another moves the opening there.
    tapQuestion(harness, open);
    QTRY_VERIFY(faq->model()->rowCount() > 0 && isOpen(rowsOf(faq).value(1)));
    tapQuestion(harness, rowsOf(faq).value(3));
    QTRY_VERIFY(isOpen(rowsOf(faq).value(3)));
    QVERIFY(!isOpen(rowsOf(faq).value(1)));
    QCOMPARE(rowsOf(faq).value(1)->height(), 100.0);
    QCOMPARE(faq->selectedIndexPath(), 3);

    // A longer answer makes a taller row; a closed one stays at 100 however long.
    const qreal width = rowsOf(faq).value(3)->width();
    QVERIFY(QVQACollectionViewCell::fittingHeight(QStringLiteral("Q?"), QString(600, u'a').replace(7, 1, u' '), width)
            > QVQACollectionViewCell::fittingHeight(QStringLiteral("Q?"), QStringLiteral("Short."), width));
}

void tst_QVFAQViewController::rowsFollowTheListWidth()
{
    SupportHarness harness({390, 780});
    QVERIFY(harness.show());
    QVSupportViewController *support = harness.openSupport();
    QVERIFY(support);
    QVFAQViewController *faq = support->faqViewController();
    faq->didSelectItem(0);
    QTRY_VERIFY(isOpen(rowsOf(faq).value(0)));
    const qreal narrowHeight = rowsOf(faq).value(0)->height();
    harness.resize({700, 780});
    QTRY_COMPARE(rowsOf(faq).value(0)->width(), 700.0);
    QTRY_VERIFY(rowsOf(faq).value(0)->height() < narrowHeight); // fewer lines when wider
    QCOMPARE(rowsOf(faq).value(0)->height(), faq->heightForRow(0, 700));
}

QTEST_MAIN(tst_QVFAQViewController)
#include "tst_QVFAQViewController.moc"
