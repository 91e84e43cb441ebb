// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <touchcore/mwidget.h>
#include <touchcore/mwidgetrecycler.h>

MWidgetRecycler::~MWidgetRecycler()
{
    clear();
}

MWidget *MWidgetRecycler::take(const QByteArray &className)
{
    const auto kept = m_widgets.find(className);
    return kept == m_widgets.end() || kept->isEmpty() ? nullptr : kept->takeLast();
}

void MWidgetRecycler::recycle(MWidget *widget)
{
    widget->hide();
    m_widgets[widget->metaObject()->className()].append(widget);
}

void MWidgetRecycler::clear()
{
    for (const QVector<MWidget *> &kept : qAsConst(m_widgets))
        qDeleteAll(kept);
    m_widgets.clear();
}

int MWidgetRecycler::count() const
{
    int count = 0;
    for (const QVector<MWidget *> &kept : m_widgets)
        count += kept.size();
    return count;
}
