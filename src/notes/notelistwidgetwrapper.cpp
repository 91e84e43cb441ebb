// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "daskelassert.h"

#include <daskel/notelistwidget.h>
#include <daskel/notelistwidgetwrapper.h>
#include <daskel/visibilitynotificationif.h>
#include <touchcore/mlabel.h>
#include <touchcore/mlayout.h>
#include <touchcore/mlinearlayoutpolicy.h>
#include <touchcore/mpannableviewport.h>

class NoteListWidgetWrapperPrivate
{
public:
    NoteListWidget *list;
    MLabel *label;
    MLayout *layout;
    MLinearLayoutPolicy *labelPolicy;
    MLinearLayoutPolicy *listPolicy;
};

NoteListWidgetWrapper::NoteListWidgetWrapper(NoteListWidget *list)
    : d(std::make_unique<NoteListWidgetWrapperPrivate>())
{
    d->list = list;
    d->label = new MLabel(this);
    d->label->setWordWrap(true);
    d->label->setAlignment(Qt::AlignCenter);
    d->layout = new MLayout(this);
    d->labelPolicy = new MLinearLayoutPolicy(d->layout, Qt::Vertical);
    d->labelPolicy->addItem(d->label, Qt::AlignCenter);
    d->listPolicy = new MLinearLayoutPolicy(d->layout, Qt::Vertical);
    d->listPolicy->addItem(list);
    d->layout->setPolicy(d->listPolicy);
}

NoteListWidgetWrapper::~NoteListWidgetWrapper() = default;

NoteListWidget *NoteListWidgetWrapper::noteList() const
{
    return d->list;
}

void NoteListWidgetWrapper::setEmptyListLabelText(const QString &text)
{
    DASKEL_ASSERT(d->label, "notelistwidgetwrapper", 0);
    d->label->setText(text);
}

QString NoteListWidgetWrapper::emptyListLabelText() const
{
    DASKEL_ASSERT(d->label, "notelistwidgetwrapper", 0);
    return d->label->text();
}

void NoteListWidgetWrapper::setEmptyListLabelStyle(const QString &styleName)
{
    DASKEL_ASSERT(d->label, "notelistwidgetwrapper", 0);
    d->label->setStyleName(styleName);
}

QString NoteListWidgetWrapper::emptyListLabelStyle() const
{
    DASKEL_ASSERT(d->label, "notelistwidgetwrapper", 0);
    return d->label->styleName();
}

int NoteListWidgetWrapper::updateTypeMask() const
{
    return d->list->updateTypeMask();
}

void NoteListWidgetWrapper::updateContent(int mask)
{
    d->list->updateContent(mask);
    if (mask & VisibilityNotificationIF::DataReason)
        updateLayout(d->list->noteCount() < 1);
}

void NoteListWidgetWrapper::updateLayout(bool showEmptyLabel)
{
    if (showEmptyLabel) {
        DASKEL_ASSERT(d->labelPolicy, "notelistwidgetwrapper", 142);
        d->layout->setPolicy(d->labelPolicy);
    } else {
        DASKEL_ASSERT(d->listPolicy, "notelistwidgetwrapper", 148);
        d->layout->setPolicy(d->listPolicy);
    }
    if (MPannableViewport *viewport = d->list->parentViewport()) {
        viewport->setVerticalPanningPolicy(showEmptyLabel ? MPannableViewport::PanningAlwaysOff
                                                          : MPannableViewport::PanningAlwaysOn);
    }
}
