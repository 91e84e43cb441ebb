// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DBSIGNALS_H
#define DBSIGNALS_H

#include <daskel/db_instance.h>

/// Writes down what DbInstance tells, in order.
class DbSignals : public QObject
{
public:
    DbSignals()
    {
        const auto *const db = DbInstance::instance();
        const auto noteAs = [this](const char *name) { return [this, name] { told << name; }; };
        connect(db, &DbInstance::dataUpdated, this, noteAs("updated"));
        connect(db, &DbInstance::dbEnabled, this, noteAs("enabled"));
        connect(db, &DbInstance::dbOpenedOk, this, noteAs("opened"));
        connect(db, &DbInstance::dbOpenedNok, this, noteAs("not opened"));
        connect(db, &DbInstance::dbSaved, this, [this](DbInstance::DbSaveError code) {
            told << QStringLiteral("saved %1").arg(code);
        });
    }

    /// Such as "updated, saved 0": all since the last time.
    QString take() { return std::exchange(told, {}).join(QStringLiteral(", ")); }

    QStringList told;
};

#endif
