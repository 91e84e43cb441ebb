// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "attendeetext.h"

#include "contentline.h"

#include <KCalendarCore/Person>

#include <QRegularExpression>
#include <QUrl>

#include <algorithm>

namespace mKCal
{
using KCalCore::Attendee;

namespace
{
const QByteArray madeUpDomain = QByteArrayLiteral("@attendee.invalid");

struct StatusName {
    int status;
    const char *name;
};
constexpr StatusName statusNames[] = {
    {Attendee::None, "X-NONE"}, {8, "X-REMOVED"}, // taken out of the meeting, not yet told so
};

int statusOf(const QByteArray &name)
{
    const auto *row = std::find_if(std::begin(statusNames), std::end(statusNames),
                                   [&name](const StatusName &it) { return name == it.name; });
    return row == std::end(statusNames) ? 0 : row->status;
}

QByteArray nameOf(int status)
{
    const auto *row = std::find_if(std::begin(statusNames), std::end(statusNames),
                                   [status](const StatusName &it) { return status == it.status; });
    return row == std::end(statusNames) ? QByteArray() : QByteArray(row->name);
}

bool startsLike(const QByteArray &text, const char *word)
{
    return qstrnicmp(text.constData(), word, qstrlen(word)) == 0;
}

bool needsDisguise(const QString &address, int status)
{
    return status >= Attendee::None || !KCalCore::Person::isValidEmail(address);
}

QByteArray disguised(const QString &address, int status)
{
    return QByteArray::number(status) + '-' + address.toUtf8().toHex() + madeUpDomain;
}

bool isDisguised(const QByteArray &address)
{
    return address.endsWith(madeUpDomain) && address.indexOf('-') == 1;
}

QString realAddress(const QByteArray &address)
{
    const int length = address.size() - madeUpDomain.size() - 2;
    return QString::fromUtf8(QByteArray::fromHex(address.mid(2, length)));
}

int realStatus(const QByteArray &address)
{
    return address.left(1).toInt();
}

QString addressOfUri(const QByteArray &uri)
{
    if (startsLike(uri, "mailto:")) {
        return QString::fromUtf8(uri.mid(7));
    }
    return startsLike(uri, "tel:") ? QUrl::fromPercentEncoding(uri.mid(4)) : QString::fromUtf8(uri);
}

QByteArray uriOfAddress(const QString &address)
{
    static const QRegularExpression telephone(QStringLiteral("^\\+?[0-9][0-9 ()-]*$"));
    if (telephone.match(address).hasMatch()) {
        return "tel:" + QUrl::toPercentEncoding(address, "+()");
    }
    const bool isUri =
        address.contains(QLatin1Char(':')) && !address.startsWith(QLatin1String("tel:"));
    return isUri ? address.toUtf8() : "mailto:" + address.toUtf8();
}
} // namespace

QByteArray AttendeeText::beforeReading(const QByteArray &attendeeLine)
{
    const QString address = addressOfUri(ContentLine::value(attendeeLine).trimmed());
    const int status = statusOf(ContentLine::parameter(attendeeLine, "PARTSTAT").toUpper());
    if (!needsDisguise(address, status)) {
        return attendeeLine;
    }
    return attendeeLine.left(ContentLine::valueStart(attendeeLine))
        + "mailto:" + disguised(address, status);
}

void AttendeeText::afterReading(const KCalCore::Incidence::Ptr &incidence)
{
    Attendee::List attendees = incidence->attendees();
    bool changed = false;
    for (Attendee &attendee : attendees) {
        const QByteArray address = attendee.email().toUtf8();
        if (!isDisguised(address)) {
            continue;
        }
        attendee.setEmail(realAddress(address));
        if (realStatus(address) > 0) {
            attendee.setStatus(Attendee::PartStat(realStatus(address)));
        }
        changed = true;
    }
    if (changed) {
        incidence->setAttendees(attendees);
    }
}

void AttendeeText::beforeWriting(const KCalCore::Incidence::Ptr &clone)
{
    Attendee::List attendees = clone->attendees();
    bool changed = false;
    for (Attendee &attendee : attendees) {
        const int status = attendee.status();
        if (needsDisguise(attendee.email(), status)) {
            const bool hasName = !nameOf(status).isEmpty();
            attendee.setEmail(
                QString::fromLatin1(disguised(attendee.email(), hasName ? status : 0)));
            changed = true;
        }
    }
    if (changed) {
        clone->setAttendees(attendees);
    }
}

QByteArray AttendeeText::afterWriting(const QByteArray &attendeeLine)
{
    const int valueStart = ContentLine::valueStart(attendeeLine);
    QByteArray head = attendeeLine.left(valueStart);
    const QByteArray identifier = ContentLine::parameter(attendeeLine, "X-UID");
    if (!identifier.isEmpty()) {
        head.replace(";X-UID=" + identifier, QByteArray());
    }
    const QByteArray address = attendeeLine.mid(valueStart + int(qstrlen("mailto:")));
    if (!isDisguised(address)) {
        return head + attendeeLine.mid(valueStart);
    }
    const QByteArray status = nameOf(realStatus(address));
    if (!status.isEmpty()) {
        head.replace(";PARTSTAT=" + ContentLine::parameter(attendeeLine, "PARTSTAT"),
                     ";PARTSTAT=" + status);
    }
    return head + uriOfAddress(realAddress(address));
}
} // namespace mKCal
