// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "mbutton_p.h"

#include <algorithm>

namespace
{
struct Member {
    MButton *button;
    int id;
};
} // namespace

class MButtonGroupPrivate
{
public:
    QVector<Member>::const_iterator find(const MButton *button) const
    {
        return std::find_if(members.begin(), members.end(),
                            [button](const Member &member) { return member.button == button; });
    }

    int nextId() const
    {
        int next = 0;
        for (const Member &member : members)
            next = qMax(next, member.id + 1);
        return next;
    }

    /// Those at the ends have other corners.
    void updateSegments() const
    {
        for (const Member &member : members)
            member.button->update();
    }

    QVector<Member> members;
    bool isExclusive = true;
    int toldId = -1; ///< what checkedIdChanged() last told
    bool isSwitching = false;
};

MButtonGroup::MButtonGroup(QObject *parent)
    : QObject(parent), d(std::make_unique<MButtonGroupPrivate>())
{
}

MButtonGroup::~MButtonGroup()
{
    while (!d->members.isEmpty())
        forget(d->members.last().button);
}

void MButtonGroup::addButton(MButton *button, int id)
{
    if (!button || button->group() == this)
        return;
    if (button->group())
        button->group()->removeButton(button);
    d->members.append({button, id < 0 ? d->nextId() : id});
    button->d->group = this;
    button->setCheckable(true);
    connect(button, &MButton::toggled, this,
            [this, button](bool isChecked) { buttonToggled(button, isChecked); });
    connect(button, &MButton::clicked, this,
            [this, button] { Q_EMIT buttonClicked(this->id(button)); });
    d->updateSegments();
    if (button->isChecked())
        buttonToggled(button, true);
}

void MButtonGroup::removeButton(MButton *button)
{
    if (id(button) < 0)
        return;
    forget(button);
    tellCheckedId();
}

void MButtonGroup::forget(MButton *button)
{
    const auto member = d->find(button);
    d->members.erase(d->members.begin() + (member - d->members.constBegin()));
    disconnect(button, nullptr, this, nullptr);
    button->d->group.clear();
    d->updateSegments();
}

QList<MButton *> MButtonGroup::buttons() const
{
    QList<MButton *> list;
    for (const Member &member : qAsConst(d->members))
        list.append(member.button);
    return list;
}

MButton *MButtonGroup::button(int id) const
{
    for (const Member &member : qAsConst(d->members)) {
        if (member.id == id)
            return member.button;
    }
    return nullptr;
}

int MButtonGroup::id(const MButton *button) const
{
    const auto member = d->find(button);
    return member == d->members.constEnd() ? -1 : member->id;
}

bool MButtonGroup::isExclusive() const
{
    return d->isExclusive;
}

void MButtonGroup::setExclusive(bool isExclusive)
{
    d->isExclusive = isExclusive;
    if (MButton *checked = checkedButton())
        buttonToggled(checked, true);
}

MButton *MButtonGroup::checkedButton() const
{
    for (const Member &member : qAsConst(d->members)) {
        if (member.button->isChecked())
            return member.button;
    }
    return nullptr;
}

int MButtonGroup::checkedId() const
{
    return id(checkedButton());
}

void MButtonGroup::setCheckedId(int id)
{
    MButton *wanted = button(id);
    if (wanted)
        wanted->setChecked(true);
    const QList<MButton *> all = buttons();
    for (MButton *other : all) {
        if (other != wanted)
            other->setChecked(false);
    }
}

void MButtonGroup::buttonToggled(MButton *button, bool isChecked)
{
    if (d->isSwitching)
        return;
    if (isChecked && d->isExclusive) {
        d->isSwitching = true;
        const QList<MButton *> all = buttons();
        for (MButton *other : all) {
            if (other != button)
                other->setChecked(false);
        }
        d->isSwitching = false;
    }
    tellCheckedId();
}

void MButtonGroup::tellCheckedId()
{
    if (d->toldId == checkedId())
        return;
    d->toldId = checkedId();
    Q_EMIT checkedIdChanged(d->toldId);
}
