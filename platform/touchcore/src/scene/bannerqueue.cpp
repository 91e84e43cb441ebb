// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "bannerqueue.h"

#include <touchcore/mbanner.h>

namespace
{
bool offersAction(const MSceneWindow *window)
{
    const auto *banner = qobject_cast<const MBanner *>(window);
    return banner && !banner->actionText().isEmpty();
}
} // namespace

bool BannerQueue::admit(MSceneWindow *banner, MSceneWindow **replaced)
{
    m_waiting.removeAll(banner);
    if (m_shown && m_shown != banner) {
        if (offersAction(m_shown) && !offersAction(banner)) {
            m_waiting.append(banner);
            return false;
        }
        *replaced = m_shown;
    }
    m_shown = banner;
    return true;
}

bool BannerQueue::withdraw(const MSceneWindow *banner)
{
    return m_waiting.removeAll(const_cast<MSceneWindow *>(banner)) > 0;
}

MSceneWindow *BannerQueue::leave(const MSceneWindow *banner)
{
    withdraw(banner);
    if (m_shown.data() != banner)
        return nullptr;
    m_shown.clear();
    while (!m_waiting.isEmpty()) {
        if (MSceneWindow *next = m_waiting.takeFirst())
            return next;
    }
    return nullptr;
}
