// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "wheelwatcher.h"

#include <QCoreApplication>
#include <QPointer>
#include <QWheelEvent>
#include <QWidget>

void WheelWatcher::watch(QWidget *widget)
{
    widget->installEventFilter(instance());
}

QPoint WheelWatcher::pixelDelta()
{
    return instance()->m_pixelDelta;
}

bool WheelWatcher::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Wheel)
        m_pixelDelta = static_cast<QWheelEvent *>(event)->pixelDelta();
    return QObject::eventFilter(watched, event);
}

WheelWatcher *WheelWatcher::instance()
{
    static QPointer<WheelWatcher> watcher;
    if (!watcher)
        watcher = new WheelWatcher(QCoreApplication::instance());
    return watcher;
}
