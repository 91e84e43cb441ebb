// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "navigationwindow.h"
#include "testtable.h"
#include "warningcapture.h"

#include <daskel/pageswitchobserveriface.h>
#include <touchcore/mapplication.h>
#include <touchcore/mlabel.h>
#include <touchcore/mpannableviewport.h>

#include <QAction>
#include <QGraphicsLinearLayout>
#include <QTimer>

#include <functional>
#include <memory>

namespace
{
/// The content of an editor, which may refuse to be left.
class Editor : public MWidget, public PageSwitchObserverIface
{
public:
    bool aboutToGoBack() override
    {
        ++timesAsked;
        if (whenAsked)
            whenAsked();
        return mayGo;
    }

    bool mayGo = true;
    int timesAsked = 0;
    std::function<void()> whenAsked;
};

QGraphicsWidget *inLayout(const QList<QGraphicsWidget *> &parts)
{
    auto *content = new MWidget;
    auto *layout = new QGraphicsLinearLayout(Qt::Vertical, content);
    for (QGraphicsWidget *part : parts)
        layout->addItem(part);
    return content;
}

MPannableViewport *panning(QGraphicsWidget *content)
{
    auto *viewport = new MPannableViewport;
    viewport->setWidget(content);
    return viewport;
}

/// Makes the content of a page or sheet around an editor; an editor that is left out is deleted.
using Content = QGraphicsWidget *(*)(Editor *);
/// A way to go back.
using Way = void (*)(NavigationWindow *);
} // namespace
Q_DECLARE_METATYPE(Content)
Q_DECLARE_METATYPE(Way)

class TestPageSwitcherBack : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { m_shown = std::make_unique<NavigationWindow>(); }
    void cleanup() { m_shown.reset(); }

    void asksThePage_data();
    void asksThePage();
    void asksTheSheet_data();
    void asksTheSheet();
    void everyWayBackAsks_data();
    void everyWayBackAsks();
    void asksOneQuestionAtATime();
    void staysWhenThePageWentWhileAsked();
    void endsTheApplicationBehindTheLastPage();
    void endsTheApplicationWithoutAPage();

private:
    void setContent(QGraphicsWidget *content);

    std::unique_ptr<NavigationWindow> m_shown;
};

void TestPageSwitcherBack::asksThePage_data()
{
    addColumns<Content, bool, QString, QString>("content", "isAsked", "warning", "left");

    const QString unleft = QStringLiteral("AB");
    const QString back = QStringLiteral("A");
    const auto row = [](const char *name, Content content, bool isAsked, const char *warning,
                        const QString &left) {
        addRow(name, content, isAsked, QString::fromLatin1(warning), left);
    };
    const char strange[] = "A dynamic cast returned NULL. Please check why!";
    row(
        "the content itself", [](Editor *editor) -> QGraphicsWidget * { return editor; }, true, "",
        unleft);
    row(
        "below a header",
        [](Editor *editor) {
            return inLayout({new MWidget, panning(editor)});
        },
        true, "", unleft);
    row(
        "between header and bar",
        [](Editor *editor) {
            return inLayout({new MWidget, panning(editor), new MWidget});
        },
        true, "", unleft);
    row(
        "panning alone", [](Editor *editor) { return inLayout({panning(editor)}); }, true, "",
        unleft);
    row(
        "panning that is not in the second place",
        [](Editor *editor) {
            return inLayout({panning(editor), new MWidget});
        },
        false, strange, unleft);
    row(
        "not panning at all", [](Editor *editor) { return inLayout({editor}); }, false, strange,
        unleft);
    row(
        "an empty layout",
        [](Editor *editor) {
            delete editor;
            return inLayout({});
        },
        false, strange, unleft);
    row(
        "nothing that pans",
        [](Editor *editor) {
            delete editor;
            return inLayout({panning(nullptr)});
        },
        false, "", back);
    row(
        "nobody to ask",
        [](Editor *editor) -> QGraphicsWidget * {
            delete editor;
            return new MWidget;
        },
        false, "", back);
    row(
        "no content",
        [](Editor *editor) -> QGraphicsWidget * {
            delete editor;
            return nullptr;
        },
        false, "There is no central widget on LastPage", unleft);
}

void TestPageSwitcherBack::asksThePage()
{
    QFETCH(Content, content);
    QFETCH(bool, isAsked);
    QFETCH(QString, warning);
    const QPointer<Editor> editor(new Editor);
    editor->mayGo = false;
    m_shown->page('B')->setCentralWidget(content(editor));
    m_shown->showAll(QStringLiteral("AB"));
    WarningCapture capture;
    PageSwitcher::instance()->backClicked();
    QCOMPARE(capture.take().join(QLatin1Char('\n')), warning);
    QCOMPARE(editor && editor->timesAsked == 1, isAsked);
    QTEST(NavigationWindow::stack(), "left");
    QVERIFY(PageSwitcher::instance()->latestWindow()->isOnDisplay());
    if (isAsked) {
        editor->mayGo = true;
        PageSwitcher::instance()->backClicked();
        QCOMPARE(NavigationWindow::stack(), QStringLiteral("A"));
        QVERIFY(m_shown->named('A')->isOnDisplay());
    }
}

void TestPageSwitcherBack::asksTheSheet_data()
{
    addColumns<Content, QString>("content", "left");
    const auto row = [](const char *name, Content content, const char *left) {
        addRow(name, content, QString::fromLatin1(left));
    };
    row(
        "panning", [](Editor *editor) -> QGraphicsWidget * { return panning(editor); }, "AS");
    row(
        "not panning", [](Editor *editor) -> QGraphicsWidget * { return editor; }, "A");
    row(
        "no content",
        [](Editor *editor) -> QGraphicsWidget * {
            delete editor;
            return nullptr;
        },
        "A");
}

void TestPageSwitcherBack::asksTheSheet()
{
    QFETCH(Content, content);
    auto *editor = new Editor;
    editor->mayGo = false;
    m_shown->sheet('S')->setCentralWidget(content(editor));
    m_shown->showAll(QStringLiteral("AS"));
    PageSwitcher::instance()->backClicked();
    QTEST(NavigationWindow::stack(), "left");
}

void TestPageSwitcherBack::everyWayBackAsks_data()
{
    addColumns<QChar, Way>("name", "goBack");

    const Way key = [](NavigationWindow *shown) { QTest::keyClick(&shown->window, Qt::Key_Back); };
    const Way escape = [](NavigationWindow *shown) {
        QTest::keyClick(&shown->window, Qt::Key_Escape);
    };
    const Way close = [](NavigationWindow *shown) { shown->window.close(); };
    addRow("the page's button", QChar('B'),
           Way([](NavigationWindow *shown) { Q_EMIT shown->page('B')->backButtonClicked(); }));
    addRow("the back key on a page", QChar('B'), key);
    addRow("Escape on a page", QChar('B'), escape);
    addRow("closing the window on a page", QChar('B'), close);
    addRow("the back key on a sheet", QChar('S'), key);
    addRow("Escape on a sheet", QChar('S'), escape);
    addRow("closing the window on a sheet", QChar('S'), close);
}

void TestPageSwitcherBack::everyWayBackAsks()
{
    QFETCH(QChar, name);
    QFETCH(Way, goBack);
    auto *editor = new Editor;
    editor->mayGo = false;
    if (MApplicationPage *page = m_shown->page(name))
        page->setCentralWidget(editor);
    else
        m_shown->sheet(name)->setCentralWidget(panning(editor));
    m_shown->show('A');
    // Shown twice: it still takes one step for one click.
    for (int round = 0; round < 2; ++round) {
        PageSwitcher::instance()->popPages(round, true);
        m_shown->show(name);
    }
    goBack(m_shown.get());
    QCOMPARE(editor->timesAsked, 1);
    QCOMPARE(NavigationWindow::stack(), QString(QLatin1Char('A')) + name);
    QVERIFY(m_shown->named(name)->isOnDisplay());
    QVERIFY(m_shown->window.isVisible());

    editor->mayGo = true;
    goBack(m_shown.get());
    QCOMPARE(NavigationWindow::stack(), QStringLiteral("A"));
    QVERIFY(m_shown->named('A')->isOnDisplay());
    QCOMPARE(m_shown->named(name)->sceneWindowState(), MSceneWindow::Disappeared);
    QVERIFY(m_shown->window.isVisible());
}

void TestPageSwitcherBack::asksOneQuestionAtATime()
{
    auto *editor = new Editor;
    editor->whenAsked = [] { PageSwitcher::instance()->backClicked(); };
    m_shown->page('C')->setCentralWidget(editor);
    m_shown->page('B')->setCentralWidget(new MWidget);
    m_shown->showAll(QStringLiteral("ABC"));
    PageSwitcher::instance()->backClicked();
    QCOMPARE(editor->timesAsked, 1);
    QCOMPARE(NavigationWindow::stack(), QStringLiteral("AB"));
}

void TestPageSwitcherBack::staysWhenThePageWentWhileAsked()
{
    auto *editor = new Editor;
    editor->whenAsked = [] { PageSwitcher::instance()->popPages(1, true); };
    m_shown->page('C')->setCentralWidget(editor);
    m_shown->showAll(QStringLiteral("ABC"));
    PageSwitcher::instance()->backClicked();
    QCOMPARE(NavigationWindow::stack(), QStringLiteral("AB"));
}

void TestPageSwitcherBack::endsTheApplicationBehindTheLastPage()
{
    m_shown->page('A')->setCentralWidget(new MWidget);
    m_shown->show('A');
    QTimer::singleShot(0, m_shown->page('A'), &MApplicationPage::backButtonClicked);
    // Returns only when the application is told to quit.
    QCOMPARE(MApplication::exec(), 0);
    QCOMPARE(NavigationWindow::stack(), QString());
}

void TestPageSwitcherBack::endsTheApplicationWithoutAPage()
{
    QTimer::singleShot(0, PageSwitcher::instance(), &PageSwitcher::backClicked);
    WarningCapture capture;
    QCOMPARE(MApplication::exec(), 0);
    QCOMPARE(capture.take(),
             QStringList{QStringLiteral("Neither page nor sheet is not available")});
}

int main(int argc, char **argv)
{
    MApplication application(argc, argv);
    TestPageSwitcherBack test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_pageswitcherback.moc"
