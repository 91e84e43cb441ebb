// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MSTYLECONTAINER_H
#define TOUCHCORE_MSTYLECONTAINER_H

#include <QByteArray>
#include <QSharedPointer>
#include <QString>

#include <functional>

class MStyle;
struct QMetaObject;

/// Holds the style that is in force for one widget, and asks the theme for another one when its
/// name, its mode or the theme changes. A member of views and stylable widgets.
class MStyleContainer
{
public:
    using Maker = std::function<MStyle *()>;

    /// \a maker, of the view or widget of the class \a ownerClass, makes an empty style for widgets
    /// of \a widgetClass. Name and mode stay.
    void initialize(const Maker &maker, const QMetaObject *ownerClass,
                    const QMetaObject *widgetClass);
    /// False before it was initialised, and for what was asked for while a base class was being
    /// constructed: that style is of the base's class.
    bool isFor(const QMetaObject *ownerClass, const QMetaObject *widgetClass) const
    {
        return ownerClass == m_ownerClass && widgetClass == m_widgetClass;
    }

    QString styleName() const { return m_name; }
    void setStyleName(const QString &name);
    QByteArray mode() const { return m_mode; }
    void setMode(const QByteArray &mode);
    /// Drops what is held; the next current() asks the theme again.
    void invalidate();

    /// Never null, valid until the next change.
    const MStyle *current() const;

private:
    Maker m_maker;
    const QMetaObject *m_styleClass = nullptr;
    const QMetaObject *m_ownerClass = nullptr;
    const QMetaObject *m_widgetClass = nullptr;
    QString m_name;
    QByteArray m_mode;
    mutable QSharedPointer<const MStyle> m_current;
};

#endif
