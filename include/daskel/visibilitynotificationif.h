// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_VISIBILITYNOTIFICATIONIF_H
#define DASKEL_VISIBILITYNOTIFICATIONIF_H

/// A view that is refreshed only while somebody can see it. It is wrapped by
/// daskelUtilityWrapVisibilityNotificationIF(), which collects the reasons to refresh meanwhile.
///
/// Implemented by an MWidget; nobody deletes it through this interface.
class VisibilityNotificationIF
{
public:
    /// Why a view is out of date; bits of a set.
    enum Reason : unsigned int {
        DataReason = 1, ///< the calendar's data
        ConfigurationReason = 2, ///< the person's settings
        DateReason = 4, ///< another day began
        HourReason = 8,
        MinuteReason = 16,
        NotebooksReason = 32, ///< notebooks came, went or changed
    };

    /// Refreshes what is shown for the set of \a reasons.
    virtual void notifyUpdate(unsigned int reasons) = 0;
    /// The reasons that the view wants to hear of; asked once.
    virtual unsigned int notificationMask() const = 0;

protected:
    ~VisibilityNotificationIF() = default;
};

#endif
