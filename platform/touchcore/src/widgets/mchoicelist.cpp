// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <touchcore/mbutton.h>
#include <touchcore/mbuttongroup.h>
#include <touchcore/mchoicelist.h>

#include <QGraphicsLinearLayout>
#include <QGraphicsScene>
#include <QKeyEvent>

class MChoiceListPrivate
{
public:
    explicit MChoiceListPrivate(MChoiceList *list)
        : q(list), column(new QGraphicsLinearLayout(Qt::Vertical, list)),
          group(new MButtonGroup(list))
    {
        column->setContentsMargins(0, 0, 0, 0);
        column->setSpacing(0);
    }

    void addRow();
    int focusedRow() const;

    MChoiceList *q;
    QGraphicsLinearLayout *column;
    MButtonGroup *group;
    QList<MButton *> rows;
};

void MChoiceListPrivate::addRow()
{
    auto *row = new MButton(q);
    row->setViewType(QStringLiteral("choice"));
    QSizePolicy policy = row->sizePolicy();
    policy.setHeightForWidth(true);
    row->setSizePolicy(policy);
    group->addButton(row, rows.size());
    column->addItem(row);
    rows.append(row);
}

int MChoiceListPrivate::focusedRow() const
{
    for (int i = 0; i < rows.size(); ++i) {
        if (rows[i]->hasFocus())
            return i;
    }
    return -1;
}

MChoiceList::MChoiceList(QGraphicsItem *parent)
    : MStylableWidget(parent), d(std::make_unique<MChoiceListPrivate>(this))
{
    connect(d->group, &MButtonGroup::checkedIdChanged, this, &MChoiceList::currentIndexChanged);
    connect(d->group, &MButtonGroup::buttonClicked, this, &MChoiceList::activated);
}

MChoiceList::~MChoiceList() = default;

QStringList MChoiceList::choices() const
{
    QStringList texts;
    for (const MButton *row : qAsConst(d->rows))
        texts.append(row->text());
    return texts;
}

void MChoiceList::setChoices(const QStringList &choices)
{
    while (d->rows.size() > choices.size())
        delete d->rows.takeLast();
    while (d->rows.size() < choices.size())
        d->addRow();
    for (int i = 0; i < choices.size(); ++i)
        d->rows[i]->setText(choices[i]);
}

int MChoiceList::currentIndex() const
{
    return d->group->checkedId();
}

void MChoiceList::setCurrentIndex(int index)
{
    d->group->setCheckedId(index);
}

void MChoiceList::keyPressEvent(QKeyEvent *event)
{
    const int row = d->focusedRow();
    int next = -1;
    if (event->key() == Qt::Key_Down)
        next = row + 1;
    else if (event->key() == Qt::Key_Up)
        next = row - 1;
    else if (event->key() == Qt::Key_Home)
        next = 0;
    else if (event->key() == Qt::Key_End)
        next = d->rows.size() - 1;
    if (row < 0 || next < 0 || next >= d->rows.size())
        MStylableWidget::keyPressEvent(event);
    else
        d->rows[next]->setFocus(Qt::TabFocusReason);
}
