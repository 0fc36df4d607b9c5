// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QJsonValue>
#include <QtCore/QString>

// Typed lookups that treat a value of another JSON type as absent, so a reply with a
// list where an object belongs (or a string where a number belongs) never misleads.
namespace quorva::json {

inline QJsonObject object(const QJsonValue &value)
{
    return value.isObject() ? value.toObject() : QJsonObject();
}

inline QJsonArray array(const QJsonValue &value)
{
    return value.isArray() ? value.toArray() : QJsonArray();
}

inline QString string(const QJsonValue &value)
{
    return value.isString() ? value.toString() : QString();
}

// A JSON number's decimal text: 250 reads "250", 2.5 reads "2.5".
inline QString numberText(const QJsonValue &value)
{
    return value.isDouble() ? value.toVariant().toString() : QString();
}

// For identifiers the service may send either way.
inline QString stringOrNumberText(const QJsonValue &value)
{
    return value.isString() ? value.toString() : numberText(value);
}

// True for JSON true or a non-zero number.
inline bool truth(const QJsonValue &value)
{
    if (value.isBool())
        return value.toBool();
    return value.isDouble() && value.toDouble() != 0.0;
}

} // namespace quorva::json
