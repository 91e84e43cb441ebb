// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_NOTEBOOK_P_H
#define MKCAL_NOTEBOOK_P_H

#include <mkcal/notebook.h>

#include <QMap>

#include <tuple>

namespace mKCal
{
class NotebookPrivate
{
public:
    QString uid;
    QString name;
    QString description;
    QString color;
    bool isShared = false;
    bool isMaster = true;
    bool isSynchronized = false;
    bool isReadOnly = false;
    bool isVisible = true;
    bool isHidden = false;
    bool eventsAllowed = true;
    bool todosAllowed = true;
    bool journalsAllowed = true;
    QString pluginName;
    QString account;
    QString syncProfile;
    QDateTime syncDate;
    QDateTime creationDate;
    QDateTime modifiedDate;
    QStringList sharedWith;
    QMap<QString, QString> customProperties;

    auto everything() const
    {
        return std::tie(uid, name, description, color, isShared, isMaster, isSynchronized,
                        isReadOnly, isVisible, isHidden, eventsAllowed, todosAllowed,
                        journalsAllowed, pluginName, account, syncProfile, syncDate, creationDate,
                        modifiedDate, sharedWith, customProperties);
    }
};
} // namespace mKCal

#endif
