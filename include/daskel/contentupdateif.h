// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_CONTENTUPDATEIF_H
#define DASKEL_CONTENTUPDATEIF_H

/// A view whose content is renewed as a whole when something that it shows has changed.
class ContentUpdateIF
{
public:
    virtual ~ContentUpdateIF() = default;

    /// Renews the content. \a mask: what changed, bits as in VisibilityNotificationIF::Reason.
    virtual void updateContent(int mask) = 0;
    /// The changes that the view wants to be told of.
    virtual int updateTypeMask() const = 0;
};

#endif
