// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_WHEELWATCHER_H
#define TOUCHCORE_WHEELWATCHER_H

#include <QObject>
#include <QPoint>

class QWidget;

/// Keeps the exact distance of the wheel event that is being delivered: the event that a graphics
/// scene gets tells the angle only.
class WheelWatcher : public QObject
{
    Q_OBJECT

public:
    /// Watches the widget in which a scene is shown; again is fine.
    static void watch(QWidget *widget);
    /// Pixels of the event under way; null when its device tells only an angle.
    static QPoint pixelDelta();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    explicit WheelWatcher(QObject *parent) : QObject(parent) { }
    static WheelWatcher *instance();

    QPoint m_pixelDelta;
};

#endif
