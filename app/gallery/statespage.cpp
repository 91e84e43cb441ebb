// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "librarypages.h"

#include <daskel/multistatewidget.h>
#include <touchcore/mbutton.h>
#include <touchcore/mlabel.h>
#include <touchcore/mlayout.h>
#include <touchcore/mlinearlayoutpolicy.h>

#include <pagebuilder.h>

namespace
{
enum State { Closed, Opened };

MLinearLayoutPolicy *policy(MultiStateWidget *widget, Qt::Orientation orientation,
                            const QList<QGraphicsLayoutItem *> &items)
{
    auto *made = new MLinearLayoutPolicy(static_cast<MLayout *>(widget->layout()), orientation);
    made->setSpacing(8);
    for (QGraphicsLayoutItem *item : items)
        made->addItem(item);
    return made;
}

MLabel *part(const QString &text)
{
    auto *label = new MLabel(text);
    label->setStyleName(QStringLiteral("CommonPanel"));
    return label;
}

/// A day with its notes: below each other, or beside each other where there is room.
MultiStateWidget *dayWithNotes(State state)
{
    auto *widget = new MultiStateWidget;
    MLabel *day = part(QStringLiteral("Saturday 21"));
    MLabel *market = part(QStringLiteral("09:00 Market"));
    MLabel *call = part(QStringLiteral("18:00 Call home"));
    MLinearLayoutPolicy *closed = policy(widget, Qt::Vertical, {day});
    widget->addState(Closed, closed, closed);
    widget->addState(Opened, policy(widget, Qt::Horizontal, {day, market, call}),
                     policy(widget, Qt::Vertical, {day, market, call}));
    widget->changeState(state);
    return widget;
}
} // namespace

QGraphicsWidget *makeStatesPage()
{
    PageBuilder builder;
    builder.addCaption(QStringLiteral("Opened: in a column, in landscape in a row"));
    builder.add(dayWithNotes(Opened));
    builder.addCaption(QStringLiteral("Closed"));
    builder.add(dayWithNotes(Closed));
    builder.addCaption(QStringLiteral("Tap to change"));
    MultiStateWidget *widget = dayWithNotes(Closed);
    auto *button = new MButton(QStringLiteral("Notes"));
    button->setCheckable(true);
    QObject::connect(button, &MButton::toggled, widget,
                     [widget](bool isOpened) { widget->changeState(isOpened ? Opened : Closed); });
    builder.addRow({button});
    builder.add(widget);
    return builder.page();
}
