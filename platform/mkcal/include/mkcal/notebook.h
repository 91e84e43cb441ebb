// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_NOTEBOOK_H
#define MKCAL_NOTEBOOK_H

#include <kcalcompat/kcalcore.h>

#include <QDateTime>
#include <QSharedPointer>
#include <QString>
#include <QStringList>

#include <memory>

namespace mKCal
{
class NotebookPrivate;

/// A calendar that a person keeps: its name, colour and what may be put into it.
///
/// A value held by shared pointer; a change reaches the database only through
/// ExtendedStorage::updateNotebook(). Not shared between threads.
class Notebook
{
public:
    using Ptr = QSharedPointer<Notebook>;
    using List = QList<Ptr>;

    /// An unnamed, visible, master notebook with a new UID that allows every kind of incidence.
    Notebook();
    Notebook(const QString &uid, const QString &name, const QString &description,
             const QString &color, bool isShared, bool isMaster, bool isSynchronized,
             bool isReadOnly, bool isVisible);
    Notebook(const Notebook &other);
    Notebook &operator=(const Notebook &other);
    ~Notebook();

    /// Equal when every property is equal.
    bool operator==(const Notebook &other) const;
    bool operator!=(const Notebook &other) const { return !(*this == other); }

    QString uid() const;
    void setUid(const QString &uid);
    QString name() const;
    void setName(const QString &name);
    QString description() const;
    void setDescription(const QString &description);
    /// "#rrggbb".
    QString color() const;
    void setColor(const QString &color);

    bool isShared() const;
    void setIsShared(bool isShared);
    bool isMaster() const;
    void setIsMaster(bool isMaster);
    bool isSynchronized() const;
    void setIsSynchronized(bool isSynchronized);
    bool isReadOnly() const;
    void setIsReadOnly(bool isReadOnly);
    /// Whether views show its incidences. The database hands them out either way.
    bool isVisible() const;
    void setIsVisible(bool isVisible);
    /// Whether lists of notebooks leave it out.
    bool isHidden() const;
    void setIsHidden(bool isHidden);

    bool eventsAllowed() const;
    void setEventsAllowed(bool allowed);
    bool todosAllowed() const;
    void setTodosAllowed(bool allowed);
    bool journalsAllowed() const;
    void setJournalsAllowed(bool allowed);
    /// Whether an incidence of that kind may be put here; false for null. A read-only notebook
    /// allows none.
    bool incidenceAllowed(const KCalCore::Incidence::Ptr &incidence) const;

    /// The synchronisation plug-in that fills this notebook; empty when it is only kept here.
    QString pluginName() const;
    void setPluginName(const QString &name);
    /// Which account of the system it belongs to; empty for none.
    QString account() const;
    void setAccount(const QString &account);
    QString syncProfile() const;
    void setSyncProfile(const QString &profile);
    /// When it was last synchronised, UTC; null for never.
    QDateTime syncDate() const;
    void setSyncDate(const QDateTime &date);
    QDateTime creationDate() const;
    void setCreationDate(const QDateTime &date);
    QDateTime modifiedDate() const;
    void setModifiedDate(const QDateTime &date);
    QStringList sharedWith() const;
    void setSharedWith(const QStringList &addresses);

    /// Free text that a synchronisation plug-in keeps with the notebook; empty removes the key.
    QString customProperty(const QString &key) const;
    void setCustomProperty(const QString &key, const QString &value);
    QStringList customPropertyKeys() const;

private:
    std::unique_ptr<NotebookPrivate> d;
};
} // namespace mKCal

Q_DECLARE_METATYPE(mKCal::Notebook::Ptr)

#endif
