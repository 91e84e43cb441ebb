// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "notescreen.h"
#include "testtable.h"

#include <daskel/notebookmanager.h>
#include <daskel/notewidget.h>
#include <touchcore/mapplication.h>
#include <touchcore/mlabel.h>

#include <QAccessible>
#include <QAction>
#include <QGraphicsSceneContextMenuEvent>
#include <QSignalSpy>

#include <memory>

namespace
{
const QDateTime morning(QDate(2011, 3, 10), QTime(9, 0));

QStringList menuOf(const NoteWidget &note)
{
    QStringList texts;
    const QList<QAction *> actions = note.actions();
    for (const QAction *action : actions)
        texts << action->text();
    return texts;
}

KCalCore::Incidence::Ptr remind(const KCalCore::Incidence::Ptr &incidence)
{
    for (int minutes : {5, 15}) {
        const KCalCore::Alarm::Ptr alarm = incidence->newAlarm();
        alarm->setStartOffset(KCalCore::Duration(-60 * minutes));
        alarm->setEnabled(true);
    }
    return incidence;
}

/// The texts of a row and the styles that they are written in.
QHash<QString, QString> labelsOf(const QGraphicsItem &item)
{
    QHash<QString, QString> labels;
    for (QGraphicsItem *child : item.childItems()) {
        const auto *label = qobject_cast<MLabel *>(child->toGraphicsObject());
        if (label && label->isVisible())
            labels.insert(label->text(), label->styleName());
        const QHash<QString, QString> inside = labelsOf(*child);
        for (auto found = inside.begin(); found != inside.end(); ++found)
            labels.insert(found.key(), found.value());
    }
    return labels;
}
} // namespace

class TestNoteWidget : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void takesOverTheIncidence();
    void titles_data();
    void titles();
    void offersAMenu_data();
    void offersAMenu();
    void ignoresActionsWithoutANote();
    void tellsItsReceivers();
    void savesWhatIsDone_data();
    void savesWhatIsDone();
    void leavesReadOnlyTodosAlone();
    void followsTheFinger_data();
    void followsTheFinger();
    void forgetsThePress();
    void obeysKeys_data();
    void obeysKeys();
    void writesInStyles_data();
    void writesInStyles();
    void followsWhatItsModelDoesNotHold();
    void drawsItsStripe_data();
    void drawsItsStripe();
    void isReadAloud_data();
    void isReadAloud();

private:
    std::unique_ptr<NotesFixture> m_notes;
    std::unique_ptr<NoteScreen> m_screen;
    NoteWidget *shown(const KCalCore::Incidence::Ptr &incidence);
};

void TestNoteWidget::init()
{
    m_notes = std::make_unique<NotesFixture>();
    m_screen = std::make_unique<NoteScreen>();
}

void TestNoteWidget::cleanup()
{
    m_screen.reset();
    m_notes.reset();
}

/// As the only row of the list.
NoteWidget *TestNoteWidget::shown(const KCalCore::Incidence::Ptr &incidence)
{
    m_screen->show(QStringLiteral("2011-03-10 ") + NotesFixture::add(incidence)->uid());
    return qobject_cast<NoteWidget *>(m_screen->list->cellAt(m_screen->row(0, 0)));
}

void TestNoteWidget::takesOverTheIncidence()
{
    mKCal::Notebook::Ptr notebook(new mKCal::Notebook);
    notebook->setColor(QStringLiteral("#1565c0"));
    QVERIFY(NotebookManager::instance()->addNotebook(notebook));
    const auto event = makeEvent("e", morning.toUTC(), morning.addSecs(3600).toUTC());
    remind(event);
    event->setLocation(QStringLiteral("Hall 3"), false);
    event->setDescription(QStringLiteral("Bring bags"), false);
    event->setCreated(morning.toUTC());
    event->setLastModified(morning.toUTC());
    event->setStatus(KCalCore::Incidence::StatusTentative);
    event->setReadOnly(true);
    DbInstance::instance()->calendar()->addIncidence(event, notebook->uid());
    NoteWidget note({}, nullptr);
    int changes = 0;
    connect(note.model(), &MWidgetModel::modified, this, [&changes] { ++changes; });
    const QDateTime start = localTime("2011-03-10T00:00");
    note.setNote(event, start, start.addDays(1));
    QCOMPARE(changes, 1);
    const NoteWidgetModel *model = note.model();
    QCOMPARE(model->uid(), QStringLiteral("e"));
    QVERIFY(model->hasAlarm());
    QCOMPARE(note.color(), QColor(QStringLiteral("#1565c0")));
    QCOMPARE(note.noteType(), NoteWidgetModel::EventNote);
    QCOMPARE(model->location(), QStringLiteral("Hall 3"));
    QCOMPARE(model->description(), QStringLiteral("Bring bags"));
    QCOMPARE(note.startTime(), start);
    QCOMPARE(note.endTime(), start.addDays(1));
    QCOMPARE(model->created(), morning);
    QCOMPARE(model->created().timeSpec(), Qt::LocalTime);
    QCOMPARE(model->lastModified(), morning);
    QVERIFY(model->tentative());
    QVERIFY(model->readOnly());
    QVERIFY(!note.isAllDay());
    QCOMPARE(note.note(), event);

    // The next one leaves nothing of it behind.
    const auto todo = NotesFixture::add(makeTodo("t", morning));
    todo->setCompleted(true);
    note.setNote(todo);
    QCOMPARE(note.noteType(), NoteWidgetModel::TodoNote);
    QCOMPARE(model->dueDate(), morning);
    QVERIFY(note.isCompleted());
    note.setNote(NotesFixture::add(makeJournal("j", morning)));
    QVERIFY(!model->dueDate().isValid());
    QVERIFY(!note.isCompleted() && !model->tentative() && !model->readOnly() && !model->hasAlarm());
    QCOMPARE(model->location(), QString());
}

void TestNoteWidget::titles_data()
{
    addColumns<QString, QString>("summary", "title");
    addRow("a line", QStringLiteral("Market"), QStringLiteral("Market"));
    addRow("lines", QStringLiteral("Market\nand fair\r\n"), QStringLiteral("Market and fair"));
    addRow("nothing", QString(), QStringLiteral("No title"));
    addRow("blanks", QStringLiteral(" \n "), QStringLiteral("No title"));
}

void TestNoteWidget::titles()
{
    QFETCH(QString, summary);
    const auto event = makeEvent("e", morning, morning);
    event->setSummary(summary, false);
    NoteWidget note(NotesFixture::add(event), nullptr);
    QTEST(note.model()->title(), "title");
    note.model()->setTitle(QString());
    note.retranslateUI();
    QTEST(note.model()->title(), "title");
}

void TestNoteWidget::offersAMenu_data()
{
    addColumns<QString, bool, bool, QStringList>("kind", "isDone", "isReadOnly", "menu");
    const QString edit = QStringLiteral("Edit");
    const QString remove = QStringLiteral("Delete");
    const QString done = QStringLiteral("Mark as done");
    const QString notDone = QStringLiteral("Mark as not done");
    addRow("event", QStringLiteral("event"), false, false, QStringList({edit, remove}));
    addRow("event that is read-only", QStringLiteral("event"), false, true, QStringList(remove));
    addRow("to-do", QStringLiteral("todo"), false, false, QStringList({done, remove}));
    addRow("to-do that is done", QStringLiteral("todo"), true, false,
           QStringList({notDone, remove}));
    addRow("journal", QStringLiteral("journal"), false, false, QStringList(remove));
}

void TestNoteWidget::offersAMenu()
{
    QFETCH(QString, kind);
    QFETCH(bool, isDone);
    QFETCH(bool, isReadOnly);
    const auto todo = makeTodo("n", morning);
    todo->setCompleted(isDone);
    KCalCore::Incidence::Ptr incidence = todo;
    if (kind == QLatin1String("event"))
        incidence = makeEvent("n", morning, morning);
    else if (kind == QLatin1String("journal"))
        incidence = makeJournal("n", morning);
    incidence->setReadOnly(isReadOnly);
    NoteWidget note(NotesFixture::add(incidence), nullptr);
    QTEST(menuOf(note), "menu");
    note.setNote(incidence);
    QTEST(menuOf(note), "menu");

    // Until somebody edits, nobody is asked whether to.
    for (const QAction *action : note.actions())
        QCOMPARE(action->isVisible(), action->text() != QLatin1String("Edit"));
    const QSignalSpy editor(&note, &NoteWidget::editNote);
    for (const QAction *action : note.actions())
        QVERIFY(action->isVisible());
}

void TestNoteWidget::ignoresActionsWithoutANote()
{
    NoteWidget note({}, nullptr);
    QSignalSpy clicked(&note, &NoteWidget::clicked);
    QSignalSpy opened(&note, &NoteWidget::noteClicked);
    note.viewActionActivated();
    note.editActionActivated();
    note.deleteActionActivated();
    note.setCompleted();
    QCOMPARE(opened.count() + clicked.count(), 0);
}

class Receiver : public QObject
{
    Q_OBJECT
public Q_SLOTS:
    void open(const QString &uid, const KDateTime &, const KDateTime &start)
    {
        told << QStringLiteral("open %1 %2").arg(uid, start.dateTime().toString(Qt::ISODate));
    }
    void edit(const QString &uid, const KDateTime &recurrenceId, const KDateTime &)
    {
        told << QStringLiteral("edit %1 %2").arg(uid).arg(recurrenceId.isValid());
    }
    void remove(const QString &uid, const KDateTime &, const KDateTime &, const QString &title)
    {
        told << QStringLiteral("delete %1 %2").arg(uid, title);
    }

public:
    QStringList told;
};

void TestNoteWidget::tellsItsReceivers()
{
    NoteWidget note(NotesFixture::add(makeEvent("e", morning, morning)), nullptr);
    note.setStartTime(morning.addDays(7));
    note.model()->setDeleteNoteShortTitle(QStringLiteral("swimming"));
    Receiver receiver;
    note.setClickReceiver(&receiver, SLOT(open(QString, KDateTime, KDateTime)));
    note.setEditNoteReceiver(&receiver, SLOT(edit(QString, KDateTime, KDateTime)));
    note.setDeleteNoteReceiver(&receiver, SLOT(remove(QString, KDateTime, KDateTime, QString)),
                               Qt::QueuedConnection);
    QSignalSpy clicked(&note, &NoteWidget::clicked);
    note.actions().value(1)->trigger();
    note.actions().value(0)->trigger();
    note.viewActionActivated();
    QCOMPARE(clicked.count(), 2);
    QCoreApplication::processEvents();
    QCOMPARE(receiver.told,
             QStringList({QStringLiteral("edit e 0"), QStringLiteral("open e 2011-03-17T09:00:00"),
                          QStringLiteral("delete e swimming")}));
}

void TestNoteWidget::savesWhatIsDone_data()
{
    addColumns<bool>("isDone");
    addRow("done", true);
    addRow("not done", false);
}

void TestNoteWidget::savesWhatIsDone()
{
    QFETCH(bool, isDone);
    const auto todo = makeTodo("t", morning);
    remind(todo);
    todo->setCompleted(!isDone);
    todo->alarms().constFirst()->setEnabled(!isDone);
    todo->setRevision(3);
    NoteWidget *note = shown(todo);
    DbInstance::instance()->save();
    QSignalSpy saved(DbInstance::instance(), &DbInstance::dbSaved);
    QSignalSpy reloaded(m_screen->list, &NoteListWidget::listReloaded);
    note->actions().constFirst()->trigger();
    QCOMPARE(saved.count(), 1);
    QCOMPARE(todo->revision(), 4);
    QCOMPARE(note->isCompleted(), isDone);
    QCOMPARE(note->model()->hasAlarm(), !isDone);
    QCOMPARE(menuOf(*note).first(),
             isDone ? QStringLiteral("Mark as not done") : QStringLiteral("Mark as done"));
    m_screen->list->contentUpdated(1);
    QCOMPARE(reloaded.count(), 0);
    m_screen->list->contentUpdated(1);
    QCOMPARE(reloaded.count(), 1);

    OtherProcess other;
    other.storage->load();
    const auto stored = other.calendar->todo(QStringLiteral("t"));
    QVERIFY(stored);
    QCOMPARE(stored->isCompleted(), isDone);
    const KCalCore::Alarm::List alarms = stored->alarms();
    QCOMPARE(alarms.size(), 2);
    for (const KCalCore::Alarm::Ptr &alarm : alarms)
        QCOMPARE(alarm->enabled(), !isDone);
}

void TestNoteWidget::leavesReadOnlyTodosAlone()
{
    const auto todo = makeTodo("t", morning);
    todo->setReadOnly(true);
    NoteWidget *note = shown(todo);
    QSignalSpy saved(DbInstance::instance(), &DbInstance::dbSaved);
    note->toggleCompleted();
    QVERIFY(!note->isCompleted());
    QCOMPARE(todo->revision(), 0);
    QCOMPARE(saved.count(), 0);
    QVERIFY(m_screen->list->refreshEnabled());
}

void TestNoteWidget::followsTheFinger_data()
{
    addColumns<QPointF, bool>("way", "isPressed");
    addRow("still", QPointF(0, 0), true);
    addRow("aside", QPointF(-209, 0), true);
    addRow("too far aside", QPointF(-211, 0), false);
}

/// Sideways the list does not pan. The finger begins in the middle, 180 pixels from the edge.
void TestNoteWidget::followsTheFinger()
{
    QFETCH(QPointF, way);
    QFETCH(bool, isPressed);
    NoteWidget *note = shown(makeEvent("e", morning, morning));
    const QPointF center = note->sceneBoundingRect().center();
    QSignalSpy clicked(note, &NoteWidget::clicked);
    m_screen->press(center);
    QVERIFY(note->model()->pressed());
    m_screen->move(center + way);
    QCOMPARE(note->model()->pressed(), isPressed);
    m_screen->release(center + way);
    QVERIFY(!note->model()->pressed());
    QCOMPARE(clicked.count(), int(isPressed));
}

void TestNoteWidget::forgetsThePress()
{
    NoteWidget *note = shown(makeEvent("e", morning, morning));
    const QPointF center = note->sceneBoundingRect().center();
    m_screen->press(center);
    m_screen->move(center + QPointF(0, 40));
    QVERIFY(!note->model()->pressed());
    m_screen->release(center + QPointF(0, 40));
    TouchScreen::comeToRest(m_screen->physics());
    m_screen->press(center);
    QGraphicsSceneContextMenuEvent menu(QEvent::GraphicsSceneContextMenu);
    menu.setScenePos(center);
    m_screen->scene.sendEvent(note, &menu);
    QVERIFY(!note->model()->pressed());
    m_screen->release(center);
}

void TestNoteWidget::obeysKeys_data()
{
    addColumns<int, QString>("key", "signal");
    addRow("return", int(Qt::Key_Return), QStringLiteral("open"));
    addRow("delete", int(Qt::Key_Delete), QStringLiteral("delete"));
    addRow("another", int(Qt::Key_A), QString());
}

void TestNoteWidget::obeysKeys()
{
    QFETCH(int, key);
    NoteWidget *note = shown(makeEvent("e", morning, morning));
    QStringList told;
    connect(note, &NoteWidget::noteClicked, this, [&told] { told << QStringLiteral("open"); });
    connect(note, &NoteWidget::deleteNote, this, [&told] { told << QStringLiteral("delete"); });
    m_screen->list->setFocus(Qt::TabFocusReason);
    QTest::keyClick(m_screen->view.viewport(), Qt::Key(key));
    QTEST(told.join(QLatin1Char(' ')), "signal");
}

void TestNoteWidget::writesInStyles_data()
{
    addColumns<QString, QString, QString>("kind", "text", "style");
    const auto row = [](const char *name, const char *kind, const char *text, const char *style) {
        addRow(name, QString::fromLatin1(kind), QString::fromUtf8(text),
               QString::fromLatin1(style));
    };
    row("title", "", "n", "NoteListItemTitle");
    row("start", "", "09:00", "NoteListItemTime");
    row("end", "", "– 10:00", "NoteListItemEnd");
    row("place", "", "Hall 3", "NoteListItemPlace");
    row("tentative", "tentative", "n", "NoteListItemTitleTentative");
    row("cancelled", "cancelled", "n", "NoteListItemTitleDone");
    row("the word for it", "cancelled", "Cancelled · Hall 3", "NoteListItemPlace");
    row("done", "done", "n", "NoteListItemTitleDone");
    row("overdue", "overdue", "Today", "NoteListItemTimeOverdue");
    row("the time that was", "overdue", "09:00", "NoteListItemTimeOverdue");
    row("squeezed", "squeezed", "n", "NoteListItemTitle");
    row("the time, squeezed", "squeezed", "09:00", "");
    row("the place, squeezed", "squeezed", "Hall 3", "");
}

void TestNoteWidget::writesInStyles()
{
    QFETCH(QString, kind);
    QFETCH(QString, text);
    KCalCore::Incidence::Ptr incidence = makeEvent("n", morning, morning.addSecs(3600));
    if (kind == QLatin1String("overdue") || kind == QLatin1String("done"))
        incidence = makeTodo("n", morning);
    if (kind == QLatin1String("done"))
        incidence.staticCast<KCalCore::Todo>()->setCompleted(true);
    else if (kind == QLatin1String("tentative"))
        incidence->setStatus(KCalCore::Incidence::StatusTentative);
    else if (kind == QLatin1String("cancelled"))
        incidence->setStatus(KCalCore::Incidence::StatusCanceled);
    incidence->setLocation(QStringLiteral("Hall 3"), false);
    NoteWidget *note = shown(incidence);
    QVERIFY(note->size().height() >= 56);
    note->setSqueezed(kind == QLatin1String("squeezed"));
    QTEST(labelsOf(*note).value(text), "style");
}

void TestNoteWidget::followsWhatItsModelDoesNotHold()
{
    const auto event = makeEvent("n", morning, morning.addSecs(3600));
    NoteWidget *note = shown(event);
    event->setStatus(KCalCore::Incidence::StatusCanceled);
    note->setNote(event);
    QCOMPARE(labelsOf(*note).value(QStringLiteral("n")), QStringLiteral("NoteListItemTitleDone"));

    const auto todo = makeTodo("t", morning.addSecs(36000));
    note = shown(todo);
    QVERIFY(labelsOf(*note).contains(QStringLiteral("Today")));
    m_notes->setToday(morning.date().addDays(1));
    note->setNote(todo);
    QCOMPARE(labelsOf(*note).value(QStringLiteral("10 Mar")),
             QStringLiteral("NoteListItemTimeOverdue"));
}

void TestNoteWidget::drawsItsStripe_data()
{
    addColumns<Qt::LayoutDirection, int>("direction", "x");
    addRow("left to right", Qt::LeftToRight, 10);
    addRow("right to left", Qt::RightToLeft, 349);
}

void TestNoteWidget::drawsItsStripe()
{
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(int, x);
    mKCal::Notebook::Ptr notebook(new mKCal::Notebook);
    notebook->setColor(QStringLiteral("#1565c0"));
    NotebookManager::instance()->addNotebook(notebook);
    const auto event = makeEvent("n", morning, morning);
    remind(event);
    NoteWidget *note = shown(event);
    DbInstance::instance()->calendar()->setNotebook(event, notebook->uid());
    note->setNote(event);
    note->setLayoutDirection(direction);
    TouchScreen::layOut();
    const QRect row = note->sceneBoundingRect().toRect();
    const QImage picture = m_screen->view.grab(row).toImage();
    QCOMPARE(picture.pixelColor(x, 0), QColor(QStringLiteral("#1565c0")));
    QCOMPARE(picture.pixelColor(x, row.height() - 1), QColor(QStringLiteral("#1565c0")));
    // The reminder's mark is at the far end: something is drawn there.
    const auto isDrawnAt = [&picture](int from) {
        const QRgb ground = picture.pixel(180, 2);
        for (int column = from; column < from + 24; ++column) {
            for (int line = 0; line < picture.height(); ++line) {
                if (picture.pixel(column, line) != ground)
                    return true;
            }
        }
        return false;
    };
    QVERIFY(isDrawnAt(direction == Qt::LeftToRight ? 322 : 14));
}

void TestNoteWidget::isReadAloud_data()
{
    addColumns<QString, QString>("kind", "name");
    addRow("event", QStringLiteral("event"), QStringLiteral("n, 09:00, – 10:00, Hall 3"));
    addRow("done", QStringLiteral("done"), QStringLiteral("n, Today, 09:00, Hall 3, Done"));
    addRow("overdue", QStringLiteral("todo"), QStringLiteral("n, Today, 09:00, Hall 3, Overdue"));
    addRow("cancelled", QStringLiteral("cancelled"),
           QStringLiteral("n, 09:00, – 10:00, Hall 3, Cancelled"));
}

void TestNoteWidget::isReadAloud()
{
    QFETCH(QString, kind);
    KCalCore::Incidence::Ptr incidence = makeEvent("n", morning, morning.addSecs(3600));
    if (kind == QLatin1String("done") || kind == QLatin1String("todo"))
        incidence = makeTodo("n", morning);
    if (kind == QLatin1String("done"))
        incidence.staticCast<KCalCore::Todo>()->setCompleted(true);
    if (kind == QLatin1String("cancelled"))
        incidence->setStatus(KCalCore::Incidence::StatusCanceled);
    incidence->setLocation(QStringLiteral("Hall 3"), false);
    NoteWidget *note = shown(incidence);
    QTEST(note->accessibleName(), "name");
    QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(note);
    QVERIFY(spoken);
    QCOMPARE(spoken->role(), QAccessible::ListItem);
    QTEST(spoken->text(QAccessible::Name), "name");
}

int main(int argc, char **argv)
{
    MApplication application(argc, argv);
    TestNoteWidget test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_notewidget.moc"
