// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testtable.h"

#include <daskel/daskelutility.h>
#include <daskel/pageswitcher.h>
#include <touchcore/mapplication.h>
#include <touchcore/mbanner.h>
#include <touchcore/mlistitem.h>
#include <touchcore/mmessagebox.h>
#include <touchcore/mscenemanager.h>
#include <touchcore/mseparator.h>
#include <touchcore/mwindow.h>

#include <QGraphicsGridLayout>
#include <QGraphicsLinearLayout>
#include <QSignalSpy>
#include <QTimer>

#include <functional>
#include <memory>

namespace
{
const QString uid = QStringLiteral("01234567-89ab-cdef-0123-456789abcdef");
const QString note = QStringLiteral("urn:x-ical:") + uid;

/// What came out of a builder.
struct Built {
    QGraphicsWidget *widget = nullptr;
    QGraphicsLayout *layout = nullptr;
};
/// Builds something below a parent, or for the caller when that is null.
using Builder = Built (*)(QGraphicsWidget *parent);
using Question = std::function<bool()>;
} // namespace
Q_DECLARE_METATYPE(Builder)
Q_DECLARE_METATYPE(Question)
Q_DECLARE_METATYPE(MMessageBox *)

class TestDaskelUtility : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void takesAddressesApart_data();
    void takesAddressesApart();
    void buildsParts_data();
    void buildsParts();
    void buildsLayoutsAlone();
    void wrapsContents();

    void asksAndWaits_data();
    void asksAndWaits();
    void questionsMayAskQuestions();
    void questionsGoWithThePages();
    void asksAndReturns();
    void showsABanner();

public Q_SLOTS:
    void answered(int result) { m_answers << result; }

private:
    MMessageBox *shownQuestion() const;

    std::unique_ptr<MWindow> m_window;
    QList<int> m_answers;
};

void TestDaskelUtility::init()
{
    MSceneManager::setAnimationsEnabled(false);
    m_window = std::make_unique<MWindow>();
    m_window->resize(480, 854);
    m_window->show();
    m_answers.clear();
}

void TestDaskelUtility::cleanup()
{
    m_window.reset();
}

MMessageBox *TestDaskelUtility::shownQuestion() const
{
    return qobject_cast<MMessageBox *>(m_window->sceneManager()->topWindow());
}

void TestDaskelUtility::takesAddressesApart_data()
{
    addColumns<QString, QString, KDateTime>("uri", "uid", "recurrenceId");
    const KDateTime none;
    addRow("a note", note, uid, none);
    addRow("an occurrence", QString(note + QStringLiteral(":2011-03-01T10:00:00")), uid,
           KDateTime(QDate(2011, 3, 1), QTime(10, 0)));
    addRow("an occurrence, in UTC", QString(note + QStringLiteral(":2011-03-01T10:00:00Z")), uid,
           KDateTime(QDate(2011, 3, 1), QTime(10, 0), KDateTime::Spec::UTC()));
    addRow("an occurrence, all-day", QString(note + QStringLiteral(":2011-03-01")), uid,
           KDateTime(QDate(2011, 3, 1)));
    addRow("a colon and no occurrence", QString(note + QLatin1Char(':')), uid, none);
    addRow("a colon and no time", QString(note + QStringLiteral(":soon")), uid, none);
    addRow("the other prefix", QString(QStringLiteral("urn:uri:") + uid), uid, none);
    // Cut at the length of the usual prefix and UID before the prefix is looked at.
    addRow("the other prefix, an occurrence",
           QString(QStringLiteral("urn:uri:") + uid + QStringLiteral(":2011-03-01T10:00:00")),
           QString(uid + QStringLiteral(":20")), none);
    addRow("a prefix in capitals", QString(QStringLiteral("URN:X-ICAL:") + uid),
           QString(QStringLiteral("URN:X-ICAL:") + uid), none);
    addRow("a bare UID", uid, uid, none);
    addRow("47 characters without a prefix", QString(47, 'x'), QString(47, 'x'), none);
    addRow("48 characters without a prefix", QString(48, 'x'), QString(47, 'x'), none);
    addRow("50 characters without a prefix", QString(50, 'x'), QString(47, 'x'), none);
    addRow("a foreign UID that is short", QStringLiteral("urn:x-ical:7@host"),
           QStringLiteral("7@host"), none);
    addRow("a foreign UID that is long", QString(QStringLiteral("urn:x-ical:") + QString(60, 'u')),
           QString(36, 'u'), none);
    addRow("a prefix alone", QStringLiteral("urn:x-ical:"), QString(), none);
    addRow("nothing", QString(), QString(), none);
}

void TestDaskelUtility::takesAddressesApart()
{
    QFETCH(QString, uri);
    QFETCH(KDateTime, recurrenceId);
    QTEST(daskelUtilityStringToUID(uri), "uid");
    const KDateTime found = daskelUtilityUriToRecurrenceId(uri);
    QCOMPARE(found.isValid(), recurrenceId.isValid());
    if (recurrenceId.isValid())
        QCOMPARE(found, recurrenceId);
}

void TestDaskelUtility::buildsParts_data()
{
    addColumns<Builder, QByteArray, QString, int>("build", "className", "style", "orientation");
    const int noLayout = 0;
    const QByteArray panel = "MStylableWidget";
    const QByteArray item = "MListItem";
    const QString own = QStringLiteral("OwnStyle");
    const auto row = [](const char *name, const QByteArray &className, const QString &style,
                        int orientation,
                        Builder build) { addRow(name, build, className, style, orientation); };
    row("list item", item, own, noLayout, [](QGraphicsWidget *parent) {
        return Built{daskelUtilityCreateListItem(parent, QStringLiteral("OwnStyle")), nullptr};
    });
    row("list item with a layout", item, own, Qt::Horizontal, [](QGraphicsWidget *parent) {
        QGraphicsLinearLayout *layout = nullptr;
        auto *widget =
            daskelUtilityCreateListItem(parent, QStringLiteral("OwnStyle"), layout, Qt::Horizontal);
        return Built{widget, layout};
    });
    row("panel", panel, own, noLayout, [](QGraphicsWidget *parent) {
        return Built{daskelUtilityCreatePanel(parent, QStringLiteral("OwnStyle")), nullptr};
    });
    row("panel with a layout", panel, own, Qt::Vertical, [](QGraphicsWidget *parent) {
        QGraphicsLinearLayout *layout = nullptr;
        auto *widget =
            daskelUtilityCreatePanel(parent, QStringLiteral("OwnStyle"), layout, Qt::Vertical);
        return Built{widget, layout};
    });
    row("common panel", panel, QStringLiteral("CommonPanel"), Qt::Horizontal,
        [](QGraphicsWidget *parent) {
            QGraphicsLinearLayout *layout = nullptr;
            auto *widget = daskelUtilityCreateCommonPanel(parent, layout, Qt::Horizontal);
            return Built{widget, layout};
        });
    row("spacer", panel, own, noLayout, [](QGraphicsWidget *parent) {
        return Built{daskelUtilityCreateSpacer(QStringLiteral("OwnStyle"), parent), nullptr};
    });
    row("common spacer", panel, QStringLiteral("CommonSpacer"), noLayout,
        [](QGraphicsWidget *parent) {
            return Built{daskelUtilityCreateCommonSpacer(parent), nullptr};
        });
    row("separator", "MSeparator", own, noLayout, [](QGraphicsWidget *parent) {
        return Built{daskelUtilityCreateSeparator(parent, QStringLiteral("OwnStyle"), Qt::Vertical),
                     nullptr};
    });
}

void TestDaskelUtility::buildsParts()
{
    QFETCH(Builder, build);
    QFETCH(QByteArray, className);
    QFETCH(int, orientation);
    MWidget parent;
    for (QGraphicsWidget *below :
         {static_cast<QGraphicsWidget *>(nullptr), static_cast<QGraphicsWidget *>(&parent)}) {
        const Built built = build(below);
        const std::unique_ptr<QGraphicsWidget> owner(built.widget);
        QCOMPARE(QByteArray(built.widget->metaObject()->className()), className);
        QTEST(static_cast<MWidgetController *>(built.widget)->styleName(), "style");
        QCOMPARE(built.widget->parentItem(), below);
        QCOMPARE(built.widget->layout(), built.layout);
        if (auto *layout = static_cast<QGraphicsLinearLayout *>(built.layout)) {
            QCOMPARE(int(layout->orientation()), orientation);
            QCOMPARE(layout->spacing(), 0);
            qreal left, top, right, bottom;
            layout->getContentsMargins(&left, &top, &right, &bottom);
            QCOMPARE(QMarginsF(left, top, right, bottom), QMarginsF());
        }
        if (const auto *separator = qobject_cast<MSeparator *>(built.widget))
            QCOMPARE(separator->orientation(), Qt::Vertical);
    }
}

void TestDaskelUtility::buildsLayoutsAlone()
{
    MWidget parent;
    QGraphicsGridLayout *grid = nullptr;
    daskelUtilityNewGridLayout(grid, &parent);
    QCOMPARE(parent.layout(), grid);
    QCOMPARE(grid->horizontalSpacing(), 0);
    QCOMPARE(grid->verticalSpacing(), 0);

    QGraphicsLinearLayout *layout = nullptr;
    daskelUtilityNewVerticalLayout(layout);
    const std::unique_ptr<QGraphicsLinearLayout> owner(layout);
    QCOMPARE(layout->orientation(), Qt::Vertical);
    QCOMPARE(layout->parentLayoutItem(), nullptr);
    MWidget item;
    layout->addItem(&item);
    layout->setGeometry(QRectF(0, 0, 100, 50));
    QCOMPARE(item.geometry(), QRectF(0, 0, 100, 50));
}

void TestDaskelUtility::wrapsContents()
{
    for (const bool isCommon : {false, true}) {
        const auto wrap = [isCommon](QGraphicsLayoutItem *content) {
            return isCommon ? daskelUtilityCreateCommonPanel(content)
                            : daskelUtilityCreatePanel(QStringLiteral("OwnStyle"), content);
        };
        const std::unique_ptr<MStylableWidget> empty(wrap(nullptr));
        QCOMPARE(empty->layout(), nullptr);
        auto *content = new MWidget;
        const std::unique_ptr<MStylableWidget> panel(wrap(content));
        QCOMPARE(panel->styleName(),
                 isCommon ? QStringLiteral("CommonPanel") : QStringLiteral("OwnStyle"));
        QCOMPARE(panel->layout()->count(), 1);
        QCOMPARE(content->parentItem(), panel.get());
    }
}

void TestDaskelUtility::asksAndWaits_data()
{
    addColumns<Question, int, bool>("ask", "done", "isYes");
    const Question plain = [] { return daskelUtilityAskYesNo(QStringLiteral("Delete it?")); };
    const Question titled = [] {
        return daskelUtilityAskYesNoWithTitle(QStringLiteral("Series"),
                                              QStringLiteral("Delete it?"));
    };
    addRow("yes", plain, 1024, true);
    addRow("no", plain, 0, false);
    addRow("another code", plain, 16384, false);
    addRow("yes, with a title", titled, 1024, true);
    addRow("no, with a title", titled, 0, false);
}

void TestDaskelUtility::asksAndWaits()
{
    QFETCH(Question, ask);
    QFETCH(int, done);
    QTimer::singleShot(0, m_window.get(), [this, done] { shownQuestion()->done(done); });
    QTEST(ask(), "isYes");
    QCOMPARE(shownQuestion(), nullptr);
    // Nobody remembers a question that has gone.
    PageSwitcher::instance()->killDialogs();
}

/// A question from inside another one's wait, answered first.
void TestDaskelUtility::questionsMayAskQuestions()
{
    bool isInnerYes = false;
    QTimer::singleShot(0, m_window.get(), [this, &isInnerYes] {
        MMessageBox *const outer = shownQuestion();
        QTimer::singleShot(0, m_window.get(), [this, outer] {
            QVERIFY(shownQuestion() != outer);
            shownQuestion()->accept();
        });
        isInnerYes = daskelUtilityAskYesNoWithTitle(QString(), QStringLiteral("Sure?"));
        QCOMPARE(shownQuestion(), outer);
        shownQuestion()->reject();
    });
    QVERIFY(!daskelUtilityAskYesNo(QStringLiteral("Delete it?")));
    QVERIFY(isInnerYes);
}

void TestDaskelUtility::questionsGoWithThePages()
{
    QTimer::singleShot(0, m_window.get(), [] { PageSwitcher::instance()->killDialogs(); });
    QVERIFY(!daskelUtilityAskYesNo(QStringLiteral("Delete it?")));
    daskelUtilityAskYesNo(QStringLiteral("Delete it?"), this, SLOT(answered(int)));
    PageSwitcher::instance()->killDialogs();
    QCOMPARE(m_answers.size(), 1);
    QVERIFY(m_answers.first() != 1024);
}

void TestDaskelUtility::asksAndReturns()
{
    daskelUtilityAskYesNo(QStringLiteral("Delete it?"), this, SLOT(answered(int)));
    QPointer<MMessageBox> first = shownQuestion();
    QCOMPARE(first->text(), QStringLiteral("Delete it?"));
    QVERIFY(first->button(MMessageBox::Yes) && first->button(MMessageBox::No));
    first->accept();
    daskelUtilityAskYesNoWithTitle(QStringLiteral("Series"), QStringLiteral("Delete it?"), this,
                                   SLOT(answered(int)));
    QPointer<MMessageBox> second = shownQuestion();
    QCOMPARE(second->title(), QStringLiteral("Series"));
    second->reject();
    QCOMPARE(m_answers, (QList<int>{1024, 0}));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!first && !second);
}

void TestDaskelUtility::showsABanner()
{
    daskelUtilityShowInfoBanner(m_window->scene(), QStringLiteral("Saved"));
    QPointer<MBanner> banner =
        qobject_cast<MBanner *>(m_window->sceneManager()->sceneWindows().value(0));
    QVERIFY(banner);
    QCOMPARE(banner->title(), QStringLiteral("Saved"));
    QCOMPARE(banner->styleName(), QStringLiteral("InformationBanner"));
    banner->disappear();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!banner);
}

int main(int argc, char **argv)
{
    MApplication application(argc, argv);
    TestDaskelUtility test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_daskelutility.moc"
