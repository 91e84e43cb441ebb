// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sqlite/childreader.h"

#include "sqlite/componentcolumns.h"

#include <QUrl>

using namespace KCalCore;

namespace mKCal
{
namespace
{
/// Beyond Attendee::None KCalendarCore keeps one more number, which tells that the attendee was
/// removed from the meeting.
constexpr int lastParticipation = 8;

Duration duration(const Statement &statement, int valueColumn, int dailyColumn)
{
    return Duration(statement.smallInteger(valueColumn),
                    statement.integer(dailyColumn) ? Duration::Days : Duration::Seconds);
}
} // namespace

/// What is put into the incidence as whole lists, once its properties are known.
struct ChildReader::Parts {
    Alarm::List alarms;
    Attendee::List attendees;
    Conference::List conferences;
    QStringList categories;
    QStringList resources;
};

ChildReader::ChildReader(Connection &connection, DateTimeReader &dateTimes)
    : m_dateTimes(dateTimes), m_recurrence(connection, dateTimes),
      m_alarms(connection,
               "SELECT type, enabled, relation, timeWall, timeTz, offset, offsetDaily, repeat,"
               " snooze, snoozeDaily, text, file, detail, hasRadius, radius FROM Alarm"
               " WHERE comp = ? ORDER BY pos"),
      m_attendees(connection,
                  "SELECT name, email, role, status, cuType, rsvp, delegate, delegator, uid"
                  " FROM Attendee WHERE comp = ? ORDER BY pos"),
      m_attachments(connection,
                    "SELECT uri, data, mimeType, label, showInline, isLocal FROM Attachment"
                    " WHERE comp = ? ORDER BY pos"),
      m_conferences(connection,
                    "SELECT uri, label, features, language FROM Conference"
                    " WHERE comp = ? ORDER BY pos"),
      m_props(connection,
              "SELECT owner, ownerPos, kind, name, value, params FROM Props"
              " WHERE comp = ? ORDER BY pos")
{
}

bool ChildReader::read(qint64 comp, int flags, Incidence *incidence)
{
    Parts parts;
    // Each table is asked even when another could not be read: something may be saved.
    bool answered = true;
    if (flags & ComponentFlag::Rules)
        answered &= m_recurrence.readRules(comp, incidence->recurrence());
    if (flags & ComponentFlag::Dates)
        answered &= m_recurrence.readDates(comp, incidence->recurrence());
    if (flags & ComponentFlag::Alarms)
        answered &= readAlarms(comp, incidence, &parts);
    if (flags & ComponentFlag::Attendees)
        answered &= readAttendees(comp, &parts);
    if (flags & ComponentFlag::Attachments)
        answered &= readAttachments(comp, incidence);
    if (flags & ComponentFlag::Conferences)
        answered &= readConferences(comp, &parts);
    if (flags & ComponentFlag::Props)
        answered &= readProps(comp, incidence, &parts);
    for (const Alarm::Ptr &alarm : qAsConst(parts.alarms))
        incidence->addAlarm(alarm);
    if (!parts.attendees.isEmpty())
        incidence->setAttendees(parts.attendees, false);
    if (!parts.conferences.isEmpty())
        incidence->setConferences(parts.conferences);
    if (!parts.categories.isEmpty())
        incidence->setCategories(parts.categories);
    if (!parts.resources.isEmpty())
        incidence->setResources(parts.resources);
    return answered;
}

int ChildReader::enumeration(const Statement &statement, int column, int most)
{
    const qint64 value = statement.integer(column);
    if (value >= 0 && value <= most)
        return int(value);
    ++m_faults;
    return 0;
}

bool ChildReader::readAlarms(qint64 comp, Incidence *incidence, Parts *parts)
{
    m_alarms.bind(1, comp);
    while (m_alarms.next()) {
        const Alarm::Ptr alarm(new Alarm(incidence));
        readAlarmAction(alarm.data());
        alarm->setEnabled(m_alarms.integer(1) != 0);
        switch (m_alarms.integer(2)) {
        case AlarmRelation::OwnTime:
            alarm->setTime(m_dateTimes.read(m_alarms, 3));
            break;
        case AlarmRelation::ToEnd:
            alarm->setEndOffset(duration(m_alarms, 5, 6));
            break;
        default:
            alarm->setStartOffset(duration(m_alarms, 5, 6));
        }
        alarm->setSnoozeTime(duration(m_alarms, 8, 9));
        alarm->setRepeatCount(qMax(0, m_alarms.smallInteger(7)));
        alarm->setHasLocationRadius(m_alarms.integer(13) != 0);
        alarm->setLocationRadius(m_alarms.smallInteger(14));
        parts->alarms.append(alarm);
    }
    return !m_alarms.failed();
}

void ChildReader::readAlarmAction(Alarm *alarm)
{
    switch (enumeration(m_alarms, 0, Alarm::Audio)) {
    case Alarm::Display:
        alarm->setDisplayAlarm(m_alarms.text(10));
        break;
    case Alarm::Procedure:
        alarm->setProcedureAlarm(m_alarms.text(11), m_alarms.text(12));
        break;
    case Alarm::Email:
        alarm->setEmailAlarm(m_alarms.text(12), m_alarms.text(10), {});
        break;
    case Alarm::Audio:
        alarm->setAudioAlarm(m_alarms.text(11));
        break;
    default:
        break;
    }
}

bool ChildReader::readAttendees(qint64 comp, Parts *parts)
{
    m_attendees.bind(1, comp);
    while (m_attendees.next()) {
        Attendee attendee(m_attendees.text(0), m_attendees.text(1), m_attendees.integer(5) != 0,
                          Attendee::PartStat(enumeration(m_attendees, 3, lastParticipation)),
                          Attendee::Role(enumeration(m_attendees, 2, Attendee::Chair)),
                          m_attendees.text(8));
        attendee.setCuType(m_attendees.text(4));
        attendee.setDelegate(m_attendees.text(6));
        attendee.setDelegator(m_attendees.text(7));
        parts->attendees.append(attendee);
    }
    return !m_attendees.failed();
}

bool ChildReader::readAttachments(qint64 comp, Incidence *incidence)
{
    m_attachments.bind(1, comp);
    while (m_attachments.next()) {
        Attachment attachment;
        if (!m_attachments.isNull(0))
            attachment.setUri(m_attachments.text(0));
        else if (m_attachments.isBlob(1))
            attachment.setDecodedData(m_attachments.bytes(1));
        else
            attachment.setData(m_attachments.bytes(1));
        attachment.setMimeType(m_attachments.text(2));
        attachment.setLabel(m_attachments.text(3));
        attachment.setShowInline(m_attachments.integer(4) != 0);
        attachment.setLocal(m_attachments.integer(5) != 0);
        incidence->addAttachment(attachment);
    }
    return !m_attachments.failed();
}

bool ChildReader::readConferences(qint64 comp, Parts *parts)
{
    m_conferences.bind(1, comp);
    while (m_conferences.next()) {
        const QStringList features =
            m_conferences.text(2).split(QLatin1Char(','), Qt::SkipEmptyParts);
        parts->conferences.append(Conference(QUrl::fromEncoded(m_conferences.bytes(0)),
                                             m_conferences.text(1), features,
                                             m_conferences.text(3)));
    }
    return !m_conferences.failed();
}

bool ChildReader::readProps(qint64 comp, Incidence *incidence, Parts *parts)
{
    m_props.bind(1, comp);
    while (m_props.next()) {
        const int pos = m_props.smallInteger(1);
        switch (m_props.integer(0)) {
        case PropOwner::Component:
            readComponentProp(incidence, parts);
            break;
        case PropOwner::Alarm:
            readAlarmProp(parts);
            break;
        case PropOwner::Attendee:
            if (pos >= 0 && pos < parts->attendees.size())
                readCustom(&parts->attendees[pos].customProperties());
            break;
        case PropOwner::Conference:
            if (pos >= 0 && pos < parts->conferences.size())
                readCustom(&parts->conferences[pos].customProperties());
            break;
        default:
            ++m_faults;
        }
    }
    return !m_props.failed();
}

void ChildReader::readComponentProp(Incidence *incidence, Parts *parts)
{
    const QString value = m_props.text(4);
    switch (m_props.integer(2)) {
    case PropKind::Property:
        readCustom(incidence);
        break;
    case PropKind::Category:
        parts->categories.append(value);
        break;
    case PropKind::Resource:
        parts->resources.append(value);
        break;
    case PropKind::Comment:
        incidence->addComment(value);
        break;
    case PropKind::Contact:
        incidence->addContact(value);
        break;
    default:
        ++m_faults;
    }
}

void ChildReader::readAlarmProp(Parts *parts)
{
    const int pos = m_props.smallInteger(1);
    if (pos < 0 || pos >= parts->alarms.size()) {
        ++m_faults;
        return;
    }
    Alarm *alarm = parts->alarms.at(pos).data();
    switch (m_props.integer(2)) {
    case PropKind::Property:
        readCustom(alarm);
        break;
    case PropKind::MailAddress:
        alarm->addMailAddress(Person(m_props.text(3), m_props.text(4)));
        break;
    case PropKind::MailAttachment:
        alarm->addMailAttachment(m_props.text(4));
        break;
    default:
        ++m_faults;
    }
}

void ChildReader::readCustom(CustomProperties *properties)
{
    static const QByteArray kdePrefix = QByteArrayLiteral("X-KDE-");
    const QByteArray name = m_props.bytes(3);
    // A null value would remove the property.
    const QString value = m_props.isNull(4) ? QStringLiteral("") : m_props.text(4);
    const int split = name.indexOf('-', kdePrefix.size());
    if (name.startsWith(kdePrefix) && split > 0)
        properties->setCustomProperty(name.mid(kdePrefix.size(), split - kdePrefix.size()),
                                      name.mid(split + 1), value);
    else
        properties->setNonKDECustomProperty(name, value, m_props.text(5));
}
} // namespace mKCal
