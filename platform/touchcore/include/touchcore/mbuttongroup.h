// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MBUTTONGROUP_H
#define TOUCHCORE_MBUTTONGROUP_H

#include <QList>
#include <QObject>

#include <memory>

class MButton;
class MButtonGroupPrivate;

/// Buttons of which at most one is checked: the answers to one question.
///
/// It neither owns nor lays out its buttons; a button that is deleted leaves the group without
/// a signal. UI thread only.
class MButtonGroup : public QObject
{
    Q_OBJECT

public:
    explicit MButtonGroup(QObject *parent = nullptr);
    ~MButtonGroup() override;

    /// Makes the button checkable and takes it from an earlier group. When it is checked, the
    /// others are unchecked. \a id: what checkedId() answers for it; -1 takes the next free number
    /// from 0.
    void addButton(MButton *button, int id = -1);
    void removeButton(MButton *button);
    /// In the order of adding.
    QList<MButton *> buttons() const;
    /// Null when there is none.
    MButton *button(int id) const;
    /// -1 for a button that is not in the group.
    int id(const MButton *button) const;

    /// On by default: checking one unchecks the others, and a tap does not uncheck.
    bool isExclusive() const;
    void setExclusive(bool isExclusive);

    /// Null when none is checked.
    MButton *checkedButton() const;
    /// -1 when none is checked.
    int checkedId() const;
    /// Checks the button with this number; any other number unchecks all.
    void setCheckedId(int id);

Q_SIGNALS:
    void buttonClicked(int id);
    /// The answer changed, by a tap or by the program; -1 when none is checked.
    void checkedIdChanged(int id);

private:
    friend class MButton;
    /// Without a signal: a button may go because its page goes, with those who would hear of it.
    void forget(MButton *button);
    void buttonToggled(MButton *button, bool isChecked);
    void tellCheckedId();

    std::unique_ptr<MButtonGroupPrivate> d;
};

#endif
