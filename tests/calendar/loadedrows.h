// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef LOADEDROWS_H
#define LOADEDROWS_H

#include <daskel/abstractnoteloaderbackend.h>
#include <daskel/daskeltranslator.h>
#include <daskel/noteloader.h>
#include <touchcore/mlocale.h>

#include <KCalendarCore/Incidence>

#include <QCoreApplication>
#include <QDateTime>
#include <QStringList>
#include <QTest>

#include <utility>

/// Writes down what a loader hands over, as "[header]" and rows of a UID, a blank and the start.
class LoadedRows : public AbstractNoteLoaderBackend
{
public:
    explicit LoadedRows(AbstractNoteLoader *loader) { loader->setBackend(this); }

    /// All since the last time.
    QStringList take() { return std::exchange(m_rows, {}); }
    /// The UIDs alone.
    QStringList takeUids()
    {
        m_rows.clear();
        return std::exchange(m_uids, {});
    }
    QVector<QDate> takeDays() { return std::exchange(m_days, {}); }

    void addGroupHeader(const QString &groupName, int, const QDateTime &date) override
    {
        m_rows << QLatin1Char('[') + groupName + QLatin1Char(']');
        m_days << date.date();
    }
    void addIncidence(const QString &, QDateTime *start, QDateTime *,
                      const QSharedPointer<KCalCore::Incidence> &incidence, bool) override
    {
        if (!incidence) {
            m_rows << QStringLiteral("nothing");
            return;
        }
        m_uids << incidence->uid();
        m_rows << incidence->uid() + start->toString(QStringLiteral(" hh:mm"));
    }

private:
    QStringList m_rows;
    QStringList m_uids;
    QVector<QDate> m_days;
};

/// Runs the test with the application's texts in English.
#define LOADER_TEST_MAIN(Test)                                                                     \
    int main(int argc, char **argv)                                                                \
    {                                                                                              \
        QCoreApplication application(argc, argv);                                                  \
        MLocale::setDefault(MLocale(QStringLiteral("en_GB")));                                     \
        DaskelTranslator::installLibdaskelTranslationCatalogs(QStringLiteral("daskel-calendar"));  \
        Test test;                                                                                 \
        return QTest::qExec(&test, argc, argv);                                                    \
    }

#endif
