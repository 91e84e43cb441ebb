// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MAPPLICATIONPAGEMODEL_H
#define TOUCHCORE_MAPPLICATIONPAGEMODEL_H

#include <touchcore/mwidgetmodel.h>

/// What the header of a page shows.
class MApplicationPageModel : public MWidgetModel
{
    Q_OBJECT

public:
    /// What the button that leaves the page is. The values are part of the interface.
    enum EscapeMode {
        /// Back when there is a page below, else close. The page then also does it.
        EscapeAuto = 0,
        /// Back, and MApplicationPage::backButtonClicked() is all that happens.
        EscapeBack = 1,
        /// Close, and MApplicationPage::backButtonClicked() is all that happens.
        EscapeClose = 2,
    };
    Q_ENUM(EscapeMode)

    M_MODEL_PROPERTY(QString, title, setTitle)
    M_MODEL_PROPERTY(MApplicationPageModel::EscapeMode, escapeMode, setEscapeMode, EscapeAuto)
    M_MODEL_PROPERTY(bool, headerVisible, setHeaderVisible, true)

public:
    explicit MApplicationPageModel(QObject *parent = nullptr);
    ~MApplicationPageModel() override;
};

#endif
