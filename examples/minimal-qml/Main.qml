// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QuorvaMedia

Window {
    width: 390
    height: 844
    visible: true

    // The local sandbox ("host" or "host:port") and the authority that signed its
    // certificate. A wall declared in this document loads once it is complete.
    Component.onCompleted: {
        QVService.serviceBaseAddress = "127.0.0.1:18443"
        QVService.caCertificatesFile = "sandbox-ca.pem"
    }

    QVOffersViewController {
        anchors.fill: parent
        pubId: "1042"
        corvelId: "7"
        subId1: "user-1"
        onClosePressed: Qt.quit()
    }
}
