// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "notescreen.h"
#include "testtable.h"
#include "warningcapture.h"

#include <daskel/notelistwidgetwrapper.h>
#include <daskel/notewidget.h>
#include <touchcore/mlabel.h>

#include <QGraphicsLayout>
#include <QSignalSpy>

#include <memory>

namespace
{
const QDate today(2011, 3, 10);
}

class TestNoteListWidget : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void showsCellsOfEachKind();
    void marksTodaysHeader();
    void tellsTaps();
    void growsAtTheEdges_data();
    void growsAtTheEdges();
    void keepsRowsInPlace_data();
    void keepsRowsInPlace();
    void growsWithoutADirection_data();
    void growsWithoutADirection();
    void loadsNothingAfterItsOwnScroll();
    void switchesToADate_data();
    void switchesToADate();
    void letsUpdatesPass();
    void warnsOfTooManyPasses();
    void changesItsLoader();
    void selects_data();
    void selects();

    void wrapperShowsAText();

private:
    std::unique_ptr<NotesFixture> m_notes;
    std::unique_ptr<NoteScreen> m_screen;
};

void TestNoteListWidget::init()
{
    m_notes = std::make_unique<NotesFixture>();
    m_screen = std::make_unique<NoteScreen>();
}

void TestNoteListWidget::cleanup()
{
    m_screen.reset();
    m_notes.reset();
}

void TestNoteListWidget::showsCellsOfEachKind()
{
    NotesFixture::add(makeEvent("event", today.startOfDay(), today.startOfDay()));
    NotesFixture::add(makeTodo("todo", today.startOfDay()));
    NotesFixture::add(makeJournal("journal", today.startOfDay()));
    m_screen->list->setItemStyleName(QStringLiteral("CommonListItem"));
    m_screen->show(QStringLiteral("2011-03-10 event todo journal; 2011-03-11 _"));
    QStringList cells;
    for (int i = 0; i < 3; ++i) {
        const auto *note = qobject_cast<NoteWidget *>(m_screen->list->cellAt(m_screen->row(0, i)));
        QVERIFY(note);
        QCOMPARE(note->styleName(), QStringLiteral("CommonListItem"));
        cells << QString::fromLatin1(note->metaObject()->className()) + QLatin1Char(' ')
                + note->viewType();
    }
    QCOMPARE(cells,
             QStringList({QStringLiteral("EventNoteWidget event-note"),
                          QStringLiteral("TodoNoteWidget todo-note"),
                          QStringLiteral("JournalNoteWidget journal-note")}));
    const auto *empty = qobject_cast<MLabel *>(m_screen->list->cellAt(m_screen->row(1, 0)));
    QVERIFY(empty);
    QCOMPARE(empty->styleName(), QStringLiteral("CommonInboxTitleGray"));
    QCOMPARE(empty->text(), QStringLiteral("Nothing today"));
}

void TestNoteListWidget::marksTodaysHeader()
{
    m_screen->show(QStringLiteral("2011-03-09 a; 2011-03-10 b"));
    const auto styles = [this](int group) {
        const MWidget *cell = m_screen->list->cellAt(m_screen->row(group));
        const auto *label = static_cast<MLabel *>(cell->childItems().value(0));
        return cell->property("styleName").toString() + QLatin1Char(' ') + label->styleName()
            + QLatin1Char(' ') + label->text();
    };
    QCOMPARE(styles(0),
             QStringLiteral("CommonGroupHeaderPanelGray CommonGroupHeaderBlack 2011-03-09"));
    QCOMPARE(styles(1),
             QStringLiteral("CommonGroupHeaderPanelOrange CommonGroupHeaderWhite 2011-03-10"));
}

void TestNoteListWidget::tellsTaps()
{
    m_screen->show(QStringLiteral("2011-03-10 a"));
    auto *cell = qobject_cast<NoteWidget *>(m_screen->list->cellAt(m_screen->row(0, 0)));
    QSignalSpy clicked(m_screen->list, &NoteListWidget::noteClicked);
    QSignalSpy opened(cell, &NoteWidget::noteClicked);
    m_screen->tap(cell->sceneBoundingRect().center());
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(opened.count(), 1);
    QCOMPARE(opened.first().first().toString(), QStringLiteral("a"));
    // A touch that becomes a pan is none.
    m_screen->pan(-60);
    QCOMPARE(clicked.count(), 1);
}

void TestNoteListWidget::growsAtTheEdges_data()
{
    addColumns<int, QList<int>, QString>("rows", "pans", "loaded");
    addRow("down at the top", 20, QList<int>{150}, QStringLiteral("earlier"));
    addRow("up at the bottom", 20, QList<int>{-400, -400, -400}, QStringLiteral("later"));
    addRow("in the middle", 20, QList<int>{-200}, QString());
    addRow("back, but not to the top", 20, QList<int>{-300, 100}, QString());
    addRow("back to the top", 20, QList<int>{-100, 150}, QStringLiteral("earlier"));
    addRow("few rows, down", 2, QList<int>{150}, QStringLiteral("earlier"));
    addRow("few rows, up", 2, QList<int>{-150}, QStringLiteral("later"));
}

void TestNoteListWidget::growsAtTheEdges()
{
    QFETCH(int, rows);
    QFETCH(QList<int>, pans);
    m_screen->loader.earlier = QStringList{NoteScreen::day(today.addDays(-1), 5)};
    m_screen->loader.later = QStringList{NoteScreen::day(today.addDays(1), 5)};
    m_screen->show(NoteScreen::day(today, rows));
    for (const int distance : qAsConst(pans))
        m_screen->pan(distance);
    const QString loaded = m_screen->loader.earlier.isEmpty() ? QStringLiteral("earlier")
        : m_screen->loader.later.isEmpty()                    ? QStringLiteral("later")
                                                              : QString();
    QTEST(loaded, "loaded");
}

void TestNoteListWidget::keepsRowsInPlace_data()
{
    addColumns<bool>("isWrapped");
    addRow("alone", false);
    addRow("in a wrapper", true);
}

void TestNoteListWidget::keepsRowsInPlace()
{
    QFETCH(bool, isWrapped);
    m_screen->loader.earlier = QStringList{NoteScreen::day(today.addDays(-1), 5) + QLatin1Char(';')
                                               + NoteScreen::day(today.addDays(-2), 3),
                                           NoteScreen::day(today.addDays(-3), 30)};
    m_screen->show(NoteScreen::day(today, 20),
                   isWrapped ? new NoteListWidgetWrapper(m_screen->list) : nullptr);
    for (const int headersAbove : {2, 3}) {
        const QPersistentModelIndex top = m_screen->list->firstVisibleItem();
        QCOMPARE(m_screen->seenAt(top), 0.0);
        m_screen->pan(150);
        QCOMPARE(m_screen->list->itemModel()->rowCount(), 1 + headersAbove);
        QCOMPARE(m_screen->seenAt(top), 0.0);
        QVERIFY(m_screen->viewport->position().y() > 0);
        m_screen->viewport->setPosition({0, 0});
    }
}

void TestNoteListWidget::growsWithoutADirection_data()
{
    addColumns<int, bool, QString>("rows", "atEnd", "loaded");
    addRow("few rows", 2, false, QString());
    addRow("at the top", 20, false, QStringLiteral("earlier"));
    addRow("at the bottom", 20, true, QStringLiteral("later"));
}

/// As a pan ends that moved nothing, such as one with the wheel at an edge.
void TestNoteListWidget::growsWithoutADirection()
{
    QFETCH(int, rows);
    QFETCH(bool, atEnd);
    m_screen->loader.earlier = QStringList{NoteScreen::day(today.addDays(-1), 5)};
    m_screen->loader.later = QStringList{NoteScreen::day(today.addDays(1), 5)};
    m_screen->show(NoteScreen::day(today, rows));
    if (atEnd) {
        m_screen->viewport->setPosition({0, 100000});
        m_screen->list->listStopped();
        m_screen->loader.later = QStringList{NoteScreen::day(today.addDays(2), 5)};
        TouchScreen::layOut();
        m_screen->viewport->setPosition({0, 100000});
        // The direction of the jumps is forgotten.
        m_screen->list->listStopped();
        m_screen->loader.later = QStringList{NoteScreen::day(today.addDays(3), 5)};
    }
    m_screen->physics()->moveBy({0, atEnd ? 10.0 : -10.0});
    m_screen->physics()->advance(1);
    const QString loaded = m_screen->loader.earlier.isEmpty() ? QStringLiteral("earlier")
        : m_screen->loader.later.isEmpty()                    ? QStringLiteral("later")
                                                              : QString();
    QTEST(loaded, "loaded");
}

void TestNoteListWidget::loadsNothingAfterItsOwnScroll()
{
    m_screen->loader.later = QStringList{NoteScreen::day(today.addDays(2), 5)};
    m_screen->show(NoteScreen::day(today, 10) + QLatin1Char(';')
                   + NoteScreen::day(today.addDays(1), 3));
    m_screen->list->switchDate(today.addDays(1).startOfDay());
    m_screen->list->listStopped();
    QCOMPARE(m_screen->loader.later.size(), 1);
    // Only that one.
    m_screen->list->viewportPositionChanged({0, 100000});
    m_screen->list->listStopped();
    QCOMPARE(m_screen->loader.later.size(), 0);
    // One that never came is not waited for.
    m_screen->loader.earlier = QStringList{NoteScreen::day(today.addDays(-1), 5)};
    m_screen->list->switchDate(today.startOfDay());
    QTRY_VERIFY([this] {
        m_screen->list->listStopped();
        return m_screen->loader.earlier.isEmpty();
    }());
}

void TestNoteListWidget::switchesToADate_data()
{
    addColumns<QDate, QString>("date", "top");
    addRow("a day of the list", today.addDays(1), QStringLiteral("2011-03-11"));
    addRow("today", today, QStringLiteral("2011-03-10"));
    addRow("a day without a header", today.addDays(4), QStringLiteral("2011-03-11"));
    addRow("before all", today.addDays(-10), QStringLiteral("2011-03-01"));
    addRow("behind all", today.addDays(28), QStringLiteral("2011-03-20"));
    addRow("too far ahead", today.addDays(29), QStringLiteral("2011-03-10"));
    addRow("30 days ahead", today.addDays(30), QStringLiteral("2011-03-10"));
    addRow("14 days ago", today.addDays(-14), QStringLiteral("2011-03-01"));
    addRow("too long ago", today.addDays(-15), QStringLiteral("2011-03-10"));
}

void TestNoteListWidget::switchesToADate()
{
    QFETCH(QDate, date);
    m_screen->list->switchDate(date.startOfDay());
    QStringList days;
    for (const int day : {-9, 0, 1, 10})
        days << NoteScreen::day(today.addDays(day), 10);
    m_screen->show(days.join(QLatin1Char(';')));
    m_screen->viewport->setPosition({0, 300});
    m_screen->list->switchDate(QDateTime(date, QTime(15, 30)));
    TouchScreen::layOut();
    QTEST(m_screen->top(), "top");
}

void TestNoteListWidget::letsUpdatesPass()
{
    m_screen->show(QStringLiteral("2011-03-10 a"));
    NoteListWidget *list = m_screen->list;
    QCOMPARE(list->updateTypeMask(), 1);
    QSignalSpy reloaded(list, &NoteListWidget::listReloaded);
    const int before = m_screen->loader.timesLoaded;
    list->setRefreshEnabled();
    list->setRefreshDisabled();
    list->setRefreshDisabled();
    for (const bool isReloaded : {false, false, true, true}) {
        QCOMPARE(list->refreshEnabled(), isReloaded);
        const int told = reloaded.count();
        list->contentUpdated(1);
        QCOMPARE(reloaded.count(), told + int(isReloaded));
    }
    QCOMPARE(m_screen->loader.timesLoaded, before + 2);
    list->setRefreshDisabled();
    list->setRefreshEnabled();
    QVERIFY(list->refreshEnabled());
}

void TestNoteListWidget::warnsOfTooManyPasses()
{
    WarningCapture capture;
    for (int i = 0; i < 65535; ++i)
        m_screen->list->setRefreshDisabled();
    QCOMPARE(capture.take(), QStringList());
    m_screen->list->setRefreshDisabled();
    QCOMPARE(capture.take(),
             QStringList{QStringLiteral("NoteListWidget::setRefreshDisabled Overflow")});
    for (int i = 0; i < 65535; ++i)
        m_screen->list->setRefreshEnabled();
    QVERIFY(m_screen->list->refreshEnabled());
}

void TestNoteListWidget::changesItsLoader()
{
    m_screen->show(QStringLiteral("2011-03-10 a b"));
    QCOMPARE(m_screen->list->noteCount(), 2);
    ScriptLoader other;
    other.first = QStringLiteral("2011-03-10 c");
    m_screen->list->setItemLoader(&other);
    QCOMPARE(m_screen->list->itemModel()->rowCount(), 0);
    m_screen->list->updateContent(1);
    QCOMPARE(writtenDown(*m_screen->list->itemModel()), other.first);
    m_screen->list->setItemLoader(nullptr);
    QCOMPARE(m_screen->list->noteCount(), 0);
    m_screen->list->updateContent(1);
    m_screen->list->selectAll();
    m_screen->list->switchDate(today.startOfDay());
}

void TestNoteListWidget::selects_data()
{
    addColumns<bool, QString>("showGroups", "first");
    addRow("with groups", true, QStringLiteral("2011-03-10 a b; 2011-03-11 a"));
    addRow("without groups", false, QStringLiteral("- a b a"));
}

void TestNoteListWidget::selects()
{
    QFETCH(bool, showGroups);
    QFETCH(QString, first);
    NoteScreen screen(showGroups);
    screen.show(first);
    screen.list->selectAll();
    QCOMPARE(screen.list->getSelectionUidList(),
             QStringList({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("a")}));
    const QMultiHash<QString, QDateTime> starts = screen.list->getSelectionUidHash();
    QCOMPARE(starts.count(QStringLiteral("a")), 2);
    if (showGroups)
        QVERIFY(starts.contains(QStringLiteral("a"), localTime("2011-03-11T09:00")));
    screen.list->deselectAll();
    QCOMPARE(screen.list->getSelectionUidList(), QStringList());
}

void TestNoteListWidget::wrapperShowsAText()
{
    auto *wrapper = new NoteListWidgetWrapper(m_screen->list);
    wrapper->setEmptyListLabelText(QStringLiteral("Nothing here"));
    wrapper->setEmptyListLabelStyle(QStringLiteral("EmptyPageLabel"));
    QCOMPARE(wrapper->emptyListLabelText(), QStringLiteral("Nothing here"));
    QCOMPARE(wrapper->emptyListLabelStyle(), QStringLiteral("EmptyPageLabel"));
    QCOMPARE(wrapper->noteList(), m_screen->list);
    QCOMPARE(wrapper->updateTypeMask(), 1);
    m_screen->show(QStringLiteral("2011-03-10 a"), wrapper);
    const auto shown = [this, wrapper] {
        TouchScreen::layOut();
        QStringList parts;
        for (const QGraphicsItem *child : wrapper->childItems()) {
            if (child->isVisible())
                parts << (child == m_screen->list ? QStringLiteral("list")
                                                  : QStringLiteral("label"));
        }
        return QStringLiteral("%1 %2")
            .arg(parts.join(QLatin1Char('+')))
            .arg(m_screen->viewport->verticalPanningPolicy());
    };
    wrapper->updateContent(1);
    QCOMPARE(shown(), QStringLiteral("list 0"));
    m_screen->loader.first = QStringLiteral("2011-03-10 _");
    wrapper->updateContent(2);
    QCOMPARE(shown(), QStringLiteral("list 0"));
    wrapper->updateContent(1);
    QCOMPARE(shown(), QStringLiteral("label 1"));
    m_screen->loader.first = QStringLiteral("2011-03-10 a");
    wrapper->updateContent(1);
    QCOMPARE(shown(), QStringLiteral("list 0"));
}

QTEST_MAIN(TestNoteListWidget)

#include "tst_notelistwidget.moc"
