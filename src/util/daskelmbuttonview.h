// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_DASKELMBUTTONVIEW_H
#define DASKEL_DASKELMBUTTONVIEW_H

#include <touchcore/mbuttonview.h>

/// A button that is never smaller than the layout inside it and the style's paddings. Themes choose
/// it for the view type "daskel" of MButton.
class DaskelMButtonView : public MButtonView
{
    Q_OBJECT

public:
    explicit DaskelMButtonView(MButton *controller);

    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint) const override;
};

#endif
