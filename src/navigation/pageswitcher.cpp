// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "daskelassert.h"
#include "pageswitcher_p.h"

#include <daskel/lazyloadpageiface.h>
#include <daskel/lazyloadsheetiface.h>
#include <daskel/pageswitcher.h>
#include <daskel/pageswitchobserveriface.h>
#include <touchcore/mapplication.h>
#include <touchcore/mapplicationpage.h>
#include <touchcore/mdialog.h>
#include <touchcore/mpannableviewport.h>
#include <touchcore/mscenemanager.h>
#include <touchcore/msheet.h>
#include <touchcore/mwindow.h>

#include <QCoreApplication>
#include <QGraphicsLinearLayout>
#include <QPointer>
#include <QTimer>

#include <utility>

namespace
{
/// The part of a page that pans: below a header, or alone.
MPannableViewport *viewportIn(QGraphicsLinearLayout *layout)
{
    const int index = layout->count() >= 2 ? 1 : 0;
    return layout->count() > 0 ? dynamic_cast<MPannableViewport *>(layout->itemAt(index)) : nullptr;
}
} // namespace

MSceneManager *PageSwitcherPrivate::sceneManager()
{
    MWindow *window = MApplication::activeApplicationWindow();
    return window ? window->sceneManager() : nullptr;
}

bool PageSwitcherPrivate::isAlreadyShown(MSceneWindow *window, bool clearHistory) const
{
    return !lastPages.isEmpty() && lastPages.last() == window
        && (!clearHistory || lastPages.size() == 1);
}

void PageSwitcherPrivate::push(MSceneWindow *window, bool immediate)
{
    QObject::connect(window, &QObject::destroyed, q, &PageSwitcher::forgetWindow,
                     Qt::UniqueConnection);
    lastPages.append(window);
    // The window manager's button goes the same way as the back key.
    if (MWindow *shell = MApplication::activeApplicationWindow()) {
        QObject::connect(shell, &MWindow::closeRequested, shell, &MWindow::goBack,
                         Qt::UniqueConnection);
    }
    q->showLatestPage(immediate);
}

bool PageSwitcherPrivate::findObserver(MSceneWindow *window, PageSwitchObserverIface **observer)
{
    QGraphicsWidget *candidate = nullptr;
    if (auto *page = qobject_cast<MApplicationPage *>(window)) {
        candidate = page->centralWidget();
        if (!candidate) {
            qWarning("There is no central widget on LastPage");
            return false;
        }
        if (auto *layout = dynamic_cast<QGraphicsLinearLayout *>(candidate->layout())) {
            MPannableViewport *viewport = viewportIn(layout);
            if (!viewport) {
                qWarning("A dynamic cast returned NULL. Please check why!");
                return false;
            }
            candidate = viewport->widget();
        }
    } else if (auto *sheet = qobject_cast<MSheet *>(window)) {
        auto *viewport = qobject_cast<MPannableViewport *>(sheet->centralWidget());
        candidate = viewport ? viewport->widget() : nullptr;
    } else {
        qWarning("Neither page nor sheet is not available");
    }
    *observer = dynamic_cast<PageSwitchObserverIface *>(candidate);
    return true;
}

PageSwitcher *PageSwitcher::instance()
{
    static PageSwitcher switcher;
    return &switcher;
}

PageSwitcher::PageSwitcher() : d(std::make_unique<PageSwitcherPrivate>(this)) { }

PageSwitcher::~PageSwitcher() = default;

void PageSwitcher::showPage(MApplicationPage *page, bool clearHistory, bool immediate)
{
    if (d->isAlreadyShown(page, clearHistory))
        return;
    if (auto *lazyPage = dynamic_cast<LazyLoadPageIFace *>(page))
        lazyPage->ensureContent();
    if (clearHistory)
        popPages(d->lastPages.size(), true);
    if (d->lastPages.isEmpty()) {
        page->setEscapeMode(MApplicationPageModel::EscapeClose);
    } else {
        page->setEscapeMode(MApplicationPageModel::EscapeBack);
        hideTopSheetPage();
    }
    connect(page, &MApplicationPage::backButtonClicked, this, &PageSwitcher::backClicked,
            Qt::UniqueConnection);
    d->push(page, clearHistory || immediate);
}

void PageSwitcher::showPage(MSheet *sheet, bool clearHistory, bool immediate)
{
    if (d->isAlreadyShown(sheet, clearHistory))
        return;
    auto *lazySheet = qobject_cast<LazyLoadSheetIFace *>(sheet);
    if (lazySheet && !lazySheet->hasContent())
        lazySheet->createContent();
    if (clearHistory)
        popPages(d->lastPages.size(), true);
    connect(sheet, &MSheet::backRequested, this, &PageSwitcher::backClicked, Qt::UniqueConnection);
    d->push(sheet, clearHistory || immediate);
}

void PageSwitcher::showLatestPage(bool immediate)
{
    if (d->lastPages.isEmpty()) {
        qWarning("Trying to show an inexistant page");
        return;
    }
    MSceneWindow *latest = d->lastPages.last();
    MSceneManager *manager = d->sceneManager();
    const bool isForced = std::exchange(d->forceAnimation, false);
    if (isForced && manager)
        manager->setPageHistory(d->lastPages.toList());
    if (!isForced && immediate && manager)
        manager->appearSceneWindowNow(latest);
    else
        latest->appear(MApplication::activeApplicationWindow(), MSceneWindow::KeepWhenDone);
    MApplication::setPrestarted(false);
}

MSceneWindow *PageSwitcher::latestWindow() const
{
    return pageFromTop(0);
}

MApplicationPage *PageSwitcher::latestPage() const
{
    return qobject_cast<MApplicationPage *>(latestWindow());
}

MSceneWindow *PageSwitcher::pageFromTop(int n) const
{
    return d->lastPages.value(n < 0 ? -1 : d->lastPages.size() - 1 - n, nullptr);
}

void PageSwitcher::popPages(int count, bool immediate)
{
    MSceneManager *manager = d->sceneManager();
    for (int i = 0; i < count && !d->lastPages.isEmpty(); ++i) {
        const QPointer<MSceneWindow> top = d->lastPages.last();
        if (!d->forceAnimation && manager) {
            if (immediate)
                manager->dismissSceneWindowNow(top);
            else
                manager->dismissSceneWindow(top);
        }
        // A window that is deleted when it is dismissed has left the stack by itself.
        if (!top)
            continue;
        DASKEL_ASSERT(d->lastPages.size() > 0, "pageswitcher", 174);
        d->lastPages.removeAt(d->lastPages.lastIndexOf(top));
    }
}

void PageSwitcher::backClicked()
{
    // A second step is not asked for while the question about the first one is still open.
    if (d->isAskingObserver)
        return;
    MSceneWindow *left = latestWindow();
    PageSwitchObserverIface *observer = nullptr;
    if (!PageSwitcherPrivate::findObserver(left, &observer))
        return;
    if (observer) {
        d->isAskingObserver = true;
        const bool mayGo = observer->aboutToGoBack();
        d->isAskingObserver = false;
        // What was asked about may have gone while the person thought about the answer.
        if (!mayGo || latestWindow() != left)
            return;
    }
    popPages(1, false);
    if (d->lastPages.isEmpty())
        QCoreApplication::quit();
    else
        showLatestPage(false);
}

void PageSwitcher::forgetWindow(QObject *window)
{
    d->forget(&d->lastPages, window);
}

void PageSwitcher::hideTopSheetPage()
{
    QTimer::singleShot(0, this, &PageSwitcher::hideTopSheetPageNow);
}

void PageSwitcher::hideTopSheetPageNow()
{
    if (d->lastPages.size() < 2)
        return;
    auto *sheet = qobject_cast<MSheet *>(d->lastPages.last());
    // The bottom of the stack is never hidden: nothing would be left.
    for (int i = 1; !sheet && i < d->lastPages.size(); ++i)
        sheet = qobject_cast<MSheet *>(d->lastPages.at(i));
    MSceneManager *manager = d->sceneManager();
    if (sheet && manager)
        manager->disappearSceneWindow(sheet);
}

void PageSwitcher::forceAnimationNextTime()
{
    d->forceAnimation = true;
}

void PageSwitcher::registerAutokillDialog(MDialog *dialog)
{
    connect(dialog, &QObject::destroyed, this, &PageSwitcher::dialogDestroyed);
    d->autokillDialogs.append(dialog);
}

void PageSwitcher::unregisterAutokillDialog(MDialog *dialog)
{
    d->autokillDialogs.removeAll(dialog);
}

void PageSwitcher::dialogDestroyed(QObject *dialog)
{
    d->forget(&d->autokillDialogs, dialog);
}

void PageSwitcher::killDialogs()
{
    // A copy: closing a dialog may delete it or others.
    const QList<MDialog *> dialogs = d->autokillDialogs;
    for (MDialog *dialog : dialogs) {
        if (d->autokillDialogs.contains(dialog)
            && dialog->sceneWindowState() == MSceneWindow::Appeared)
            dialog->reject();
    }
}
