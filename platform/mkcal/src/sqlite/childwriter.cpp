// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sqlite/childwriter.h"

#include "sqlite/componentcolumns.h"
#include "sqlite/connection.h"
#include "sqlite/datetimecolumns.h"
#include "sqlite/incidencecontent.h"

#include <KCalendarCore/Recurrence>

using namespace KCalCore;

namespace mKCal
{
namespace
{
struct ChildTable {
    int flag;
    const char *removal;
};

constexpr ChildTable childTables[] = {
    {ComponentFlag::Alarms, "DELETE FROM Alarm WHERE comp = ?"},
    {ComponentFlag::Attendees, "DELETE FROM Attendee WHERE comp = ?"},
    {ComponentFlag::Rules, "DELETE FROM Rule WHERE comp = ?"},
    {ComponentFlag::Dates, "DELETE FROM Dates WHERE comp = ?"},
    {ComponentFlag::Props, "DELETE FROM Props WHERE comp = ?"},
    {ComponentFlag::Attachments, "DELETE FROM Attachment WHERE comp = ?"},
    {ComponentFlag::Conferences, "DELETE FROM Conference WHERE comp = ?"},
};

bool hasProps(const Incidence &incidence)
{
    if (!incidence.categories().isEmpty() || !incidence.resources().isEmpty()
        || !incidence.comments().isEmpty() || !incidence.contacts().isEmpty()
        || !incidence.customProperties().isEmpty())
        return true;
    const auto alarms = incidence.alarms();
    for (const Alarm::Ptr &alarm : alarms) {
        if (!alarm->customProperties().isEmpty() || alarm->type() == Alarm::Email)
            return true;
    }
    const auto attendees = incidence.attendees();
    for (const Attendee &attendee : attendees) {
        if (!attendee.customProperties().customProperties().isEmpty())
            return true;
    }
    const auto conferences = incidence.conferences();
    for (const Conference &conference : conferences) {
        if (!conference.customProperties().customProperties().isEmpty())
            return true;
    }
    return false;
}
} // namespace

ChildWriter::ChildWriter(Connection &connection)
    : m_connection(connection), m_recurrence(connection),
      m_alarm(connection,
              "INSERT INTO Alarm(comp, pos, type, enabled, relation, timeWall, timeTz, offset,"
              " offsetDaily, repeat, snooze, snoozeDaily, text, file, detail, hasRadius, radius)"
              " VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
      m_attendee(connection,
                 "INSERT INTO Attendee(comp, pos, name, email, role, status, cuType, rsvp,"
                 " delegate, delegator, uid) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
      m_attachment(connection,
                   "INSERT INTO Attachment(comp, pos, uri, data, mimeType, label, showInline,"
                   " isLocal) VALUES (?, ?, ?, ?, ?, ?, ?, ?)"),
      m_conference(connection,
                   "INSERT INTO Conference(comp, pos, uri, label, features, language)"
                   " VALUES (?, ?, ?, ?, ?, ?)"),
      m_prop(connection,
             "INSERT INTO Props(comp, pos, owner, ownerPos, kind, name, value, params)"
             " VALUES (?, ?, ?, ?, ?, ?, ?, ?)")
{
}

int ChildWriter::flagsOf(const Incidence &incidence)
{
    int flags = 0;
    if (!incidence.alarms().isEmpty())
        flags |= ComponentFlag::Alarms;
    if (incidence.attendeeCount() > 0)
        flags |= ComponentFlag::Attendees;
    if (!incidence.attachments().isEmpty())
        flags |= ComponentFlag::Attachments;
    if (!incidence.conferences().isEmpty())
        flags |= ComponentFlag::Conferences;
    if (hasProps(incidence))
        flags |= ComponentFlag::Props;
    const Recurrence *recurrence = incidence.recurrence();
    if (RecurrenceWriter::hasRules(*recurrence))
        flags |= ComponentFlag::Rules;
    if (RecurrenceWriter::hasDates(*recurrence))
        flags |= ComponentFlag::Dates;
    return flags;
}

bool ChildWriter::write(qint64 comp, const Incidence &incidence, int flags)
{
    m_propPos = 0;
    return (!(flags & ComponentFlag::Alarms) || writeAlarms(comp, incidence.alarms()))
        && (!(flags & ComponentFlag::Attendees) || writeAttendees(comp, incidence.attendees()))
        && (!(flags & ComponentFlag::Rules)
            || m_recurrence.writeRules(comp, *incidence.recurrence()))
        && (!(flags & ComponentFlag::Dates)
            || m_recurrence.writeDates(comp, *incidence.recurrence()))
        && (!(flags & ComponentFlag::Props) || writeProps(comp, incidence))
        && (!(flags & ComponentFlag::Attachments)
            || writeAttachments(comp, incidence.attachments()))
        && (!(flags & ComponentFlag::Conferences)
            || writeConferences(comp, incidence.conferences()));
}

bool ChildWriter::remove(qint64 comp, int flags)
{
    for (const ChildTable &table : childTables) {
        if (!(flags & table.flag))
            continue;
        Statement &removal = m_connection.statement(table.removal);
        removal.bind(1, comp);
        if (!removal.run())
            return false;
    }
    return true;
}

bool ChildWriter::writeAlarms(qint64 comp, const Alarm::List &alarms)
{
    for (int pos = 0; pos < alarms.size(); ++pos) {
        const Alarm &alarm = *alarms.at(pos);
        const Duration offset = alarm.hasEndOffset() ? alarm.endOffset() : alarm.startOffset();
        const int relation = alarm.hasTime() ? AlarmRelation::OwnTime
            : alarm.hasEndOffset()           ? AlarmRelation::ToEnd
                                             : AlarmRelation::ToStart;
        m_alarm.bind(1, comp);
        m_alarm.bind(2, pos);
        m_alarm.bind(3, int(alarm.type()));
        m_alarm.bind(4, alarm.enabled());
        m_alarm.bind(5, relation);
        DateTimeColumns::bind(m_alarm, 6, alarm.hasTime() ? alarm.time() : QDateTime());
        m_alarm.bind(8, offset.value());
        m_alarm.bind(9, offset.isDaily());
        m_alarm.bind(10, alarm.repeatCount());
        m_alarm.bind(11, alarm.snoozeTime().value());
        m_alarm.bind(12, alarm.snoozeTime().isDaily());
        // Each getter answers only for the type of alarm that it belongs to.
        m_alarm.bind(13, alarm.type() == Alarm::Email ? alarm.mailText() : alarm.text());
        m_alarm.bind(14, alarm.type() == Alarm::Audio ? alarm.audioFile() : alarm.programFile());
        m_alarm.bind(15,
                     alarm.type() == Alarm::Email ? alarm.mailSubject() : alarm.programArguments());
        m_alarm.bind(16, alarm.hasLocationRadius());
        m_alarm.bind(17, alarm.locationRadius());
        if (!m_alarm.run())
            return false;
    }
    return true;
}

bool ChildWriter::writeAttendees(qint64 comp, const Attendee::List &attendees)
{
    for (int pos = 0; pos < attendees.size(); ++pos) {
        const Attendee &attendee = attendees.at(pos);
        m_attendee.bind(1, comp);
        m_attendee.bind(2, pos);
        m_attendee.bind(3, attendee.name());
        m_attendee.bind(4, attendee.email());
        m_attendee.bind(5, int(attendee.role()));
        m_attendee.bind(6, int(attendee.status()));
        m_attendee.bind(7, attendee.cuTypeStr());
        m_attendee.bind(8, attendee.RSVP());
        m_attendee.bind(9, attendee.delegate());
        m_attendee.bind(10, attendee.delegator());
        m_attendee.bind(11, attendeeUid(attendee));
        if (!m_attendee.run())
            return false;
    }
    return true;
}

bool ChildWriter::writeAttachments(qint64 comp, const Attachment::List &attachments)
{
    for (int pos = 0; pos < attachments.size(); ++pos) {
        const Attachment &attachment = attachments.at(pos);
        m_attachment.bind(1, comp);
        m_attachment.bind(2, pos);
        m_attachment.bind(3, attachment.isUri() ? attachment.uri() : QString());
        const QByteArray base64 = attachment.isUri() ? QByteArray() : attachment.data();
        const QByteArray decoded = QByteArray::fromBase64(base64);
        // What is not clean base64 would come back changed: it is kept as the text that it is.
        if (decoded.toBase64() == base64)
            m_attachment.bind(4, decoded);
        else
            m_attachment.bindAscii(4, base64);
        m_attachment.bind(5, attachment.mimeType());
        m_attachment.bind(6, attachment.label());
        m_attachment.bind(7, attachment.showInline());
        m_attachment.bind(8, attachment.isLocal());
        if (!m_attachment.run())
            return false;
    }
    return true;
}

bool ChildWriter::writeConferences(qint64 comp, const Conference::List &conferences)
{
    for (int pos = 0; pos < conferences.size(); ++pos) {
        const Conference &conference = conferences.at(pos);
        m_conference.bind(1, comp);
        m_conference.bind(2, pos);
        m_conference.bindAscii(3, conference.uri().toEncoded());
        m_conference.bind(4, conference.label());
        m_conference.bind(5, conference.features().join(QLatin1Char(',')));
        m_conference.bind(6, conference.language());
        if (!m_conference.run())
            return false;
    }
    return true;
}

bool ChildWriter::writeProps(qint64 comp, const Incidence &incidence)
{
    bool written = writeCustom(comp, PropOwner::Component, 0, incidence)
        && writeList(comp, PropKind::Category, incidence.categories())
        && writeList(comp, PropKind::Resource, incidence.resources())
        && writeList(comp, PropKind::Comment, incidence.comments())
        && writeList(comp, PropKind::Contact, incidence.contacts());
    const auto alarms = incidence.alarms();
    for (int pos = 0; written && pos < alarms.size(); ++pos)
        written = writeAlarmProps(comp, *alarms.at(pos), pos);
    const auto attendees = incidence.attendees();
    for (int pos = 0; written && pos < attendees.size(); ++pos)
        written = writeCustom(comp, PropOwner::Attendee, pos, attendees.at(pos).customProperties());
    const auto conferences = incidence.conferences();
    for (int pos = 0; written && pos < conferences.size(); ++pos)
        written =
            writeCustom(comp, PropOwner::Conference, pos, conferences.at(pos).customProperties());
    return written;
}

bool ChildWriter::writeAlarmProps(qint64 comp, const Alarm &alarm, int ownerPos)
{
    bool written = writeCustom(comp, PropOwner::Alarm, ownerPos, alarm);
    const auto addresses = alarm.mailAddresses();
    for (const Person &person : addresses)
        written = written
            && writeProp(comp, PropOwner::Alarm, ownerPos, PropKind::MailAddress, person.name(),
                         person.email());
    const auto attachments = alarm.mailAttachments();
    for (const QString &attachment : attachments)
        written = written
            && writeProp(comp, PropOwner::Alarm, ownerPos, PropKind::MailAttachment, QString(),
                         attachment);
    return written;
}

bool ChildWriter::writeCustom(qint64 comp, int owner, int ownerPos,
                              const CustomProperties &properties)
{
    const auto values = properties.customProperties();
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        if (isVolatileProperty(it.key()))
            continue;
        const QString params = properties.nonKDECustomPropertyParameters(it.key());
        if (!writeProp(comp, owner, ownerPos, PropKind::Property, QString::fromLatin1(it.key()),
                       it.value(), params))
            return false;
    }
    return true;
}

bool ChildWriter::writeList(qint64 comp, int kind, const QStringList &values)
{
    for (const QString &value : values) {
        if (!writeProp(comp, PropOwner::Component, 0, kind, QString(), value))
            return false;
    }
    return true;
}

bool ChildWriter::writeProp(qint64 comp, int owner, int ownerPos, int kind, const QString &name,
                            const QString &value, const QString &params)
{
    m_prop.bind(1, comp);
    m_prop.bind(2, m_propPos++);
    m_prop.bind(3, owner);
    m_prop.bind(4, ownerPos);
    m_prop.bind(5, kind);
    m_prop.bind(6, name);
    m_prop.bind(7, value);
    m_prop.bind(8, params);
    return m_prop.run();
}
} // namespace mKCal
