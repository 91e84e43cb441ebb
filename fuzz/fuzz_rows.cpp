// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// Puts hostile values into the cells of a small valid database and reads it. Every change is rolled
// back, so that one database serves all runs.

#include "roundtripfeatures.h"
#include "sqlite/connection.h"
#include "sqlite/schema.h"
#include "storage/tables.h"

#include <mkcal/extendedcalendar.h>

#include <QTemporaryDir>

#include <cstdlib>
#include <fuzzer/FuzzedDataProvider.h>
#include <limits>

using namespace mKCal;

namespace
{
const QString notebookUid = QStringLiteral("fuzzed");
constexpr int featuresOfOne = 8;
constexpr int mostChanges = 4;

/// Few incidences that have everything between them, so that a run is short.
KCalCore::Incidence::List richIncidences()
{
    const Features features = timeFeatures() + textFeatures() + recurrenceFeatures()
        + alarmFeatures() + peopleFeatures() + todoAndJournalFeatures();
    QHash<int, int> given; // how many features of each type
    KCalCore::Incidence::List list;
    QHash<int, KCalCore::Incidence::Ptr> current;
    for (const Feature &feature : features) {
        const int type = feature.plain->type();
        if (given[type]++ % featuresOfOne == 0) {
            current[type] = KCalCore::Incidence::Ptr(feature.plain->clone());
            current[type]->setUid(QStringLiteral("rich-%1").arg(list.size()));
            list.append(current[type]);
        }
        feature.give(*current[type]);
    }
    return list;
}

bool writeRows(Connection &connection)
{
    if (!Schema::prepare(connection)) {
        return false;
    }
    Transaction transaction(connection);
    Tables tables(connection);
    Notebook notebook;
    notebook.setUid(notebookUid);
    notebook.setCustomProperty(QStringLiteral("key"), QStringLiteral("value"));
    Reminder reminder;
    reminder.notebook = notebookUid;
    reminder.uid = QStringLiteral("rich-0");
    reminder.time = QDateTime(QDate(2011, 5, 2), QTime(9, 45), Qt::UTC);
    bool ok = tables.notebooks.insert(notebook) && tables.reminders.add(reminder);
    const auto incidences = richIncidences();
    for (const auto &incidence : incidences) {
        ok = ok && tables.writer.insert(*incidence, notebookUid, 1);
    }
    return ok && transaction.commit();
}

/// The database and its cells.
class Rows
{
public:
    Rows()
    {
        const QString fileName = m_folder.filePath(QStringLiteral("rows.db"));
        if (!m_connection.open(fileName) || !writeRows(m_connection)) {
            std::abort();
        }
        Statement cells(m_connection,
                        "SELECT m.name, c.name FROM sqlite_schema m, pragma_table_info(m.name) c"
                        " WHERE m.type = 'table'");
        while (cells.next()) {
            m_updates.append("UPDATE OR IGNORE " + cells.bytes(0) + " SET " + cells.bytes(1)
                             + " = ?1");
        }
    }

    /// Gives one column of a table the same value in every row, as far as the table takes it.
    void change(FuzzedDataProvider &input)
    {
        Statement update(m_connection,
                         m_updates.at(input.ConsumeIntegralInRange<int>(0, m_updates.size() - 1)));
        const SqlValue hostile = value(input);
        update.bind(1, hostile);
        update.run();
    }

    Connection &connection() { return m_connection; }

private:
    static SqlValue value(FuzzedDataProvider &input)
    {
        switch (input.ConsumeIntegralInRange<int>(0, 6)) {
        case 0:
            return {};
        case 1:
            return qint64(input.ConsumeIntegral<qint8>());
        case 2:
            return input.ConsumeIntegral<qint64>();
        case 3:
            return input.PickValueInArray<qint64>(
                {std::numeric_limits<qint64>::min(), std::numeric_limits<qint64>::max(),
                 std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), 127});
        case 4:
            return input.ConsumeFloatingPoint<double>();
        case 5:
            return QString::fromStdString(input.ConsumeRandomLengthString(40));
        default:
            return QByteArray::fromStdString(input.ConsumeRandomLengthString(40));
        }
    }

    QTemporaryDir m_folder;
    Connection m_connection;
    QVector<QByteArray> m_updates;
};

void readEverything(Connection &connection)
{
    Tables tables(connection);
    Notebook::List notebooks;
    tables.notebooks.read(&notebooks);
    ReminderList reminders;
    tables.reminders.read(QDateTime(QDate(1900, 1, 1), QTime(0, 0), Qt::UTC),
                          QDateTime(QDate(2100, 1, 1), QTime(0, 0), Qt::UTC), &reminders);
    ChangeMark mark;
    tables.meta.readMark(&mark);

    ExtendedCalendar calendar(QTimeZone::utc());
    calendar.addNotebook(notebookUid, true);
    tables.reader.read("state >= 0", {}, [&](const ComponentRow &row) {
        ComponentKeys::of(*row.incidence);
        calendar.addIncidence(row.incidence, notebookUid);
        return true;
    });
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    static Rows rows;
    FuzzedDataProvider input(data, size);
    const Transaction rolledBack(rows.connection());
    for (int changes = 0; changes < mostChanges && input.remaining_bytes() > 0; ++changes) {
        rows.change(input);
    }
    readEverything(rows.connection());
    return 0;
}
