// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "navigationwindow.h"
#include "testtable.h"
#include "warningcapture.h"

#include <daskel/lazyloadpageiface.h>
#include <daskel/lazyloadsheetiface.h>
#include <touchcore/mapplication.h>
#include <touchcore/mdialog.h>

#include <QSignalSpy>

#include <memory>

namespace
{
class LazyPage : public MApplicationPage, public LazyLoadPageIFace
{
public:
    int timesMade = 0;

protected:
    void createContent() override
    {
        // Made before anybody sees the page.
        if (sceneWindowState() == Disappeared)
            ++timesMade;
    }
};

class LazySheet : public LazyLoadSheetIFace
{
public:
    int timesMade = 0;

    void createContent() override { ++timesMade; }
    bool hasContent() const override { return timesMade > 0; }
};
} // namespace

class TestPageSwitcher : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { m_shown = std::make_unique<NavigationWindow>(); }
    void cleanup() { m_shown.reset(); }

    void keepsAStack_data();
    void keepsAStack();
    void findsItsWindows();
    void choosesTheLeavingButton();
    void popsPages_data();
    void popsPages();
    void hidesTheTopSheet_data();
    void hidesTheTopSheet();
    void aPageHidesTheSheetBelow();
    void forcesTheAnimation();
    void warnsWithoutAPage();
    void endsThePrestart();
    void makesContentWhenFirstShown();
    void forgetsWindowsThatAreDeleted();
    void closesDialogs();
    void forgetsDialogs();

private:
    static PageSwitcher *switcher() { return PageSwitcher::instance(); }

    std::unique_ptr<NavigationWindow> m_shown;
};

void TestPageSwitcher::keepsAStack_data()
{
    addColumns<QString, QChar, bool, QString>("before", "name", "clears", "after");
    const auto row = [](const char *name, const char *before, char shown, bool clears,
                        const char *after) {
        addRow(name, QString::fromLatin1(before), QChar::fromLatin1(shown), clears,
               QString::fromLatin1(after));
    };
    row("the first page", "", 'A', false, "A");
    row("another page", "A", 'B', false, "AB");
    row("the page on top", "AB", 'B', false, "AB");
    row("a page from below", "AB", 'A', false, "ABA");
    row("a sheet", "A", 'S', false, "AS");
    row("the sheet on top", "AS", 'S', false, "AS");
    row("a page over a sheet", "AS", 'B', false, "ASB");
    row("clearing, another page", "ABS", 'C', true, "C");
    row("clearing, the page on top", "AB", 'B', true, "B");
    row("clearing, the only page", "A", 'A', true, "A");
    row("clearing, a sheet", "AB", 'S', true, "S");
}

void TestPageSwitcher::keepsAStack()
{
    QFETCH(QString, before);
    QFETCH(QChar, name);
    QFETCH(bool, clears);
    m_shown->showAll(before);
    m_shown->show(name, clears);
    QTEST(NavigationWindow::stack(), "after");
    QCoreApplication::processEvents(); // a sheet below goes
    QCOMPARE(m_shown->named(name)->sceneWindowState(), MSceneWindow::Appeared);
    QVERIFY(m_shown->named(name)->isOnDisplay());
}

void TestPageSwitcher::findsItsWindows()
{
    QCOMPARE(switcher()->latestWindow(), nullptr);
    QCOMPARE(switcher()->latestPage(), nullptr);
    m_shown->showAll(QStringLiteral("ABS"));
    QCOMPARE(switcher()->latestWindow(), m_shown->named('S'));
    QCOMPARE(switcher()->latestPage(), nullptr);
    QCOMPARE(switcher()->pageFromTop(0), m_shown->named('S'));
    QCOMPARE(switcher()->pageFromTop(2), m_shown->named('A'));
    QCOMPARE(switcher()->pageFromTop(3), nullptr);
    QCOMPARE(switcher()->pageFromTop(-1), nullptr);
    switcher()->popPages(1, true);
    QCOMPARE(switcher()->latestPage(), m_shown->page('B'));
}

/// The first page closes the application, the others lead back.
void TestPageSwitcher::choosesTheLeavingButton()
{
    m_shown->showAll(QStringLiteral("AB"));
    QCOMPARE(int(m_shown->page('A')->escapeMode()), 2);
    QCOMPARE(int(m_shown->page('B')->escapeMode()), 1);
    m_shown->show('B', true);
    QCOMPARE(int(m_shown->page('B')->escapeMode()), 2);
    m_shown->show('A');
    QCOMPARE(int(m_shown->page('A')->escapeMode()), 1);
}

void TestPageSwitcher::popsPages_data()
{
    addColumns<int, QString>("count", "left");
    addRow("none", 0, QStringLiteral("ABC"));
    addRow("below none", -1, QStringLiteral("ABC"));
    addRow("two", 2, QStringLiteral("A"));
    addRow("all", 3, QString());
    addRow("more than there are", 5, QString());
}

void TestPageSwitcher::popsPages()
{
    QFETCH(int, count);
    QFETCH(QString, left);
    m_shown->showAll(QStringLiteral("ABC"));
    switcher()->popPages(count, true);
    QCOMPARE(NavigationWindow::stack(), left);
    for (const char name : {'B', 'C'}) {
        if (!left.contains(QLatin1Char(name)))
            QCOMPARE(m_shown->named(name)->sceneWindowState(), MSceneWindow::Disappeared);
    }
}

void TestPageSwitcher::hidesTheTopSheet_data()
{
    addColumns<QString, QString>("shown", "hidden");
    addRow("on top", QStringLiteral("AS"), QStringLiteral("S"));
    addRow("below a page", QStringLiteral("ASB"), QStringLiteral("S"));
    addRow("the lower of two below a page", QStringLiteral("ASTB"), QStringLiteral("S"));
    addRow("the upper of two on top", QStringLiteral("AST"), QStringLiteral("T"));
    addRow("at the very bottom", QStringLiteral("SA"), QString());
    addRow("alone", QStringLiteral("S"), QString());
    addRow("none", QStringLiteral("AB"), QString());
}

void TestPageSwitcher::hidesTheTopSheet()
{
    QFETCH(QString, shown);
    for (const QChar name : shown)
        m_shown->show(name);
    QStringList hidden;
    const QObject untilTheEnd;
    for (const QChar name : shown) {
        connect(m_shown->named(name), &MSceneWindow::disappearing, &untilTheEnd,
                [&hidden, name] { hidden << name; });
    }
    switcher()->hideTopSheetPageNow();
    QTEST(hidden.join(QString()), "hidden");
    QCOMPARE(NavigationWindow::stack(), shown);
}

void TestPageSwitcher::aPageHidesTheSheetBelow()
{
    m_shown->page('B')->setCentralWidget(new MWidget);
    m_shown->showAll(QStringLiteral("AS"));
    m_shown->show('B');
    QCOMPARE(m_shown->named('S')->sceneWindowState(), MSceneWindow::Appeared);
    QTRY_COMPARE(m_shown->named('S')->sceneWindowState(), MSceneWindow::Disappeared);
    QCOMPARE(m_shown->named('B')->sceneWindowState(), MSceneWindow::Appeared);
    switcher()->backClicked();
    QCOMPARE(m_shown->named('S')->sceneWindowState(), MSceneWindow::Appeared);
}

/// The pages left behind stay until the next one appears, and go in its transition.
void TestPageSwitcher::forcesTheAnimation()
{
    m_shown->showAll(QStringLiteral("ABC"));
    switcher()->forceAnimationNextTime();
    switcher()->popPages(2, true);
    QCOMPARE(NavigationWindow::stack(), QStringLiteral("A"));
    QCOMPARE(m_shown->named('C')->sceneWindowState(), MSceneWindow::Appeared);
    switcher()->showLatestPage(true);
    QCOMPARE(m_shown->window.sceneManager()->pageHistory(),
             QList<MSceneWindow *>{m_shown->named('A')});
    QCOMPARE(m_shown->named('C')->sceneWindowState(), MSceneWindow::Disappeared);
    QVERIFY(m_shown->named('A')->isOnDisplay());
    // Used up: from now on pages go when they are popped.
    m_shown->show('B');
    switcher()->popPages(1, true);
    QCOMPARE(m_shown->named('B')->sceneWindowState(), MSceneWindow::Disappeared);
}

void TestPageSwitcher::warnsWithoutAPage()
{
    WarningCapture capture;
    switcher()->showLatestPage(true);
    QCOMPARE(capture.take(), QStringList{QStringLiteral("Trying to show an inexistant page")});
}

void TestPageSwitcher::endsThePrestart()
{
    MApplication::setPrestarted(true);
    m_shown->show('A');
    QVERIFY(!MApplication::isPrestarted());
}

void TestPageSwitcher::makesContentWhenFirstShown()
{
    LazyPage page;
    LazySheet sheet;
    m_shown->show('A');
    for (int round = 0; round < 2; ++round) {
        switcher()->showPage(&page, false, true);
        switcher()->showPage(&sheet, false, true);
        QCOMPARE(page.timesMade, 1);
        QCOMPARE(sheet.timesMade, 1);
        switcher()->popPages(2, true);
    }
}

void TestPageSwitcher::forgetsWindowsThatAreDeleted()
{
    m_shown->showAll(QStringLiteral("ABA"));
    delete m_shown->named('A');
    QCOMPARE(NavigationWindow::stack(), QStringLiteral("B"));
    m_shown->showAll(QStringLiteral("CD"));
    // Its own going deletes it.
    connect(m_shown->named('D'), &MSceneWindow::disappeared, m_shown->named('D'),
            &QObject::deleteLater);
    switcher()->popPages(1, true);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(NavigationWindow::stack(), QStringLiteral("BC"));
    delete m_shown->named('C');
    switcher()->showLatestPage(true);
    QVERIFY(m_shown->named('B')->isOnDisplay());
}

void TestPageSwitcher::closesDialogs()
{
    MDialog first;
    MDialog hidden;
    MDialog unregistered;
    auto *deletedByFirst = new MDialog;
    for (MDialog *dialog : {&first, &hidden, &unregistered, deletedByFirst, &first})
        switcher()->registerAutokillDialog(dialog);
    switcher()->unregisterAutokillDialog(&unregistered);
    for (MDialog *dialog : {&first, &unregistered, deletedByFirst})
        dialog->appear(&m_shown->window);
    QSignalSpy finished(&first, &MDialog::finished);
    QSignalSpy hiddenFinished(&hidden, &MDialog::finished);
    connect(&first, &MDialog::finished, &first, [deletedByFirst] { delete deletedByFirst; });
    switcher()->killDialogs();
    QCOMPARE(finished.count(), 1);
    QCOMPARE(first.sceneWindowState(), MSceneWindow::Disappeared);
    QCOMPARE(hiddenFinished.count(), 0);
    QCOMPARE(unregistered.sceneWindowState(), MSceneWindow::Appeared);
}

void TestPageSwitcher::forgetsDialogs()
{
    {
        MDialog dialog;
        switcher()->registerAutokillDialog(&dialog);
        switcher()->registerAutokillDialog(&dialog);
    }
    switcher()->killDialogs();
}

int main(int argc, char **argv)
{
    MApplication application(argc, argv);
    TestPageSwitcher test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_pageswitcher.moc"
