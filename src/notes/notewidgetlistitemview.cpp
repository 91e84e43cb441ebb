// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "notewidgetlistitemview.h"

#include <daskel/daskellocale.h>
#include <daskel/notewidget.h>
#include <touchcore/mlabel.h>
#include <touchcore/mstylablewidget.h>
#include <touchcore/mviewfactory.h>

#include <QFontMetricsF>
#include <QGraphicsLinearLayout>
#include <QtMath>

namespace
{
QGraphicsLinearLayout *newLayout(Qt::Orientation orientation, QGraphicsLayoutItem *parent)
{
    auto *layout = new QGraphicsLinearLayout(orientation, parent);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    return layout;
}

/// The widest that stands in a column of times, rounded up: all rows begin their titles at the same
/// place, whatever they show.
qreal widestTime(const QFont &font)
{
    struct Measured {
        QFont font;
        QString evening;
        QString allDay;
        qreal width = 0;
    };
    static Measured last;
    const QDateTime morning(QDate(2000, 1, 22), QTime(10, 0));
    const QString evening = DaskelLocale::formatShortTime(morning.addSecs(12 * 3600));
    const QString allDay = qtTrId("qtn_caln_all_day");
    if (last.width > 0 && last.font == font && last.evening == evening && last.allDay == allDay)
        return last.width;
    QStringList texts{endText(evening), endText(DaskelLocale::formatShortTime(morning)), allDay};
    for (int month = 0; month < 12; ++month)
        texts << endText(dayAndMonth(morning.date().addMonths(month)));
    last = {font, evening, allDay, 0};
    for (const QString &text : qAsConst(texts))
        last.width = qMax<qreal>(last.width, qCeil(QFontMetricsF(font).horizontalAdvance(text)));
    return last.width;
}

/// Some labels in lines; one without a text takes no room.
class TextLines
{
public:
    TextLines(QGraphicsItem *parent, int count)
        : panel(new MStylableWidget(parent)), m_layout(newLayout(Qt::Vertical, panel))
    {
        panel->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
        for (int i = 0; i < count; ++i) {
            m_labels.append(new MLabel(panel));
            m_labels.last()->hide();
        }
    }

    void show(int line, const QString &text, const QString &styleName)
    {
        MLabel *label = m_labels.at(line);
        label->setStyleName(styleName);
        label->setText(text);
        const bool isShown = label->parentLayoutItem() == m_layout;
        if (isShown == !text.isEmpty())
            return;
        if (isShown)
            m_layout->removeItem(label);
        else
            m_layout->insertItem(line, label);
        label->setVisible(!isShown);
    }

    MStylableWidget *const panel;

private:
    QGraphicsLinearLayout *m_layout;
    QVector<MLabel *> m_labels;
};
} // namespace

class NoteWidgetListItemViewPrivate
{
public:
    explicit NoteWidgetListItemViewPrivate(NoteWidget *note)
        : lines(new MStylableWidget(note)), times(lines, 2), titles(lines, 2),
          frame(newLayout(Qt::Vertical, note)), columns(newLayout(Qt::Horizontal, lines))
    {
        lines->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
        frame->addStretch();
        frame->addItem(lines);
        frame->addStretch();
        columns->addItem(titles.panel);
        columns->setAlignment(titles.panel, Qt::AlignTop);
        columns->setStretchFactor(titles.panel, 1);
        times.panel->hide();
    }

    void showTimes(bool isShown)
    {
        if (isShown == (times.panel->parentLayoutItem() == columns))
            return;
        if (isShown) {
            columns->insertItem(0, times.panel);
            columns->setAlignment(times.panel, Qt::AlignTop);
        } else {
            columns->removeItem(times.panel);
        }
        times.panel->setVisible(isShown);
    }

    /// Both columns begin with the same line, and the higher one stands in the middle of the row.
    MStylableWidget *lines;
    TextLines times;
    TextLines titles;
    QGraphicsLinearLayout *frame;
    QGraphicsLinearLayout *columns;
};

M_REGISTER_VIEW(NoteWidgetListItemView, NoteWidget)

NoteWidgetListItemView::NoteWidgetListItemView(NoteWidget *controller)
    : NoteWidgetView(controller), d(std::make_unique<NoteWidgetListItemViewPrivate>(controller))
{
}

NoteWidgetListItemView::~NoteWidgetListItemView()
{
    controller()->setLayout(nullptr);
    delete d->lines;
}

void NoteWidgetListItemView::drawTexts(QPainter *) const { }

void NoteWidgetListItemView::showNote()
{
    NoteWidgetView::showNote();
    const NoteWidgetModel *model = note()->model();
    const bool isSqueezed = model->squeezed();
    const bool isOverdue = times().isOverdue;
    d->times.show(0, times().first,
                  isOverdue ? style()->overdueStyleName() : style()->subTextStyleName());
    d->times.show(1, times().second,
                  isOverdue ? style()->overdueStyleName() : style()->endStyleName());
    d->showTimes(!isSqueezed);
    d->times.panel->setMinimumWidth(timeColumnWidth());
    d->times.panel->setMaximumWidth(timeColumnWidth());
    d->titles.show(0, model->title(), titleStyle());
    d->titles.show(1, isSqueezed ? QString() : subtitle(), style()->subtitleStyleName());
    d->titles.panel->setStyleName(model->hasAlarm()
                                      ? QStringLiteral("NoteListItemTitleContainerWithAlarm")
                                      : QStringLiteral("NoteListItemTitleContainerWithoutAlarm"));
    d->frame->setContentsMargins(stripeRoom(), style()->paddingTop(), marksRoom(),
                                 style()->paddingBottom());
    // Squeezed, it is as high as its title.
    controller()->setMinimumHeight(isSqueezed ? -1 : style()->minimumSize().height());
}

qreal NoteWidgetListItemView::timeColumnWidth() const
{
    return qMax<qreal>(style()->timeColumnWidth(), widestTime(style()->timeFont()));
}

QString NoteWidgetListItemView::titleStyle() const
{
    if (note()->model()->completed() || details().isCancelled)
        return style()->doneTitleStyleName();
    return note()->model()->tentative() ? style()->tentativeTitleStyleName()
                                        : style()->titleStyleName();
}

QString NoteWidgetListItemView::subtitle() const
{
    QString place = note()->model()->location().simplified();
    if (!details().isCancelled)
        return place;
    const QString cancelled = qtTrId("qtn_caln_cancelled");
    return place.isEmpty() ? cancelled : cancelled + QStringLiteral(" · ") + place;
}
