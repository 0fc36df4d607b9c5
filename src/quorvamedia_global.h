// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/qglobal.h>

#if defined(QUORVAMEDIA_BUILD)
#  define QUORVAMEDIA_EXPORT Q_DECL_EXPORT
#else
#  define QUORVAMEDIA_EXPORT Q_DECL_IMPORT
#endif
