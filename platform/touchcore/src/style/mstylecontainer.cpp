// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <touchcore/mstyle.h>
#include <touchcore/mstylecontainer.h>
#include <touchcore/mtheme.h>

#include <memory>

void MStyleContainer::initialize(const Maker &maker, const QMetaObject *ownerClass,
                                 const QMetaObject *widgetClass)
{
    m_maker = maker;
    m_styleClass = std::unique_ptr<MStyle>(maker())->metaObject();
    m_ownerClass = ownerClass;
    m_widgetClass = widgetClass;
    invalidate();
}

void MStyleContainer::setStyleName(const QString &name)
{
    m_name = name;
    invalidate();
}

void MStyleContainer::setMode(const QByteArray &mode)
{
    m_mode = mode;
    invalidate();
}

void MStyleContainer::invalidate()
{
    m_current.clear();
}

const MStyle *MStyleContainer::current() const
{
    if (!m_current)
        m_current = MTheme::instance()->style(m_maker, m_styleClass, m_widgetClass, m_name, m_mode);
    return m_current.data();
}
