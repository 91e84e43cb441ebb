// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <touchcore/mwidgetmodel.h>

#include <QMetaProperty>

class MWidgetModelPrivate
{
public:
    int depth = 0;
    QList<const char *> pending;
};

MWidgetModel::MWidgetModel(QObject *parent)
    : QObject(parent), d(std::make_unique<MWidgetModelPrivate>())
{
}

MWidgetModel::~MWidgetModel() = default;

void MWidgetModel::beginTransaction()
{
    ++d->depth;
}

void MWidgetModel::commitTransaction()
{
    Q_ASSERT(d->depth > 0);
    if (d->depth == 0 || --d->depth > 0 || d->pending.isEmpty())
        return;
    // Taken out first: a listener may change the model again.
    QList<const char *> members;
    members.swap(d->pending);
    Q_EMIT modified(members);
}

QList<const char *> MWidgetModel::allMembers() const
{
    QList<const char *> members;
    const QMetaObject *meta = metaObject();
    for (int i = staticMetaObject.propertyCount(); i < meta->propertyCount(); ++i)
        members.append(meta->property(i).name());
    return members;
}

void MWidgetModel::memberModified(const char *member)
{
    if (d->depth == 0) {
        Q_EMIT modified({member});
        return;
    }
    for (const char *known : qAsConst(d->pending)) {
        if (qstrcmp(known, member) == 0)
            return;
    }
    d->pending.append(member);
}
