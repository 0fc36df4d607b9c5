// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"

#include <QtCore/QList>
#include <QtCore/QString>

namespace quorva::detail {

struct FaqEntry
{
    QString question;
    QString answer;
};

// Reads an XML property list holding an array of dictionaries with the string entries
// "question" and "answer", in order. A missing or unreadable file, or one of another
// shape, gives no entries; a dictionary without a question is left out.
QUORVAMEDIA_EXPORT QList<FaqEntry> readFaqPropertyList(const QString &path);

} // namespace quorva::detail
