// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"
#include "QVCategory.h"
#include "QVCreditsWatcher.h"
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

#include <memory>
#include <optional>

class QAbstractAnimation;
class QPropertyAnimation;
class QTimer;
class QVOfferWallPreload;
class QVOffersListModel;
class QVPayoutFormatter;
namespace quorva::detail { struct TransferRequest; }


class QVOffersViewControllerPrivate;

/// The host's listener: told once, when the user presses close.
class QUORVAMEDIA_EXPORT QVOffersViewControllerDelegate
{
public:
    virtual ~QVOffersViewControllerDelegate() = default;
    /// Called on the GUI thread each time the user presses the wall's close button.
    virtual void onCloseOffersVCPressed() = 0;
};

/// The offer wall. Create it with newOffersWallForPublisherId(), parent it into a window
/// and size it; it loads its first page when it is first shown in a window. QML hosts
/// can declare it as QVOffersViewController { pubId: ...; corvelId: ...; subId1: ... }.
class QUORVAMEDIA_EXPORT QVOffersViewController : public QQuickItem,
                                                  public QVOfferUICollectionViewCellDelegate,
                                                  public QVFiltersViewControllerDelegate
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QVOffersViewControllerBase)
    /// The publisher's identifier, the first part of every request's address. Shared
    /// with every other wall of the process through the client.
    Q_PROPERTY(QString pubId READ pubId WRITE setPubId NOTIFY identifiersChanged FINAL)
    /// The wall's identifier within the publisher's account. Shared like #pubId.
    Q_PROPERTY(QString corvelId READ corvelId WRITE setCorvelId NOTIFY identifiersChanged FINAL)
    /// The host's identifier of its user, sent with every request. Shared like #pubId.
    /// Required: a wall loading without one stops the program (qFatal, in every build
    /// type), since the offers request cannot name its user. An empty string is a value.
    Q_PROPERTY(QString subId1 READ subId1 WRITE setSubId1 NOTIFY identifiersChanged FINAL)
    /// The user's gender for targeting: 0 sends "m" (male), 1 sends "f" (female), any
    /// other value (-1, say) clears it, and no gender is sent. Write-only in effect:
    /// reading gives the initial 0, the value goes to the shared client.
    Q_PROPERTY(int gender READ gender WRITE setGender NOTIFY targetingChanged FINAL)
    /// The user's age range for targeting, one of the service's five ranges: 0 to 4 send
    /// the range ids "1" to "5", any other value (-1, say) clears it, and no age range is
    /// sent. Write-only in effect, like #gender.
    Q_PROPERTY(int ageRange READ ageRange WRITE setAgeRange NOTIFY targetingChanged FINAL)
    /// Extra values the host passes through to the service. Write-only in effect, like #gender.
    Q_PROPERTY(QString subid2 READ subid2 WRITE setSubid2 NOTIFY targetingChanged FINAL)
    /// See #subid2.
    Q_PROPERTY(QString subid3 READ subid3 WRITE setSubid3 NOTIFY targetingChanged FINAL)
    /// See #subid2.
    Q_PROPERTY(QString subid4 READ subid4 WRITE setSubid4 NOTIFY targetingChanged FINAL)
    /// The header bar: an outlet, an item of the wall's interface file set when it is built.
    Q_PROPERTY(QQuickItem *headerView READ headerView WRITE setHeaderView NOTIFY outletsChanged FINAL)
    /// The header's title text.
    Q_PROPERTY(QQuickItem *headerTitle READ headerTitle WRITE setHeaderTitle NOTIFY outletsChanged FINAL)
    /// The close button in the header.
    Q_PROPERTY(QQuickItem *closeBtn READ closeBtn WRITE setCloseBtn NOTIFY outletsChanged FINAL)
    /// The button that opens the sort and filter panel.
    Q_PROPERTY(QQuickItem *filterBtn READ filterBtn WRITE setFilterBtn NOTIFY outletsChanged FINAL)
    /// The button that opens the support centre.
    Q_PROPERTY(QQuickItem *supportBtn READ supportBtn WRITE setSupportBtn NOTIFY outletsChanged FINAL)
    /// The list of offers.
    Q_PROPERTY(QQuickItem *collectionView READ collectionView WRITE setCollectionView NOTIFY outletsChanged FINAL)
    /// The text shown when the service has no offers.
    Q_PROPERTY(QQuickItem *noOffersLabel READ noOffersLabel WRITE setNoOffersLabel NOTIFY outletsChanged FINAL)
    /// The sort and filter panel's popover on a tablet, built when first presented.
    Q_PROPERTY(QObject *filterPopover READ filterPopover WRITE setFilterPopover NOTIFY outletsChanged FINAL)
    /// The support centre's popover on a tablet, built when first presented.
    Q_PROPERTY(QObject *supportPopover READ supportPopover WRITE setSupportPopover NOTIFY outletsChanged FINAL)
    /// The offers loaded so far, as the list shows them. Owned by the wall.
    Q_PROPERTY(QAbstractItemModel *offersModel READ offersModel CONSTANT FINAL)
    /// The size of one offer cell at the wall's current width, in points.
    Q_PROPERTY(QSizeF cellSize READ cellSize NOTIFY cellSizeChanged FINAL)
    /// Offers side by side in a row of the list: 2 when wider than
    /// #kTwoColumnMinimumWidth, else 1.
    Q_PROPERTY(int columns READ columns NOTIFY cellSizeChanged FINAL)
    /// The number of offers loaded so far.
    Q_PROPERTY(int offerCount READ offerCount NOTIFY offerCountChanged FINAL)
    /// True while a page has been loading for longer than #kLoadingIndicatorDelayMs.
    Q_PROPERTY(bool showsLoadingIndicator READ showsLoadingIndicator NOTIFY showsLoadingIndicatorChanged FINAL)
    /// The space above the first cell, in points.
    Q_PROPERTY(qreal sectionInsetTop READ sectionInsetTop CONSTANT FINAL)
    /// The header's height, in points.
    Q_PROPERTY(qreal headerHeight READ headerHeight CONSTANT FINAL)
    /// The support centre's top edge on a phone, in points from the wall's top.
    Q_PROPERTY(qreal supportTop READ supportTop CONSTANT FINAL)
    /// The width of the tablet popovers, in points.
    Q_PROPERTY(qreal popoverWidth READ popoverWidth CONSTANT FINAL)
    /// True while a page request is under way.
    Q_PROPERTY(bool loadingOffers READ loadingOffers NOTIFY loadingOffersChanged FINAL)
    /// True while the sort and filter panel is open.
    Q_PROPERTY(bool filtersViewOpen READ isFiltersViewOpen NOTIFY overlaysChanged FINAL)
    /// True while a phone panel slides in or out.
    Q_PROPERTY(bool overlayAnimating READ isOverlayAnimating NOTIFY overlayAnimatingChanged FINAL)
    /// True when the list is empty because its last page request failed; the wall
    /// then shows a "Try again" button.
    Q_PROPERTY(bool loadFailed READ loadFailed NOTIFY loadFailedChanged FINAL)
    /// The credit notice under the header (an outlet, set by the interface file).
    Q_PROPERTY(QQuickItem *creditNotice READ creditNotice WRITE setCreditNotice NOTIFY outletsChanged FINAL)
    /// Every screen, panel, popover and alert of the wall reads its colours from here.
    Q_PROPERTY(QVTheme theme READ theme WRITE setTheme NOTIFY themeChanged FINAL)
    /// The wall's language reads right to left: every screen is mirrored.
    Q_PROPERTY(bool rightToLeft READ isRightToLeft NOTIFY languageChanged FINAL)
    /// True while the credit notice shows.
    Q_PROPERTY(bool creditNoticeShown READ creditNoticeShown NOTIFY creditNoticeChanged FINAL)
    /// The credit notice's first line, such as "+1,500 Gems".
    Q_PROPERTY(QString creditNoticeText READ creditNoticeText NOTIFY creditNoticeChanged FINAL)
    /// The credit notice's second line: the names of the credited offers.
    Q_PROPERTY(QString creditNoticeDetail READ creditNoticeDetail NOTIFY creditNoticeChanged FINAL)
    /// The watcher whose credits show as a notice, as setCreditsWatcher() sets it.
    Q_PROPERTY(QVCreditsWatcher *creditsWatcher READ creditsWatcher WRITE setCreditsWatcher
                   NOTIFY creditsWatcherChanged FINAL)
    /// The language of the wall's texts, as a locale name such as "de", "pt_BR" or "ar";
    /// empty (the default) means the host's default locale when the wall is made. The
    /// library speaks one language at a time: the wall that sets one last is heard.
    Q_PROPERTY(QString language READ language WRITE setLanguage NOTIFY languageChanged FINAL)
    /// The name of the app's currency, as the profile gives it ("Gems"); empty until then.
    Q_PROPERTY(QString currencyName READ currencyName NOTIFY currencyNameChanged FINAL)
    /// True while something covers the list (a panel, a popover or an alert): what is
    /// behind leaves the accessibility tree and the keyboard's way.
    Q_PROPERTY(bool contentHidden READ isContentHidden NOTIFY modalityChanged FINAL)
    /// True while a popover or an alert covers the header as well.
    Q_PROPERTY(bool headerHidden READ isHeaderHidden NOTIFY modalityChanged FINAL)
    /// True while an alert covers an open panel or popover.
    Q_PROPERTY(bool overlayHidden READ isOverlayHidden NOTIFY modalityChanged FINAL)
    /// The offer the keyboard is on, counted from 0; -1 before the list had the focus.
    Q_PROPERTY(int focusedOffer READ focusedOffer NOTIFY focusedOfferChanged FINAL)

public:
    /// Creates a wall; QML creates it this way. Set the identifiers before it is first
    /// shown. C++ hosts usually call newOffersWallForPublisherId() instead.
    explicit QVOffersViewController(QQuickItem *parent = nullptr);
    /// Destroys the wall; requests under way end without calling back into it.
    ~QVOffersViewController() override;

    /// Creates a wall for the identifiers, with an optional delegate (not owned). The caller
    /// owns the wall: parent it into a window's content item and size it. Takes a ready
    /// preload for the same identifiers. Call on the GUI thread. Returns null when the
    /// wall's interface cannot be loaded, which happens when the app was shipped without
    /// a Qt Quick module the wall imports (the README's "Shipping" lists them); the reason
    /// goes to the quorva.diagnostics category. A null subId1 stops the program when the
    /// wall loads, like #subId1 says.
    static QVOffersViewController *newOffersWallForPublisherId(const QString &pubId, const QString &corvelId,
                                                               const QString &subId1,
                                                               QVOffersViewControllerDelegate *delegate);
    /// The wall's type name, "QVOffersViewController".
    static QString identifier() { return QStringLiteral("QVOffersViewController"); }

    /// Requests the profile and the first page and builds the wall in the GUI thread's idle
    /// time, so that a wall created later for the same identifiers shows its first offers
    /// at once. Asking again for the same identifiers while it loads or is ready gives
    /// the same preload.
    static QVOfferWallPreload *preloadForPublisherId(const QString &pubId, const QString &corvelId,
                                                     const QString &subId1);

    /// While the wall is on screen, credits the watcher reports show as a notice under the
    /// header. The wall neither owns nor starts the watcher, and forgets one that is
    /// destroyed; null shows no notice.
    void setCreditsWatcher(QVCreditsWatcher *watcher);
    /// The watcher set with setCreditsWatcher(), or null.
    QVCreditsWatcher *creditsWatcher() const;

    /// See #language.
    QString language() const;
    /// Sets the language of the wall's texts (see #language). Best set before the wall is
    /// shown; on an open wall every screen's texts change at once.
    void setLanguage(const QString &language);
    ///@{
    /// The credit notice, as the properties of the same names describe it.
    bool creditNoticeShown() const;
    QString creditNoticeText() const;
    QString creditNoticeDetail() const;
    ///@}
    /// How long the credit notice shows, in milliseconds.
    static constexpr int kCreditNoticeMs = 4000;

    ///@{
    /// What a screen reader and the keyboard use, as the properties of the same names
    /// describe them.
    QString currencyName() const;
    bool isContentHidden() const;
    bool isHeaderHidden() const;
    bool isOverlayHidden() const;
    int focusedOffer() const;
    ///@}
    /// Moves the keyboard to the offer that many places on (negative: back), scrolling it
    /// onto the screen; the list pages on as it does by touch.
    Q_INVOKABLE void moveOfferFocus(int step);
    /// Opens the offer the keyboard is on, as pressing its payout button does.
    Q_INVOKABLE void activateFocusedOffer();
    /// The keyboard came to the cell of this offer (by Tab, or a tap): it is the list's place.
    Q_INVOKABLE void offerCellFocused(int row);
    /// An amount as a screen reader says it, with the currency's name: "90 Gems",
    /// "minus 940 Gems". Takes a payout as the wall shows it ("+90", "+-940") or a number.
    Q_INVOKABLE QString spokenAmount(const QString &amount) const;
    /// Puts the list's rows in the order they stand on screen, which is the order a
    /// screen reader reads them in.
    Q_INVOKABLE void orderRows();

    /// The wall's colours. Until a host sets one, the wall follows the system's light or
    /// dark look, also while it is open.
    QVTheme theme() const;
    /// True when the wall's language reads right to left: every screen is mirrored.
    bool isRightToLeft() const;
    /// Sets the wall's colours; from then on the wall no longer follows the system's
    /// light or dark look. Every open screen and panel repaints at once.
    void setTheme(const QVTheme &theme);

    ///@{
    /// The listener told of the close button; not owned, may be null.
    QVOffersViewControllerDelegate *delegate() const;
    void setDelegate(QVOffersViewControllerDelegate *delegate);
    ///@}

    ///@{
    /// Identifiers and targeting, as the properties of the same names describe them. They
    /// live on the shared client and apply to every later request of the process. The
    /// targeting getters report the initial value: the setters only pass the value on.
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
    ///@}

    /// A list wider than this, in points, shows two columns of offers.
    static constexpr qreal kTwoColumnMinimumWidth = 600;
    /// The size of one offer cell in a list of the given width, in points.
    static QSizeF sizeForItem(qreal viewWidth);
    /// How long a page loads before the loading indicator shows, in milliseconds. A quick
    /// page shows none, so the wall draws nothing it does not need while it waits.
    static constexpr int kLoadingIndicatorDelayMs = 400;
    /// The tablet popovers' height as a share of the window's height.
    static qreal popoverHeightRatio() { return 0.65; }

    ///@{
    /// The wall's layout and state, as the properties of the same names describe them.
    QSizeF cellSize() const { return sizeForItem(width()); }
    int columns() const { return width() > kTwoColumnMinimumWidth ? 2 : 1; }
    int offerCount() const;
    bool showsLoadingIndicator() const;
    static qreal sectionInsetTop() { return 5; }
    static qreal headerHeight() { return 80; }
    static qreal supportTop() { return 80; }
    static qreal popoverWidth() { return 360; }
    QAbstractItemModel *offersModel() const;
    bool loadingOffers() const;
    bool loadFailed() const;
    bool isFiltersViewOpen() const;
    bool isOverlayAnimating() const;
    ///@}
    /// The offers loaded so far, in the list's order.
    const QList<QVOffer> &offersList() const;
    /// True while the service may have another page.
    bool moreOffersAvailable() const;
    /// True while the support centre is open.
    bool isSupportViewOpen() const;
    /// The sort and filter panel, while it exists; owned by the wall.
    QVFiltersViewController *filterVC() const;
    /// The support centre, while it exists; owned by the wall.
    QVSupportViewController *supportVC() const;
    /// The sort order the user saved, if any.
    std::optional<QVSort> sortParam() const;
    /// The category the user saved, if any.
    std::optional<QVCategory> categoryParam() const;

    /// What the close button does: emits closePressed() and tells the delegate.
    Q_INVOKABLE void onClosePressed();
    /// Sends the first page again (and the profile, if that failed too).
    Q_INVOKABLE void onRetryPressed();
    /// Opens the sort and filter panel, or closes it when open.
    Q_INVOKABLE void onFilterPressed();
    /// Opens the support centre, or closes it when open.
    Q_INVOKABLE void onSupportPressed();
    /// A tap on the header: closes an open phone panel.
    Q_INVOKABLE void headerTapped();
    ///@{
    /// Called by the interface file when a tablet popover has opened or closed.
    Q_INVOKABLE void popoverDidPresent(QObject *popover);
    Q_INVOKABLE void popoverDidDismiss(QObject *popover);
    ///@}
    /// The support popover's own close button: nothing else closes it.
    Q_INVOKABLE void closeSupportPopover();
    /// Closes the sort and filter panel, if open.
    void closeFiltersView();
    /// Closes the support centre, if open.
    void closeSupportView();
    /// Requests the next page, unless one is under way or none is left.
    void loadMoreOffers();
    /// Hides the credit notice before its time.
    Q_INVOKABLE void dismissCreditNotice();
    /// Closes the open sort and filter panel or support centre, as Escape does. False
    /// when neither is open, or while an alert is (an alert closes itself).
    Q_INVOKABLE bool closeOpenPanel();

    /// Opens the offer's click address in the browser and emits offerOpened(); an
    /// address that is not valid opens nothing.
    void onCreditsPressed(const QString &clickURL) override;
    /// Fills a cell with the offer of the row; false when there is none.
    bool configureCell(QVOfferUICollectionViewCell *cell, int row) override;
    /// Reloads the list from its first page with the saved choice.
    void onSaveFiltersPressed(const std::optional<QVCategory> &category, const QVSort &sort) override;

private slots:
    Q_DECL_HIDDEN void alertOpened(QObject *alert);
    Q_DECL_HIDDEN void popoverOpened();
    Q_DECL_HIDDEN void popoverClosed();
    Q_DECL_HIDDEN void popoverCloseRequested();

signals:
    /// The user pressed close. The wall stays on screen: dismissing it is the host's job.
    void closePressed();
    ///@{
    /// Emitted when the properties that name this signal as their NOTIFY change.
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
    ///@}
    /// An offer's click address was handed to the browser.
    void offerOpened(const QVOffer &offer);
    /// The wall's first offers are on screen; once per wall.
    void offersShown();
    ///@{
    /// Emitted when the property of the same name changes.
    void creditsWatcherChanged();
    void languageChanged();
    void currencyNameChanged();
    void modalityChanged();
    void focusedOfferChanged();
    ///@}

protected:
    ///@{
    /// Reimplemented from QQuickItem and QObject.
    void itemChange(ItemChange change, const ItemChangeData &value) override;
    void componentComplete() override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void updatePolish() override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    ///@}

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
    /// The filter panel opens with its own, bouncier spring; every other slide is the same.
    enum class Slide { OpenFilters, Other };
    Q_DECL_HIDDEN void slide(QQuickItem *panel, const char *property, qreal to, Slide kind, bool detachWhenDone);
    Q_DECL_HIDDEN void trackSlide(QAbstractAnimation *animation);
    Q_DECL_HIDDEN void attachPhoneOverlay(QQuickItem *panel, const QString &title);
    Q_DECL_HIDDEN void setPhoneOverlayOpen(bool &flag, bool open);
    Q_DECL_HIDDEN void layoutFilterPanel();
    Q_DECL_HIDDEN void layoutSupportPanel();
    Q_DECL_HIDDEN qreal listHeight() const;
    /// The first offer whose row shows at the top of the list, or -1.
    Q_DECL_HIDDEN int firstOfferOnScreen() const;
    Q_DECL_HIDDEN qreal listWidth() const;
    Q_DECL_HIDDEN class QQmlContext *overlayContext();
    // The keyboard and the accessibility tree follow what covers what.
    Q_DECL_HIDDEN void overlayWillOpen(QQuickItem *opener);
    Q_DECL_HIDDEN void overlayDidOpen(QQuickItem *content);
    Q_DECL_HIDDEN void overlayDidClose();
    Q_DECL_HIDDEN void updateModality();
    Q_DECL_HIDDEN void focusOfferCell();
    Q_DECL_HIDDEN void takeFirstFocus();
    Q_DECL_HIDDEN void putRowsInScreenOrder();



    // The interface file reads and writes the outlets through their properties.
    Q_DECL_HIDDEN QQuickItem *headerView() const;
    Q_DECL_HIDDEN void setHeaderView(QQuickItem *value);
    Q_DECL_HIDDEN QQuickItem *headerTitle() const;
    Q_DECL_HIDDEN void setHeaderTitle(QQuickItem *value);
    Q_DECL_HIDDEN QQuickItem *closeBtn() const;
    Q_DECL_HIDDEN void setCloseBtn(QQuickItem *value);
    Q_DECL_HIDDEN QQuickItem *filterBtn() const;
    Q_DECL_HIDDEN void setFilterBtn(QQuickItem *value);
    Q_DECL_HIDDEN QQuickItem *supportBtn() const;
    Q_DECL_HIDDEN void setSupportBtn(QQuickItem *value);
    Q_DECL_HIDDEN QQuickItem *collectionView() const;
    Q_DECL_HIDDEN void setCollectionView(QQuickItem *value);
    Q_DECL_HIDDEN QQuickItem *noOffersLabel() const;
    Q_DECL_HIDDEN void setNoOffersLabel(QQuickItem *value);
    Q_DECL_HIDDEN QObject *filterPopover() const;
    Q_DECL_HIDDEN void setFilterPopover(QObject *value);
    Q_DECL_HIDDEN QObject *supportPopover() const;
    Q_DECL_HIDDEN void setSupportPopover(QObject *value);
    Q_DECL_HIDDEN QQuickItem *creditNotice() const;
    Q_DECL_HIDDEN void setCreditNotice(QQuickItem *value);

    Q_DECLARE_PRIVATE_D(m_d, QVOffersViewController)
    std::unique_ptr<QVOffersViewControllerPrivate> m_d;
};
