// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_LAZYLOADSHEETIFACE_H
#define DASKEL_LAZYLOADSHEETIFACE_H

#include <touchcore/msheet.h>

/// A sheet whose content is made only when it is shown.
class LazyLoadSheetIFace : public MSheet
{
    Q_OBJECT

public:
    explicit LazyLoadSheetIFace(QGraphicsItem *parent = nullptr);
    ~LazyLoadSheetIFace() override;

    /// Makes the content; called by PageSwitcher each time before it shows the sheet.
    virtual void createContent() = 0;
    /// Whether the content is there, so that createContent() has nothing to do.
    virtual bool hasContent() const = 0;
    /// Lets the content of a sheet go that will not be shown soon; does nothing by default.
    virtual void releaseContent();
};

#endif
