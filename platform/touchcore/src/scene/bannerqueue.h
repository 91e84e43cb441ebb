// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_BANNERQUEUE_H
#define TOUCHCORE_BANNERQUEUE_H

#include <QList>
#include <QPointer>

class MSceneWindow;

/// Lets one banner be seen at a time.
///
/// A new one takes the place of the one that is shown, since it tells of what was done last. Only a
/// banner that offers something to do is left its time by those that just inform.
class BannerQueue
{
public:
    /// Whether \a banner may appear now; otherwise it waits for its turn. The one that has to go is
    /// put into \a replaced.
    bool admit(MSceneWindow *banner, MSceneWindow **replaced);
    /// \a banner, if it waits, need not come any more. Answers whether it waited.
    bool withdraw(const MSceneWindow *banner);
    /// \a banner is gone. Answers the one that comes next, or null.
    MSceneWindow *leave(const MSceneWindow *banner);

private:
    QPointer<MSceneWindow> m_shown;
    QList<QPointer<MSceneWindow>> m_waiting;
};

#endif
