// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

// Everything a host application needs: the service client, its records, device facts,
// the offer wall and its support centre.
#include <QuorvaMedia/quorvamedia_global.h>
#include <QuorvaMedia/QuorvaMediaVersion.h>
#include <QuorvaMedia/QVAdvertisingInfo.h>
#include <QuorvaMedia/QVPrivacy.h>
#include <QuorvaMedia/QVOffer.h>
#include <QuorvaMedia/QVProfile.h>
#include <QuorvaMedia/QVTransaction.h>
#include <QuorvaMedia/QVCategory.h>
#include <QuorvaMedia/QVSort.h>
#include <QuorvaMedia/QuorvaRestAPI.h>
#include <QuorvaMedia/QVCreditsWatcher.h>
#include <QuorvaMedia/QVDevice.h>
#include <QuorvaMedia/QVTheme.h>
#include <QuorvaMedia/QVOfferUICollectionViewCell.h>
#include <QuorvaMedia/QVFilterCells.h>
#include <QuorvaMedia/QVFiltersViewController.h>
#include <QuorvaMedia/QVFormFieldView.h>
#include <QuorvaMedia/QVEnterInformationView.h>
#include <QuorvaMedia/QVEnterCommentView.h>
#include <QuorvaMedia/QVEnterOfferTitleView.h>
#include <QuorvaMedia/QVSupportSendButtonView.h>
#include <QuorvaMedia/QVUnableToAssist.h>
#include <QuorvaMedia/QVChooseSubjectView.h>
#include <QuorvaMedia/QVOfferTimeCompletedView.h>
#include <QuorvaMedia/QVOfferDateCompletedView.h>
#include <QuorvaMedia/QVEmailViewController.h>
#include <QuorvaMedia/QVQuestionCollectionViewCell.h>
#include <QuorvaMedia/QVQACollectionViewCell.h>
#include <QuorvaMedia/QVFAQViewController.h>
#include <QuorvaMedia/QVTransactionCollectionViewCell.h>
#include <QuorvaMedia/QVHistoryViewController.h>
#include <QuorvaMedia/QVSupportViewController.h>
#include <QuorvaMedia/QVOfferWallPreload.h>
#include <QuorvaMedia/QVOffersViewController.h>
