pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QuorvaMedia

// The whole integration in QML: the service, a preload at start, a credits watcher, and
// a wall that takes the preload when the user opens it, in the brand's colours and the
// user's language.
ApplicationWindow {
    id: window
    width: 390
    height: 844
    visible: true

    QVCreditsWatcher {
        id: watcher
        pubId: "1042"
        corvelId: "7"
        subId1: "user-1"
        interval: 30000          // milliseconds between polls
        active: true
        onCreditsReceived: transactions => console.log("credited", transactions.length, "offers")
    }

    Component.onCompleted: {
        // "host" or "host:port"; the local sandbox signs with its own certificate authority.
        QVService.serviceBaseAddress = "127.0.0.1:18443"
        QVService.caCertificatesFile = "sandbox-ca.pem"
        QVService.transferTimeout = 20000       // milliseconds
        QVService.maximumReplySize = 4194304    // bytes
        // Made at start, the wall opened later shows its first offers at once.
        const preload = QVService.preload("1042", "7", "user-1")
        preload.stateChanged.connect(() => console.log("preload ready:", preload.ready, "failed:", preload.failed))
    }

    Button {
        anchors.centerIn: parent
        text: qsTr("Earn coins")
        onClicked: wallLoader.active = true
    }

    Loader {
        id: wallLoader
        anchors.fill: parent
        active: false
        sourceComponent: QVOffersViewController {
            pubId: "1042"
            corvelId: "7"
            subId1: "user-1"
            creditsWatcher: watcher
            theme: QVTheme.fromBrandColor("#FFD400", QVTheme.Dark)
            language: Qt.locale().name === "C" ? "" : Qt.locale().name
            onClosePressed: wallLoader.active = false     // dismissing is the host's job
            onOffersShown: console.log("first offers on screen")
            onOfferOpened: offer => console.log("opened", offer.name)
        }
    }
}
