// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "teller.h"

#include <touchcore/mpannableviewport.h>
#include <touchcore/mphysics2dpanning.h>
#include <touchcore/mscenemanager.h>
#include <touchcore/mscenewindow.h>
#include <touchcore/mwindow.h>

#include <QTimerEvent>

#include <cstdio>

namespace
{
const int interval = 40;

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
    if (top != m_top)
        m_position.clear();
    say(&m_top, top);
    say(&m_position, positionLine());
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
