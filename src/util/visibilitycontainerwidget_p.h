// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_VISIBILITYCONTAINERWIDGET_P_H
#define DASKEL_VISIBILITYCONTAINERWIDGET_P_H

#include <touchcore/mwidget.h>

#include <QPointer>

class VisibilityNotificationIF;

/// Holds one view, collects the reasons to refresh it, and refreshes it from the event loop while
/// it can be seen.
class VisibilityContainerWidgetPrivate : public MWidget
{
    Q_OBJECT

public:
    /// \a child is an MWidget, too; it becomes a child of this container.
    VisibilityContainerWidgetPrivate(VisibilityNotificationIF *child, MWidget *parent);

Q_SIGNALS:
    void updateChild();

public Q_SLOTS:
    void dataUpdated();
    void configUpdated();
    void dateChanged();
    void hourChanged();
    void minuteChanged();
    void queuedUpdateChild();
    void notebooksChanged();

protected:
    void enterDisplayEvent() override;
    void exitDisplayEvent() override;

private:
    void listen(unsigned int mask);
    void note(unsigned int reason);

    VisibilityNotificationIF *m_child;
    QPointer<MWidget> m_childWidget; ///< the same object, null once it is deleted
    unsigned int m_pendingReasons = 0;
    bool m_isDisplayed = false;
};

#endif
