// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "pageheader.h"

#include "actionbutton.h"
#include "scenetexts.h"

#include <touchcore/mbutton.h>
#include <touchcore/mlabel.h>
#include <touchcore/mobjectmenu.h>

#include <QAction>
#include <QGraphicsLinearLayout>

#include <algorithm>

namespace
{
const int mostButtons = 2;
}

MPageHeader::MPageHeader(QGraphicsItem *parent)
    : MStylableWidget(parent), m_row(new QGraphicsLinearLayout(Qt::Horizontal, this)),
      m_leading(new MButton(this)), m_title(new MLabel(this)),
      m_menu(new MButton(SceneTexts::moreActions(), this))
{
    m_row->setContentsMargins(0, 0, 0, 0);
    m_row->setSpacing(0);
    m_leading->setViewType(QStringLiteral("icon"));
    m_leading->hide();
    m_title->setStyleName(QStringLiteral("PageHeaderTitle"));
    m_menu->setViewType(QStringLiteral("icon"));
    m_menu->hide();
    m_row->addItem(m_leading);
    m_row->addItem(m_title);
    m_row->setStretchFactor(m_title, 1);
    m_row->addItem(m_menu);
    m_row->setAlignment(m_leading, Qt::AlignVCenter);
    m_row->setAlignment(m_menu, Qt::AlignVCenter);
    connect(m_leading, &MButton::clicked, this, &MPageHeader::leadingClicked);
    connect(m_menu, &MButton::clicked, this, &MPageHeader::showMenu);
}

MPageHeader::~MPageHeader() = default;

void MPageHeader::setTitle(const QString &title)
{
    m_title->setText(title);
}

void MPageHeader::setLeadingButton(LeadingButton kind)
{
    m_leadingKind = kind;
    m_leading->setVisible(kind != NoLeadingButton);
    m_leading->setText(kind == BackButton ? SceneTexts::back() : SceneTexts::close());
    m_leading->setIconID(kind == BackButton ? style()->backImage() : style()->closeImage());
    updateTitleMargin();
}

void MPageHeader::setActions(const QList<QAction *> &actions)
{
    for (const QPointer<QAction> &known : qAsConst(m_actions)) {
        if (known)
            known->disconnect(this);
    }
    m_actions.clear();
    for (QAction *action : actions) {
        m_actions.append(action);
        connect(action, &QAction::changed, this, &MPageHeader::updateActions);
    }
    updateActions();
}

MButton *MPageHeader::buttonOf(QAction *action) const
{
    return m_buttons.value(action);
}

void MPageHeader::applyStyle()
{
    setMinimumHeight(style()->height());
    setMaximumHeight(style()->height());
    m_menu->setIconID(style()->menuImage());
    setLeadingButton(m_leadingKind);
    MStylableWidget::applyStyle();
}

void MPageHeader::updateActions()
{
    QList<QAction *> offered;
    for (const QPointer<QAction> &action : qAsConst(m_actions)) {
        if (action && action->isVisible() && !action->isSeparator()
            && action->priority() != QAction::LowPriority)
            offered.append(action);
    }
    std::stable_sort(offered.begin(), offered.end(), [](const QAction *a, const QAction *b) {
        return a->priority() > b->priority();
    });
    offered = offered.mid(0, mostButtons);

    QHash<const QAction *, MButton *> kept;
    for (int i = 0; i < offered.size(); ++i) {
        MButton *button = m_buttons.take(offered.at(i));
        if (!button)
            button = makeButton(offered.at(i));
        // After the leading button and the title.
        m_row->removeItem(button);
        m_row->insertItem(2 + i, button);
        m_row->setAlignment(button, Qt::AlignVCenter);
        kept.insert(offered.at(i), button);
    }
    for (MButton *button : qAsConst(m_buttons)) {
        // It may be its own click that took its action away.
        m_row->removeItem(button);
        button->hide();
        button->deleteLater();
    }
    m_buttons = kept;
    const bool hasMore =
        std::any_of(m_actions.begin(), m_actions.end(), [this](const QPointer<QAction> &action) {
            return action && action->isVisible() && !action->isSeparator()
                && !m_buttons.contains(action);
        });
    m_menu->setVisible(hasMore);
}

void MPageHeader::updateTitleMargin()
{
    m_row->setContentsMargins(m_leadingKind == NoLeadingButton ? style()->titleDistance() : 0, 0, 0,
                              0);
}

MButton *MPageHeader::makeButton(QAction *action)
{
    auto *button = new MButton(this);
    // A long title gives way, not the buttons.
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    tieButton(button, action);
    return button;
}

void MPageHeader::showMenu()
{
    QList<QAction *> rest;
    for (const QPointer<QAction> &action : qAsConst(m_actions)) {
        if (action && !m_buttons.contains(action))
            rest.append(action);
    }
    auto *menu = new MObjectMenu(rest);
    menu->popUp(m_menu, m_menu->mapToScene(m_menu->rect().bottomLeft()));
}
