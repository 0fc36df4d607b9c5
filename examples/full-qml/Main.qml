// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QuorvaMedia

// Everything a host does, in QML: the service, a preload at start, a credits watcher whose
// credits the wall shows, the brand's colours light or dark, the user's language, the
// wall's events in the log, and closing the wall.
ApplicationWindow {
    id: window
    width: 390
    height: 844
    visible: true
    title: qsTr("Full QML host")

    QVCreditsWatcher {
        id: watcher
        pubId: "1042"
        corvelId: "7"
        subId1: "user-1"
        interval: 30000          // milliseconds between polls
        active: true
        onCreditsReceived: transactions => console.log("credited:", transactions.length, "offers")
    }

    Component.onCompleted: {
        // "host" or "host:port"; the local sandbox signs with its own certificate authority.
        QVService.serviceBaseAddress = "127.0.0.1:18443"
        QVService.caCertificatesFile = "sandbox-ca.pem"
        QVService.transferTimeout = 20000       // milliseconds
        QVService.maximumReplySize = 4194304    // bytes
        // Made at start: the wall takes it and shows its first offers without asking again.
        const preload = QVService.preload("1042", "7", "user-1")
        preload.stateChanged.connect(() => console.log("preload ready:", preload.ready, "failed:", preload.failed))
        openWall()
    }

    // The host's own page, under the wall: the user's choices, and a way back to the wall.
    Column {
        anchors.centerIn: parent
        spacing: 16
        Switch {
            id: dark
            text: qsTr("Dark mode")
        }
        ComboBox {
            id: languageChoice
            textRole: "name"
            valueRole: "code"
            model: [
                { name: qsTr("System language"), code: "" },
                { name: "English", code: "en" },
                { name: "Deutsch", code: "de" },
                { name: "Español", code: "es" },
                { name: "Français", code: "fr" },
                { name: "Português (Brasil)", code: "pt_BR" },
                { name: "العربية", code: "ar" }
            ]
        }
        Button {
            text: qsTr("Earn coins")
            onClicked: window.openWall()
        }
    }

    // The wall is made when shown and destroyed when closed. (createObject rather than a
    // Loader: Qt 6.4's Loader refuses a component bound to its document.)
    function openWall() {
        wallComponent.createObject(window.contentItem)
    }

    Component {
        id: wallComponent
        QVOffersViewController {
            id: wall
            anchors.fill: parent
            pubId: "1042"
            corvelId: "7"
            subId1: "user-1"
            creditsWatcher: watcher
            theme: QVTheme.fromBrandColor("#FFD400", dark.checked ? QVTheme.Dark : QVTheme.Light)
            language: languageChoice.currentValue
            onClosePressed: wall.destroy()
            onOffersShown: console.log("offers shown")
            onOfferOpened: offer => console.log("offer opened:", offer.offerName)
        }
    }
}
