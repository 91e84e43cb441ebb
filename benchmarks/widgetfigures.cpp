// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "bench.h"

#include <touchcore/mbutton.h>
#include <touchcore/mimagewidget.h>
#include <touchcore/mlabel.h>
#include <touchcore/mlistitem.h>
#include <touchcore/mtheme.h>
#include <touchcore/mwidgetview.h>

#include <QCoreApplication>
#include <QGraphicsLinearLayout>
#include <QGraphicsScene>
#include <QImage>
#include <QPainter>

#include <malloc.h>

namespace
{
constexpr int rounds = 15;
constexpr int widgets = 1000;

void layOut()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
}

MLabel *label(const QString &text, const QString &style, QGraphicsItem *parent)
{
    auto *made = new MLabel(text, parent);
    made->setStyleName(style);
    return made;
}

/// A list of rows of five widgets, as long as all of them need.
class Rows
{
public:
    Rows()
    {
        for (int i = 0; i < widgets / 5; ++i)
            addRow(i);
        layOut();
        m_scene.setSceneRect(0, 0, width, m_y);
        m_picture = QImage(width, int(m_y), QImage::Format_RGB32);
    }

    void paint()
    {
        QPainter painter(&m_picture);
        m_scene.render(&painter);
    }

private:
    void addRow(int number)
    {
        auto *row = new MListItem;
        auto *layout = new QGraphicsLinearLayout(Qt::Horizontal, row);
        layout->addItem(
            label(QStringLiteral("%1:15").arg(number % 24), QStringLiteral("SupportLabel"), row));
        layout->addItem(label(QStringLiteral("A row, number %1").arg(number), QString(), row));
        layout->addItem(new MImageWidget(QStringLiteral("alarm"), row));
        layout->addItem(new MButton(QStringLiteral("Open"), row));
        m_scene.addItem(row);
        row->setGeometry(0, m_y, width, row->effectiveSizeHint(Qt::PreferredSize).height());
        m_y += row->size().height();
    }

    static constexpr int width = 480;
    QGraphicsScene m_scene;
    QImage m_picture;
    qreal m_y = 0;
};

void measureSwitch(const Bench &bench)
{
    const QString name = QStringLiteral("theme switch, to painting");
    if (!bench.wants(name))
        return;
    Rows rows;
    MTheme *theme = MTheme::instance();
    const Times times = inTurn(
        rounds,
        [&] {
            const M::ColorScheme other =
                theme->colorScheme() == M::DarkScheme ? M::LightScheme : M::DarkScheme;
            return microseconds([&] {
                theme->setColorScheme(other);
                layOut();
            });
        },
        [&] { return microseconds([&] { rows.paint(); }); });
    bench.add({name,
               widgets,
               times,
               {Aim::AtMost, 1},
               {{QStringLiteral("styles"), theme->styleCount()}}});
}

/// Widgets with all that they make when they are first laid out and drawn.
template <typename Widget> QVector<Widget *> makeAll()
{
    QVector<Widget *> made;
    made.reserve(widgets);
    for (int i = 0; i < widgets; ++i)
        made.append(new Widget);
    return made;
}

QVector<MButton *> makeButtons()
{
    const QVector<MButton *> made = makeAll<MButton>();
    for (MButton *button : made)
        button->view();
    return made;
}

void measureCreation(const Bench &bench)
{
    const QString name = QStringLiteral("controllers with views, to bare widgets");
    if (!bench.wants(name))
        return;
    const auto timeOf = [](auto &&make) {
        return [make] {
            QVector<QGraphicsWidget *> made;
            const double time = microseconds([&] {
                for (QGraphicsWidget *widget : make())
                    made.append(widget);
            });
            qDeleteAll(made);
            return time;
        };
    };
    const Times times = inTurn(rounds, timeOf(makeButtons), timeOf(makeAll<QGraphicsWidget>));
    bench.add({name, widgets, times, {}, {{QStringLiteral("views"), widgets}}});
}

double allocatedKibibytes()
{
    return double(mallinfo2().uordblks) / 1024;
}

template <typename Make> double memoryOf(Make &&make)
{
    const double before = allocatedKibibytes();
    const auto made = make();
    const double taken = allocatedKibibytes() - before;
    qDeleteAll(made);
    return taken;
}

void measureMemory(const Bench &bench)
{
    const QString name = QStringLiteral("memory of styled widgets, to bare ones");
    if (!bench.wants(name))
        return;
    const auto makeLabels = [] {
        const QVector<MLabel *> made = makeAll<MLabel>();
        for (MLabel *each : made) {
            each->setText(QStringLiteral("A row"));
            each->effectiveSizeHint(Qt::PreferredSize);
        }
        return made;
    };
    const Times kibibytes = inTurn(
        3, [&] { return memoryOf(makeLabels); }, [] { return memoryOf(makeAll<QGraphicsWidget>); });
    bench.add({name,
               widgets,
               kibibytes,
               {},
               {{QStringLiteral("KiB for controllers with views"), memoryOf(makeButtons)}},
               QStringLiteral("KiB")});
}
} // namespace

void measureWidgets(const Bench &bench)
{
    measureSwitch(bench);
    measureCreation(bench);
    measureMemory(bench);
}
