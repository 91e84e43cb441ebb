// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MLAYOUT_H
#define TOUCHCORE_MLAYOUT_H

#include <touchcore/mnamespace.h>

#include <QGraphicsLayout>

#include <memory>

class MAbstractLayoutPolicy;
class MLayoutPrivate;

/// A layout that can arrange its items in several ways, one at a time.
///
/// Each way is a policy, made for this layout and owned by it; an item may be in several of them.
/// Items that the policy in force does not hold are hidden until one that does comes into force.
/// Switching takes microseconds, since nothing is built anew. Set on a widget, which then owns it,
/// or added to another layout. UI thread only.
class MLayout : public QGraphicsLayout
{
public:
    explicit MLayout(QGraphicsLayoutItem *parent = nullptr);
    ~MLayout() override;

    /// Puts \a policy, one of this layout's, in force. Null and the policy already in force change
    /// nothing.
    void setPolicy(MAbstractLayoutPolicy *policy);
    /// Null until a first one is set.
    MAbstractLayoutPolicy *policy() const;

    /// The policies that come into force by themselves when the window is turned, and now if it is
    /// held that way. Null, the default, leaves the policy as it is.
    void setLandscapePolicy(MAbstractLayoutPolicy *policy);
    MAbstractLayoutPolicy *landscapePolicy() const;
    void setPortraitPolicy(MAbstractLayoutPolicy *policy);
    MAbstractLayoutPolicy *portraitPolicy() const;

    /// The items of all policies, each once, in the order in which they came.
    int count() const override;
    QGraphicsLayoutItem *itemAt(int index) const override;
    /// Takes the item out of all policies; it is shown again if the layout had hidden it.
    void removeAt(int index) override;
    void removeItem(QGraphicsLayoutItem *item);

    void setGeometry(const QRectF &rect) override;
    void invalidate() override;
    void updateGeometry() override;

protected:
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint = QSizeF()) const override;

private:
    friend class MAbstractLayoutPolicy;
    friend class MLayoutPrivate;
    std::unique_ptr<MLayoutPrivate> d;
};

#endif
