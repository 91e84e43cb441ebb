// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "notebook_p.h"

#include <KCalendarCore/CalFormat>

using namespace mKCal;

Notebook::Notebook() : d(std::make_unique<NotebookPrivate>())
{
    d->uid = KCalCore::CalFormat::createUniqueId();
}

Notebook::Notebook(const QString &uid, const QString &name, const QString &description,
                   const QString &color, bool isShared, bool isMaster, bool isSynchronized,
                   bool isReadOnly, bool isVisible)
    : d(std::make_unique<NotebookPrivate>())
{
    d->uid = uid;
    d->name = name;
    d->description = description;
    d->color = color;
    d->isShared = isShared;
    d->isMaster = isMaster;
    d->isSynchronized = isSynchronized;
    d->isReadOnly = isReadOnly;
    d->isVisible = isVisible;
}

Notebook::Notebook(const Notebook &other) : d(std::make_unique<NotebookPrivate>(*other.d)) { }

Notebook &Notebook::operator=(const Notebook &other)
{
    *d = *other.d;
    return *this;
}

Notebook::~Notebook() = default;

bool Notebook::operator==(const Notebook &other) const
{
    return d->everything() == other.d->everything();
}

QString Notebook::uid() const
{
    return d->uid;
}

void Notebook::setUid(const QString &uid)
{
    d->uid = uid;
}

QString Notebook::name() const
{
    return d->name;
}

void Notebook::setName(const QString &name)
{
    d->name = name;
}

QString Notebook::description() const
{
    return d->description;
}

void Notebook::setDescription(const QString &description)
{
    d->description = description;
}

QString Notebook::color() const
{
    return d->color;
}

void Notebook::setColor(const QString &color)
{
    d->color = color;
}

bool Notebook::isShared() const
{
    return d->isShared;
}

void Notebook::setIsShared(bool isShared)
{
    d->isShared = isShared;
}

bool Notebook::isMaster() const
{
    return d->isMaster;
}

void Notebook::setIsMaster(bool isMaster)
{
    d->isMaster = isMaster;
}

bool Notebook::isSynchronized() const
{
    return d->isSynchronized;
}

void Notebook::setIsSynchronized(bool isSynchronized)
{
    d->isSynchronized = isSynchronized;
}

bool Notebook::isReadOnly() const
{
    return d->isReadOnly;
}

void Notebook::setIsReadOnly(bool isReadOnly)
{
    d->isReadOnly = isReadOnly;
}

bool Notebook::isVisible() const
{
    return d->isVisible;
}

void Notebook::setIsVisible(bool isVisible)
{
    d->isVisible = isVisible;
}

bool Notebook::isHidden() const
{
    return d->isHidden;
}

void Notebook::setIsHidden(bool isHidden)
{
    d->isHidden = isHidden;
}

bool Notebook::eventsAllowed() const
{
    return d->eventsAllowed;
}

void Notebook::setEventsAllowed(bool allowed)
{
    d->eventsAllowed = allowed;
}

bool Notebook::todosAllowed() const
{
    return d->todosAllowed;
}

void Notebook::setTodosAllowed(bool allowed)
{
    d->todosAllowed = allowed;
}

bool Notebook::journalsAllowed() const
{
    return d->journalsAllowed;
}

void Notebook::setJournalsAllowed(bool allowed)
{
    d->journalsAllowed = allowed;
}

bool Notebook::incidenceAllowed(const KCalCore::Incidence::Ptr &incidence) const
{
    if (!incidence || d->isReadOnly) {
        return false;
    }
    switch (incidence->type()) {
    case KCalCore::IncidenceBase::TypeEvent:
        return d->eventsAllowed;
    case KCalCore::IncidenceBase::TypeTodo:
        return d->todosAllowed;
    case KCalCore::IncidenceBase::TypeJournal:
        return d->journalsAllowed;
    default:
        return false;
    }
}

QString Notebook::pluginName() const
{
    return d->pluginName;
}

void Notebook::setPluginName(const QString &name)
{
    d->pluginName = name;
}

QString Notebook::account() const
{
    return d->account;
}

void Notebook::setAccount(const QString &account)
{
    d->account = account;
}

QString Notebook::syncProfile() const
{
    return d->syncProfile;
}

void Notebook::setSyncProfile(const QString &profile)
{
    d->syncProfile = profile;
}

QDateTime Notebook::syncDate() const
{
    return d->syncDate;
}

void Notebook::setSyncDate(const QDateTime &date)
{
    d->syncDate = date;
}

QDateTime Notebook::creationDate() const
{
    return d->creationDate;
}

void Notebook::setCreationDate(const QDateTime &date)
{
    d->creationDate = date;
}

QDateTime Notebook::modifiedDate() const
{
    return d->modifiedDate;
}

void Notebook::setModifiedDate(const QDateTime &date)
{
    d->modifiedDate = date;
}

QStringList Notebook::sharedWith() const
{
    return d->sharedWith;
}

void Notebook::setSharedWith(const QStringList &addresses)
{
    d->sharedWith = addresses;
}

QString Notebook::customProperty(const QString &key) const
{
    return d->customProperties.value(key);
}

void Notebook::setCustomProperty(const QString &key, const QString &value)
{
    if (value.isEmpty()) {
        d->customProperties.remove(key);
    } else {
        d->customProperties.insert(key, value);
    }
}

QStringList Notebook::customPropertyKeys() const
{
    return d->customProperties.keys();
}
