// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "bench.h"
#include "flickfigures.h"

#include <daskel/calendarconf.h>
#include <daskel/db_instance.h>
#include <daskel/notewidget.h>
#include <kcalcompat/clock.h>
#include <mkcal/sqlitestorage.h>
#include <touchcore/mapplication.h>

#include <QLoggingCategory>
#include <QTemporaryDir>

#include <algorithm>
#include <calendarapplication.h>
#include <calendarwindow.h>
#include <ctime>
#include <functional>

namespace
{
const QSize windowSize(480, 854);
constexpr int maxExpand = 100;

/// Tells when a window has painted what is waited for.
class PaintWatch : public QObject
{
public:
    PaintWatch(const MWindow &window, std::function<bool()> isThere) : m_isThere(std::move(isThere))
    {
        window.viewport()->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const bool result = QObject::eventFilter(watched, event);
        // From the event loop: the event that is looked at is only about to paint.
        if (event->type() == QEvent::Paint && m_isThere())
            QMetaObject::invokeMethod(
                this, [] { QCoreApplication::quit(); }, Qt::QueuedConnection);
        return result;
    }

private:
    std::function<bool()> m_isThere;
};

bool showsNotes(const MWindow &window)
{
    const QList<QGraphicsItem *> items = window.scene()->items();
    return std::any_of(items.cbegin(), items.cend(), [](const QGraphicsItem *item) {
        const auto *widget = dynamic_cast<const NoteWidget *>(item);
        return widget && widget->isVisible();
    });
}

/// The application until its agenda is painted; then \a work, when there is some.
void start(const std::function<void(CalendarWindow *)> &work = {})
{
    CalendarApplication::prepare();
    CalendarWindow window;
    CalendarApplication calendar(&window);
    window.resize(windowSize);
    window.show();
    const PaintWatch watch(window, [&window] { return showsNotes(window); });
    calendar.start({});
    MApplication::exec();
    if (work)
        work(&window);
}

/// What it cannot do without: an empty window in its theme painted, and what is near today read
/// and unrolled.
void startBare(const QString &databaseName)
{
    CalendarApplication::prepare();
    MWindow window;
    window.resize(windowSize);
    window.show();
    const PaintWatch watch(window, [] { return true; });
    MApplication::exec();

    const OpenedStorage opened(databaseName);
    const QDate first = SampleData::middle().addDays(-30);
    const QDate last = SampleData::middle().addDays(36);
    opened.storage->loadRecurringIncidences();
    opened.storage->loadUncompletedTodos();
    opened.storage->load(first, last);
    auto alive = opened.calendar->incidences(first, last);
    const KDateTime::Spec zone = KDateTime::Spec::LocalZone();
    const auto unrolled = opened.calendar->expandRecurrences(
        &alive, KDateTime(first, {0, 0}, zone), KDateTime(last, {0, 0}, zone), maxExpand);
    opened.calendar->expandMultiDay(unrolled, first, last, maxExpand, true);
}
} // namespace

/// Started anew for each time it is measured; whoever starts it takes the time.
int main(int argc, char *argv[])
{
    qputenv("TZ", "Europe/Helsinki");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    tzset();
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(settings.path()));
    MApplication application(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    KCalCompat::Clock::setSource(
        [] { return QDateTime(SampleData::middle(), QTime(9, 0), Qt::UTC); });
    const QStringList words = MApplication::arguments().mid(1);
    require(words.size() == 3,
            QStringLiteral("usage: start_bench agenda|bare|flick <folder> <count>"));
    const Bench bench(words.at(1), {});
    const Sample sample = bench.sample(words.at(2).toInt());
    require(mKCal::SqliteStorage::setDefaultFile(sample.databaseName),
            QStringLiteral("the default file was used before"));
    if (words.first() == QLatin1String("bare"))
        startBare(sample.databaseName);
    else if (words.first() == QLatin1String("flick"))
        start([&](CalendarWindow *window) { measureFlicking(bench, sample.count, window); });
    else
        start();
    CalendarConf::destroy();
    DbInstance::destroy();
    return 0;
}
