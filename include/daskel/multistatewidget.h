// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_MULTISTATEWIDGET_H
#define DASKEL_MULTISTATEWIDGET_H

#include <touchcore/mwidgetcontroller.h>
#include <touchcore/mwidgetmodel.h>

class MAbstractLayoutPolicy;
class MultiStateWidgetPrivate;

/// The two arrangements of the state that a MultiStateWidget is in.
class MultiStateWidgetModel : public MWidgetModel
{
    Q_OBJECT

public:
    /// Not owned; null for none.
    using Policy = MAbstractLayoutPolicy *;

    M_MODEL_PROPERTY(Policy, activeLandscapeLayout, setActiveLandscapeLayout, nullptr)
    M_MODEL_PROPERTY(Policy, activePortraitLayout, setActivePortraitLayout, nullptr)
};

/// A container that arranges its children in one of several ways: each numbered state has one
/// layout policy for landscape and one for portrait.
///
/// The policies belong to the layout they were made for: the widget's own, layout().
class MultiStateWidget : public MWidgetController
{
    Q_OBJECT

public:
    MultiStateWidget();
    explicit MultiStateWidget(QGraphicsItem *parent);
    ~MultiStateWidget() override;

    MultiStateWidgetModel *model() const;

    /// Adds a state, or gives an existing one both policies anew. May be the same policy twice, and
    /// either may be null (the arrangement is kept then).
    void addState(int state, MAbstractLayoutPolicy *landscape, MAbstractLayoutPolicy *portrait);
    /// Takes up a state. A number that was never added leaves no policy active; what is shown stays
    /// as it is.
    void changeState(int state);

private:
    std::unique_ptr<MultiStateWidgetPrivate> d;
};

#endif
