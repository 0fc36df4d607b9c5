// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"

#include <QtCore/QList>
#include <QtNetwork/QSslCertificate>

class QNetworkReply;
class QUrl;

// The network access of the picture loader, apart from the REST client: pictures are
// plain GETs, which the network stack may repeat without harm. Trusts the system's
// certificate authorities plus the ones the host adds to the library.
class QVPictureNetwork
{
public:
    static void addCaCertificates(const QList<QSslCertificate> &certificates);
    // Starts a download on the GUI thread; the caller owns the reply.
    static QNetworkReply *get(const QUrl &url);
};
