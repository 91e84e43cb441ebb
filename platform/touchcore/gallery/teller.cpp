// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "teller.h"

#include <touchcore/mbutton.h>
#include <touchcore/mlistitem.h>
#include <touchcore/mpannableviewport.h>
#include <touchcore/mphysics2dpanning.h>
#include <touchcore/mscenemanager.h>
#include <touchcore/mscenewindow.h>
#include <touchcore/mtextedit.h>
#include <touchcore/mwindow.h>

#include <QTimerEvent>

#include <cstdio>

namespace
{
const int interval = 40;

/// What a person calls it.
QString nameOf(const QGraphicsObject &widget)
{
    for (const char *property : {"prompt", "text"}) {
        QString name = widget.property(property).toString();
        if (!name.isEmpty())
            return name;
    }
    if (!widget.objectName().isEmpty())
        return widget.objectName();
    const QList<QGraphicsItem *> children = widget.childItems();
    for (const QGraphicsItem *child : children) {
        const QGraphicsObject *object = child->toGraphicsObject();
        QString name = object ? nameOf(*object) : QString();
        if (!name.isEmpty())
            return name;
    }
    return {};
}

/// Whether one would tap it.
bool isControl(const QGraphicsObject *object)
{
    return qobject_cast<const MButton *>(object) || qobject_cast<const MTextEdit *>(object)
        || qobject_cast<const MListItem *>(object);
}

void addPlaces(const QGraphicsItem *item, QStringList *lines)
{
    const QList<QGraphicsItem *> children = item->childItems();
    for (const QGraphicsItem *child : children) {
        const QGraphicsObject *object = child->toGraphicsObject();
        if (child->isVisible() && isControl(object) && !nameOf(*object).isEmpty()) {
            const QPointF middle = child->mapToScene(child->boundingRect().center());
            lines->append(QStringLiteral("place %1 %2 %3")
                              .arg(qRound(middle.x()))
                              .arg(qRound(middle.y()))
                              .arg(nameOf(*object)));
        }
        addPlaces(child, lines);
    }
}

MPannableViewport *viewportIn(const QGraphicsItem *item)
{
    const QList<QGraphicsItem *> children = item->childItems();
    for (QGraphicsItem *child : children) {
        auto *viewport = qobject_cast<MPannableViewport *>(child->toGraphicsObject());
        if (!viewport)
            viewport = viewportIn(child);
        if (viewport)
            return viewport;
    }
    return nullptr;
}
} // namespace

Teller::Teller(MWindow *window) : QObject(window), m_window(window)
{
    startTimer(interval);
}

void Teller::timerEvent(QTimerEvent *)
{
    say(&m_orientation,
        m_window->orientation() == M::Landscape ? QStringLiteral("orientation landscape")
                                                : QStringLiteral("orientation portrait"));
    const QString top = topLine();
    if (top.isEmpty())
        return;
    if (top != m_top) {
        m_position.clear();
        m_places.clear();
        m_focus.clear();
    }
    say(&m_top, top);
    say(&m_position, positionLine());
    say(&m_places, placeLines());
    say(&m_focus, focusLine());
}

void Teller::say(QString *last, const QString &line)
{
    if (line.isEmpty() || line == *last)
        return;
    *last = line;
    std::printf("%s\n", qUtf8Printable(line));
    std::fflush(stdout);
}

QString Teller::topLine() const
{
    const MSceneWindow *top = m_window->sceneManager()->topWindow();
    if (!top || top->sceneWindowState() != MSceneWindow::Appeared)
        return {};
    return QStringLiteral("top %1 %2")
        .arg(QString::fromLatin1(top->metaObject()->className()),
             top->property("title").toString());
}

/// Nothing while it moves: only where it comes to rest counts.
QString Teller::positionLine() const
{
    const MSceneWindow *top = m_window->sceneManager()->topWindow();
    const MPannableViewport *viewport = top ? viewportIn(top) : nullptr;
    if (!viewport || viewport->physics()->isMoving())
        return {};
    return QStringLiteral("position %1").arg(qRound(viewport->position().y()));
}

QString Teller::placeLines() const
{
    QStringList lines;
    addPlaces(m_window->sceneManager()->topWindow(), &lines);
    return lines.join(QLatin1Char('\n'));
}

/// Which control the keys go to, and what is written there.
QString Teller::focusLine() const
{
    const QGraphicsItem *focused = m_window->scene()->focusItem();
    if (!focused)
        return QStringLiteral("focus nowhere");
    const QGraphicsItem *item = focused;
    while (item && !isControl(item->toGraphicsObject()))
        item = item->parentItem();
    if (!item) {
        const QGraphicsObject *object = focused->toGraphicsObject();
        return QStringLiteral("focus a %1")
            .arg(QString::fromLatin1(object ? object->metaObject()->className() : "QGraphicsItem"));
    }
    const auto *edit = qobject_cast<const MTextEdit *>(item->toGraphicsObject());
    return edit ? QStringLiteral("focus %1: %2").arg(edit->prompt(), edit->text())
                : QStringLiteral("focus %1").arg(nameOf(*item->toGraphicsObject()));
}
