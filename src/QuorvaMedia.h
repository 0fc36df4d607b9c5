#pragma once

// Everything a host application needs: the service client, its records, device facts
// and the offer wall.
#include <QuorvaMedia/quorvamedia_global.h>
#include <QuorvaMedia/QuorvaMediaVersion.h>
#include <QuorvaMedia/QVAdvertisingInfo.h>
#include <QuorvaMedia/QVOffer.h>
#include <QuorvaMedia/QVProfile.h>
#include <QuorvaMedia/QVTransaction.h>
#include <QuorvaMedia/QVCategory.h>
#include <QuorvaMedia/QVSort.h>
#include <QuorvaMedia/QuorvaRestAPI.h>
#include <QuorvaMedia/QVDevice.h>
#include <QuorvaMedia/QVColor.h>
#include <QuorvaMedia/QVImageCache.h>
#include <QuorvaMedia/QVImageView.h>
#include <QuorvaMedia/QVOfferUICollectionViewCell.h>
#include <QuorvaMedia/QVFilterCells.h>
#include <QuorvaMedia/QVFiltersViewController.h>
#include <QuorvaMedia/QVOffersViewController.h>
