#pragma once

#include "quorvamedia_global.h"
#include "QVCategory.h"
#include "QVFiltersViewController.h"
#include "QVOfferUICollectionViewCell.h"
#include "QVOffer.h"
#include "QVProfile.h"
#include "QVSort.h"
#include "QVSupportViewController.h"
#include "QVTheme.h"
#include "QVTransaction.h"

#include <QtCore/QPointer>
#include <QtCore/QAbstractItemModel>
#include <QtQuick/QQuickItem>

#include <optional>

class QAbstractAnimation;
class QPropertyAnimation;
class QTimer;
class QVCreditsWatcher;
class QVOfferWallPreload;
class QVOffersListModel;
class QVPayoutFormatter;
namespace quorva::detail { struct TransferRequest; }


// The host's listener: told once, when the user presses close.
class QUORVAMEDIA_EXPORT QVOffersViewControllerDelegate
{
public:
    virtual ~QVOffersViewControllerDelegate() = default;
    virtual void onCloseOffersVCPressed() = 0;
};

// The offer wall. Create it with newOffersWallForPublisherId(), parent it into a window
// and size it; it loads its first page when it is first shown in a window. QML hosts
// can declare it as QVOffersViewController { pubId: ...; corvelId: ...; subId1: ... }.
class QUORVAMEDIA_EXPORT QVOffersViewController : public QQuickItem,
                                                  public QVOfferUICollectionViewCellDelegate,
                                                  public QVFiltersViewControllerDelegate
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QVOffersViewControllerBase)
    Q_PROPERTY(QString pubId READ pubId WRITE setPubId NOTIFY identifiersChanged FINAL)
    Q_PROPERTY(QString corvelId READ corvelId WRITE setCorvelId NOTIFY identifiersChanged FINAL)
    Q_PROPERTY(QString subId1 READ subId1 WRITE setSubId1 NOTIFY identifiersChanged FINAL)
    Q_PROPERTY(int gender READ gender WRITE setGender NOTIFY targetingChanged FINAL)
    Q_PROPERTY(int ageRange READ ageRange WRITE setAgeRange NOTIFY targetingChanged FINAL)
    Q_PROPERTY(QString subid2 READ subid2 WRITE setSubid2 NOTIFY targetingChanged FINAL)
    Q_PROPERTY(QString subid3 READ subid3 WRITE setSubid3 NOTIFY targetingChanged FINAL)
    Q_PROPERTY(QString subid4 READ subid4 WRITE setSubid4 NOTIFY targetingChanged FINAL)
    Q_PROPERTY(QQuickItem *headerView MEMBER m_headerView NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QQuickItem *headerTitle MEMBER m_headerTitle NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QQuickItem *closeBtn MEMBER m_closeBtn NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QQuickItem *filterBtn MEMBER m_filterBtn NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QQuickItem *supportBtn MEMBER m_supportBtn NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QQuickItem *collectionView MEMBER m_collectionView NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QQuickItem *noOffersLabel MEMBER m_noOffersLabel NOTIFY outletsChanged FINAL)
    // The tablet popovers, built when first presented.
    Q_PROPERTY(QObject *filterPopover MEMBER m_filterPopover NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QObject *supportPopover MEMBER m_supportPopover NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QAbstractItemModel *offersModel READ offersModel CONSTANT FINAL)
    Q_PROPERTY(QSizeF cellSize READ cellSize NOTIFY cellSizeChanged FINAL)
    Q_PROPERTY(int columns READ columns NOTIFY cellSizeChanged FINAL)
    Q_PROPERTY(int offerCount READ offerCount NOTIFY offerCountChanged FINAL)
    Q_PROPERTY(bool showsLoadingIndicator READ showsLoadingIndicator NOTIFY showsLoadingIndicatorChanged FINAL)
    Q_PROPERTY(qreal sectionInsetTop READ sectionInsetTop CONSTANT FINAL)
    Q_PROPERTY(qreal headerHeight READ headerHeight CONSTANT FINAL)
    Q_PROPERTY(qreal supportTop READ supportTop CONSTANT FINAL)
    Q_PROPERTY(qreal popoverWidth READ popoverWidth CONSTANT FINAL)
    Q_PROPERTY(bool loadingOffers READ loadingOffers NOTIFY loadingOffersChanged FINAL)
    Q_PROPERTY(bool filtersViewOpen READ isFiltersViewOpen NOTIFY overlaysChanged FINAL)
    Q_PROPERTY(bool overlayAnimating READ isOverlayAnimating NOTIFY overlayAnimatingChanged FINAL)
    Q_PROPERTY(bool loadFailed READ loadFailed NOTIFY loadFailedChanged FINAL)
    Q_PROPERTY(QQuickItem *creditNotice MEMBER m_creditNotice NOTIFY outletsChanged FINAL)
    // Every screen, panel, popover and alert of the wall reads its colours from here.
    Q_PROPERTY(QVTheme theme READ theme WRITE setTheme NOTIFY themeChanged FINAL)
    // The wall's language reads right to left: every screen is mirrored.
    Q_PROPERTY(bool rightToLeft READ isRightToLeft CONSTANT FINAL)
    Q_PROPERTY(bool creditNoticeShown READ creditNoticeShown NOTIFY creditNoticeChanged FINAL)
    Q_PROPERTY(QString creditNoticeText READ creditNoticeText NOTIFY creditNoticeChanged FINAL)
    Q_PROPERTY(QString creditNoticeDetail READ creditNoticeDetail NOTIFY creditNoticeChanged FINAL)

public:
    explicit QVOffersViewController(QQuickItem *parent = nullptr);
    ~QVOffersViewController() override;

    static QVOffersViewController *newOffersWallForPublisherId(const QString &pubId, const QString &corvelId,
                                                               const QString &subId1,
                                                               QVOffersViewControllerDelegate *delegate);
    static QString identifier() { return QStringLiteral("QVOffersViewController"); }

    // Requests the profile and the first page and builds the wall in the GUI thread's idle
    // time, so that a wall created later for the same identifiers shows its first offers
    // at once. Asking again for the same identifiers while it loads or is ready gives
    // the same preload.
    static QVOfferWallPreload *preloadForPublisherId(const QString &pubId, const QString &corvelId,
                                                     const QString &subId1);

    // While the wall is on screen, credits the watcher reports show as a notice under the
    // header. The wall neither owns nor starts the watcher.
    void setCreditsWatcher(QVCreditsWatcher *watcher);
    QVCreditsWatcher *creditsWatcher() const;
    bool creditNoticeShown() const { return m_creditNoticeShown; }
    QString creditNoticeText() const { return m_creditNoticeText; }
    QString creditNoticeDetail() const { return m_creditNoticeDetail; }
    static constexpr int kCreditNoticeMs = 4000;

    // Until a host sets one, the wall follows the system's light or dark look, also
    // while it is open.
    QVTheme theme() const { return m_theme; }
    bool isRightToLeft() const { return m_rightToLeft; }
    void setTheme(const QVTheme &theme);

    QVOffersViewControllerDelegate *delegate() const { return m_delegate; }
    void setDelegate(QVOffersViewControllerDelegate *delegate) { m_delegate = delegate; }

    // Identifiers and targeting live on the shared client and apply to every later
    // request of the process. The targeting getters report the initial value: the
    // setters only pass the value on.
    QString pubId() const;
    void setPubId(const QString &value);
    QString corvelId() const;
    void setCorvelId(const QString &value);
    QString subId1() const;
    void setSubId1(const QString &value);
    int gender() const { return 0; }
    void setGender(int gender);
    int ageRange() const { return 0; }
    void setAgeRange(int ageRange);
    QString subid2() const { return {}; }
    void setSubid2(const QString &value);
    QString subid3() const { return {}; }
    void setSubid3(const QString &value);
    QString subid4() const { return {}; }
    void setSubid4(const QString &value);

    // Cell size for a list of the given width: two columns above 600 points.
    static constexpr qreal kTwoColumnMinimumWidth = 600;
    static QSizeF sizeForItem(qreal viewWidth);
    QSizeF cellSize() const { return sizeForItem(width()); }
    // Offers side by side in a row of the list: two on a wide wall.
    int columns() const { return width() > kTwoColumnMinimumWidth ? 2 : 1; }
    int offerCount() const;
    // Loading that takes a while shows an indicator; a quick page shows none, so the
    // wall draws nothing it does not need while it waits.
    bool showsLoadingIndicator() const { return m_showsLoadingIndicator; }
    static constexpr int kLoadingIndicatorDelayMs = 400;
    static qreal sectionInsetTop() { return 5; }
    static qreal headerHeight() { return 80; }
    // The support centre's top edge on a phone, flush with the header's bottom.
    static qreal supportTop() { return 80; }
    static qreal popoverWidth() { return 360; }
    static qreal popoverHeightRatio() { return 0.65; }

    QAbstractItemModel *offersModel() const;
    const QList<QVOffer> &offersList() const;
    bool loadingOffers() const { return m_loadingOffers; }
    bool moreOffersAvailable() const { return m_moreOffersAvailable; }
    // The list is empty because its last page request failed: the wall offers to try again.
    bool loadFailed() const { return m_loadFailed; }
    bool isFiltersViewOpen() const { return m_isFiltersViewOpen; }
    bool isSupportViewOpen() const { return m_isSupportViewOpen; }
    // True while a phone overlay slides in or out.
    bool isOverlayAnimating() const { return m_runningSlides > 0; }
    QVFiltersViewController *filterVC() const { return m_filterVC; }
    QVSupportViewController *supportVC() const { return m_supportVC; }
    std::optional<QVSort> sortParam() const { return m_sortParam; }
    std::optional<QVCategory> categoryParam() const { return m_categoryParam; }

    Q_INVOKABLE void onClosePressed();
    // Sends the first page again (and the profile, if that failed too).
    Q_INVOKABLE void onRetryPressed();
    Q_INVOKABLE void onFilterPressed();
    Q_INVOKABLE void onSupportPressed();
    Q_INVOKABLE void headerTapped();
    Q_INVOKABLE void popoverDidPresent(QObject *popover);
    Q_INVOKABLE void popoverDidDismiss(QObject *popover);
    // The support popover's own close button: nothing else closes it.
    Q_INVOKABLE void closeSupportPopover();
    void closeFiltersView();
    void closeSupportView();
    void loadMoreOffers();
    // Hides the credit notice before its time.
    Q_INVOKABLE void dismissCreditNotice();

    void onCreditsPressed(const QString &clickURL) override;
    bool configureCell(QVOfferUICollectionViewCell *cell, int row) override;
    void onSaveFiltersPressed(const std::optional<QVCategory> &category, const QVSort &sort) override;

private slots:
    Q_DECL_HIDDEN void popoverOpened();
    Q_DECL_HIDDEN void popoverClosed();
    Q_DECL_HIDDEN void popoverCloseRequested();

signals:
    void closePressed();
    void identifiersChanged();
    void targetingChanged();
    void outletsChanged();
    void cellSizeChanged();
    void loadingOffersChanged();
    void overlaysChanged();
    void overlayAnimatingChanged();
    void loadFailedChanged();
    void offerCountChanged();
    void showsLoadingIndicatorChanged();
    void creditNoticeChanged();
    void themeChanged();
    // An offer's click address was handed to the browser.
    void offerOpened(const QVOffer &offer);
    // The wall's first offers are on screen; once per wall.
    void offersShown();

protected:
    void itemChange(ItemChange change, const ItemChangeData &value) override;
    void componentComplete() override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void updatePolish() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Q_DECL_HIDDEN void viewDidLoad();
    Q_DECL_HIDDEN void reloadData();
    Q_DECL_HIDDEN void setLoadingOffers(bool loading);
    Q_DECL_HIDDEN void setLastPageFailed(bool failed);
    Q_DECL_HIDDEN void updateLoadFailed();
    Q_DECL_HIDDEN void requestProfile();
    Q_DECL_HIDDEN void sendOffersRequest(quorva::detail::TransferRequest request);
    Q_DECL_HIDDEN void offersArrived(const QList<QVOffer> &offers, bool more);
    Q_DECL_HIDDEN void offersFailed();
    Q_DECL_HIDDEN void profileArrived(const QVProfile &profile);
    Q_DECL_HIDDEN bool takePreload(const quorva::detail::TransferRequest &firstPage);
    Q_DECL_HIDDEN void applyPreload();
    Q_DECL_HIDDEN void watchForFirstOffersOnScreen();
    Q_DECL_HIDDEN void creditsReceived(const QList<QVTransaction> &transactions);
    Q_DECL_HIDDEN void setCreditNotice(bool shown, const QString &text, const QString &detail);
    Q_DECL_HIDDEN void setHeaderText(const QString &text);
    Q_DECL_HIDDEN QString headerText() const;
    Q_DECL_HIDDEN void showFailureAlert();
    Q_DECL_HIDDEN QObject *popover(QObject *&popover, const char *typeName, const char *objectName);
    Q_DECL_HIDDEN void presentInPopover(QObject *popover, QQuickItem *button, QQuickItem *panel);
    Q_DECL_HIDDEN void dismissPopover(QObject *popover);
    // The filter panel opens with its own, bouncier spring; every other slide is the same.
    enum class Slide { OpenFilters, Other };
    Q_DECL_HIDDEN void slide(QQuickItem *panel, const char *property, qreal to, Slide kind, bool detachWhenDone);
    Q_DECL_HIDDEN void trackSlide(QAbstractAnimation *animation);
    Q_DECL_HIDDEN void attachPhoneOverlay(QQuickItem *panel, const QString &title);
    Q_DECL_HIDDEN void setPhoneOverlayOpen(bool &flag, bool open);
    Q_DECL_HIDDEN void layoutFilterPanel();
    Q_DECL_HIDDEN void layoutSupportPanel();
    Q_DECL_HIDDEN qreal listHeight() const;
    // The first offer whose row shows at the top of the list, or -1.
    Q_DECL_HIDDEN int firstOfferOnScreen() const;
    Q_DECL_HIDDEN qreal listWidth() const;

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

    // Added after 1.1.0: kept last so the members above keep their places.
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
};
