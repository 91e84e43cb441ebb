// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_PAGESWITCHOBSERVERIFACE_H
#define DASKEL_PAGESWITCHOBSERVERIFACE_H

/// The content of a page or sheet that has a say before the person leaves it by the back button,
/// such as an editor with changes that are not saved. PageSwitcher finds it by its type.
class PageSwitchObserverIface
{
public:
    virtual ~PageSwitchObserverIface();

    /// False keeps the page. May ask the person.
    virtual bool aboutToGoBack() = 0;
};

#endif
