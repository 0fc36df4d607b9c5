// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVTheme.h"
#include "QVColor.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QPalette>

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace {
constexpr double kTextRatio = 4.5;
constexpr double kEdgeRatio = 3.0;
// Text on a dark surface is this light, and on a light one this dark, when a brand
// leaves the choice open.
constexpr QRgb kLightText = 0xFFFFFFFF;
constexpr QRgb kDarkText = 0xFF15151E;

double channel(double c)
{
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    const QColor rgb = color.toRgb();
    return 0.2126 * channel(rgb.redF()) + 0.7152 * channel(rgb.greenF()) + 0.0722 * channel(rgb.blueF());
}

bool readsOn(const QColor &color, std::initializer_list<QColor> under, double ratio)
{
    for (const QColor &c : under) {
        if (QVTheme::contrastRatio(color, c) < ratio)
            return false;
    }
    return true;
}

// The colour with its lightness moved, hue and saturation kept, just far enough that it
// reads on every colour under it: darker over light surfaces, lighter over dark ones.
QColor readable(const QColor &color, std::initializer_list<QColor> under, double ratio)
{
    if (readsOn(color, under, ratio))
        return color;
    double darkest = 1;
    for (const QColor &c : under)
        darkest = std::min(darkest, luminance(c));
    const bool darken = darkest > 0.18;
    QColor hsl = color.toHsl();
    float h = 0, s = 0, l = 0, a = 0;
    hsl.getHslF(&h, &s, &l, &a);
    h = std::max(h, 0.0f); // achromatic colours report no hue
    for (int step = 0; step < 200; ++step) {
        l = std::clamp(l + (darken ? -0.005f : 0.005f), 0.0f, 1.0f);
        const QColor moved = QColor::fromHslF(h, s, l, a).toRgb();
        if (readsOn(moved, under, ratio) || l <= 0 || l >= 1)
            return moved;
    }
    return color;
}

// Light or dark text, whichever reads better on the colour.
QColor textOn(const QColor &surface)
{
    return QVTheme::contrastRatio(QColor::fromRgba(kLightText), surface)
            >= QVTheme::contrastRatio(QColor::fromRgba(kDarkText), surface)
        ? QColor::fromRgba(kLightText)
        : QColor::fromRgba(kDarkText);
}

// Every role made to read on what lies under it; a colour that already does is kept.
QVTheme madeReadable(QVTheme t)
{
    t.headerStart = readable(t.headerStart, {t.headerText}, kTextRatio);
    t.headerEnd = readable(t.headerEnd, {t.headerText}, kTextRatio);
    t.textPrimary = readable(t.textPrimary, {t.card, t.background}, kTextRatio);
    t.textSecondary = readable(t.textSecondary, {t.card, t.background}, kTextRatio);
    // Links and checkmarks sit on cards; filled buttons carry card-coloured text.
    t.accent = readable(t.accent, {t.card, t.background}, kTextRatio);
    t.error = readable(t.error, {t.card, t.background}, kTextRatio);
    t.payoutButton = readable(t.payoutButton, {t.payoutText}, kTextRatio);
    t.payoutButton = readable(t.payoutButton, {t.card}, kEdgeRatio);
    return t;
}

QVTheme darkBase()
{
    QVTheme t;
    t.background = QColor(0x12, 0x12, 0x18);
    t.card = QColor(0x1E, 0x1E, 0x28);
    t.textPrimary = QColor(0xF2, 0xF2, 0xF7);
    t.textSecondary = QColor(0xA9, 0xA9, 0xB8);
    t.separator = QColor(0x34, 0x34, 0x42);
    t.error = QColor(0xFF, 0x8A, 0x8A);
    t.payoutButton = QColor(0x3D, 0xD6, 0x8C);
    t.payoutText = QColor(0x0B, 0x26, 0x17);
    t.headerText = QColor::fromRgba(kLightText);
    return t;
}
} // namespace

double QVTheme::contrastRatio(const QColor &a, const QColor &b)
{
    const double la = luminance(a);
    const double lb = luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

QVTheme QVTheme::light()
{
    QVTheme t;
    t.headerStart = QVColor::colorFromHex(QStringLiteral("#2F2A86"));
    t.headerEnd = QVColor::colorFromHex(QStringLiteral("#4A3FC4"));
    t.headerText = QVColor::colorFromHex(QStringLiteral("#FFFFFF"));
    t.background = QVColor::colorFromHex(QStringLiteral("#F2F2F2"));
    t.card = QVColor::colorFromHex(QStringLiteral("#FFFFFF"));
    t.textPrimary = QColor(Qt::black);
    t.textSecondary = QVColor::colorFromHex(QStringLiteral("#5F5F6E"));
    t.accent = QVColor::colorFromHex(QStringLiteral("#3F51D8"));
    t.payoutButton = QVColor::colorFromHex(QStringLiteral("#22A35A"));
    t.payoutText = QVColor::colorFromHex(QStringLiteral("#FFFFFF"));
    t.error = QVColor::colorFromHex(QStringLiteral("#A53838"));
    t.separator = QVColor::colorFromHex(QStringLiteral("#E3E3EA"));
    return madeReadable(t);
}

QVTheme QVTheme::dark()
{
    QVTheme t = darkBase();
    t.headerStart = QColor(0x24, 0x20, 0x5E);
    t.headerEnd = QColor(0x34, 0x2C, 0x8A);
    t.accent = QColor(0x9A, 0xA6, 0xFF);
    return madeReadable(t);
}

QVTheme QVTheme::fromBrandColor(const QColor &brand, Scheme scheme)
{
    QVTheme t = scheme == Dark ? darkBase() : light();
    const QColor base = brand.isValid() ? brand.toRgb() : light().accent;
    t.headerText = textOn(base);
    t.headerStart = base;
    // The gradient runs away from the text, so it only ever reads better.
    t.headerEnd = t.headerText == QColor::fromRgba(kLightText) ? base.darker(118) : base.lighter(112);
    t.accent = base;
    return madeReadable(t);
}

QVTheme QVTheme::system()
{
    const QColor window = QGuiApplication::palette().color(QPalette::Window);
    return window.lightnessF() < 0.5 ? dark() : light();
}

bool QVTheme::isDark() const
{
    return luminance(background) < 0.18;
}

QColor QVTheme::tint(const QColor &base, const QColor &over, qreal amount) const
{
    const QColor a = base.toRgb();
    const QColor b = over.toRgb();
    const qreal t = std::clamp(amount, 0.0, 1.0);
    return QColor::fromRgbF(float(a.redF() + (b.redF() - a.redF()) * t), float(a.greenF() + (b.greenF() - a.greenF()) * t),
                            float(a.blueF() + (b.blueF() - a.blueF()) * t), a.alphaF());
}

QColor QVTheme::withAlpha(const QColor &color, qreal alpha) const
{
    QColor c = color.toRgb();
    c.setAlphaF(float(std::clamp(alpha, 0.0, 1.0)));
    return c;
}

QColor QVTheme::shade(qreal alpha) const
{
    // Shadows are darkness whatever the theme; on a dark theme they need more of it.
    return withAlpha(QColor(Qt::black), isDark() ? std::min(1.0, alpha * 3) : alpha);
}

QColor QVTheme::focusRing(const QColor &surroundings) const
{
    constexpr double kNonTextContrast = 3.0; // WCAG 2.1, 1.4.11
    if (contrastRatio(accent, surroundings) >= kNonTextContrast)
        return accent;
    return contrastRatio(textPrimary, surroundings) >= contrastRatio(headerText, surroundings) ? textPrimary : headerText;
}
