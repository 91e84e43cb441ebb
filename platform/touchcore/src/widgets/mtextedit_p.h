// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MTEXTEDIT_P_H
#define TOUCHCORE_MTEXTEDIT_P_H

#include "textfield.h"

#include <touchcore/mtextedit.h>

class QAction;
class QGraphicsProxyWidget;

class MTextEditPrivate
{
public:
    MTextEditPrivate(MTextEdit *edit, MTextEdit::LineMode lineMode);

    /// What stands outside the text: the style's margins and paddings.
    QMarginsF around() const;
    void placeField();
    void applyColors();
    void applyMode();
    void takeFocus();
    /// Offers what can be done with the text now, at a place of the widget that is touched.
    void openMenu(const QPoint &position, bool isByKeyboard);

    MTextEdit *q;
    MTextEdit::LineMode mode;
    std::unique_ptr<TextField> field;
    QGraphicsProxyWidget *proxy = nullptr;
    QString prompt;
    int minimumLines = 3;
    bool hasError = false;

private:
    struct MenuAction {
        QAction *action;
        bool (*isOffered)(const TextField &);
    };
    void addActions();
    void addAction(const char *text, void (TextField::*call)(),
                   bool (*isOffered)(const TextField &));

    QVector<MenuAction> m_actions;
};

#endif
