// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVDatePicker.h"

#include <QtCore/QLocale>

QVDatePicker::QVDatePicker(QQuickItem *parent) : QQuickItem(parent), m_date(QDate::currentDate()) {}

int QVDatePicker::lastYear() const
{
    return QDate::currentDate().year() + 1;
}

QStringList QVDatePicker::monthNames() const
{
    QStringList names;
    for (int month = 1; month <= 12; ++month)
        names << QLocale().standaloneMonthName(month, QLocale::ShortFormat);
    return names;
}

QStringList QVDatePicker::years() const
{
    QStringList list;
    for (int year = kFirstYear; year <= lastYear(); ++year)
        list << QString::number(year);
    return list;
}

void QVDatePicker::setDate(const QDate &date)
{
    if (!date.isValid() || date == m_date)
        return;
    m_date = date;
    emit dateChanged();
}

void QVDatePicker::pick(int year, int month, int day)
{
    year = qBound(kFirstYear, year, lastYear());
    month = qBound(1, month, 12);
    day = qBound(1, day, QDate(year, month, 1).daysInMonth());
    setDate(QDate(year, month, day));
}

void QVDatePicker::pickMonth(int index)
{
    pick(m_date.year(), index + 1, m_date.day());
}

void QVDatePicker::pickDay(int index)
{
    pick(m_date.year(), m_date.month(), index + 1);
}

void QVDatePicker::pickYear(int index)
{
    pick(kFirstYear + index, m_date.month(), m_date.day());
}
