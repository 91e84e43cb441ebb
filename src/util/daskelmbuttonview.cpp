// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "daskelmbuttonview.h"

#include <touchcore/mbutton.h>
#include <touchcore/mviewfactory.h>

#include <QGraphicsLayout>

M_REGISTER_VIEW(DaskelMButtonView, MButton)

DaskelMButtonView::DaskelMButtonView(MButton *controller) : MButtonView(controller) { }

/// The preferred size of the layout whichever hint is asked for: a button whose contents are cut
/// off is worse than one that does not shrink.
QSizeF DaskelMButtonView::sizeHint(Qt::SizeHint which, const QSizeF &constraint) const
{
    const QSizeF own = MButtonView::sizeHint(which, constraint);
    const QGraphicsLayout *layout = controller()->layout();
    if (!layout)
        return own;
    const QSizeF contents = layout->effectiveSizeHint(Qt::PreferredSize);
    const QSizeF padded(contents.width() + style()->paddingLeft() + style()->paddingRight(),
                        contents.height() + style()->paddingTop() + style()->paddingBottom());
    return own.expandedTo(padded);
}
