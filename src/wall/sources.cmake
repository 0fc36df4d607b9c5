# SPDX-FileCopyrightText: 2026 QuorvaMedia
# SPDX-License-Identifier: Apache-2.0

# Screens, cells, UI utilities and the interface files they are laid out by.
list(APPEND QUORVA_PUBLIC_HEADERS
    wall/QVOffersViewController.h
    wall/QVOfferWallPreload.h
    wall/QVOfferUICollectionViewCell.h
    wall/QVFiltersViewController.h
    wall/QVFilterCells.h
    ui/QVTheme.h
)

# Helpers of the interface files, not installed: hosts use the classes above.
set(QUORVA_UI_SOURCES
    ui/QVColor.h ui/QVColor.cpp
    ui/QVImageView.h
    ui/QVImageCache.h
    ui/QVTheme.cpp
    ui/QVThemeFactory.h
    ui/QVService.h ui/QVService.cpp
    ui/QVSpringCurve.h ui/QVSpringCurve.cpp
    ui/QVImageCache.cpp
    ui/QVImageView.cpp
    ui/QVIconImage.h ui/QVIconImage.cpp
    ui/QVComponentFactory.h ui/QVComponentFactory.cpp
    ui/AssignIfChanged.h
    ui/QVAlertPresenter.h ui/QVAlertPresenter.cpp
    ui/QVPayoutFormatter.h ui/QVPayoutFormatter.cpp
    wall/QVOffersListModel.h wall/QVOffersListModel.cpp
    wall/QVOffersViewController.cpp
    wall/QVOffersViewControllerOverlays.cpp
    wall/QVOffersViewControllerAccessibility.cpp
    wall/QVOfferWallPreload.cpp wall/OfferWallPreloadState.h
    wall/QVOfferUICollectionViewCell.cpp
    wall/QVFiltersViewController.cpp
    wall/QVFilterListModel.h wall/QVFilterListModel.cpp
    wall/QVFilterCells.cpp
)

set(QUORVA_QML_FILES
    resources/qml/QVOffersViewController.qml
    resources/qml/QVOfferUICollectionViewCell.qml
    resources/qml/QVFiltersViewController.qml
    resources/qml/QVFilterUICollectionViewCell.qml
    resources/qml/QVFilterUICollectionViewHeader.qml
    resources/qml/QVAlert.qml
    resources/qml/QVBlurView.qml
    resources/qml/HeaderButton.qml
    resources/qml/FlatButton.qml
    resources/qml/ScrollBarLine.qml
    resources/qml/FocusRing.qml
    resources/qml/Spinner.qml
    resources/qml/QVPopover.qml
    resources/qml/QVSupportPopover.qml
)
set(QUORVA_RESOURCE_FILES
    resources/icons/close.svg
    resources/icons/filter.svg
    resources/icons/support.svg
    resources/icons/checkmark.svg
    resources/icons/header-close.svg
    resources/icons/header-filter.svg
    resources/icons/header-support.svg
    resources/icons/spinner.svg
)

