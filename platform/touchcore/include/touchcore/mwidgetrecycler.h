// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MWIDGETRECYCLER_H
#define TOUCHCORE_MWIDGETRECYCLER_H

#include <QByteArray>
#include <QHash>
#include <QVector>

class MWidget;

/// Keeps the cells of a list that went out of view, hidden, until a row of their class comes into
/// view: making a widget costs far more than filling it anew.
///
/// Owns the widgets that it keeps. UI thread only.
class MWidgetRecycler
{
public:
    MWidgetRecycler() = default;
    ~MWidgetRecycler();
    Q_DISABLE_COPY(MWidgetRecycler)

    /// A kept widget of exactly the class \a className (QMetaObject::className()), which the caller
    /// then owns, or null. It shows what it showed last.
    MWidget *take(const QByteArray &className);
    /// Hides \a widget and keeps it.
    void recycle(MWidget *widget);
    /// Deletes all that is kept.
    void clear();
    /// How many widgets are kept.
    int count() const;

private:
    QHash<QByteArray, QVector<MWidget *>> m_widgets;
};

#endif
