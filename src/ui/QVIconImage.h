// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "QVImageView.h"

#include <QtGui/QColor>

/// One of the module's own icons, drawn from its SVG file in one colour at the size it is
/// shown. It goes through no image plugin, so a screen drawn with it loads none.
class Q_DECL_HIDDEN QVIconImage : public QVImageView
{
    Q_OBJECT
    QML_ELEMENT
    /// The icon's SVG file, relative to the interface file that names it.
    Q_PROPERTY(QUrl source READ source WRITE setSource NOTIFY sourceChanged FINAL)
    /// The colour every drawn pixel takes; invalid keeps the file's own colours.
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL)
    /// Drawn mirrored left to right (an arrow in a right-to-left language).
    Q_PROPERTY(bool mirror READ mirror WRITE setMirror NOTIFY mirrorChanged FINAL)

public:
    explicit QVIconImage(QQuickItem *parent = nullptr);

    QUrl source() const { return m_source; }
    void setSource(const QUrl &source);
    QColor color() const { return m_color; }
    void setColor(const QColor &color);
    bool mirror() const { return m_mirror; }
    void setMirror(bool mirror);

signals:
    void sourceChanged();
    void colorChanged();
    void mirrorChanged();

protected:
    void updatePolish() override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    QUrl m_source;
    QColor m_color;
    bool m_mirror = false;
};
