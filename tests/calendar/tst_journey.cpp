// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "calendarscreen.h"
#include "incidences.h"
#include "pages/noteviewpage.h"

#include <daskel/daskelpageheaderwidget.h>
#include <daskel/notedeletion.h>
#include <daskel/notewidget.h>
#include <daskel/pageswitcher.h>
#include <touchcore/mapplication.h>
#include <touchcore/mbutton.h>
#include <touchcore/mdialog.h>
#include <touchcore/mlocale.h>
#include <touchcore/mtheme.h>

#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>

namespace
{
const char components[] = "BEGIN:VEVENT\r\nUID:choir\r\nDTSTAMP:20110101T000000Z\r\n"
                          "DTSTART:20110308T163000Z\r\nDTEND:20110308T183000Z\r\n"
                          "RRULE:FREQ=WEEKLY\r\nSUMMARY:Choir\r\nLOCATION:Parish hall\r\n"
                          "END:VEVENT\r\n"
                          "BEGIN:VEVENT\r\nUID:dentist\r\nDTSTAMP:20110101T000000Z\r\n"
                          "DTSTART:20110310T150000Z\r\nDTEND:20110310T153000Z\r\n"
                          "SUMMARY:Dentist\r\n"
                          "BEGIN:VALARM\r\nACTION:DISPLAY\r\nDESCRIPTION:x\r\n"
                          "TRIGGER:-PT15M\r\nEND:VALARM\r\nEND:VEVENT\r\n"
                          "BEGIN:VTODO\r\nUID:books\r\nDTSTAMP:20110101T000000Z\r\n"
                          "DUE:20110311T100000Z\r\nSUMMARY:Library books\r\nEND:VTODO\r\n"
                          "BEGIN:VJOURNAL\r\nUID:diary\r\nDTSTAMP:20110101T000000Z\r\n"
                          "DTSTART;VALUE=DATE:20110309\r\nSUMMARY:A quiet day\r\n"
                          "END:VJOURNAL\r\n";
} // namespace

/// What a person does with the calendar, through its window.
class JourneyTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void filesAreTakenIn();
    void flickToNextYearAndBack();
    void farDatesAreJumpedTo();
    void aTickReloadsOtherListsOnly();
    void aChangeByAnotherProcessAppears();
    void deletedAndBroughtBack();
    void themeAndLanguageChangeWhileRunning();
    void aNoteIsOpenedAndLeft();
    void theKeyboardGoesEverywhere();
    void pagesAreSwitchedByTheBar();
    void anEmptyCalendarOffersToImport();
    void aFailureIsToldAndTriedAgain();

private:
    void start(const QByteArray &content);

    QTemporaryDir m_folder;
    std::unique_ptr<CalendarScreen> m_screen;
};

void JourneyTest::initTestCase()
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder.path());
}

void JourneyTest::init()
{
    m_screen = std::make_unique<CalendarScreen>();
}

void JourneyTest::cleanup()
{
    m_screen.reset();
}

void JourneyTest::start(const QByteArray &content)
{
    const QStringList files = content.isEmpty()
        ? QStringList()
        : QStringList{CalendarScreen::writeFile(m_folder.path(), content)};
    m_screen->application->start(files);
    m_screen->window->showPage(PageBar::Agenda);
    QTRY_VERIFY(DbInstance::instance()->isEnabled());
    QTRY_VERIFY(m_screen->rows().size() >= (content.isEmpty() ? 2 : 3));
}

void JourneyTest::filesAreTakenIn()
{
    start(components);
    QTRY_VERIFY(m_screen->rowOf("Dentist").isValid());
    QCOMPARE(m_screen->topDay(), QDate(2011, 3, 10));
    m_screen->window->showPage(PageBar::Todos);
    QTRY_COMPARE(m_screen->rows(), QStringList({"[This week]", "Library books"}));
    m_screen->window->showPage(PageBar::Journals);
    QTRY_COMPARE(m_screen->rows(), QStringList("A quiet day"));
}

void JourneyTest::flickToNextYearAndBack()
{
    start(components);
    for (int flicks = 0; flicks < 100 && m_screen->topDay() < QDate(2012, 3, 10); ++flicks)
        m_screen->flick(-500);
    QVERIFY(m_screen->topDay() >= QDate(2012, 3, 10));
    const DaskelPageHeaderWidget *header = m_screen->content()->header();
    QVERIFY(header->title().endsWith("2012"));
    QVERIFY(header->getButtonWidget()->isVisible());
    for (int flicks = 0; flicks < 200 && m_screen->topDay() > QDate(2011, 3, 10); ++flicks)
        m_screen->flick(500);
    QVERIFY(m_screen->topDay() <= QDate(2011, 3, 10));
    header->getButtonWidget()->click();
    QCOMPARE(m_screen->topDay(), QDate(2011, 3, 10));
    QVERIFY(!header->getButtonWidget()->isVisible());
    QCOMPARE(header->title(), QString("March 2011"));
}

void JourneyTest::farDatesAreJumpedTo()
{
    start(components);
    m_screen->window->agenda()->jumpTo(QDate(2031, 3, 11));
    QCOMPARE(m_screen->topDay(), QDate(2031, 3, 11));
    QVERIFY(m_screen->rows().size() < 400);
    m_screen->window->agenda()->jumpTo(QDate(1990, 1, 1));
    QCOMPARE(m_screen->topDay(), QDate(2011, 3, 8));
    m_screen->window->agenda()->goToToday();
    QCOMPARE(m_screen->topDay(), QDate(2011, 3, 10));
}

void JourneyTest::aTickReloadsOtherListsOnly()
{
    start(components);
    m_screen->window->showPage(PageBar::Todos);
    QTRY_VERIFY(m_screen->rowOf("Library books").isValid());
    QSignalSpy reloads(m_screen->list(), &NoteListWidget::listReloaded);
    QSignalSpy saved(DbInstance::instance(), &DbInstance::dbSaved);
    const QModelIndex row = m_screen->rowOf("Library books");
    auto *note = qobject_cast<NoteWidget *>(m_screen->list()->cellAt(row));
    QVERIFY(note);
    note->setCompleted();
    QCOMPARE(saved.size(), 1);
    QCoreApplication::processEvents();
    // The row stays where it was ticked off, and the next change is not let pass.
    QCOMPARE(reloads.size(), 0);
    QVERIFY(m_screen->list()->refreshEnabled());
    QVERIFY(note->isCompleted());
    QSignalSpy agendaReloads(m_screen->window->agenda()->list(), &NoteListWidget::listReloaded);
    m_screen->window->showPage(PageBar::Agenda);
    QTRY_COMPARE(agendaReloads.size(), 1);
}

void JourneyTest::aChangeByAnotherProcessAppears()
{
    start(components);
    QVERIFY(!m_screen->rowOf("From elsewhere").isValid());
    OtherProcess other;
    const auto event =
        makeEvent("elsewhere", localTime("2011-03-11T09:00"), localTime("2011-03-11T10:00"));
    event->setSummary("From elsewhere", false);
    other.calendar->addIncidence(event, QString());
    QVERIFY(other.storage->save());
    QTRY_VERIFY(m_screen->rowOf("From elsewhere").isValid());
    QCOMPARE(m_screen->topDay(), QDate(2011, 3, 10));
}

void JourneyTest::deletedAndBroughtBack()
{
    start(components);
    QTRY_VERIFY(m_screen->rowOf("Dentist").isValid());
    NoteDeletion *deletion = m_screen->window->deletion();
    QVERIFY(deletion->remove("dentist", KDateTime(), KDateTime(), NoteDeletion::WholeSeries));
    QTRY_VERIFY(!m_screen->rowOf("Dentist").isValid());
    QVERIFY(deletion->undo());
    QTRY_VERIFY(m_screen->rowOf("Dentist").isValid());
    const auto dentist = DbInstance::instance()->incidence("dentist", KDateTime());
    QCOMPARE(dentist->alarms().size(), 1);
}

void JourneyTest::themeAndLanguageChangeWhileRunning()
{
    start(components);
    const QColor light = MTheme::instance()->color("background");
    MTheme::instance()->setColorScheme(M::DarkScheme);
    QCoreApplication::processEvents();
    QVERIFY(MTheme::instance()->color("background") != light);
    MLocale::setDefault(MLocale(QStringLiteral("de_DE")));
    CalendarApplication::installTexts();
    m_screen->window->retranslate();
    QTRY_VERIFY(m_screen->rows().contains(QStringLiteral("[Donnerstag, 10. März · heute]")));
    QCOMPARE(m_screen->window->windowTitle(), QString("Kalender"));
    QCOMPARE(m_screen->list()->layoutDirection(), Qt::LeftToRight);
    MLocale::setDefault(MLocale(QStringLiteral("ar_EG")));
    CalendarApplication::installTexts();
    m_screen->window->retranslate();
    QTRY_COMPARE(m_screen->list()->layoutDirection(), Qt::RightToLeft);
    // Also after Qt heard of a catalogue of somebody else.
    QEvent languageChange(QEvent::LanguageChange);
    QCoreApplication::sendEvent(qApp, &languageChange);
    QCOMPARE(m_screen->list()->layoutDirection(), Qt::RightToLeft);
    MTheme::instance()->setColorScheme(M::LightScheme);
    MLocale::setDefault(MLocale(QStringLiteral("en_GB")));
    CalendarApplication::installTexts();
}

void JourneyTest::aNoteIsOpenedAndLeft()
{
    start(components);
    QTRY_VERIFY(m_screen->list()->cellAt(m_screen->rowOf("Dentist")));
    MWidget *cell = m_screen->list()->cellAt(m_screen->rowOf("Dentist"));
    m_screen->tap(cell->mapToScene(cell->rect().center()));
    QTRY_COMPARE(PageSwitcher::instance()->latestWindow(), m_screen->window->noteView());
    QCOMPARE(m_screen->window->noteView()->title(), QString("Event"));
    QTest::keyClick(m_screen->window.get(), Qt::Key_Escape);
    QTRY_VERIFY(PageSwitcher::instance()->latestWindow() != m_screen->window->noteView());
    QCOMPARE(m_screen->topDay(), QDate(2011, 3, 10));
}

void JourneyTest::theKeyboardGoesEverywhere()
{
    start(components);
    QTRY_VERIFY(m_screen->rowOf("Dentist").isValid());
    QWidget *window = m_screen->window.get();
    for (int i = 0; i < 10; ++i) {
        QTest::keyClick(window, Qt::Key_PageDown);
        QCoreApplication::processEvents();
    }
    QVERIFY(m_screen->topDay() > QDate(2011, 4, 10));
    // A question in between leaves the keys to the list.
    MSceneManager::setAnimationsEnabled(true);
    QTest::keyClick(window, Qt::Key_Delete);
    QTRY_VERIFY(qobject_cast<MDialog *>(m_screen->window->sceneManager()->topWindow()));
    QTest::keyClick(window, Qt::Key_Escape);
    QTRY_COMPARE(m_screen->window->sceneManager()->sceneWindows().size(), 1);
    MSceneManager::setAnimationsEnabled(false);
    QTRY_COMPARE(m_screen->window->scene()->focusItem(), m_screen->list());
    QTest::keyClick(window, Qt::Key_Home);
    QCOMPARE(m_screen->topDay(), QDate(2011, 3, 10));
    QTest::keyClick(window, Qt::Key_Down);
    QTest::keyClick(window, Qt::Key_Return);
    QTRY_COMPARE(PageSwitcher::instance()->latestWindow(), m_screen->window->noteView());
}

void JourneyTest::pagesAreSwitchedByTheBar()
{
    start(components);
    m_screen->tap(QPointF(400, 825));
    QTRY_COMPARE(m_screen->window->currentPage(), PageBar::Journals);
    QCOMPARE(CalendarConf::instance()->lastActiveTab(), 2);
    m_screen->tap(QPointF(80, 825));
    QTRY_COMPARE(m_screen->window->currentPage(), PageBar::Agenda);
    // At the leading side in landscape.
    m_screen->window->resize(854, 480);
    QCoreApplication::processEvents();
    m_screen->tap(QPointF(40, 80));
    QTRY_COMPARE(m_screen->window->currentPage(), PageBar::Todos);
}

void JourneyTest::anEmptyCalendarOffersToImport()
{
    start(QByteArray());
    QTRY_VERIFY(!m_screen->content()->viewport()->isVisible());
    QSignalSpy wanted(m_screen->window.get(), &CalendarWindow::importWanted);
    m_screen->application->disconnect();
    QObject::disconnect(m_screen->window.get(), &CalendarWindow::importWanted,
                        m_screen->application.get(), nullptr);
    Q_EMIT m_screen->content()->importWanted();
    QCOMPARE(wanted.size(), 1);
    m_screen->application->importFiles({CalendarScreen::writeFile(m_folder.path(), components)});
    QTRY_VERIFY(m_screen->content()->viewport()->isVisible());
    QTRY_VERIFY(m_screen->rowOf("Dentist").isValid());
}

void JourneyTest::aFailureIsToldAndTriedAgain()
{
    constexpr int corrupt = 11;
    const QString text = CalendarApplication::openErrorText(corrupt);
    QVERIFY(text.startsWith("Your calendar file is damaged"));
    m_screen->window->showError(text);
    QSignalSpy retries(m_screen->window.get(), &CalendarWindow::retryWanted);
    const auto isRetry = [](const MButton *button) { return button->text() == "Try again"; };
    QList<MButton *> buttons;
    for (QGraphicsItem *item : m_screen->window->scene()->items()) {
        auto *button = dynamic_cast<MButton *>(item);
        if (button && button->isVisible() && isRetry(button))
            buttons << button;
    }
    QCOMPARE(buttons.size(), 1);
    buttons.first()->click();
    QCOMPARE(retries.size(), 1);
}

int main(int argc, char **argv)
{
    MApplication application(argc, argv);
    MLocale::setDefault(MLocale(QStringLiteral("en_GB")));
    CalendarApplication::prepare();
    JourneyTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_journey.moc"
