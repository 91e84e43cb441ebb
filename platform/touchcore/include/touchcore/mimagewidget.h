// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MIMAGEWIDGET_H
#define TOUCHCORE_MIMAGEWIDGET_H

#include <touchcore/mstylablewidget.h>

/// How a picture is shown.
class MImageWidgetStyle : public MWidgetStyle
{
    Q_OBJECT
    /// Invalid keeps the picture's own colours.
    M_STYLE_ATTRIBUTE(QColor, tint, setTint)
    /// The size shown, in pixels at scale 1; empty goes by the picture.
    M_STYLE_ATTRIBUTE(QSizeF, imageSize, setImageSize)
};

/// A picture of the theme in the middle of the widget. Where there is less room than it wants it is
/// made smaller, with its proportions kept. From right to left, those pictures turn round that the
/// theme lists as mirrored.
class MImageWidget : public MStylableWidget
{
    Q_OBJECT
    M_STYLE(MImageWidgetStyle)
    Q_PROPERTY(QString image READ image WRITE setImage)

public:
    explicit MImageWidget(QGraphicsItem *parent = nullptr);
    explicit MImageWidget(const QString &id, QGraphicsItem *parent = nullptr);
    ~MImageWidget() override;

    /// The name of the picture; empty shows nothing.
    QString image() const { return m_image.id(); }
    void setImage(const QString &id);

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option,
               QWidget *widget = nullptr) override;

protected:
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint = QSizeF()) const override;

private:
    QSizeF shownSize() const;

    MScalableImage m_image;
};

#endif
