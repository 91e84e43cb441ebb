// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef NOTESFIXTURE_H
#define NOTESFIXTURE_H

#include "databasefixture.h"
#include "incidences.h"

#include <daskel/daskeltranslator.h>
#include <daskel/db_instance.h>
#include <daskel/noteloader.h>
#include <daskel/notewidgetitemmodel.h>

/// A calendar that is open, at noon of 10 March 2011 in Helsinki, with English texts.
class NotesFixture
{
public:
    NotesFixture()
    {
        m_database.open();
        DbInstance::instance()->enableDb();
        DaskelTranslator::installLibdaskelTranslationCatalogs(QString());
    }

    void setToday(const QDate &today) { m_database.environment.setToday(today); }

    template <class Pointer> static Pointer add(const Pointer &incidence)
    {
        DbInstance::instance()->calendar()->addIncidence(incidence);
        return incidence;
    }

    /// The stored incidence of that UID; an event of an hour when there is none yet.
    static KCalCore::Incidence::Ptr event(const QString &uid, const QDate &day)
    {
        const auto known = DbInstance::instance()->incidence(uid, KDateTime());
        const QDateTime start(day, QTime(9, 0));
        return known ? known : add(makeEvent(uid, start, start.addSecs(3600)));
    }

private:
    DatabaseFixture m_database;
};

/// Hands over batches that are written down: "2011-03-10 a b; 2011-03-11 c" are two groups with
/// their notes, "^a" one at the front of its group, "_" a row without a note, and "-" the group
/// name of a list without headers.
class ScriptLoader : public AbstractNoteLoader
{
public:
    QString first;
    QStringList earlier;
    QStringList later;
    int timesLoaded = 0;

    void load() override
    {
        ++timesLoaded;
        resetIncidenceCount();
        handOver(first);
    }
    void loadEarlier() override { handOver(earlier.isEmpty() ? QString() : earlier.takeFirst()); }
    void loadLater() override { handOver(later.isEmpty() ? QString() : later.takeFirst()); }

private:
    void handOver(const QString &batch)
    {
        const QStringList groups = batch.split(QLatin1Char(';'), Qt::SkipEmptyParts);
        for (const QString &group : groups)
            handOverGroup(group.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    }

    void handOverGroup(QStringList words)
    {
        const QString word = words.takeFirst();
        const QString name = word == QLatin1String("-") ? QString() : word;
        const QDate date = QDate::fromString(name, Qt::ISODate);
        backend()->addGroupHeader(name, 1, date.startOfDay());
        for (const QString &note : qAsConst(words)) {
            const bool atFront = note.startsWith(QLatin1Char('^'));
            const bool isNote = note != QLatin1String("_");
            const auto incidence = isNote ? NotesFixture::event(note.mid(atFront ? 1 : 0), date)
                                          : KCalCore::Incidence::Ptr();
            QDateTime start(date, QTime(9, 0));
            QDateTime end(date, QTime(10, 0));
            addIncidence(name, &start, &end, incidence, atFront);
        }
    }
};

/// The rows of a model as a ScriptLoader would hand them over: "A a b; B c", or "a b".
inline QString writtenDown(const QAbstractItemModel &model, const QModelIndex &parent = {})
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const QVariant shown = index.data();
        const auto incidence = shown.value<KCalCore::Incidence::Ptr>();
        QString text = shown.userType() == QMetaType::QString ? shown.toString()
            : incidence                                       ? incidence->uid()
                                                              : QStringLiteral("_");
        if (model.rowCount(index) > 0)
            text += QLatin1Char(' ') + writtenDown(model, index);
        rows << text;
    }
    const bool hasGroups = model.rowCount(model.index(0, 0, parent)) > 0;
    return rows.join(hasGroups ? QStringLiteral("; ") : QStringLiteral(" "));
}

#endif
