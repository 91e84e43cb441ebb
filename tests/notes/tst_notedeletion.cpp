// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "notesfixture.h"
#include "testtable.h"

#include <daskel/notebookmanager.h>
#include <daskel/notedeletion.h>
#include <daskel/notewidget.h>
#include <daskel/openlink.h>
#include <touchcore/mapplication.h>
#include <touchcore/mbanner.h>
#include <touchcore/mbutton.h>
#include <touchcore/mmessagebox.h>
#include <touchcore/mscenemanager.h>
#include <touchcore/mwindow.h>

#include <QAction>
#include <QDesktopServices>
#include <QSignalSpy>
#include <QUrl>

#include <memory>

namespace
{
const QDateTime morning(QDate(2011, 3, 10), QTime(9, 0));

/// What another process finds: "03-10 03-17*" are the days of the occurrences of five weeks, with a
/// star behind those that an exception stands for.
QString storedDays()
{
    OtherProcess other;
    other.storage->load();
    KCalCore::Incidence::List all = other.calendar->incidences();
    const auto occurrences = other.calendar->expandRecurrences(&all, KDateTime(morning.addDays(-1)),
                                                               KDateTime(morning.addDays(34)), 100);
    QStringList days;
    for (const auto &occurrence : occurrences) {
        days << occurrence.first.dtStart.toString(QStringLiteral("MM-dd"))
                + (occurrence.second->hasRecurrenceId() ? QStringLiteral("*") : QString());
    }
    return days.join(QLatin1Char(' '));
}

template <class Window> Window *shown(const MWindow &window)
{
    const QList<QGraphicsItem *> items = window.scene()->items();
    for (QGraphicsItem *item : items) {
        auto *found = qobject_cast<Window *>(item->toGraphicsObject());
        if (found && found->sceneWindowState() == MSceneWindow::Appeared)
            return found;
    }
    return nullptr;
}

QStringList buttonsOf(const MDialog &dialog)
{
    QStringList texts;
    const QList<MButton *> buttons = dialog.buttons();
    for (const MButton *button : buttons)
        texts << button->text();
    return texts;
}

QString textOf(const MBanner *banner)
{
    return banner ? banner->title() + QLatin1Char('|') + banner->actionText() : QString();
}
} // namespace

class TestNoteDeletion : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void deletesAndUndoes_data();
    void deletesAndUndoes();
    void bringsBackEverything();
    void asks_data();
    void asks();
    void asksOnce();
    void leavesReadOnlyNotesAlone_data();
    void leavesReadOnlyNotesAlone();
    void changesNothingWhenItCannotSave();
    void undoesTheLastOne();
    void opensLinks_data();
    void opensLinks();

private:
    void addSeries(bool isAllDay);

    std::unique_ptr<NotesFixture> m_notes;
    std::unique_ptr<MWindow> m_window;
    std::unique_ptr<NoteDeletion> m_deletion;
};

void TestNoteDeletion::init()
{
    m_notes = std::make_unique<NotesFixture>();
    MSceneManager::setAnimationsEnabled(false);
    m_window = std::make_unique<MWindow>();
    m_window->resize(480, 854);
    m_window->show();
    m_deletion = std::make_unique<NoteDeletion>(m_window.get());
}

void TestNoteDeletion::cleanup()
{
    m_deletion.reset();
    m_window.reset();
    m_notes.reset();
}

/// Each week; the third one is moved to the day before.
void TestNoteDeletion::addSeries(bool isAllDay)
{
    const auto event = isAllDay ? makeAllDayEvent("s", morning.date(), morning.date().addDays(2))
                                : makeEvent("s", morning, morning.addSecs(3600));
    event->recurrence()->setWeekly(1);
    NotesFixture::add(event);
    const QDateTime third = event->dtStart().addDays(14);
    const KCalCore::Event::Ptr moved(event->clone());
    moved->clearRecurrence();
    moved->setRecurrenceId(third);
    moved->setDtStart(third.addDays(-1));
    moved->setDtEnd(event->dtEnd().addDays(13));
    NotesFixture::add(moved);
    DbInstance::instance()->save();
}

void TestNoteDeletion::deletesAndUndoes_data()
{
    addColumns<bool, int, QDateTime, bool, QString>("isAllDay", "extent", "start", "isException",
                                                    "days");
    const QDateTime second = morning.addDays(7);
    const QDateTime moved = morning.addDays(13);
    const QDateTime day = morning.date().startOfDay();
    addRow("one", false, 1, second, false, QStringLiteral("03-10 03-23* 03-31 04-07"));
    addRow("the first", false, 1, morning, false, QStringLiteral("03-17 03-23* 03-31 04-07"));
    addRow("the one that was moved", false, 1, moved, true,
           QStringLiteral("03-10 03-17 03-31 04-07"));
    addRow("later ones", false, 2, second, false, QStringLiteral("03-10"));
    addRow("from the moved one on", false, 2, moved, true, QStringLiteral("03-10 03-17"));
    addRow("from the first on", false, 2, morning, false, QString());
    addRow("the series", false, 3, second, false, QString());
    addRow("the series, by an exception", false, 3, moved, true, QString());
    addRow("one all day", true, 1, day.addDays(7), false,
           QStringLiteral("03-10 03-23* 03-31 04-07"));
    addRow("its second day", true, 1, day.addDays(8), false,
           QStringLiteral("03-10 03-23* 03-31 04-07"));
    addRow("later ones, by a second day", true, 2, day.addDays(8), false, QStringLiteral("03-10"));
}

void TestNoteDeletion::deletesAndUndoes()
{
    QFETCH(bool, isAllDay);
    QFETCH(int, extent);
    QFETCH(QDateTime, start);
    QFETCH(bool, isException);
    addSeries(isAllDay);
    const QString before = storedDays();
    QCOMPARE(before, QStringLiteral("03-10 03-17 03-23* 03-31 04-07"));
    const KDateTime recurrenceId = isException ? KDateTime(morning.addDays(14)) : KDateTime();
    QSignalSpy updated(DbInstance::instance(), &DbInstance::dataUpdated);
    QVERIFY(m_deletion->remove(QStringLiteral("s"), recurrenceId, KDateTime(start),
                               NoteDeletion::Extent(extent)));
    QTEST(storedDays(), "days");
    QCOMPARE(updated.count(), 1);
    QCOMPARE(textOf(shown<MBanner>(*m_window)), QStringLiteral("“s” deleted|Undo"));
    QVERIFY(m_deletion->undo());
    QCOMPARE(storedDays(), before);
    QCOMPARE(updated.count(), 2);
    QVERIFY(!m_deletion->undo());
}

void TestNoteDeletion::bringsBackEverything()
{
    mKCal::Notebook::Ptr notebook(new mKCal::Notebook);
    QVERIFY(NotebookManager::instance()->addNotebook(notebook));
    const auto todo = makeTodo("t", morning);
    todo->setLocation(QStringLiteral("Hall 3"), false);
    todo->addAttendee(KCalCore::Attendee(QStringLiteral("Aino"), QStringLiteral("a@example.org")));
    todo->setCategories(QStringList{QStringLiteral("errands")});
    todo->setCustomProperty("DASKEL", "SHELF", QStringLiteral("2"));
    const KCalCore::Alarm::Ptr alarm = todo->newAlarm();
    alarm->setStartOffset(KCalCore::Duration(-900));
    alarm->setEnabled(true);
    DbInstance::instance()->calendar()->addIncidence(todo, notebook->uid());
    DbInstance::instance()->save();
    QVERIFY(m_deletion->remove(QStringLiteral("t"), {}, {}, NoteDeletion::ThisOccurrence));
    {
        OtherProcess other;
        other.storage->load();
        QVERIFY(other.calendar->incidences().isEmpty());
    }
    QSignalSpy restored(m_deletion.get(), &NoteDeletion::restored);
    Q_EMIT shown<MBanner>(*m_window)->actionClicked();
    QCOMPARE(restored.count(), 1);
    OtherProcess other;
    other.storage->load();
    const auto back = other.calendar->todo(QStringLiteral("t"));
    QVERIFY(back);
    QCOMPARE(back->dtDue(), morning);
    QCOMPARE(back->location(), QStringLiteral("Hall 3"));
    QCOMPARE(back->attendees().value(0).email(), QStringLiteral("a@example.org"));
    QCOMPARE(back->categories(), QStringList{QStringLiteral("errands")});
    QCOMPARE(back->customProperty("DASKEL", "SHELF"), QStringLiteral("2"));
    QCOMPARE(back->alarms().size(), 1);
    QVERIFY(back->alarms().constFirst()->enabled());
    QCOMPARE(other.calendar->notebook(back), notebook->uid());
    KCalCore::Incidence::List deleted;
    QVERIFY(other.storage->deletedIncidences(&deleted));
    QVERIFY(deleted.isEmpty());
}

void TestNoteDeletion::asks_data()
{
    addColumns<QString, int, QString, QString>("uid", "button", "buttons", "days");
    const QString all = QStringLiteral("03-10 03-17 03-23* 03-31 04-07");
    const QString repeating =
        QStringLiteral("Delete this one, Delete this and later ones, Delete series, Cancel");
    addRow("no", QStringLiteral("s"), 3, repeating, all);
    addRow("this one", QStringLiteral("s"), 0, repeating,
           QStringLiteral("03-10 03-23* 03-31 04-07"));
    addRow("later ones", QStringLiteral("s"), 1, repeating, QStringLiteral("03-10"));
    addRow("the series", QStringLiteral("s"), 2, repeating, QString());
    addRow("a note that does not repeat", QStringLiteral("e"), 0, QStringLiteral("Delete, Cancel"),
           all);
}

/// By the menu of a note.
void TestNoteDeletion::asks()
{
    QFETCH(QString, uid);
    QFETCH(int, button);
    addSeries(false);
    NotesFixture::add(makeEvent("e", morning.addDays(-30), morning.addDays(-30)));
    DbInstance::instance()->save();
    NoteWidget note(DbInstance::instance()->incidence(uid, KDateTime()), nullptr);
    note.setStartTime(morning.addDays(7));
    note.setDeleteNoteReceiver(m_deletion.get(), SLOT(ask(QString, KDateTime, KDateTime, QString)),
                               Qt::DirectConnection);
    note.actions().constLast()->trigger();
    auto *dialog = shown<MDialog>(*m_window);
    QVERIFY(dialog);
    QTEST(buttonsOf(*dialog).join(QStringLiteral(", ")), "buttons");
    dialog->buttons().at(button)->click();
    QTEST(storedDays(), "days");
    QCOMPARE(DbInstance::instance()->incidence(QStringLiteral("e"), KDateTime()).isNull(),
             uid == QLatin1String("e"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!shown<MDialog>(*m_window));
}

void TestNoteDeletion::asksOnce()
{
    NotesFixture::add(makeEvent("e", morning, morning));
    m_deletion->ask(QStringLiteral("none"), {}, {});
    QVERIFY(!shown<MDialog>(*m_window));
    m_deletion->ask(QStringLiteral("e"), {}, {}, QStringLiteral("Swimming"));
    auto *question = shown<MMessageBox>(*m_window);
    QVERIFY(question);
    QCOMPARE(question->text(), QStringLiteral("Delete “Swimming”?"));
    m_deletion->ask(QStringLiteral("e"), {}, {});
    QCOMPARE(shown<MMessageBox>(*m_window), question);
}

void TestNoteDeletion::leavesReadOnlyNotesAlone_data()
{
    addColumns<bool>("isNotebook");
    addRow("a note", false);
    addRow("one of a notebook that can only be read", true);
}

void TestNoteDeletion::leavesReadOnlyNotesAlone()
{
    QFETCH(bool, isNotebook);
    mKCal::Notebook::Ptr notebook(new mKCal::Notebook);
    notebook->setIsReadOnly(isNotebook);
    QVERIFY(NotebookManager::instance()->addNotebook(notebook));
    const auto event = makeEvent("e", morning, morning);
    event->setReadOnly(!isNotebook);
    DbInstance::instance()->calendar()->addIncidence(event, notebook->uid());
    m_deletion->ask(QStringLiteral("e"), {}, {});
    QVERIFY(!shown<MDialog>(*m_window));
    QCOMPARE(textOf(shown<MBanner>(*m_window)),
             QStringLiteral("“e” can only be read, not deleted.|"));
    QVERIFY(!m_deletion->remove(QStringLiteral("e"), {}, {}, NoteDeletion::WholeSeries));
    QVERIFY(DbInstance::instance()->incidence(QStringLiteral("e"), KDateTime()));
}

void TestNoteDeletion::changesNothingWhenItCannotSave()
{
    NotesFixture::add(makeEvent("e", morning, morning));
    DbInstance::instance()->save();
    DbInstance::instance()->storage()->close();
    QVERIFY(!m_deletion->remove(QStringLiteral("e"), {}, {}, NoteDeletion::WholeSeries));
    QVERIFY(DbInstance::instance()->calendar()->event(QStringLiteral("e")));
    QCOMPARE(textOf(shown<MBanner>(*m_window)),
             QStringLiteral("“e” could not be deleted. Nothing was changed.|"));
    QVERIFY(!m_deletion->undo());
}

void TestNoteDeletion::undoesTheLastOne()
{
    for (const QString &uid : {QStringLiteral("a"), QStringLiteral("b")}) {
        NotesFixture::add(makeEvent(uid, morning, morning));
        QVERIFY(m_deletion->remove(uid, {}, {}, NoteDeletion::WholeSeries));
    }
    QVERIFY(!m_deletion->remove(QStringLiteral("none"), {}, {}, NoteDeletion::WholeSeries));
    QVERIFY(m_deletion->undo());
    QVERIFY(!DbInstance::instance()->incidence(QStringLiteral("a"), KDateTime()));
    QVERIFY(DbInstance::instance()->incidence(QStringLiteral("b"), KDateTime()));
}

class Desktop : public QObject
{
    Q_OBJECT
public Q_SLOTS:
    void open(const QUrl &link) { opened << link.toString(); }

public:
    QStringList opened;
};

void TestNoteDeletion::opensLinks_data()
{
    addColumns<QString, QString, int, bool>("link", "question", "button", "isOpened");
    const QString none;
    addRow("page", QStringLiteral("https://example.org/a"), none, -1, true);
    addRow("page in capitals", QStringLiteral("HTTP://example.org"), none, -1, true);
    addRow("file", QStringLiteral("file:///tmp/a.desktop"), QStringLiteral("file:///tmp/a.desktop"),
           0, true);
    addRow("file, not opened", QStringLiteral("file:///tmp/a.desktop"),
           QStringLiteral("file:///tmp/a.desktop"), 1, false);
    addRow("number", QStringLiteral("tel:+358123"), QStringLiteral("tel:+358123"), 0, true);
    addRow("what would be read backwards", QStringLiteral("file:///\u202Efdp.exe"),
           QStringLiteral("file:///%E2%80%AEfdp.exe"), 1, false);
    addRow("no address", QStringLiteral("hall 3"), none, -1, false);
    addRow("nothing", none, none, -1, false);
}

void TestNoteDeletion::opensLinks()
{
    QFETCH(QString, link);
    QFETCH(QString, question);
    QFETCH(int, button);
    QFETCH(bool, isOpened);
    Desktop desktop;
    const QStringList schemes{QStringLiteral("http"), QStringLiteral("https"),
                              QStringLiteral("file"), QStringLiteral("tel")};
    for (const QString &scheme : schemes)
        QDesktopServices::setUrlHandler(scheme, &desktop, "open");
    QCOMPARE(openLink(QUrl(link), m_window.get()), isOpened || button >= 0);
    auto *dialog = shown<MMessageBox>(*m_window);
    QCOMPARE(dialog ? dialog->text() : QString(), question);
    QCOMPARE(desktop.opened.size(), int(isOpened && button < 0));
    if (dialog)
        dialog->buttons().at(button)->click();
    QCOMPARE(desktop.opened.size(), int(isOpened));
    for (const QString &scheme : schemes)
        QDesktopServices::unsetUrlHandler(scheme);
}

int main(int argc, char **argv)
{
    MApplication application(argc, argv);
    TestNoteDeletion test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_notedeletion.moc"
