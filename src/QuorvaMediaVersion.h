// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"

/// @file
/// The library's version, for the preprocessor and for tools that inspect the binary.

/// The version of the headers a host is built with, as a number that compares:
/// 0xMMNNPP for major, minor and patch.
#define QUORVAMEDIA_VERSION 0x020200
/// The version of the headers, as text.
#define QUORVAMEDIA_VERSION_STR "2.2.0"
/// A version as #QUORVAMEDIA_VERSION writes it, for tests such as
/// `#if QUORVAMEDIA_VERSION >= QUORVAMEDIA_VERSION_CHECK(2, 2, 0)`.
#define QUORVAMEDIA_VERSION_CHECK(major, minor, patch) (((major) << 16) | ((minor) << 8) | (patch))

extern "C" {
/// The framework's identification marker, "@(#)PROGRAM:QuorvaMedia  PROJECT:QuorvaMedia-1.1.0\n",
/// as it has always been exported; the release is #QUORVAMEDIA_VERSION. The library never
/// reads it.
QUORVAMEDIA_EXPORT extern const unsigned char QuorvaMediaVersionString[];
/// The framework's identification number, 1.1, as it has always been exported.
QUORVAMEDIA_EXPORT extern const double QuorvaMediaVersionNumber;
}
