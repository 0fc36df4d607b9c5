// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "QVOffersViewController.h"

#include <QtQml/QQmlContext>

// The data of QVOffersViewController, behind its private pointer so that its size stays the
// same from release to release.
class QVOffersViewControllerPrivate
{
public:
    QVOffersViewControllerDelegate *m_delegate = nullptr;
    QVOffersListModel *m_offers = nullptr;
    std::unique_ptr<QVPayoutFormatter> m_numberFormatter;
    bool m_loaded = false;
    bool m_loadingOffers = false;
    bool m_moreOffersAvailable = false;
    bool m_lastPageFailed = false;
    bool m_loadFailed = false;
    bool m_profileFailed = false;
    bool m_showsLoadingIndicator = false;
    QTimer *m_loadingIndicatorDelay = nullptr;
    std::optional<QVSort> m_sortParam;
    std::optional<QVCategory> m_categoryParam;
    QPointer<QVFiltersViewController> m_filterVC;
    QPointer<QQuickItem> m_blurView;
    QPointer<QPropertyAnimation> m_filterAnimation;
    QPointer<QVSupportViewController> m_supportVC;
    QPointer<QPropertyAnimation> m_supportAnimation;
    QString m_lastHeaderTitle;
    bool m_isFiltersViewOpen = false;
    bool m_isSupportViewOpen = false;
    int m_runningSlides = 0;
    // Outlets: children laid out by the interface file.
    QQuickItem *m_headerView = nullptr;
    QQuickItem *m_headerTitle = nullptr;
    QQuickItem *m_closeBtn = nullptr;
    QQuickItem *m_filterBtn = nullptr;
    QQuickItem *m_supportBtn = nullptr;
    QQuickItem *m_collectionView = nullptr;
    QQuickItem *m_noOffersLabel = nullptr;
    QObject *m_filterPopover = nullptr;
    QObject *m_supportPopover = nullptr;
    QPointer<QVOfferWallPreload> m_preload;
    bool m_preloadOffersPending = false;
    bool m_preloadProfilePending = false;
    bool m_offersShownPending = false;
    bool m_offersShown = false;
    int m_framesSinceFirstOffers = 0;
    QString m_currencyName;
    QPointer<QVCreditsWatcher> m_creditsWatcher;
    QMetaObject::Connection m_creditsConnection;
    QTimer *m_creditNoticeTimer = nullptr;
    double m_creditNoticeSum = 0;
    QStringList m_creditNoticeOffers;
    bool m_creditNoticeShown = false;
    QString m_creditNoticeText;
    QString m_creditNoticeDetail;
    QQuickItem *m_creditNotice = nullptr;
    QVTheme m_theme;
    bool m_themeSet = false;
    bool m_rightToLeft = false;
    QString m_language;
    bool m_profileArrived = false;
    QPointer<QQmlContext> m_overlayContext;
    // What the keyboard was on when an overlay opened, to go back to when it closes.
    QPointer<QQuickItem> m_focusBeforeOverlay;
    QList<QPointer<QObject>> m_openAlerts;
    bool m_contentHidden = false;
    bool m_headerHidden = false;
    bool m_overlayHidden = false;
    int m_focusedOffer = -1;
    bool m_rowsOrderPending = false;
};
