// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_ACCESSIBLEWINDOW_H
#define TOUCHCORE_ACCESSIBLEWINDOW_H

#include <QAccessibleWidget>

class MSceneWindow;
class MWindow;

/// A window of the program: its children are the scene windows that the person can use now.
class AccessibleWindow : public QAccessibleWidget
{
public:
    /// Also tells from now on where the keyboard's focus goes inside the window.
    explicit AccessibleWindow(MWindow *window);

    QAccessibleInterface *child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *focusChild() const override;

private:
    /// From the lowest up, without what is covered.
    QList<MSceneWindow *> usableWindows() const;
    MWindow *shell() const;
};

#endif
