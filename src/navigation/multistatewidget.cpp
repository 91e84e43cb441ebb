// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <daskel/multistatewidget.h>
#include <touchcore/mwidgetview.h>

#include <QMap>

#include <utility>

class MultiStateWidgetPrivate
{
public:
    struct Policies {
        MAbstractLayoutPolicy *landscape = nullptr;
        MAbstractLayoutPolicy *portrait = nullptr;
    };
    QMap<int, Policies> states;
};

MultiStateWidget::MultiStateWidget() : MultiStateWidget(nullptr) { }

MultiStateWidget::MultiStateWidget(QGraphicsItem *parent)
    : MWidgetController(new MultiStateWidgetModel, parent),
      d(std::make_unique<MultiStateWidgetPrivate>())
{
    // The layout for which states are made belongs to the view.
    view();
}

MultiStateWidget::~MultiStateWidget() = default;

MultiStateWidgetModel *MultiStateWidget::model() const
{
    return static_cast<MultiStateWidgetModel *>(MWidgetController::model());
}

void MultiStateWidget::addState(int state, MAbstractLayoutPolicy *landscape,
                                MAbstractLayoutPolicy *portrait)
{
    d->states.insert(state, {landscape, portrait});
}

void MultiStateWidget::changeState(int state)
{
    const MultiStateWidgetPrivate::Policies policies = d->states.value(state);
    model()->setActiveLandscapeLayout(policies.landscape);
    model()->setActivePortraitLayout(policies.portrait);
}
