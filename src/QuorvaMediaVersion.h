#pragma once

#include "quorvamedia_global.h"

/// Version symbols for tools that inspect the binary; the library never reads them.
extern "C" {
QUORVAMEDIA_EXPORT extern const unsigned char QuorvaMediaVersionString[];
QUORVAMEDIA_EXPORT extern const double QuorvaMediaVersionNumber;
}
