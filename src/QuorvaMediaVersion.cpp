// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QuorvaMediaVersion.h"

// The macros hosts compile against say what the build says.
static_assert(QUORVAMEDIA_VERSION
              == QUORVAMEDIA_VERSION_CHECK(QUORVA_PROJECT_VERSION_MAJOR, QUORVA_PROJECT_VERSION_MINOR,
                                           QUORVA_PROJECT_VERSION_PATCH));

extern "C" {
// Two blanks before PROJECT and the trailing line feed are part of the marker format.
const unsigned char QuorvaMediaVersionString[] =
    "@(#)PROGRAM:QuorvaMedia  PROJECT:QuorvaMedia-1.1.0\n";
const double QuorvaMediaVersionNumber = 1.1;
}
