// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_PAGESWITCHER_H
#define DASKEL_PAGESWITCHER_H

#include <QObject>

#include <memory>

class MApplicationPage;
class MDialog;
class MSceneWindow;
class MSheet;
class PageSwitcherPrivate;

/// The way through the application: shows pages and sheets one above the other and goes back.
///
/// One per process, on the UI thread. It keeps its own stack of what was shown; the windows belong
/// to whoever made them, and one that is deleted leaves the stack. Leaving the last page ends the
/// application.
class PageSwitcher : public QObject
{
    Q_OBJECT

public:
    static PageSwitcher *instance();
    ~PageSwitcher() override;

    /// Shows a page on top. The content of a LazyLoadPageIFace is made now. Nothing happens when
    /// the page is on top already (with \a clearHistory: when it is the only one).
    ///
    /// \a clearHistory: first leaves everything shown so far, at once. \a immediate: without
    /// animation. The first page of the stack gets a close button, the others a back button.
    void showPage(MApplicationPage *page, bool clearHistory, bool immediate);
    /// The same for a sheet, which keeps its own way of being closed.
    void showPage(MSheet *sheet, bool clearHistory, bool immediate);
    /// Shows the top of the stack (again).
    void showLatestPage(bool immediate);

    /// The top of the stack, null when it is empty.
    MSceneWindow *latestWindow() const;
    /// The top of the stack when it is a page, else null.
    MApplicationPage *latestPage() const;
    /// The window \a n places below the top (0 is the top), null when there are not that many.
    MSceneWindow *pageFromTop(int n) const;

    /// Takes \a count windows from the top; none below 1. They are dismissed, at once when
    /// \a immediate; the one below is not shown yet.
    void popPages(int count, bool immediate);

    /// Has the topmost sheet hidden when control is back in the event loop.
    void hideTopSheetPage();
    /// The next window is shown with the animation of the toolkit's page history, even when it is
    /// to be shown at once.
    void forceAnimationNextTime();

    // Dialogs that go with the pages: questions that make no sense once their page has gone.

    void registerAutokillDialog(MDialog *dialog);
    void unregisterAutokillDialog(MDialog *dialog);
    /// Closes those of the registered dialogs that are shown.
    void killDialogs();

public Q_SLOTS:
    /// One step back, unless the content of the page (a PageSwitchObserverIface) refuses.
    void backClicked();
    void hideTopSheetPageNow();
    void dialogDestroyed(QObject *dialog);

private:
    friend class PageSwitcherPrivate;
    PageSwitcher();
    void forgetWindow(QObject *window);

    std::unique_ptr<PageSwitcherPrivate> d;
};

#endif
