// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

// quorva-monkey: a real wall in a real window against the sandbox, driven by random
// actions from a seed while the sandbox changes its faults at random. After every action
// it checks what a host relies on; it prints its seed, and the same seed replays the
// same actions. Exits non-zero on any finding.
#include "KeyboardPanel.h"
#include "SandboxCredits.h"
#include "SandboxProcess.h"
#include "WallHarness.h"

#include <QuorvaMedia/QuorvaMedia.h>

#include <QtCore/QCommandLineParser>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QRandomGenerator>
#include <QtCore/QTemporaryDir>
#include <QtGui/QDesktopServices>
#include <QtGui/QGuiApplication>
#include <QtGui/QInputMethodEvent>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>
#include <QtTest/QTest>

#include <functional>

#include <unistd.h>

namespace {
QStringList g_warnings;
int g_ticketsFiled = 0;
QtMessageHandler g_defaultHandler = nullptr;

// Warnings are findings; the client's line for each ticket it files is counted.
void collectWarnings(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        g_warnings.append(message);
    else if (message.startsWith(QLatin1String("params: ")))
        ++g_ticketsFiled;
    else
        return; // the client's other lines are expected under faults
    g_defaultHandler(type, context, message);
}

long residentMiB()
{
    QFile statm(QStringLiteral("/proc/self/statm"));
    if (!statm.open(QIODevice::ReadOnly))
        return 0;
    return statm.readAll().split(' ').value(1).toLong() * sysconf(_SC_PAGESIZE) / (1024 * 1024);
}

constexpr QSize kSizes[] = {{390, 844}, {844, 390}, {1024, 768}, {768, 1024}};
const char *const kLanguages[] = {"en_US", "de_DE", "es_ES", "fr_FR", "pt_BR", "ar_EG"};
constexpr std::chrono::milliseconds kTransferTimeout{8000};

QString randomText(QRandomGenerator &random)
{
    switch (random.bounded(6)) {
    case 0: return QString(int(random.bounded(1, 6000)), QChar(u'w'));
    case 1: return QStringLiteral("مرحبا بكم في المتجر ١٢٣");
    case 2: return QStringLiteral("🎉🙂👍🏽 e\u0301 \u200F\u202E");
    case 3: return QStringLiteral("\t\n\x01\x1b\x7f\u0000x");
    case 4: return QStringLiteral("ann@example.com");
    default: return QStringLiteral("Ann Example");
    }
}
} // namespace

class Monkey : public QObject, public QVOffersViewControllerDelegate
{
    Q_OBJECT
public:
    Monkey(quint32 seed, SandboxProcess &sandbox, const QString &faultFile, const QString &requestLog)
        : m_seed(seed), m_random(seed), m_sandbox(sandbox), m_faultFile(faultFile), m_requestLog(requestLog)
    {
        m_window.resize(kSizes[0]);
        m_window.show();
        addKeyboardPanel(&m_window);
        QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "openInBrowser");
        QDesktopServices::setUrlHandler(QStringLiteral("http"), this, "openInBrowser");
        newWall();
    }
    ~Monkey() override
    {
        QDesktopServices::unsetUrlHandler(QStringLiteral("https"));
        QDesktopServices::unsetUrlHandler(QStringLiteral("http"));
        delete m_wall;
    }

    // Acts until the time is up; every minute the faults stop for a calm check.
    int run(int seconds)
    {
        QElapsedTimer clock;
        clock.start();
        qint64 nextCalm = 60000;
        while (m_findings.isEmpty() && clock.elapsed() < seconds * 1000LL) {
            act();
            waitFrames(int(m_random.bounded(1, 9)));
            check();
            if (m_warmResidentMiB == 0 && clock.elapsed() > 20000)
                m_warmResidentMiB = residentMiB();
            if (clock.elapsed() >= nextCalm) {
                calmCheck();
                nextCalm = clock.elapsed() + 60000;
            }
        }
        if (m_findings.isEmpty())
            calmCheck();
        std::printf("quorva-monkey: %d actions, %d walls, %d tickets filed, resident %ld MiB (after warm-up %ld MiB), "
                    "%lld findings\n",
                    m_actions, m_walls, g_ticketsFiled, residentMiB(), m_warmResidentMiB, qlonglong(m_findings.size()));
        for (const QString &finding : std::as_const(m_findings))
            std::printf("FINDING after action %d: %s\n", m_actions, qPrintable(finding));
        return m_findings.isEmpty() ? 0 : 1;
    }

    void onCloseOffersVCPressed() override { m_closeRequested = true; }

public slots:
    void openInBrowser(const QUrl &) {}

private:
    // Paces the hands by what the screen shows rather than by the clock: each frame asked
    // for is drawn before the next action, however loaded the machine.
    void waitFrames(int frames)
    {
        for (int i = 0; i < frames; ++i) {
            if (!waitForNextFrame(&m_window))
                return;
        }
    }

    int pick(int count) { return count > 0 ? int(m_random.bounded(count)) : 0; }
    QPoint anywhere() { return {pick(m_window.width()), pick(m_window.height())}; }

    void newWall()
    {
        delete m_wall;
        QLocale::setDefault(QLocale(QString::fromLatin1(kLanguages[pick(6)])));
        const QSize size = kSizes[pick(4)];
        QVDevice::setUserInterfaceIdiom(qMin(size.width(), size.height()) >= 600 ? QVDevice::Idiom::Tablet
                                                                              : QVDevice::Idiom::Phone);
        if (pick(2)) {
            QPointer<QVOfferWallPreload> preload = QVOffersViewController::preloadForPublisherId(
                QStringLiteral("1042"), QStringLiteral("7"), QStringLiteral("user-1"));
            // The wall may come before the preload is ready: both ways are taken.
            (void)QTest::qWaitFor([&] { return !preload || preload->isReady() || preload->isFailed(); },
                                  int(m_random.bounded(2000)));
        }
        m_wall = QVOffersViewController::newOffersWallForPublisherId(QStringLiteral("1042"), QStringLiteral("7"),
                                                                   QStringLiteral("user-1"), this);
        m_shown = 0;
        connect(m_wall, &QVOffersViewController::offersShown, this, [this] { ++m_shown; });
        if (!m_watcher) {
            m_watcher = new QVCreditsWatcher(QStringLiteral("1042"), QStringLiteral("7"), QStringLiteral("user-1"), this);
            m_watcher->setInterval(QVCreditsWatcher::kMinimumInterval * 2);
            m_watcher->setActive(true);
        }
        m_wall->setCreditsWatcher(m_watcher);
        m_window.resize(size);
        m_wall->setParentItem(m_window.contentItem());
        m_wall->setSize(size);
        ++m_walls;
    }

    // Visible items of a kind, anywhere in the window (popups included).
    QList<QQuickItem *> visibleItems(const std::function<bool(QQuickItem *)> &fits)
    {
        QList<QQuickItem *> found;
        for (QQuickItem *item : WallHarness::itemsBelow(m_window.contentItem())) {
            if (item->isVisible() && item->opacity() > 0 && item->width() > 0 && item->height() > 0 && fits(item))
                found.append(item);
        }
        return found;
    }

    QList<QQuickItem *> visibleNamed(QLatin1StringView name)
    {
        return visibleItems([name](QQuickItem *i) { return i->objectName() == name; });
    }

    void click(QQuickItem *item)
    {
        // A pixel of the window: an item centred on its lower or right edge is not tapped.
        const QPoint centre = item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
        if (QRect(QPoint(), m_window.size()).contains(centre))
            QTest::mouseClick(&m_window, Qt::LeftButton, Qt::NoModifier, centre);
    }

    void act()
    {
        ++m_actions;
        if (!m_wall) {
            m_findings.append(QStringLiteral("the factory made no wall"));
            return;
        }
        switch (pick(18)) {
        case 0: case 1: case 2: // a tap anywhere
            QTest::mouseClick(&m_window, Qt::LeftButton, Qt::NoModifier, anywhere());
            break;
        case 3: { // a drag or a fling
            const QPoint from = anywhere(), to = anywhere();
            QTest::mousePress(&m_window, Qt::LeftButton, Qt::NoModifier, from);
            for (int step = 1; step <= 6; ++step)
                QTest::mouseMove(&m_window, from + (to - from) * step / 6, int(m_random.bounded(1, 40)));
            QTest::mouseRelease(&m_window, Qt::LeftButton, Qt::NoModifier, to);
            break;
        }
        case 4: { // turning, or another device size
            const QSize size = kSizes[pick(4)];
            m_window.resize(size);
            m_wall->setSize(size);
            break;
        }
        case 5: case 6: { // any button
            const auto buttons = visibleItems([](QQuickItem *i) { return i->inherits("QQuickAbstractButton"); });
            if (!buttons.isEmpty())
                click(buttons[pick(int(buttons.size()))]);
            break;
        }
        case 7: // the filter panel, a choice and saving it
            m_wall->onFilterPressed();
            waitFrames(int(m_random.bounded(25))); // taps land anywhere in the slide
            if (const auto rows = visibleNamed(QLatin1StringView("name"));
                !rows.isEmpty())
                click(rows[pick(int(rows.size()))]);
            if (const auto save = visibleNamed(QLatin1StringView("saveButton"));
                !save.isEmpty())
                click(save.first());
            break;
        case 8: // the support centre and one of its tabs
            if (!m_wall->supportVC() || !m_wall->supportVC()->isVisible())
                m_wall->onSupportPressed();
            else if (QObject *tabs = m_wall->supportVC()->findChild<QObject *>(QStringLiteral("segmentedControl")))
                tabs->setProperty("currentIndex", pick(3));
            break;
        case 9: case 10: { // typing into a field
            const auto fields = visibleItems([](QQuickItem *i) {
                return i->inherits("QQuickTextInput") || i->inherits("QQuickTextEdit");
            });
            if (fields.isEmpty())
                break;
            QQuickItem *field = fields[pick(int(fields.size()))];
            field->forceActiveFocus(Qt::MouseFocusReason);
            QInputMethodEvent typed;
            typed.setCommitString(randomText(m_random));
            QCoreApplication::sendEvent(field, &typed);
            for (int keys = pick(3); keys > 0; --keys)
                QTest::keyClick(&m_window, pick(2) ? Qt::Key_Backspace : Qt::Key_Tab);
            break;
        }
        case 11: { // sending the ticket
            const auto send = visibleNamed(QLatin1StringView("sendBtn"));
            if (!send.isEmpty())
                click(send.first());
            break;
        }
        case 12: { // a theme
            const QVTheme themes[] = {QVTheme::light(), QVTheme::dark(),
                                      QVTheme::fromBrandColor(QColor::fromRgb(m_random.generate()), QVTheme::Light),
                                      QVTheme::fromBrandColor(QColor::fromRgb(m_random.generate()), QVTheme::Dark)};
            m_wall->setTheme(themes[pick(4)]);
            break;
        }
        case 13: // closing the wall for a new one, maybe preloaded, maybe in another language
            if (pick(3) == 0 || m_closeRequested) {
                m_closeRequested = false;
                newWall();
            }
            break;
        case 14: // the user completes an offer
            creditUser(m_sandbox, QStringLiteral("7"), QStringLiteral("user-1"), QStringLiteral("Monkey offer"),
                       int(m_random.bounded(1, 5000)), [](bool) {});
            break;
        case 15: { // a user who goes to the form, fills it in right and sends
            if (!m_wall->supportVC() || !m_wall->supportVC()->isVisible()) {
                m_wall->onSupportPressed();
                break;
            }
            if (QObject *tabs = m_wall->supportVC()->findChild<QObject *>(QStringLiteral("segmentedControl")))
                tabs->setProperty("currentIndex", 2);
            (void)QTest::qWaitFor([this] { return !visibleNamed(QLatin1StringView("nameTextField")).isEmpty(); });
            const auto subjects = visibleItems([](QQuickItem *i) {
                return i->objectName() == QLatin1String("reportBtn") || i->objectName() == QLatin1String("otherBtn");
            });
            if (!subjects.isEmpty())
                click(subjects[pick(int(subjects.size()))]);
            const std::pair<QLatin1StringView, QString> answers[] = {
                {QLatin1StringView("nameTextField"), QStringLiteral("Ann")},
                {QLatin1StringView("emailTextField"), QStringLiteral("ann@example.com")},
                {QLatin1StringView("offerNameField"), QStringLiteral("Sky Quest")},
                {QLatin1StringView("commentInputField"), QStringLiteral("Seed %1, action %2").arg(m_seed).arg(m_actions)}};
            const auto fields = visibleItems([](QQuickItem *i) { return i->objectName().endsWith(QLatin1String("Field")); });
            for (QQuickItem *field : fields) {
                for (const auto &[name, text] : answers) {
                    if (field->objectName() == name)
                        field->setProperty("text", text);
                }
            }
            const auto send = visibleNamed(QLatin1StringView("sendBtn"));
            if (!send.isEmpty())
                click(send.first());
            break;
        }
        default: // the service changes its faults
            setFaults(pick(3) == 0 ? QString() : randomFaults());
            break;
        }
    }

    QString randomFaults()
    {
        static const char *const paths[] = {"", "offers", "details", "categories", "transactions", "tickets", "img"};
        static const char *const bodies[] = {"intact", "truncated", "not-json"};
        static const int statuses[] = {0, 204, 400, 404, 500, 503};
        QString faults = QStringLiteral("path=%1\nlatency=%2\nbody=%3\n")
                             .arg(QLatin1String(paths[pick(7)]))
                             .arg(pick(4) == 0 ? m_random.bounded(3000) : m_random.bounded(300))
                             .arg(QLatin1String(bodies[pick(3)]));
        if (const int status = statuses[pick(6)])
            faults += QStringLiteral("status=%1\n").arg(status);
        if (pick(3) == 0)
            faults += pick(2) ? QStringLiteral("drop=1\n") : QStringLiteral("drop-every=%1\n").arg(pick(4) + 2);
        // Kept connections closed while idle, or under a request.
        if (pick(3) == 0)
            faults += pick(2) ? QStringLiteral("close-idle=1\n") : QStringLiteral("drop-reused=1\n");
        return faults;
    }

    void setFaults(const QString &faults)
    {
        QFile file(m_faultFile);
        if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            file.write(faults.toUtf8());
    }

    void check()
    {
        for (const QString &warning : std::as_const(g_warnings))
            m_findings.append(QStringLiteral("Qt warning: ") + warning);
        g_warnings.clear();
        if (m_shown > 1)
            m_findings.append(QStringLiteral("offersShown came %1 times on one wall").arg(m_shown));
        if (!m_sandbox.processAlive())
            m_findings.append(QStringLiteral("the sandbox stopped"));
    }

    // With the faults gone and every transfer ended, nothing still loads, no ticket went
    // out more often than send was pressed, and memory stays bounded.
    void calmCheck()
    {
        setFaults(QString());
        const int patience = int(kTransferTimeout.count()) + 10000;
        if (!QTest::qWaitFor([this] { return !m_wall->showsLoadingIndicator(); }, patience))
            m_findings.append(QStringLiteral("the loading indicator still shows with the faults gone"));
        QFile log(m_requestLog);
        const qsizetype posted = log.open(QIODevice::ReadOnly) ? log.readAll().count("POST /corvel/api") : 0;
        if (posted > g_ticketsFiled)
            m_findings.append(QStringLiteral("%1 tickets reached the service, %2 were filed").arg(posted).arg(g_ticketsFiled));
        if (m_warmResidentMiB > 0 && residentMiB() > m_warmResidentMiB * 2 + 256)
            m_findings.append(QStringLiteral("resident memory grew from %1 to %2 MiB").arg(m_warmResidentMiB).arg(residentMiB()));
        check();
    }

    quint32 m_seed;
    QRandomGenerator m_random;
    SandboxProcess &m_sandbox;
    QString m_faultFile;
    QString m_requestLog;
    QQuickWindow m_window;
    QPointer<QVOffersViewController> m_wall;
    QVCreditsWatcher *m_watcher = nullptr;
    QStringList m_findings;
    int m_shown = 0;
    int m_actions = 0;
    int m_walls = 0;
    long m_warmResidentMiB = 0;
    bool m_closeRequested = false;
};

int main(int argc, char **argv)
{
    qputenv("QT_IM_MODULE", "qtvirtualkeyboard");
    QGuiApplication app(argc, argv);
    QCommandLineParser parser;
    const QCommandLineOption seconds(QStringLiteral("seconds"), QStringLiteral("How long to act."), QStringLiteral("s"), QStringLiteral("60"));
    const QCommandLineOption seed(QStringLiteral("seed"), QStringLiteral("Seed of the actions (random unless given)."), QStringLiteral("n"));
    parser.addOptions({seconds, seed});
    parser.process(app);
    const quint32 chosenSeed = parser.isSet(seed) ? parser.value(seed).toUInt() : QRandomGenerator::system()->generate();
    std::printf("quorva-monkey: seed %u\n", chosenSeed);
    std::fflush(stdout);

    QTemporaryDir work;
    const QString faultFile = work.filePath(QStringLiteral("faults")), requestLog = work.filePath(QStringLiteral("requests"));
    QFile(faultFile).open(QIODevice::WriteOnly);
    SandboxProcess sandbox({QStringLiteral("--quiet"), QStringLiteral("--fault-file"), faultFile,
                            QStringLiteral("--request-log"), requestLog});
    if (!sandbox.isRunning()) {
        std::fprintf(stderr, "quorva-monkey: the sandbox did not start\n");
        return 2;
    }
    QuorvaRestAPI *api = QuorvaRestAPI::sharedInstance();
    api->setServiceBaseAddress(sandbox.baseAddress());
    api->addCaCertificates(sandbox.caCertificates());
    api->setTransferTimeout(kTransferTimeout);

    g_defaultHandler = qInstallMessageHandler(collectWarnings);
    int result = 0;
    {
        Monkey monkey(chosenSeed, sandbox, faultFile, requestLog);
        result = monkey.run(parser.value(seconds).toInt());
    }
    qInstallMessageHandler(g_defaultHandler);
    return result;
}

#include "main.moc"
