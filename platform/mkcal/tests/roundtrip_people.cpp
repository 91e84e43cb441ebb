// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "roundtripfeatures.h"

#include <QUrl>

using namespace KCalCore;

namespace
{
const char *const anna = "Anna";
const char *const mail = "anna@example.org";

Feature attendee(const char *name, const Attendee &attendee)
{
    return event(name, [attendee](Event &event) { event.addAttendee(attendee); });
}

Feature attachment(const char *name, const Attachment &attachment)
{
    return event(name, [attachment](Event &event) { event.addAttachment(attachment); });
}

Features attendees()
{
    Attendee delegated(anna, mail, false, Attendee::Delegated);
    delegated.setDelegate("<bo@example.org>");
    delegated.setDelegator("<cy@example.org>");
    Attendee room(anna, mail);
    room.setCuType(Attendee::Room);
    Attendee ownKind(anna, mail);
    ownKind.setCuType(QStringLiteral("X-DRONE"));
    Attendee withProperty(anna, mail);
    withProperty.customProperties().setNonKDECustomProperty("X-NUM-GUESTS", "2");
    const auto removed = Attendee::PartStat(8);
    return {
        attendee("attendee who accepted and shall answer",
                 Attendee(anna, mail, true, Attendee::Accepted, Attendee::Chair)),
        attendee("attendee who was removed", Attendee(anna, mail, false, removed)),
        attendee("attendee with a phone number alone",
                 Attendee(anna, "tel:+358401234567", false, Attendee::NeedsAction,
                          Attendee::OptParticipant)),
        attendee("attendee without an address", Attendee(anna, QString())),
        attendee("attendee with an identifier",
                 Attendee(anna, mail, false, Attendee::None, Attendee::ReqParticipant, "uid-1")),
        attendee("attendee who sends somebody else", delegated),
        attendee("attendee that is a room", room),
        attendee("attendee of a kind of somebody's own", ownKind),
        attendee("attendee with a property", withProperty),
    };
}

Features attachments()
{
    const QByteArray bytes("\0\1\2\xff binary", 11);
    Attachment described(QStringLiteral("file:///a.pdf"), "application/pdf");
    described.setLabel("Plan");
    described.setShowInline(true);
    described.setLocal(true);
    return {
        attachment("attachment elsewhere", described),
        attachment("attachment inside", Attachment(bytes.toBase64(), "a/b")),
        attachment("attachment that is no clean base64", Attachment(QByteArray("AA EC\nAw=="))),
    };
}
} // namespace

Features peopleFeatures()
{
    Conference call(QUrl("tel:+1-412-555-0123,,,654321"), "Dial in", {"AUDIO", "VIDEO"}, "fi");
    call.customProperties().setNonKDECustomProperty("X-PIN", "12");
    return attendees() + attachments()
        + Features{
            event("organizer",
                  [](Event &event) {
                      event.setOrganizer(Person("The \"Boss\", Dr.", "boss@example.org"));
                  }),
            event("organizer without an address",
                  [](Event &event) { event.setOrganizer(Person("Bo", QString())); }),
            event("conferences",
                  [call](Event &event) {
                      event.addConference(Conference(QUrl("xmpp:a@b"), QString()));
                      event.addConference(call);
                  }),
        };
}
