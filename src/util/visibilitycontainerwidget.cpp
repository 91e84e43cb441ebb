// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "visibilitycontainerwidget_p.h"

#include <daskel/calendarconf.h>
#include <daskel/db_instance.h>
#include <daskel/notebookmanager.h>
#include <daskel/timerservice.h>
#include <daskel/visibilitynotificationif.h>

#include <QGraphicsLinearLayout>

using Container = VisibilityContainerWidgetPrivate;
using Reason = VisibilityNotificationIF::Reason;

VisibilityContainerWidgetPrivate::VisibilityContainerWidgetPrivate(VisibilityNotificationIF *child,
                                                                   MWidget *parent)
    : m_child(child), m_childWidget(dynamic_cast<MWidget *>(child))
{
    listen(child->notificationMask());
    connect(this, &Container::updateChild, this, &Container::queuedUpdateChild,
            Qt::QueuedConnection);
    if (parent)
        setParentItem(parent);
    auto *layout = new QGraphicsLinearLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addItem(m_childWidget);
}

void VisibilityContainerWidgetPrivate::listen(unsigned int mask)
{
    if (mask & Reason::DataReason)
        connect(DbInstance::instance(), &DbInstance::dataUpdated, this, &Container::dataUpdated);
    if (mask & Reason::ConfigurationReason) {
        connect(CalendarConf::instance(), &CalendarConf::dataUpdated, this,
                &Container::configUpdated, Qt::UniqueConnection);
    }
    const TimerService *time =
        mask & (Reason::DateReason | Reason::HourReason | Reason::MinuteReason)
        ? TimerService::instance()
        : nullptr;
    if (mask & Reason::DateReason) {
        connect(time, &TimerService::dateChanged, this, &Container::dateChanged,
                Qt::UniqueConnection);
    }
    if (mask & Reason::HourReason) {
        connect(time, &TimerService::hourChanged, this, &Container::hourChanged,
                Qt::UniqueConnection);
    }
    if (mask & Reason::MinuteReason) {
        connect(time, &TimerService::minuteChanged, this, &Container::minuteChanged,
                Qt::UniqueConnection);
    }
    if (mask & Reason::NotebooksReason) {
        connect(NotebookManager::instance(), &NotebookManager::notebooksChanged, this,
                &Container::notebooksChanged);
    }
}

void VisibilityContainerWidgetPrivate::dataUpdated()
{
    note(Reason::DataReason);
}

void VisibilityContainerWidgetPrivate::configUpdated()
{
    note(Reason::ConfigurationReason);
}

void VisibilityContainerWidgetPrivate::dateChanged()
{
    note(Reason::DateReason);
}

void VisibilityContainerWidgetPrivate::hourChanged()
{
    note(Reason::HourReason);
}

void VisibilityContainerWidgetPrivate::minuteChanged()
{
    note(Reason::MinuteReason);
}

void VisibilityContainerWidgetPrivate::notebooksChanged()
{
    note(Reason::NotebooksReason);
}

void VisibilityContainerWidgetPrivate::note(unsigned int reason)
{
    m_pendingReasons |= reason;
    if (m_isDisplayed)
        Q_EMIT updateChild();
}

void VisibilityContainerWidgetPrivate::enterDisplayEvent()
{
    MWidget::enterDisplayEvent();
    m_isDisplayed = true;
    if (m_pendingReasons != 0)
        Q_EMIT updateChild();
}

void VisibilityContainerWidgetPrivate::exitDisplayEvent()
{
    m_isDisplayed = false;
    MWidget::exitDisplayEvent();
}

/// Several signals in one turn of the event loop queue several calls; the first one takes all
/// reasons.
void VisibilityContainerWidgetPrivate::queuedUpdateChild()
{
    if (m_pendingReasons == 0 || !m_childWidget)
        return;
    const QPointer<Container> stillThere(this);
    m_child->notifyUpdate(m_pendingReasons);
    if (stillThere)
        m_pendingReasons = 0;
}
