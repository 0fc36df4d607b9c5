// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"

#include <QtCore/QDate>
#include <QtCore/QStringList>
#include <QtQuick/QQuickItem>

// A date picker of three wheels (month, day, year). The chosen date lives here; the
// wheels show it and report the user's turns.
class QVDatePicker : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QVDatePickerBase)
    Q_PROPERTY(QDate date READ date WRITE setDate NOTIFY dateChanged FINAL)
    Q_PROPERTY(int monthIndex READ monthIndex NOTIFY dateChanged FINAL)
    Q_PROPERTY(int dayIndex READ dayIndex NOTIFY dateChanged FINAL)
    Q_PROPERTY(int yearIndex READ yearIndex NOTIFY dateChanged FINAL)
    Q_PROPERTY(QStringList monthNames READ monthNames CONSTANT FINAL)
    Q_PROPERTY(QStringList years READ years CONSTANT FINAL)

public:
    static constexpr int kFirstYear = 2000;

    explicit QVDatePicker(QQuickItem *parent = nullptr);

    QDate date() const { return m_date; }
    void setDate(const QDate &date);
    int monthIndex() const { return m_date.month() - 1; }
    int dayIndex() const { return m_date.day() - 1; }
    int yearIndex() const { return m_date.year() - kFirstYear; }
    QStringList monthNames() const;
    QStringList years() const;

    // A wheel came to rest on a row. The day wheel always has 31 rows (a wheel whose
    // rows change under the finger jumps); a day past the month's end becomes its last.
    Q_INVOKABLE void pickMonth(int index);
    Q_INVOKABLE void pickDay(int index);
    Q_INVOKABLE void pickYear(int index);

signals:
    void dateChanged();

private:
    void pick(int year, int month, int day);
    int lastYear() const;

    QDate m_date;
};
