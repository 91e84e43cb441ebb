// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <touchcore/mbutton.h>
#include <touchcore/mbuttongroup.h>
#include <touchcore/mbuttonviews.h>
#include <touchcore/mviewfactory.h>

#include <QPainter>

M_REGISTER_VIEW(MButtonGroupView, MButton)

namespace
{
/// Which ends of a segment are those of the whole group, as they are seen.
struct Ends {
    bool isLeft = true;
    bool isRight = true;
};

Ends endsOf(const MButton &button)
{
    const MButtonGroup *group = button.group();
    if (!group)
        return {};
    QList<MButton *> shown;
    const QList<MButton *> buttons = group->buttons();
    for (MButton *other : buttons) {
        if (other->isVisibleTo(button.parentItem()))
            shown.append(other);
    }
    const bool isFirst = shown.isEmpty() || shown.first() == &button;
    const bool isLast = shown.isEmpty() || shown.last() == &button;
    return button.layoutDirection() == Qt::LeftToRight ? Ends{isFirst, isLast}
                                                       : Ends{isLast, isFirst};
}
} // namespace

MButtonGroupView::MButtonGroupView(MButton *button) : MButtonView(button) { }

QString MButtonGroupView::defaultStyleName() const
{
    return QStringLiteral("GroupButton");
}

void MButtonGroupView::drawBackground(QPainter *painter) const
{
    const QRectF frame =
        controller()->rect().marginsRemoved(style()->margins(controller()->layoutDirection()));
    const Ends ends = endsOf(*button());
    const qreal line = style()->borderWidth();
    const qreal radius = style()->cornerRadius();
    // Round corners at an end that is inside the group lie beyond the segment, and are cut off.
    QRectF outline = frame.adjusted(line / 2, line / 2, -line / 2, -line / 2);
    if (!ends.isLeft)
        outline.setLeft(frame.left() - 2 * radius);
    if (!ends.isRight)
        outline.setRight(frame.right() + 2 * radius);
    painter->save();
    painter->setClipRect(frame, Qt::IntersectClip);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(line > 0 ? QPen(style()->borderColor(), line) : QPen(Qt::NoPen));
    painter->setBrush(style()->backgroundColor());
    painter->drawRoundedRect(outline, radius, radius);
    if (button()->isDown() && style()->pressedOverlay().isValid()) {
        painter->setBrush(style()->pressedOverlay());
        painter->drawRoundedRect(outline, radius, radius);
    }
    if (!ends.isLeft)
        painter->fillRect(QRectF(frame.topLeft(), QSizeF(line, frame.height())),
                          style()->borderColor());
    painter->restore();
}
