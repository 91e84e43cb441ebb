// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MBUTTONVIEW_H
#define TOUCHCORE_MBUTTONVIEW_H

#include <touchcore/mbuttonstyle.h>
#include <touchcore/mwidgetview.h>

class MButton;
class MButtonViewPrivate;

/// A push button: picture and text in a row on the frame of the style. The other views of buttons
/// derive from it.
///
/// The style's block "checked" holds while the button is checked, else "disabled" or "pressed". The
/// attributes disabledOpacity and pressedOverlay count in every state.
class MButtonView : public MWidgetView
{
    Q_OBJECT
    M_STYLE(MButtonStyle)

public:
    explicit MButtonView(MButton *button);
    ~MButtonView() override;

    void updateData(const QList<const char *> &modifications) override;
    void applyStyle() override;
    void paint(QPainter *painter) const override;
    void drawBackground(QPainter *painter) const override;
    void drawContents(QPainter *painter) const override;
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint) const override;

protected:
    MButton *button() const;
    /// The named style that is taken where the button names none.
    virtual QString defaultStyleName() const;
    /// What the contents need without margins and paddings: as wide as they get, or for \a width
    /// when it is 0 or more.
    virtual QSizeF contentsSize(qreal width) const;

    /// The size of picture and text beside each other.
    QSizeF labelSize(qreal width) const;
    QSizeF textSize(qreal width) const;
    /// Draws picture and text beside each other, at the start or in the middle as the style says.
    void drawLabel(QPainter *painter, const QRectF &rect) const;
    void drawIcon(QPainter *painter, const QRectF &rect) const;
    void drawText(QPainter *painter, const QRectF &rect) const;

private:
    std::unique_ptr<MButtonViewPrivate> d;
};

#endif
