// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "bench.h"

#include <daskel/calendarconf.h>
#include <daskel/pageswitcher.h>
#include <daskel/timerservice.h>
#include <touchcore/mapplicationpage.h>
#include <touchcore/mlabel.h>
#include <touchcore/mscenemanager.h>
#include <touchcore/mwindow.h>

#include <QApplication>
#include <QFileInfo>
#include <QGraphicsLinearLayout>
#include <QGraphicsView>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

#include <sys/stat.h>

namespace
{
constexpr int rounds = 9;
const QSize windowSize(480, 854);

quint64 inode(const QString &file)
{
    struct stat status {
    };
    return ::stat(QFile::encodeName(file).constData(), &status) == 0 ? status.st_ino : 0;
}

void measureSettings(const Bench &bench)
{
    const QTemporaryDir folder;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path());
    CalendarConf *conf = CalendarConf::instance();
    QSettings plain(folder.filePath(QStringLiteral("plain.conf")), QSettings::IniFormat);
    plain.setValue(QStringLiteral("default_reminder"), 15);
    plain.sync();

    const QString reading = QStringLiteral("reading a setting, to the settings object");
    if (bench.wants(reading)) {
        constexpr int reads = 10000;
        int sum = 0;
        const Times times = inTurn(
            rounds,
            [&] {
                return microseconds([&] {
                           for (int i = 0; i < reads; ++i)
                               sum += conf->defaultReminder();
                       })
                    / reads;
            },
            [&] {
                return microseconds([&] {
                           for (int i = 0; i < reads; ++i)
                               sum += plain.value(QStringLiteral("default_reminder"), 15).toInt();
                       })
                    / reads;
            });
        bench.add({reading, reads, times, {Aim::AtMost, 2}, {{QStringLiteral("sum"), sum}}});
    }

    const QString writing = QStringLiteral("1,000 setters and what they write, to one sync");
    if (!bench.wants(writing))
        return;
    constexpr int setters = 1000;
    const QString file = folder.filePath(QStringLiteral("Velmor/daskel_settings.conf"));
    int filesWritten = 0;
    int value = 0;
    const Times times = inTurn(
        rounds,
        [&] {
            return microseconds([&] {
                for (int i = 0; i < setters; ++i)
                    conf->setLastActiveTab(++value);
                const quint64 before = inode(file);
                QCoreApplication::processEvents();
                filesWritten += inode(file) != before;
            });
        },
        [&] {
            return microseconds([&] {
                for (int i = 0; i < setters; ++i)
                    plain.setValue(QStringLiteral("last_active_tab"), ++value);
                plain.sync();
            });
        });
    bench.add({writing,
               setters,
               times,
               {Aim::AtMost, 2},
               {{QStringLiteral("files written per round"), filesWritten / (rounds + 1)}}});
    CalendarConf::destroy();
}

void measureConnections(const Bench &bench)
{
    const QString name = QStringLiteral("connecting to the minute and leaving, to a plain signal");
    if (!bench.wants(name))
        return;
    constexpr int connections = 10000;
    const QObject context;
    const QTimer plain;
    const auto each = [&context](const auto *sender, auto signal) {
        return microseconds([&] {
                   for (int i = 0; i < connections; ++i)
                       QObject::disconnect(QObject::connect(sender, signal, &context, [] {}));
               })
            / connections;
    };
    const Times times = inTurn(
        rounds, [&] { return each(TimerService::instance(), &TimerService::minuteChanged); },
        [&] { return each(&plain, &QObject::objectNameChanged); });
    TimerService::destroy();
    // No aim: aiming the timer anew, twice for each, is what it is for.
    bench.add({name, connections, times, {}, {}});
}

/// A page of many lines, as a list of notes is.
QGraphicsWidget *fiftyWidgets()
{
    auto *content = new MWidget;
    auto *layout = new QGraphicsLinearLayout(Qt::Vertical, content);
    for (int i = 1; i <= 50; ++i)
        layout->addItem(new MLabel(QStringLiteral("Note number %1").arg(i)));
    return content;
}

class PaintCounter : public QObject
{
public:
    int frames = 0;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        frames += event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }
};

void measurePages(const Bench &bench)
{
    const QString name = QStringLiteral("showing a page of 50 widgets, to the widgets bare");
    if (!bench.wants(name))
        return;
    constexpr int switches = 20;
    MSceneManager::setAnimationsEnabled(false);
    MWindow window;
    window.resize(windowSize);
    window.show();
    PaintCounter counter;
    window.viewport()->installEventFilter(&counter);
    auto *below = new MApplicationPage;
    auto *above = new MApplicationPage;
    below->setCentralWidget(fiftyWidgets());
    above->setCentralWidget(fiftyWidgets());
    PageSwitcher *switcher = PageSwitcher::instance();
    switcher->showPage(below, true, true);

    QGraphicsScene scene(QRectF(QPointF(), windowSize));
    QGraphicsView view(&scene);
    view.resize(windowSize);
    QGraphicsWidget *bare[] = {fiftyWidgets(), fiftyWidgets()};
    for (QGraphicsWidget *content : bare) {
        content->resize(windowSize);
        scene.addItem(content);
    }
    view.show();
    QApplication::processEvents();
    counter.frames = 0;

    const Times times = inTurn(
        rounds,
        [&] {
            return microseconds([&] {
                       for (int i = 0; i < switches / 2; ++i) {
                           switcher->showPage(above, false, true);
                           QApplication::processEvents();
                           switcher->popPages(1, true);
                           switcher->showLatestPage(true);
                           QApplication::processEvents();
                       }
                   })
                / switches;
        },
        [&] {
            return microseconds([&] {
                       for (int i = 0; i < switches; ++i) {
                           bare[i % 2]->hide();
                           bare[(i + 1) % 2]->show();
                           QApplication::processEvents();
                       }
                   })
                / switches;
        });
    bench.add({name,
               switches,
               times,
               {Aim::AtMost, 3},
               {{QStringLiteral("frames per page"),
                 double(counter.frames) / (switches * (rounds + 1))}}});
    switcher->popPages(2, true);
}
} // namespace

void measureServices(const Bench &bench)
{
    measureSettings(bench);
    measureConnections(bench);
    measurePages(bench);
}
