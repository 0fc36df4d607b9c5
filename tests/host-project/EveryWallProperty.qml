// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QuorvaMedia

// Linted against the installed module: every property and handler a host
// may use, spelled as the documentation spells them.
Item {
    QVCreditsWatcher {
        id: watcher
        pubId: "1042"; corvelId: "7"; subId1: "user-1"
        interval: 5000; active: true
        onCreditsReceived: transactions => console.log(transactions.length)
        onHasBaselineChanged: console.log(hasBaseline, checking)
    }
    QVOffersViewController {
        anchors.fill: parent
        pubId: "1042"; corvelId: "7"; subId1: "user-1"
        gender: 1; ageRange: 2; subid2: "a"; subid3: "b"; subid4: "c"
        creditsWatcher: watcher
        theme: QVTheme.fromBrandColor("#FFD400", QVTheme.Dark)
        language: "de"
        onClosePressed: console.log(offerCount, loadFailed, rightToLeft)
        onOffersShown: console.log(creditNoticeShown, creditNoticeText, creditNoticeDetail)
        onOfferOpened: offer => console.log(offer.offerName)
        onCreditNoticeChanged: console.log(QVTheme.light().isDark, QVTheme.dark().accent)
        Component.onCompleted: {
            QVDevice.userInterfaceIdiom = QVDevice.Phone
            const preload = QVService.preload(pubId, corvelId, subId1)
            console.log(preload.ready, preload.failed, preload.hasOffers, QVService.serviceBaseAddress,
                        QVService.caCertificatesFile, QVService.transferTimeout, QVService.maximumReplySize)
        }
    }
}
