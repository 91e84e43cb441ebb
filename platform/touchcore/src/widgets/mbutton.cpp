// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "mbutton_p.h"
#include "press.h"

#include <touchcore/mbuttongroup.h>
#include <touchcore/mwidgetview.h>

#include <QGraphicsSceneMouseEvent>
#include <QKeyEvent>

MButton::MButton(QGraphicsItem *parent) : MButton(QString(), parent) { }

MButton::MButton(const QString &text, QGraphicsItem *parent)
    : MWidgetController(new MButtonModel, parent), d(std::make_unique<MButtonPrivate>())
{
    model()->setText(text);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

MButton::~MButton()
{
    if (d->group)
        d->group->forget(this);
}

QString MButton::text() const
{
    return model()->text();
}

void MButton::setText(const QString &text)
{
    model()->setText(text);
}

QString MButton::iconID() const
{
    return model()->iconID();
}

void MButton::setIconID(const QString &id)
{
    model()->setIconID(id);
}

bool MButton::isCheckable() const
{
    return model()->checkable();
}

void MButton::setCheckable(bool isCheckable)
{
    const MModelTransaction transaction(model());
    model()->setCheckable(isCheckable);
    if (!isCheckable)
        model()->setChecked(false);
}

bool MButton::isChecked() const
{
    return model()->checked();
}

bool MButton::isDown() const
{
    return model()->down();
}

MButtonGroup *MButton::group() const
{
    return d->group;
}

void MButton::setChecked(bool isChecked)
{
    if (isCheckable())
        model()->setChecked(isChecked);
}

void MButton::toggle()
{
    setChecked(!isChecked());
}

void MButton::click()
{
    if (!isEnabled())
        return;
    const QPointer<MButton> self(this);
    if (d->group && d->group->isExclusive())
        setChecked(true);
    else
        toggle();
    if (self)
        Q_EMIT clicked(isChecked());
}

void MButton::updateData(const QList<const char *> &modifications)
{
    MWidgetController::updateData(modifications);
    if (d->wasChecked == isChecked())
        return;
    d->wasChecked = isChecked();
    Q_EMIT toggled(d->wasChecked);
}

QSizeF MButton::sizeHint(Qt::SizeHint which, const QSizeF &constraint) const
{
    // The view answers also for a button with a layout of its own: it knows the target's least
    // size.
    const QSizeF laidOut = MWidgetController::sizeHint(which, constraint);
    if (!layout())
        return laidOut;
    const QSizeF own = view()->sizeHint(which, constraint);
    return which == Qt::MaximumSize ? laidOut : laidOut.expandedTo(own);
}

void MButton::changeEvent(QEvent *event)
{
    MWidgetController::changeEvent(event);
    if (event->type() == QEvent::EnabledChange) {
        letGo(false);
        // The base knows no other state than disabled.
        MWidgetController::updateData({"checked"});
    }
}

void MButton::hold()
{
    d->isHeld = true;
    model()->setDown(true);
    Q_EMIT pressed();
}

void MButton::letGo(bool isMeant)
{
    if (!d->isHeld)
        return;
    const QPointer<MButton> self(this);
    const bool isClick = isMeant && isDown();
    d->isHeld = false;
    model()->setDown(false);
    Q_EMIT released();
    if (self && isClick)
        click();
}

void MButton::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    event->setAccepted(event->button() == Qt::LeftButton);
    if (event->isAccepted())
        hold();
}

void MButton::mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event)
{
    // A quick second tap is a tap.
    mousePressEvent(event);
}

void MButton::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    if (d->isHeld)
        model()->setDown(isWithinReach(*this, event->pos()));
}

void MButton::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        letGo(true);
}

void MButton::keyPressEvent(QKeyEvent *event)
{
    if (!isTapKey(*event))
        MWidgetController::keyPressEvent(event);
    else if (!event->isAutoRepeat())
        hold();
}

void MButton::keyReleaseEvent(QKeyEvent *event)
{
    if (!isTapKey(*event))
        MWidgetController::keyReleaseEvent(event);
    else if (!event->isAutoRepeat())
        letGo(true);
}

void MButton::focusOutEvent(QFocusEvent *event)
{
    letGo(false);
    MWidgetController::focusOutEvent(event);
}

void MButton::ungrabMouseEvent(QEvent *event)
{
    letGo(false);
    MWidgetController::ungrabMouseEvent(event);
}

void MButton::hideEvent(QHideEvent *event)
{
    letGo(false);
    MWidgetController::hideEvent(event);
}

void MButton::cancelEvent()
{
    letGo(false);
}
