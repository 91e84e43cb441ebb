// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "multistatewidgetview.h"

#include <daskel/multistatewidget.h>
#include <touchcore/mapplication.h>
#include <touchcore/mlayout.h>
#include <touchcore/mviewfactory.h>
#include <touchcore/mwindow.h>

class MultiStateWidgetViewPrivate
{
public:
    MultiStateWidget *controller;
    MLayout *layout; ///< owned by the controller
};

M_REGISTER_VIEW(MultiStateWidgetView, MultiStateWidget)

MultiStateWidgetView::MultiStateWidgetView(MultiStateWidget *controller)
    : MWidgetView(controller), d(std::make_unique<MultiStateWidgetViewPrivate>())
{
    d->controller = controller;
    d->layout = new MLayout(controller);
    if (MWindow *window = MApplication::activeWindow()) {
        connect(window, &MWindow::orientationChanged, this,
                &MultiStateWidgetView::orientationChanged);
    }
}

MultiStateWidgetView::~MultiStateWidgetView() = default;

void MultiStateWidgetView::updateData(const QList<const char *> &modifications)
{
    MWidgetView::updateData(modifications);
    const MWindow *window = MApplication::activeWindow();
    if (!window)
        return;
    const MultiStateWidgetModel *model = d->controller->model();
    for (const char *member : modifications) {
        if (qstrcmp(member, "activeLandscapeLayout") == 0 && window->orientation() == M::Landscape)
            d->layout->setPolicy(model->activeLandscapeLayout());
        else if (qstrcmp(member, "activePortraitLayout") == 0
                 && window->orientation() == M::Portrait)
            d->layout->setPolicy(model->activePortraitLayout());
    }
}

void MultiStateWidgetView::orientationChanged(const M::Orientation &orientation)
{
    const MultiStateWidgetModel *model = d->controller->model();
    if (model->activeLandscapeLayout() == model->activePortraitLayout())
        return;
    d->layout->setPolicy(orientation == M::Landscape ? model->activeLandscapeLayout()
                                                     : model->activePortraitLayout());
}
