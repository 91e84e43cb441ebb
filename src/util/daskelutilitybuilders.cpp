// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <daskel/daskelutility.h>
#include <touchcore/mlistitem.h>
#include <touchcore/mseparator.h>
#include <touchcore/mstylablewidget.h>
#include <touchcore/mtheme.h>

#include <QGraphicsGridLayout>
#include <QGraphicsLinearLayout>

namespace
{
template <class Layout> Layout *emptied(Layout *layout)
{
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    return layout;
}

template <class Widget> Widget *newStyled(QGraphicsItem *parent, const QString &styleName)
{
    MTheme::instance()->addLibrary(QStringLiteral("libdaskel"));
    auto *widget = new Widget(parent);
    widget->setStyleName(styleName);
    return widget;
}

QGraphicsLinearLayout *newLayoutOn(QGraphicsWidget *widget, Qt::Orientation orientation)
{
    auto *layout = emptied(new QGraphicsLinearLayout(orientation));
    widget->setLayout(layout);
    return layout;
}
} // namespace

void daskelUtilityNewGridLayout(QGraphicsGridLayout *&out, QGraphicsLayoutItem *parent)
{
    out = emptied(new QGraphicsGridLayout(parent));
}

void daskelUtilityNewVerticalLayout(QGraphicsLinearLayout *&out, QGraphicsLayoutItem *parent)
{
    out = emptied(new QGraphicsLinearLayout(Qt::Vertical, parent));
}

MListItem *daskelUtilityCreateListItem(QGraphicsItem *parent, const QString &styleName)
{
    return newStyled<MListItem>(parent, styleName);
}

MListItem *daskelUtilityCreateListItem(QGraphicsItem *parent, const QString &styleName,
                                       QGraphicsLinearLayout *&out, Qt::Orientation orientation)
{
    MListItem *item = daskelUtilityCreateListItem(parent, styleName);
    out = newLayoutOn(item, orientation);
    return item;
}

MStylableWidget *daskelUtilityCreatePanel(QGraphicsItem *parent, const QString &styleName)
{
    return newStyled<MStylableWidget>(parent, styleName);
}

MStylableWidget *daskelUtilityCreatePanel(QGraphicsItem *parent, const QString &styleName,
                                          QGraphicsLinearLayout *&out, Qt::Orientation orientation)
{
    MStylableWidget *panel = daskelUtilityCreatePanel(parent, styleName);
    out = newLayoutOn(panel, orientation);
    return panel;
}

MStylableWidget *daskelUtilityCreatePanel(const QString &styleName, QGraphicsLayoutItem *content)
{
    MStylableWidget *panel = daskelUtilityCreatePanel(nullptr, styleName);
    if (content)
        newLayoutOn(panel, Qt::Vertical)->addItem(content);
    return panel;
}

MStylableWidget *daskelUtilityCreateCommonPanel(QGraphicsItem *parent, QGraphicsLinearLayout *&out,
                                                Qt::Orientation orientation)
{
    return daskelUtilityCreatePanel(parent, QStringLiteral("CommonPanel"), out, orientation);
}

MStylableWidget *daskelUtilityCreateCommonPanel(QGraphicsLayoutItem *content)
{
    return daskelUtilityCreatePanel(QStringLiteral("CommonPanel"), content);
}

MStylableWidget *daskelUtilityCreateSpacer(const QString &styleName, QGraphicsItem *parent)
{
    return newStyled<MStylableWidget>(parent, styleName);
}

MStylableWidget *daskelUtilityCreateCommonSpacer(QGraphicsItem *parent)
{
    return daskelUtilityCreateSpacer(QStringLiteral("CommonSpacer"), parent);
}

MSeparator *daskelUtilityCreateSeparator(QGraphicsItem *parent, const QString &styleName,
                                         Qt::Orientation orientation)
{
    auto *separator = new MSeparator(parent, orientation);
    separator->setStyleName(styleName);
    return separator;
}
