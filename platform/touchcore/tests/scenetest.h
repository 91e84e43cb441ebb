// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef SCENETEST_H
#define SCENETEST_H

#include <touchcore/mapplication.h>
#include <touchcore/mapplicationpage.h>
#include <touchcore/mscenemanager.h>
#include <touchcore/mwindow.h>

#include <QGraphicsWidget>
#include <QtTest>

/// A shown and active window of a phone, with transitions that end at once.
class SceneTest : public MWindow
{
public:
    explicit SceneTest(const QSize &size = QSize(480, 800))
    {
        MSceneManager::setAnimationsEnabled(false);
        resize(size);
        show();
        isActive = QTest::qWaitForWindowActive(this);
    }

    /// A page that the window owns, with one widget that takes the focus.
    static MApplicationPage *makePage(const QString &title = QString())
    {
        auto *page = new MApplicationPage;
        page->setTitle(title);
        auto *central = new QGraphicsWidget;
        central->setFocusPolicy(Qt::StrongFocus);
        page->setCentralWidget(central);
        return page;
    }

    QPoint viewPoint(const QGraphicsItem *item, const QPointF &position) const
    {
        return mapFromScene(item->mapToScene(position));
    }
    QPoint centerOf(const QGraphicsWidget *widget) const
    {
        return viewPoint(widget, widget->rect().center());
    }
    void press(const QPoint &point)
    {
        QTest::mousePress(viewport(), Qt::LeftButton, Qt::NoModifier, point);
    }
    void release(const QPoint &point)
    {
        QTest::mouseRelease(viewport(), Qt::LeftButton, Qt::NoModifier, point);
    }
    void tap(const QPoint &point)
    {
        press(point);
        release(point);
    }
    void tap(const QGraphicsWidget *widget) { tap(centerOf(widget)); }
    void key(int code, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(this, Qt::Key(code), modifiers);
    }

    bool isActive = false;
};

/// A test of scene windows needs the program's own application object.
#define SCENE_TEST_MAIN(Test)                                                                      \
    int main(int argc, char **argv)                                                                \
    {                                                                                              \
        MApplication application(argc, argv);                                                      \
        Test test;                                                                                 \
        return QTest::qExec(&test, argc, argv);                                                    \
    }

#endif
