// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MSCALABLEIMAGE_H
#define TOUCHCORE_MSCALABLEIMAGE_H

#include <QColor>
#include <QMargins>
#include <QMetaType>
#include <QSizeF>
#include <QString>

class QPainter;
class QRectF;

/// A picture of the theme that fits any rectangle: an SVG drawing or a bitmap whose borders keep
/// their size while the middle stretches (a nine-patch).
///
/// A value. In a theme file: "name" or ["name", left, top, right, bottom] (borders in pixels at
/// scale 1). The name is that of a file "<name>.svg" or "<name>.png" in a library's theme folders,
/// or an absolute path or a ":/" resource.
class MScalableImage
{
public:
    MScalableImage() = default;
    explicit MScalableImage(const QString &id, const QMargins &borders = QMargins());

    bool isNull() const { return m_id.isEmpty(); }
    QString id() const { return m_id; }
    /// Pixels at scale 1.
    QMargins borders() const { return m_borders; }
    /// The size that the picture was drawn for, in pixels at scale 1; empty when there is none.
    QSizeF naturalSize() const;

    /// Draws into \a rect, sharp at the painter's device pixel ratio. A valid \a tint replaces the
    /// picture's colours and keeps its shape. Right to left, a picture turns round that the theme
    /// lists as mirrored. An unknown picture draws nothing and warns once.
    void draw(const QRectF &rect, QPainter *painter, const QColor &tint = QColor(),
              Qt::LayoutDirection direction = Qt::LeftToRight) const;

    bool operator==(const MScalableImage &other) const
    {
        return m_id == other.m_id && m_borders == other.m_borders;
    }
    bool operator!=(const MScalableImage &other) const { return !(*this == other); }

private:
    QString m_id;
    QMargins m_borders;
};

Q_DECLARE_METATYPE(MScalableImage)

#endif
