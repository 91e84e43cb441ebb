// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "notewidgetlistitemview.h"

#include <daskel/daskellocale.h>
#include <daskel/notewidget.h>
#include <touchcore/mlabel.h>
#include <touchcore/mstylablewidget.h>
#include <touchcore/mviewfactory.h>

#include <QGraphicsLinearLayout>

namespace
{
QGraphicsLinearLayout *newLayout(Qt::Orientation orientation, QGraphicsLayoutItem *parent)
{
    auto *layout = new QGraphicsLinearLayout(orientation, parent);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    return layout;
}

/// Some labels in lines; one without a text takes no room.
class TextLines
{
public:
    TextLines(QGraphicsItem *parent, int count)
        : panel(new MStylableWidget(parent)), m_layout(newLayout(Qt::Vertical, panel))
    {
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
        : times(note, 2), titles(note, 2), row(newLayout(Qt::Horizontal, note))
    {
        row->addItem(times.panel);
        row->addItem(titles.panel);
        row->setAlignment(times.panel, Qt::AlignVCenter);
        row->setAlignment(titles.panel, Qt::AlignVCenter);
        row->setStretchFactor(titles.panel, 1);
    }

    TextLines times;
    TextLines titles;
    QGraphicsLinearLayout *row;
};

M_REGISTER_VIEW(NoteWidgetListItemView, NoteWidget)

NoteWidgetListItemView::NoteWidgetListItemView(NoteWidget *controller)
    : NoteWidgetView(controller), d(std::make_unique<NoteWidgetListItemViewPrivate>(controller))
{
}

NoteWidgetListItemView::~NoteWidgetListItemView()
{
    controller()->setLayout(nullptr);
    delete d->times.panel;
    delete d->titles.panel;
}

void NoteWidgetListItemView::updateData(const QList<const char *> &modifications)
{
    NoteWidgetView::updateData(modifications);
    showTexts();
}

void NoteWidgetListItemView::applyStyle()
{
    NoteWidgetView::applyStyle();
    controller()->setMinimumHeight(style()->minimumSize().height());
    d->times.panel->setMinimumWidth(style()->timeColumnWidth());
    d->times.panel->setMaximumWidth(style()->timeColumnWidth());
    showTexts();
}

void NoteWidgetListItemView::drawTexts(QPainter *) const { }

void NoteWidgetListItemView::showTexts()
{
    const NoteWidgetModel *model = note()->model();
    const QString timeStyle =
        times().isOverdue ? style()->overdueStyleName() : style()->subTextStyleName();
    d->times.show(0, times().first, timeStyle);
    d->times.show(1, model->squeezed() ? QString() : times().second, timeStyle);
    d->titles.show(0, model->title(), titleStyle());
    d->titles.show(1, model->squeezed() ? QString() : subtitle(), style()->subtitleStyleName());
    d->titles.panel->setStyleName(model->hasAlarm()
                                      ? QStringLiteral("NoteListItemTitleContainerWithAlarm")
                                      : QStringLiteral("NoteListItemTitleContainerWithoutAlarm"));
    d->row->setContentsMargins(stripeRoom(), style()->paddingTop(), marksRoom(),
                               style()->paddingBottom());
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
    const QString place = note()->model()->location().simplified();
    if (!details().isCancelled)
        return place;
    const QString cancelled = qtTrId("qtn_caln_cancelled");
    return place.isEmpty() ? cancelled : cancelled + QStringLiteral(" · ") + place;
}
