// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "bench.h"

#include <touchcore/mcellcreator.h>
#include <touchcore/mlabel.h>
#include <touchcore/mlist.h>
#include <touchcore/mlistitem.h>
#include <touchcore/mpannableviewport.h>
#include <touchcore/mphysics2dpanning.h>
#include <touchcore/mtheme.h>

#include <QAbstractItemModel>
#include <QCoreApplication>
#include <QGraphicsLinearLayout>
#include <QGraphicsView>
#include <QPainter>
#include <QRandomGenerator>
#include <QWindow>

namespace
{
constexpr int rounds = 15;
constexpr int rowCount = 10000;
constexpr int rowsPerGroup = 19;
const QSize phone(480, 854);

QString titleOf(int number)
{
    return QStringLiteral("Meeting %1 about the plans").arg(number);
}

QString placeOf(int number)
{
    return QStringLiteral("Room %1, second floor").arg(number % 40);
}

/// Groups of rows whose texts cost next to nothing.
class Meetings : public QAbstractItemModel
{
public:
    explicit Meetings(int count) : m_groups(count / (rowsPerGroup + 1)) { }

    static int numberOf(const QModelIndex &index)
    {
        const int group = index.internalId() ? int(index.internalId()) - 1 : index.row();
        return group * (rowsPerGroup + 1) + (index.internalId() ? index.row() + 1 : 0);
    }

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override
    {
        return createIndex(row, column, parent.isValid() ? quintptr(parent.row()) + 1 : 0);
    }
    QModelIndex parent(const QModelIndex &child) const override
    {
        return child.internalId() ? createIndex(int(child.internalId()) - 1, 0, quintptr(0))
                                  : QModelIndex();
    }
    int rowCount(const QModelIndex &parent = {}) const override
    {
        if (!parent.isValid())
            return m_groups;
        return parent.internalId() ? 0 : rowsPerGroup;
    }
    int columnCount(const QModelIndex & = {}) const override { return 1; }
    QVariant data(const QModelIndex &index, int role) const override
    {
        return role == Qt::DisplayRole ? titleOf(numberOf(index)) : QVariant();
    }

private:
    int m_groups;
};

class MeetingCell : public MListItem
{
    Q_OBJECT

public:
    MeetingCell()
        : title(new MLabel(this)), place(new MLabel(this)),
          layout(new QGraphicsLinearLayout(Qt::Vertical, this))
    {
        ++made;
        place->setStyleName(QStringLiteral("SupportLabel"));
        layout->setContentsMargins(16, 8, 16, 8);
        layout->setSpacing(0);
        layout->addItem(title);
        layout->addItem(place);
    }

    MLabel *title;
    MLabel *place;
    QGraphicsLinearLayout *layout;
    static inline int made = 0;
};

class MeetingCells : public MAbstractCellCreator<MeetingCell>
{
public:
    void updateCell(const QModelIndex &index, MWidget *cell) const override
    {
        auto *meeting = static_cast<MeetingCell *>(cell);
        const int number = Meetings::numberOf(index);
        meeting->title->setText(titleOf(number));
        meeting->place->setText(placeOf(number));
    }
};

void layOut()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
}

/// Before, nothing is painted.
void expose(QWidget *window)
{
    window->show();
    QCoreApplication::processEvents();
    require(window->windowHandle()->isExposed(), QStringLiteral("a window is to be seen"));
}

/// A phone's screen with a list on it.
class ListScreen
{
public:
    ListScreen() : viewport(new MPannableViewport), list(new MList)
    {
        m_scene.setItemIndexMethod(QGraphicsScene::NoIndex);
        m_scene.setSceneRect(QRectF(QPointF(), phone));
        m_scene.addItem(viewport);
        view.setScene(&m_scene);
        view.setFrameStyle(QFrame::NoFrame);
        view.setBackgroundBrush(MTheme::instance()->color(QStringLiteral("background")));
        view.resize(phone);
        expose(&view);
        viewport->setGeometry(QRectF(QPointF(), phone));
        viewport->setWidget(list);
        viewport->physics()->advance(0);
        list->setShowGroups(true);
        list->setCellCreator(new MeetingCells);
        // Headers count as rows here, so that all rows are alike.
        list->setHeaderCreator(new MeetingCells);
    }

    QGraphicsView view;
    MPannableViewport *viewport;
    MList *list;

private:
    QGraphicsScene m_scene;
};

/// The texts of a list, painted as one would without any toolkit.
class BareTexts : public QWidget
{
public:
    explicit BareTexts(qreal rowHeight) : m_rowHeight(rowHeight)
    {
        const MTheme *theme = MTheme::instance();
        m_titleFont = theme->font(QStringLiteral("body"));
        m_placeFont = theme->font(QStringLiteral("support"));
        m_titleColor = theme->color(QStringLiteral("text"));
        m_placeColor = theme->color(QStringLiteral("secondaryText"));
        m_background = theme->color(QStringLiteral("background"));
        setAttribute(Qt::WA_OpaquePaintEvent);
        resize(phone);
        expose(this);
    }

    void scrollTo(qreal position)
    {
        m_position = position;
        repaint();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), m_background);
        int number = int(m_position / m_rowHeight);
        for (; number * m_rowHeight - m_position < height(); ++number) {
            QRectF line(32, number * m_rowHeight - m_position + 8, width() - 64, 22);
            painter.setFont(m_titleFont);
            painter.setPen(m_titleColor);
            painter.drawText(line, Qt::AlignVCenter, titleOf(number));
            line.translate(0, line.height());
            painter.setFont(m_placeFont);
            painter.setPen(m_placeColor);
            painter.drawText(line, Qt::AlignVCenter, placeOf(number));
        }
    }

private:
    qreal m_rowHeight;
    qreal m_position = 0;
    QFont m_titleFont;
    QFont m_placeFont;
    QColor m_titleColor;
    QColor m_placeColor;
    QColor m_background;
};

void measureFrame(const Bench &bench)
{
    const QString name = QStringLiteral("scrolled frame of a list, to its bare texts");
    if (!bench.wants(name))
        return;
    constexpr int frames = 60;
    constexpr qreal step = 23;
    ListScreen screen;
    Meetings meetings(rowCount);
    screen.list->setItemModel(&meetings);
    layOut();
    const qreal rowHeight = screen.list->size().height() / rowCount;
    BareTexts bare(rowHeight);
    qreal position = 0;
    const Times times = inTurn(
        rounds,
        [&] {
            return microseconds([&] {
                       for (int frame = 0; frame < frames; ++frame) {
                           screen.viewport->physics()->moveBy(QPointF(0, step));
                           layOut();
                           screen.view.viewport()->repaint();
                       }
                   })
                / frames;
        },
        [&] {
            return microseconds([&] {
                       for (int frame = 0; frame < frames; ++frame)
                           bare.scrollTo(position += step);
                   })
                / frames;
        });
    bench.add({name,
               rowCount,
               times,
               {Aim::AtMost, 3},
               {{QStringLiteral("texts"), 2 * screen.list->visibleItems().size()}}});
}

void measureCells(const Bench &bench)
{
    const QString name = QStringLiteral("cells ever made for a list, to rows in view");
    if (!bench.wants(name))
        return;
    MeetingCell::made = 0;
    ListScreen screen;
    Meetings meetings(rowCount);
    screen.list->setItemModel(&meetings);
    layOut();
    QRandomGenerator random(1);
    int mostInView = 0;
    for (int jump = 0; jump < 1000; ++jump) {
        screen.viewport->setPosition(QPointF(0, random.bounded(screen.list->size().height())));
        mostInView = qMax(mostInView, screen.list->visibleItems().size());
    }
    const double allowed = (mostInView + 4.0) / mostInView;
    bench.add({name,
               rowCount,
               {double(MeetingCell::made), double(mostInView)},
               {Aim::AtMost, allowed},
               {{QStringLiteral("jumps"), 1000}},
               QStringLiteral("cells")});
}

/// What a list of all rows takes beside one of a tenth of them.
template <typename Work> void measureGrowth(const Bench &bench, const QString &name, Work &&work)
{
    if (!bench.wants(name))
        return;
    ListScreen many;
    ListScreen few;
    Meetings manyMeetings(rowCount);
    Meetings fewMeetings(rowCount / 10);
    many.list->setItemModel(&manyMeetings);
    few.list->setItemModel(&fewMeetings);
    layOut();
    const Times times = inTurn(
        rounds, [&] { return microseconds([&] { work(many, &manyMeetings); }); },
        [&] { return microseconds([&] { work(few, &fewMeetings); }); });
    bench.add({name,
               rowCount,
               times,
               {Aim::AtMost, 1.5},
               {{QStringLiteral("rows of the floor"), rowCount / 10}}});
}
} // namespace

void measureLists(const Bench &bench)
{
    measureCells(bench);
    measureFrame(bench);
    measureGrowth(bench, QStringLiteral("model for a list, to a tenth of its rows"),
                  [](ListScreen &screen, Meetings *meetings) {
                      for (int time = 0; time < 10; ++time) {
                          screen.list->setItemModel(nullptr);
                          screen.list->setItemModel(meetings);
                          layOut();
                      }
                  });
    measureGrowth(bench, QStringLiteral("jumps in a list, to a tenth of its rows"),
                  [](ListScreen &screen, Meetings *meetings) {
                      const int groups = qMax(1, meetings->rowCount());
                      for (int jump = 0; jump < 20; ++jump) {
                          const QModelIndex group = meetings->index((jump * 7 + 3) % groups, 0);
                          screen.list->scrollTo(meetings->index(jump % rowsPerGroup, 0, group),
                                                MList::PositionAtTop);
                          layOut();
                      }
                  });
}

#include "listfigures.moc"
