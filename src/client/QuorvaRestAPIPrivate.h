// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "QuorvaRestAPI.h"

// The data of QuorvaRestAPI, behind its private pointer so that its size stays the
// same from release to release.
class QuorvaRestAPIPrivate
{
public:
    QString m_pubId;
    QString m_corvelId;
    QString m_subId1;
    QString m_gender;
    QString m_ageRange;
    QString m_subId2;
    QString m_subId3;
    QString m_subId4;
    QString m_baseAddress;
    // Replaced, never changed, so requests in flight keep the list they started with.
    std::shared_ptr<const QList<QByteArray>> m_extraAuthorities;
    std::chrono::milliseconds m_transferTimeout = QuorvaRestAPI::kDefaultTransferTimeout;
    qint64 m_maximumReplySize = QuorvaRestAPI::kDefaultMaximumReplySize;
    QuorvaRestAPI::AdvertisingInfoProvider m_advertisingInfoProvider;
    QVPrivacy m_privacy;
    QString m_cachedApplicationName;
    QString m_cachedDeviceModel;
};
