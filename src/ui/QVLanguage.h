// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"

#include <QtCore/QLocale>
#include <QtCore/QString>

namespace quorva::detail {

// Installs the library's own translations for the locale's language, beside whatever
// translators the host installed; English, or a language the library has no
// translation for, removes them. Called as a wall is created, with the host's default
// locale at that moment.
QUORVAMEDIA_EXPORT void useLanguageOf(const QLocale &locale);

// The locale of the language in use (English until a wall chose another).
QUORVAMEDIA_EXPORT QLocale libraryLocale();

// A resource of the library in the language in use, when the library holds a copy for
// it ("de.lproj/faqs.plist"), else the English one.
QString localizedResource(const QString &name);

} // namespace quorva::detail
