// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "databasefixture.h"
#include "testtable.h"
#include "visibilitycontainerwidget_p.h"

#include <daskel/calendarconf.h>
#include <daskel/daskelutility.h>
#include <daskel/db_instance.h>
#include <daskel/notebookmanager.h>
#include <daskel/timerservice.h>
#include <daskel/visibilitynotificationif.h>
#include <touchcore/mapplication.h>
#include <touchcore/mapplicationpage.h>
#include <touchcore/mscenemanager.h>
#include <touchcore/mwindow.h>

#include <QGraphicsLayout>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <memory>

namespace
{
class View : public MWidget, public VisibilityNotificationIF
{
public:
    explicit View(unsigned int mask) : m_mask(mask) { }

    void notifyUpdate(unsigned int reasons) override
    {
        updates << int(reasons);
        if (whenUpdated)
            whenUpdated();
    }
    unsigned int notificationMask() const override
    {
        ++timesAsked;
        return m_mask;
    }

    QList<int> updates;
    mutable int timesAsked = 0;
    std::function<void()> whenUpdated;

private:
    const unsigned int m_mask;
};

/// Everything that can happen, each once.
void letEverythingHappen()
{
    Q_EMIT DbInstance::instance()->dataUpdated();
    Q_EMIT CalendarConf::instance()->dataUpdated();
    Q_EMIT TimerService::instance()->dateChanged();
    Q_EMIT TimerService::instance()->hourChanged();
    Q_EMIT TimerService::instance()->minuteChanged();
    Q_EMIT NotebookManager::instance()->notebooksChanged();
}
} // namespace

class TestVisibilityContainer : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();

    void hearsWhatItAskedFor_data();
    void hearsWhatItAskedFor();
    void refreshesOnceWhenItComesBack();
    void refreshesFromTheEventLoop();
    void forgetsWhatComesDuringARefresh();
    void followsThePagesAbove();
    void outlivesItsView();
    void viewsMayDeleteIt();
    void belongsToItsParent();

private:
    /// A view in a container on a page, which is shown or not.
    View *show(unsigned int mask, bool isShown = true);

    std::unique_ptr<QTemporaryDir> m_settings;
    std::unique_ptr<DatabaseFixture> m_database;
    std::unique_ptr<MWindow> m_window;
    QPointer<MApplicationPage> m_page;
};

void TestVisibilityContainer::initTestCase()
{
    MSceneManager::setAnimationsEnabled(false);
    m_settings = std::make_unique<QTemporaryDir>();
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings->path());
    m_database = std::make_unique<DatabaseFixture>();
    m_database->open();
}

void TestVisibilityContainer::cleanupTestCase()
{
    TimerService::destroy();
    CalendarConf::destroy();
    m_database.reset();
}

void TestVisibilityContainer::init()
{
    m_window = std::make_unique<MWindow>();
    m_window->show();
}

void TestVisibilityContainer::cleanup()
{
    delete m_page;
    m_window.reset();
}

View *TestVisibilityContainer::show(unsigned int mask, bool isShown)
{
    auto *view = new View(mask);
    m_page = new MApplicationPage;
    m_page->setCentralWidget(daskelUtilityWrapVisibilityNotificationIF(view, nullptr));
    if (isShown)
        m_page->appear(m_window.get());
    return view;
}

void TestVisibilityContainer::hearsWhatItAskedFor_data()
{
    addColumns<int, QList<int>>("mask", "updates");
    for (const int reason : {1, 2, 4, 8, 16, 32, 17, 62, 63})
        QTest::addRow("%d", reason) << reason << QList<int>{reason};
    addRow("nothing", 0, QList<int>());
    addRow("what there is not", 64, QList<int>());
}

/// However many reasons come in one turn of the event loop, there is one refresh.
void TestVisibilityContainer::hearsWhatItAskedFor()
{
    QFETCH(int, mask);
    const View *view = show(unsigned(mask));
    letEverythingHappen();
    letEverythingHappen();
    QCoreApplication::processEvents();
    QTEST(view->updates, "updates");
    QCOMPARE(view->timesAsked, 1);
}

void TestVisibilityContainer::refreshesOnceWhenItComesBack()
{
    const View *view = show(31, false);
    for (int minutes = 0; minutes < 3; ++minutes)
        Q_EMIT TimerService::instance()->minuteChanged();
    Q_EMIT DbInstance::instance()->dataUpdated();
    QCoreApplication::processEvents();
    QCOMPARE(view->updates, QList<int>());
    m_page->appear(m_window.get());
    QCoreApplication::processEvents();
    QCOMPARE(view->updates, QList<int>{17});
    m_page->disappear();
    m_page->appear(m_window.get());
    QCoreApplication::processEvents();
    QCOMPARE(view->updates, QList<int>{17});
}

void TestVisibilityContainer::refreshesFromTheEventLoop()
{
    const View *view = show(1);
    Q_EMIT DbInstance::instance()->dataUpdated();
    QCOMPARE(view->updates, QList<int>());
    QCoreApplication::processEvents();
    Q_EMIT DbInstance::instance()->dataUpdated();
    QCoreApplication::processEvents();
    QCOMPARE(view->updates, (QList<int>{1, 1}));
}

/// A view that saves while it refreshes does not refresh itself for ever.
void TestVisibilityContainer::forgetsWhatComesDuringARefresh()
{
    View *view = show(1);
    view->whenUpdated = [] { Q_EMIT DbInstance::instance()->dataUpdated(); };
    Q_EMIT DbInstance::instance()->dataUpdated();
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    QCOMPARE(view->updates, QList<int>{1});
}

/// A page that covers it takes it off the display.
void TestVisibilityContainer::followsThePagesAbove()
{
    const View *view = show(16);
    MApplicationPage above;
    above.appear(m_window.get());
    Q_EMIT TimerService::instance()->minuteChanged();
    QCoreApplication::processEvents();
    QCOMPARE(view->updates, QList<int>());
    above.dismiss();
    QCoreApplication::processEvents();
    QCOMPARE(view->updates, QList<int>{16});
}

void TestVisibilityContainer::outlivesItsView()
{
    const View *view = show(1);
    Q_EMIT DbInstance::instance()->dataUpdated();
    delete view;
    Q_EMIT DbInstance::instance()->dataUpdated();
    QCoreApplication::processEvents();
}

void TestVisibilityContainer::viewsMayDeleteIt()
{
    View *view = show(1);
    view->whenUpdated = [this] { delete m_page; };
    Q_EMIT DbInstance::instance()->dataUpdated();
    QCoreApplication::processEvents();
    QVERIFY(!m_page);
}

void TestVisibilityContainer::belongsToItsParent()
{
    MWidget parent;
    auto *view = new View(0);
    MWidget *container = daskelUtilityWrapVisibilityNotificationIF(view, &parent);
    QCOMPARE(container->parentItem(), &parent);
    QCOMPARE(view->parentItem(), container);
    container->resize(120, 80);
    container->layout()->activate();
    QCOMPARE(view->geometry(), QRectF(0, 0, 120, 80));
}

int main(int argc, char **argv)
{
    MApplication application(argc, argv);
    TestVisibilityContainer test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_visibilitycontainer.moc"
