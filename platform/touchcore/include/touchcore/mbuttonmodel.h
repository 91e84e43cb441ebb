// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MBUTTONMODEL_H
#define TOUCHCORE_MBUTTONMODEL_H

#include <touchcore/mwidgetmodel.h>

/// What a button shows.
class MButtonModel : public MWidgetModel
{
    Q_OBJECT
    M_MODEL_PROPERTY(QString, text, setText)
    /// The name of a picture of the theme.
    M_MODEL_PROPERTY(QString, iconID, setIconID)
    M_MODEL_PROPERTY(bool, checkable, setCheckable, false)
    M_MODEL_PROPERTY(bool, checked, setChecked, false)
    /// Whether it is being pressed at this moment.
    M_MODEL_PROPERTY(bool, down, setDown, false)

public:
    explicit MButtonModel(QObject *parent = nullptr);
    ~MButtonModel() override;
};

#endif
