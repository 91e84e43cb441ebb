// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef CALENDARSCREEN_H
#define CALENDARSCREEN_H

#include "calendarapplication.h"
#include "calendarwindow.h"
#include "databasefixture.h"
#include "pages/agendacontent.h"

#include <daskel/calendarconf.h>
#include <daskel/db_instance.h>
#include <daskel/notelistwidget.h>
#include <daskel/notewidgetitemmodel.h>
#include <touchcore/mpannableviewport.h>
#include <touchcore/mphysics2dpanning.h>
#include <touchcore/mscenemanager.h>

#include <QApplication>
#include <QMouseEvent>
#include <QTest>

/// The calendar's window on an empty calendar of its own, as a person has it in the hand. It is
/// noon of Thursday, 10 March 2011, and nothing is animated.
class CalendarScreen
{
public:
    CalendarScreen()
    {
        MSceneManager::setAnimationsEnabled(false);
        fixture.open();
        window = std::make_unique<CalendarWindow>();
        application = std::make_unique<CalendarApplication>(window.get());
        window->resize(480, 854);
        window->show();
        QApplication::setActiveWindow(window.get());
    }
    ~CalendarScreen()
    {
        application.reset();
        window.reset();
        CalendarConf::destroy();
    }

    NoteListContent *content() const { return window->content(window->currentPage()); }
    NoteListWidget *list() const { return content()->list(); }

    /// All rows of the page, such as "[Thursday, 10 March]" and titles.
    QStringList rows() const
    {
        QStringList all;
        const QAbstractItemModel *model = list()->itemModel();
        for (int row = 0; row < model->rowCount(); ++row) {
            const QModelIndex top = model->index(row, 0);
            all << text(top);
            for (int child = 0; child < model->rowCount(top); ++child)
                all << text(model->index(child, 0, top));
        }
        return all;
    }
    QModelIndex rowOf(const QString &title) const
    {
        const QAbstractItemModel *model = list()->itemModel();
        for (int row = 0; row < model->rowCount(); ++row) {
            const QModelIndex top = model->index(row, 0);
            if (text(top) == title)
                return top;
            for (int child = 0; child < model->rowCount(top); ++child) {
                if (text(model->index(child, 0, top)) == title)
                    return model->index(child, 0, top);
            }
        }
        return {};
    }
    /// The first day in view.
    QDate topDay() const
    {
        const QModelIndex top = list()->firstVisibleItem();
        return (top.parent().isValid() ? top.parent() : top)
            .data(NoteWidgetItemModel::StartRole)
            .toDateTime()
            .date();
    }

    /// A quick finger over \a distance pixels, and what follows from it.
    void flick(int distance)
    {
        MPhysics2DPanning *physics = content()->viewport()->physics();
        const QPointF start(240, distance < 0 ? 700 : 200);
        constexpr int frames = 5;
        constexpr qreal frame = 0.016;
        send(QEvent::MouseButtonPress, start, Qt::LeftButton);
        for (int i = 1; i <= frames; ++i) {
            physics->advance(frame);
            send(QEvent::MouseMove, start + QPointF(0, qreal(distance) * i / frames), Qt::NoButton);
        }
        send(QEvent::MouseButtonRelease, start + QPointF(0, distance), Qt::LeftButton);
        for (int i = 0; i < 600 && physics->isMoving(); ++i) {
            physics->advance(frame);
            QCoreApplication::processEvents();
        }
        QCoreApplication::processEvents();
    }
    void tap(const QPointF &place)
    {
        send(QEvent::MouseButtonPress, place, Qt::LeftButton);
        send(QEvent::MouseButtonRelease, place, Qt::LeftButton);
        QCoreApplication::processEvents();
    }

    /// A file with \a components in the folder of the test.
    static QString writeFile(const QString &folder, const QByteArray &components)
    {
        QFile file(folder + QStringLiteral("/sample.ics"));
        if (!file.open(QIODevice::WriteOnly))
            qFatal("cannot write %s", qPrintable(file.fileName()));
        file.write("BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//daskel//test//EN\r\n" + components
                   + "END:VCALENDAR\r\n");
        return file.fileName();
    }

    DatabaseFixture fixture;
    std::unique_ptr<CalendarWindow> window;
    std::unique_ptr<CalendarApplication> application;

private:
    static QString text(const QModelIndex &index)
    {
        const auto note = index.data().value<KCalCore::Incidence::Ptr>();
        return note ? note->summary()
                    : QLatin1Char('[') + index.data().toString() + QLatin1Char(']');
    }
    void send(QEvent::Type type, const QPointF &place, Qt::MouseButton button)
    {
        const bool isDown = type != QEvent::MouseButtonRelease;
        QMouseEvent event(type, place, place, window->viewport()->mapToGlobal(place.toPoint()),
                          button, isDown ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(window->viewport(), &event);
    }
};

#endif
