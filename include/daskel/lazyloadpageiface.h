// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_LAZYLOADPAGEIFACE_H
#define DASKEL_LAZYLOADPAGEIFACE_H

/// A page whose content is made only when it is first shown: the program opens without waiting for
/// pages that nobody has asked for yet.
///
/// A page derives from MApplicationPage and from this; PageSwitcher finds it by its type.
class LazyLoadPageIFace
{
public:
    virtual ~LazyLoadPageIFace();

    /// Makes the content, once.
    void ensureContent();
    bool hasContent() const { return m_hasContent; }

protected:
    /// Called once, on the UI thread, before the page first appears.
    virtual void createContent() = 0;

private:
    bool m_hasContent = false;
};

#endif
