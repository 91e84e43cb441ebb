// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "exchange/incidenceimport.h"
#include "memorybulkwriter.h"

#include <KCalendarCore/Event>
#include <KCalendarCore/Todo>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include <ctime>

using namespace mKCal;
using namespace KCalCore;

namespace
{
constexpr int shownOccurrences = 6;

/// "2026-04-01T10:00:00 Europe/Helsinki", with Z for UTC and nothing for floating.
QString text(const QDateTime &time, bool allDay = false)
{
    if (!time.isValid() || allDay) {
        return time.date().toString(Qt::ISODate);
    }
    QString result = time.toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss"));
    if (time.timeSpec() == Qt::UTC) {
        result += QLatin1Char('Z');
    } else if (time.timeSpec() == Qt::TimeZone) {
        result += QLatin1Char(' ') + QString::fromLatin1(time.timeZone().id());
    }
    return result;
}

void insertText(QJsonObject *object, const char *key, const QString &value)
{
    if (!value.isEmpty()) {
        object->insert(QLatin1String(key), value);
    }
}

void insertTexts(QJsonObject *object, const char *key, const QStringList &values)
{
    if (!values.isEmpty()) {
        object->insert(QLatin1String(key), QJsonArray::fromStringList(values));
    }
}

QStringList occurrences(const Incidence &incidence)
{
    QStringList result;
    QDateTime time = incidence.dtStart().addSecs(-1);
    while (incidence.recurs() && result.size() < shownOccurrences) {
        time = incidence.recurrence()->getNextDateTime(time);
        if (!time.isValid()) {
            break;
        }
        result += text(time, incidence.allDay());
    }
    return result;
}

QStringList alarms(const Incidence &incidence)
{
    QStringList result;
    for (const auto &alarm : incidence.alarms()) {
        const QString when = alarm->hasTime()
            ? text(alarm->time())
            : QString::number(alarm->hasEndOffset() ? alarm->endOffset().asSeconds()
                                                    : alarm->startOffset().asSeconds());
        QString line = QStringLiteral("type %1 at %2").arg(int(alarm->type())).arg(when);
        line += alarm->enabled() ? QString() : QStringLiteral(" off");
        for (const auto &person : alarm->mailAddresses()) {
            line += QLatin1Char(' ') + person.email();
        }
        result += line;
    }
    return result;
}

QStringList attendees(const Incidence &incidence)
{
    QStringList result;
    for (const auto &attendee : incidence.attendees()) {
        result += QStringLiteral("%1 <%2> role %3 status %4")
                      .arg(attendee.name(), attendee.email())
                      .arg(int(attendee.role()))
                      .arg(int(attendee.status()));
    }
    return result;
}

QStringList customProperties(const Incidence &incidence)
{
    QStringList result;
    const auto properties = incidence.customProperties();
    for (auto it = properties.cbegin(); it != properties.cend(); ++it) {
        result += QString::fromLatin1(it.key()) + QStringLiteral(" [")
            + incidence.nonKDECustomPropertyParameters(it.key()) + QStringLiteral("] ")
            + it.value();
    }
    return result;
}

void describeTodo(const Todo &todo, QJsonObject *object)
{
    insertText(object, "due", text(todo.dtDue(true), todo.allDay()));
    insertText(object, "completed", text(todo.completed()));
    if (todo.percentComplete() > 0) {
        object->insert(QStringLiteral("percent"), todo.percentComplete());
    }
}

/// What the incidence says, without what is empty.
QJsonObject describe(const Incidence::Ptr &incidence)
{
    QJsonObject object;
    insertText(&object, "uid", incidence->uid());
    insertText(&object, "type", QString::fromLatin1(incidence->typeStr()));
    insertText(&object, "summary", incidence->summary());
    insertText(&object, "description", incidence->description());
    insertText(&object, "start", text(incidence->dtStart(), incidence->allDay()));
    const auto event = incidence.dynamicCast<Event>();
    const auto todo = incidence.dynamicCast<Todo>();
    if (event) {
        insertText(&object, "end", text(event->dtEnd(), event->allDay()));
    } else if (todo) {
        describeTodo(*todo, &object);
    }
    if (incidence->status() != Incidence::StatusNone) {
        object.insert(QStringLiteral("status"), int(incidence->status()));
    }
    insertText(&object, "recurrenceId", text(incidence->recurrenceId(), incidence->allDay()));
    if (incidence->thisAndFuture()) {
        object.insert(QStringLiteral("thisAndFuture"), true);
    }
    insertTexts(&object, "occurrences", occurrences(*incidence));
    insertText(&object, "organizer", incidence->organizer().fullName());
    insertTexts(&object, "attendees", attendees(*incidence));
    insertTexts(&object, "alarms", alarms(*incidence));
    insertTexts(&object, "categories", incidence->categories());
    insertTexts(&object, "resources", incidence->resources());
    insertText(&object, "parent", incidence->relatedTo());
    insertText(&object, "child", incidence->relatedTo(Incidence::RelTypeChild));
    insertText(&object, "sibling", incidence->relatedTo(Incidence::RelTypeSibling));
    insertTexts(&object, "custom", customProperties(*incidence));
    return object;
}

QStringList describe(const QVector<ImportReport::Skipped> &remarks)
{
    QStringList result;
    for (const auto &remark : remarks) {
        result += QStringLiteral("%1 %2: %3").arg(remark.line).arg(remark.uid, remark.reason);
    }
    return result;
}
} // namespace

/// What becomes of each kind of file, compared with what stands beside it as JSON.
class ImportFixturesTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void fixture_data();
    void fixture();
};

void ImportFixturesTest::initTestCase()
{
    qputenv("TZ", "Europe/Helsinki");
    tzset();
}

void ImportFixturesTest::fixture_data()
{
    QTest::addColumn<QString>("path");
    const QDir folder(QStringLiteral(ICS_FIXTURES));
    const QStringList files = folder.entryList({QStringLiteral("*.ics")}, QDir::Files, QDir::Name);
    QVERIFY(!files.isEmpty());
    for (const QString &file : files) {
        QTest::newRow(qPrintable(file)) << folder.filePath(file);
    }
}

void ImportFixturesTest::fixture()
{
    QFETCH(QString, path);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    MemoryBulkWriter writer;
    const ImportReport report = importBytes(file.readAll(), &writer);

    QJsonObject actual;
    actual.insert(QStringLiteral("counts"),
                  QStringLiteral("new %1, changed %2, same %3")
                      .arg(report.created)
                      .arg(report.changed)
                      .arg(report.same));
    insertTexts(&actual, "skipped", describe(report.skipped));
    insertTexts(&actual, "altered", describe(report.altered));
    QJsonArray incidences;
    for (const auto &incidence : writer.incidences()) {
        incidences.append(describe(incidence));
    }
    actual.insert(QStringLiteral("incidences"), incidences);

    QFile expectation(path.chopped(3) + QStringLiteral("json"));
    QVERIFY(expectation.open(QIODevice::ReadOnly));
    const QJsonObject expected = QJsonDocument::fromJson(expectation.readAll()).object();
    QVERIFY2(actual == expected, QJsonDocument(actual).toJson().constData());
}

QTEST_GUILESS_MAIN(ImportFixturesTest)
#include "tst_importfixtures.moc"
