// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <touchcore/mcellcreator.h>
#include <touchcore/mwidgetcontroller.h>
#include <touchcore/mwidgetmodel.h>

#include <QMetaProperty>

namespace
{
bool setIfThere(QObject *object, const char *property, const QVariant &value)
{
    const int index = object->metaObject()->indexOfProperty(property);
    return index >= 0 && object->metaObject()->property(index).write(object, value);
}
} // namespace

void MCellCreator::cellRecycled(MWidget *) const { }

void MCellCreator::setCellSelected(MWidget *cell, bool isSelected) const
{
    auto *controller = qobject_cast<MWidgetController *>(cell);
    if (!setIfThere(cell, "selected", isSelected) && controller)
        setIfThere(controller->model(), "selected", isSelected);
}
