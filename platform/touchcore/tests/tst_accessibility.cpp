// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <touchcore/mapplication.h>
#include <touchcore/mapplicationpage.h>
#include <touchcore/mbutton.h>
#include <touchcore/mbuttongroup.h>
#include <touchcore/mcellgrid.h>
#include <touchcore/mdatepicker.h>
#include <touchcore/mdialog.h>
#include <touchcore/mlabel.h>
#include <touchcore/mlistitem.h>
#include <touchcore/mlocale.h>
#include <touchcore/mpannableviewport.h>
#include <touchcore/mscenemanager.h>
#include <touchcore/mslider.h>
#include <touchcore/mstylablewidget.h>
#include <touchcore/mtextedit.h>
#include <touchcore/mwindow.h>

#include <QAccessible>
#include <QAction>
#include <QGraphicsLinearLayout>
#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace
{
using Maker = MWidget *(*)();
using Actions = QStringList;

QAccessibleInterface *interfaceOf(QObject *object)
{
    return QAccessible::queryAccessibleInterface(object);
}

MButton *checkable(MButton *button)
{
    button->setCheckable(true);
    button->setChecked(true);
    return button;
}
} // namespace
Q_DECLARE_METATYPE(Maker)

/// What those hear and can do who do not see the screen.
class TestAccessibility : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void tellsRoleNameAndActions_data();
    void tellsRoleNameAndActions();
    void stepsOverWhatOnlyArranges();
    void readsRowsAsOneText();
    void doesActions();
    void movesSliders();
    void readsTheDaysOfAMonth_data();
    void readsTheDaysOfAMonth();
    void choosesDays();
    void keepsPasswordsToItself();
    void showsOnlyTheDialogWhileItIsOpen();
    void findsWidgetsByPlace();
    void tellsWhereTheFocusIs();

private:
    void show(QGraphicsWidget *content);
    static MDatePicker *newPicker();
    /// Of the picker on the page.
    MCellGrid *grid() const;
    QAccessibleInterface *page() const { return interfaceOf(m_page); }

    std::unique_ptr<MWindow> m_window;
    MApplicationPage *m_page = nullptr;
};

void TestAccessibility::init()
{
    MSceneManager::setAnimationsEnabled(false);
    m_window = std::make_unique<MWindow>();
    m_window->resize(480, 600);
    m_window->show();
}

void TestAccessibility::cleanup()
{
    m_window.reset();
}

void TestAccessibility::show(QGraphicsWidget *content)
{
    m_page = new MApplicationPage;
    m_page->setTitle(QStringLiteral("Agenda"));
    m_page->setCentralWidget(content);
    m_page->appear(m_window.get());
    QCoreApplication::processEvents();
}

MDatePicker *TestAccessibility::newPicker()
{
    auto *picker = new MDatePicker;
    picker->setRange(QDate(2026, 11, 1), QDate(2026, 12, 31));
    picker->setDate(QDate(2026, 11, 24));
    return picker;
}

MCellGrid *TestAccessibility::grid() const
{
    const QList<QGraphicsItem *> items = m_window->scene()->items();
    for (QGraphicsItem *item : items) {
        if (auto *found = qobject_cast<MCellGrid *>(item->toGraphicsObject()))
            return found;
    }
    return nullptr;
}

void TestAccessibility::tellsRoleNameAndActions_data()
{
    QTest::addColumn<Maker>("make");
    QTest::addColumn<int>("role");
    QTest::addColumn<QString>("name");
    QTest::addColumn<Actions>("actions");

    const QString press = QAccessibleActionInterface::pressAction();
    const QString toggle = QAccessibleActionInterface::toggleAction();
    const QString focus = QAccessibleActionInterface::setFocusAction();
    const QString menu = QAccessibleActionInterface::showMenuAction();
    const auto row = [](const char *name, Maker make, QAccessible::Role role, const char *text,
                        const Actions &actions) {
        QTest::newRow(name) << make << int(role) << QString::fromUtf8(text) << actions;
    };
    row("label", [] { return static_cast<MWidget *>(new MLabel(QStringLiteral("Hall 3"))); },
        QAccessible::StaticText, "Hall 3", {});
    row("button", [] { return static_cast<MWidget *>(new MButton(QStringLiteral("Save"))); },
        QAccessible::Button, "Save", {press, focus});
    row("button that is off",
        [] {
            auto *button = new MButton(QStringLiteral("Save"));
            button->setEnabled(false);
            return static_cast<MWidget *>(button);
        },
        QAccessible::Button, "Save", {focus});
    row("switch",
        [] { return static_cast<MWidget *>(checkable(new MButton(QStringLiteral("All day")))); },
        QAccessible::CheckBox, "All day", {toggle, focus});
    row("one of several",
        [] {
            auto *button = checkable(new MButton(QStringLiteral("Week")));
            (new MButtonGroup(button))->addButton(button);
            return static_cast<MWidget *>(button);
        },
        QAccessible::RadioButton, "Week", {toggle, focus});
    row("text field",
        [] {
            auto *edit = new MTextEdit;
            edit->setPrompt(QStringLiteral("Title"));
            return static_cast<MWidget *>(edit);
        },
        QAccessible::EditableText, "Title", {focus});
    row("slider called by the program",
        [] {
            auto *slider = new MSlider;
            slider->setProperty("accessibleName", QStringLiteral("Size of text"));
            return static_cast<MWidget *>(slider);
        },
        QAccessible::Slider, "Size of text", {focus});
    row("row with a menu",
        [] {
            auto *item = new MListItem;
            item->setProperty("accessibleName", QStringLiteral("Dentist"));
            item->addAction(new QAction(QStringLiteral("Delete"), item));
            return static_cast<MWidget *>(item);
        },
        QAccessible::ListItem, "Dentist", {press, menu, focus});
}

void TestAccessibility::tellsRoleNameAndActions()
{
    QFETCH(Maker, make);
    MWidget *widget = make();
    show(widget);
    QAccessibleInterface *seen = interfaceOf(widget);
    QTEST(int(seen->role()), "role");
    QTEST(seen->text(QAccessible::Name), "name");
    QTEST(seen->actionInterface()->actionNames(), "actions");
    QCOMPARE(seen->rect().size(), widget->size().toSize());
    QCOMPARE(seen->parent()->object(), m_page);
    QVERIFY(page()->indexOfChild(seen) >= 0);
    QCOMPARE(page()->parent()->object(), m_window.get());
}

void TestAccessibility::stepsOverWhatOnlyArranges()
{
    auto *panel = new MStylableWidget;
    auto *layout = new QGraphicsLinearLayout(Qt::Vertical, panel);
    auto *first = new MLabel(QStringLiteral("first"));
    auto *hidden = new MLabel(QStringLiteral("hidden"));
    hidden->hide();
    auto *last = new MButton(QStringLiteral("last"));
    layout->addItem(first);
    layout->addItem(last);
    hidden->setParentItem(panel);
    auto *viewport = new MPannableViewport;
    viewport->setWidget(panel);
    show(viewport);
    QAccessibleInterface *seen = interfaceOf(first);
    QVERIFY(seen->parent());
    QAccessibleInterface *around = seen->parent();
    QStringList texts;
    for (int i = 0; i < around->childCount(); ++i)
        texts.append(around->child(i)->text(QAccessible::Name));
    QVERIFY(texts.indexOf(QStringLiteral("first")) >= 0);
    QCOMPARE(texts.indexOf(QStringLiteral("last")), texts.indexOf(QStringLiteral("first")) + 1);
    QVERIFY(!texts.contains(QStringLiteral("hidden")));
}

void TestAccessibility::readsRowsAsOneText()
{
    auto *row = new MListItem;
    auto *layout = new QGraphicsLinearLayout(Qt::Vertical, row);
    layout->addItem(new MLabel(QStringLiteral("Dentist")));
    layout->addItem(new MLabel(QStringLiteral("09:00")));
    show(row);
    QCOMPARE(interfaceOf(row)->text(QAccessible::Name), QStringLiteral("Dentist, 09:00"));
}

void TestAccessibility::doesActions()
{
    auto *panel = new MStylableWidget;
    auto *layout = new QGraphicsLinearLayout(Qt::Vertical, panel);
    auto *button = checkable(new MButton(QStringLiteral("All day")));
    auto *row = new MListItem;
    layout->addItem(button);
    layout->addItem(row);
    show(panel);
    QSignalSpy tapped(row, &MListItem::clicked);
    interfaceOf(button)->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QVERIFY(!button->isChecked());
    QVERIFY(!interfaceOf(button)->state().checked);
    interfaceOf(row)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QTRY_COMPARE(tapped.count(), 1);
    interfaceOf(row)->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    QVERIFY(row->hasFocus());
    QVERIFY(interfaceOf(row)->state().focused);
}

void TestAccessibility::movesSliders()
{
    auto *slider = new MSlider;
    slider->setRange(10, 50);
    slider->setValue(20);
    show(slider);
    QAccessibleValueInterface *value = interfaceOf(slider)->valueInterface();
    QVERIFY(value);
    QCOMPARE(value->minimumValue().toInt(), 10);
    QCOMPARE(value->maximumValue().toInt(), 50);
    value->setCurrentValue(30);
    QCOMPARE(slider->value(), 30);
    QCOMPARE(value->currentValue().toInt(), 30);
}

void TestAccessibility::readsTheDaysOfAMonth_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isSelected");
    QTest::addColumn<Actions>("actions");
    const QString press = QAccessibleActionInterface::pressAction();
    QTest::newRow("before the range") << 0 << "Monday, 26 October 2026" << false << Actions();
    QTest::newRow("a day") << 8 << "Tuesday, 3 November 2026" << false << Actions{press};
    QTest::newRow("the chosen day") << 29 << "Tuesday, 24 November 2026" << true << Actions{press};
}

void TestAccessibility::readsTheDaysOfAMonth()
{
    QFETCH(int, place);
    MLocale::setDefault(MLocale(QStringLiteral("en_GB")));
    show(newPicker());
    QAccessibleInterface *table = interfaceOf(grid());
    QCOMPARE(table->role(), QAccessible::Table);
    QCOMPARE(table->childCount(), 42);
    QVERIFY(!table->child(42));
    QAccessibleInterface *day = table->child(place);
    QCOMPARE(day->role(), QAccessible::Cell);
    QTEST(day->text(QAccessible::Name), "name");
    QTEST(bool(day->state().selected), "isSelected");
    QTEST(day->actionInterface()->actionNames(), "actions");
    QCOMPARE(bool(day->state().disabled), day->actionInterface()->actionNames().isEmpty());
    QCOMPARE(day->parent(), table);
    QCOMPARE(table->indexOfChild(day), place);
    const QPoint middle = day->rect().center();
    QCOMPARE(interfaceOf(m_window.get())->childAt(middle.x(), middle.y()), day);
}

void TestAccessibility::choosesDays()
{
    MDatePicker *picker = newPicker();
    show(picker);
    QAccessibleInterface *table = interfaceOf(grid());
    table->child(0)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(picker->date(), QDate(2026, 11, 24));
    table->child(8)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(picker->date(), QDate(2026, 11, 3));
    grid()->setFocus();
    QCOMPARE(table->focusChild(), table->child(8));
    QVERIFY(table->child(8)->state().focused);
    // Twelve months take the place of the days.
    QAccessibleInterface *last = table->child(41);
    grid()->setCells(grid()->cells().mid(0, 12));
    QVERIFY(!last->isValid());
    QVERIFY(table->child(11)->isValid());
}

void TestAccessibility::keepsPasswordsToItself()
{
    auto *edit = new MTextEdit;
    edit->setText(QStringLiteral("secret"));
    show(edit);
    QCOMPARE(interfaceOf(edit)->text(QAccessible::Value), QStringLiteral("secret"));
    edit->setEchoMode(QLineEdit::Password);
    QCOMPARE(interfaceOf(edit)->text(QAccessible::Value), QString());
    QVERIFY(interfaceOf(edit)->state().passwordEdit);
    interfaceOf(edit)->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    QVERIFY(interfaceOf(edit)->state().focused);
}

void TestAccessibility::showsOnlyTheDialogWhileItIsOpen()
{
    show(new MLabel(QStringLiteral("below")));
    QAccessibleInterface *window = interfaceOf(m_window.get());
    QCOMPARE(window->role(), QAccessible::Window);
    QCOMPARE(window->child(0)->object(), m_page);
    auto *dialog = new MDialog;
    dialog->setTitle(QStringLiteral("Really?"));
    dialog->appear(m_window.get(), MSceneWindow::DestroyWhenDone);
    QCoreApplication::processEvents();
    QAccessibleInterface *top = window->child(window->childCount() - 1);
    QCOMPARE(top->object(), dialog);
    QCOMPARE(top->role(), QAccessible::Dialog);
    QCOMPARE(top->text(QAccessible::Name), QStringLiteral("Really?"));
    QVERIFY(top->state().modal);
}

void TestAccessibility::findsWidgetsByPlace()
{
    auto *button = new MButton(QStringLiteral("Save"));
    show(button);
    const QPoint middle = interfaceOf(button)->rect().center();
    QAccessibleInterface *found = interfaceOf(m_window.get())->childAt(middle.x(), middle.y());
    QVERIFY(found);
    QCOMPARE(found->object(), button);
}

void TestAccessibility::tellsWhereTheFocusIs()
{
    auto *button = new MButton(QStringLiteral("Save"));
    show(button);
    QAccessibleInterface *window = interfaceOf(m_window.get());
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    button->setFocus(Qt::TabFocusReason);
    QCOMPARE(window->focusChild()->object(), button);
}

int main(int argc, char **argv)
{
    MApplication application(argc, argv);
    TestAccessibility test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_accessibility.moc"
