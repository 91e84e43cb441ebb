// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MLAYOUT_P_H
#define TOUCHCORE_MLAYOUT_P_H

#include <touchcore/mlayout.h>

#include <QSet>
#include <QVector>

class MLayoutPrivate
{
public:
    explicit MLayoutPrivate(MLayout *layout);
    ~MLayoutPrivate();

    void choosePolicy(M::Orientation orientation);
    void adopt(QGraphicsLayoutItem *item);
    /// Lets go of items that no policy holds any more.
    void releaseUnheld();
    void release(QGraphicsLayoutItem *item);
    /// Hides what the policy in force does not hold; shows only what the layout itself hid.
    void updateVisibility();
    /// Size hints may have changed: drops what the policies keep of them.
    void refreshPolicies();
    void forget(MAbstractLayoutPolicy *policy);

    MLayout *const q;
    QVector<MAbstractLayoutPolicy *> policies;
    QVector<QGraphicsLayoutItem *> items;
    QSet<QGraphicsLayoutItem *> hiddenItems;
    MAbstractLayoutPolicy *policy = nullptr;
    MAbstractLayoutPolicy *landscapePolicy = nullptr;
    MAbstractLayoutPolicy *portraitPolicy = nullptr;
};

#endif
