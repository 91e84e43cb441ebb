// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MAPPLICATION_H
#define TOUCHCORE_MAPPLICATION_H

#include <QApplication>

class MWindow;

/// The program, one for each process. Made first in main() and on its stack.
///
/// It lets everything be drawn in the pixels of the screen.
class MApplication : public QApplication
{
    Q_OBJECT

public:
    /// As QApplication.
    MApplication(int &argc, char **argv);
    ~MApplication() override;

    /// The window that the person uses: the active one, else the one that was active last, else the
    /// one made first; null when there is none.
    static MWindow *activeWindow();
    /// The same: all windows are windows of the program.
    static MWindow *activeApplicationWindow();

    /// Whether the program was started ahead of time, to be there at once when it is wanted: its
    /// windows stay hidden until it no longer is. Off by default.
    static void setPrestarted(bool isPrestarted);
    static bool isPrestarted();

Q_SIGNALS:
    void prestartedChanged(bool isPrestarted);

private:
    static bool s_isPrestarted;
};

#endif
