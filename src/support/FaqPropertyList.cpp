// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "FaqPropertyList.h"

#include <QtCore/QFile>
#include <QtCore/QXmlStreamReader>

namespace quorva::detail {

namespace {
constexpr QLatin1StringView kPlist("plist");
constexpr QLatin1StringView kArray("array");
constexpr QLatin1StringView kDict("dict");
constexpr QLatin1StringView kKey("key");
constexpr QLatin1StringView kString("string");
constexpr QLatin1StringView kQuestion("question");
constexpr QLatin1StringView kAnswer("answer");

// One <dict>: its key/string pairs; values of other kinds are skipped.
FaqEntry readEntry(QXmlStreamReader &xml)
{
    FaqEntry entry;
    QString key;
    while (xml.readNextStartElement()) {
        if (xml.name() == kKey) {
            key = xml.readElementText();
        } else if (xml.name() == kString) {
            const QString value = xml.readElementText();
            if (key == kQuestion)
                entry.question = value;
            else if (key == kAnswer)
                entry.answer = value;
            key.clear();
        } else {
            xml.skipCurrentElement();
            key.clear();
        }
    }
    return entry;
}
} // namespace

QList<FaqEntry> readFaqPropertyList(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QXmlStreamReader xml(&file);
    QList<FaqEntry> entries;
    if (!xml.readNextStartElement() || xml.name() != kPlist)
        return {};
    if (!xml.readNextStartElement() || xml.name() != kArray)
        return {};
    while (xml.readNextStartElement()) {
        if (xml.name() != kDict) {
            xml.skipCurrentElement();
            continue;
        }
        const FaqEntry entry = readEntry(xml);
        if (!entry.question.isEmpty())
            entries.append(entry);
    }
    // A file cut off or broken halfway is unreadable as a whole.
    return xml.hasError() ? QList<FaqEntry>() : entries;
}

} // namespace quorva::detail
