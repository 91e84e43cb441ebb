// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_PAGEHEADER_H
#define TOUCHCORE_PAGEHEADER_H

#include <touchcore/mscenewindowstyle.h>
#include <touchcore/mstylablewidget.h>

#include <QHash>
#include <QPointer>

class MButton;
class MLabel;
class QAction;
class QGraphicsLinearLayout;

/// The bar at the top of a page or sheet: a button that leaves it, the title, and its actions.
///
/// Up to two actions stand in the bar, those of high priority first; the others, and all of low
/// priority, are in the menu at its end.
class MPageHeader : public MStylableWidget
{
    Q_OBJECT
    M_STYLE(MPageHeaderStyle)

public:
    explicit MPageHeader(QGraphicsItem *parent);
    ~MPageHeader() override;

    void setTitle(const QString &title);
    /// How the leading button looks; hidden by default.
    enum LeadingButton { NoLeadingButton, BackButton, CloseButton };
    void setLeadingButton(LeadingButton kind);
    MButton *leadingButton() const { return m_leading; }
    /// The actions of the page or sheet, in their order; they are followed when they change.
    void setActions(const QList<QAction *> &actions);
    /// The button of \a action, or null while it is in the menu or invisible.
    MButton *buttonOf(QAction *action) const;
    MButton *menuButton() const { return m_menu; }

Q_SIGNALS:
    void leadingClicked();

protected:
    void applyStyle() override;

private:
    void updateActions();
    void updateTitleMargin();
    MButton *makeButton(QAction *action);
    void showMenu();

    QGraphicsLinearLayout *m_row;
    MButton *m_leading;
    MLabel *m_title;
    MButton *m_menu;
    LeadingButton m_leadingKind = NoLeadingButton;
    QList<QPointer<QAction>> m_actions;
    QHash<const QAction *, MButton *> m_buttons;
};

#endif
