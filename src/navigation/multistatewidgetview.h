// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_MULTISTATEWIDGETVIEW_H
#define DASKEL_MULTISTATEWIDGETVIEW_H

#include <touchcore/mnamespace.h>
#include <touchcore/mwidgetview.h>

class MLayout;
class MultiStateWidget;
class MultiStateWidgetViewPrivate;

/// Puts the policy into force that suits the widget's state and how the window is held.
class MultiStateWidgetView : public MWidgetView
{
    Q_OBJECT

public:
    explicit MultiStateWidgetView(MultiStateWidget *controller);
    ~MultiStateWidgetView() override;

    void updateData(const QList<const char *> &modifications) override;

private Q_SLOTS:
    void orientationChanged(const M::Orientation &orientation);

private:
    std::unique_ptr<MultiStateWidgetViewPrivate> d;
};

#endif
