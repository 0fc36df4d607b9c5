// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"

#include <QtCore/QObject>
#include <QtGui/QColor>
#include <QtQml/qqmlregistration.h>

/// The colours of every screen of the wall, as roles. light() is the wall's own look,
/// dark() its dark look, fromBrandColor() a whole theme from an app's brand colour.
/// Every theme the class makes is readable: text and what lies under it meet 4.5 : 1
/// (WCAG 2.1), the payout button's edge against the card at least 3 : 1.
/// Its roles are fixed for all of 2.x: a later role comes with a new type.
class QUORVAMEDIA_EXPORT QVTheme
{
    Q_GADGET
    QML_VALUE_TYPE(theme)
    /// The header's gradient, leading edge.
    Q_PROPERTY(QColor headerStart MEMBER headerStart FINAL)
    /// The header's gradient, trailing edge.
    Q_PROPERTY(QColor headerEnd MEMBER headerEnd FINAL)
    /// Title and header icons.
    Q_PROPERTY(QColor headerText MEMBER headerText FINAL)
    /// Behind the list and the panels.
    Q_PROPERTY(QColor background MEMBER background FINAL)
    /// Cells, forms, popovers, alerts; also text on accent and error fills.
    Q_PROPERTY(QColor card MEMBER card FINAL)
    /// Text.
    Q_PROPERTY(QColor textPrimary MEMBER textPrimary FINAL)
    /// Quieter text: descriptions, placeholders, counters.
    Q_PROPERTY(QColor textSecondary MEMBER textSecondary FINAL)
    /// Checkmarks, the chosen segment, links, the date button, filled buttons.
    Q_PROPERTY(QColor accent MEMBER accent FINAL)
    /// Payout buttons, credited amounts, the credit notice.
    Q_PROPERTY(QColor payoutButton MEMBER payoutButton FINAL)
    /// Text on #payoutButton.
    Q_PROPERTY(QColor payoutText MEMBER payoutText FINAL)
    /// The form's error strip and error text.
    Q_PROPERTY(QColor error MEMBER error FINAL)
    /// Hairlines and quiet borders.
    Q_PROPERTY(QColor separator MEMBER separator FINAL)
    /// The corner radius of cards and popovers, in points.
    Q_PROPERTY(qreal cornerRadius MEMBER cornerRadius FINAL)
    /// True for a dark theme: light text on dark fills.
    Q_PROPERTY(bool isDark READ isDark FINAL)

public:
    /// Light or dark fills.
    enum Scheme { Light, Dark };
    Q_ENUM(Scheme)

    ///@{
    /// The colour of the role, as the property of the same name describes it.
    QColor headerStart;   // the header's gradient, leading edge
    QColor headerEnd;     // and trailing edge
    QColor headerText;    // title and header icons
    QColor background;    // behind the list and the panels
    QColor card;          // cells, forms, popovers, alerts; also text on accent and error fills
    QColor textPrimary;
    QColor textSecondary;
    QColor accent;        // checkmarks, the chosen segment, links, the date button, filled buttons
    QColor payoutButton;  // payout buttons, credited amounts, the credit notice
    QColor payoutText;    // text on payoutButton
    QColor error;         // the form's error strip and error text
    QColor separator;     // hairlines and quiet borders
    qreal cornerRadius = 10;
    ///@}

    /// The wall's own look: white cards on light grey (F2F2F2), black text.
    static QVTheme light();
    /// The wall's dark look.
    static QVTheme dark();
    /// A whole readable theme from an app's brand colour: the header and accent take
    /// the brand, darkened or lightened as far as contrast needs.
    static QVTheme fromBrandColor(const QColor &brand, Scheme scheme = Light);
    /// light() or dark(), by the lightness of the application palette's window colour.
    static QVTheme system();
    /// WCAG 2.1 contrast ratio of two colours (1 to 21), from their relative luminance.
    static double contrastRatio(const QColor &a, const QColor &b);

    /// See #isDark.
    bool isDark() const;

    /// Shades mixed from the roles, for pressed states, tints and borders.
    ///@{
    Q_INVOKABLE QColor tint(const QColor &base, const QColor &over, qreal amount) const;
    Q_INVOKABLE QColor withAlpha(const QColor &color, qreal alpha) const;
    ///@}
    /// A drop shadow of the given strength.
    Q_INVOKABLE QColor shade(qreal alpha) const;
    /// The keyboard focus ring's colour over the given surroundings: the accent where it
    /// stands out by 3 : 1 or more, else the primary text colour or, failing that, the
    /// header text colour, whichever stands out most.
    Q_INVOKABLE QColor focusRing(const QColor &surroundings) const;

    /// True when every role is equal.
    friend bool operator==(const QVTheme &, const QVTheme &) = default;
};
