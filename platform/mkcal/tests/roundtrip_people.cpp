// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "roundtripfeatures.h"

#include <QUrl>

using namespace KCalCore;

namespace
{
Feature attendee(const char *name, const Attendee &attendee,
                 const std::function<bool(const Attendee &)> &has)
{
    return feature<Event>(
        name, plainEvent(), [attendee](Event &event) { event.addAttendee(attendee); },
        [has](const Event &event) {
            return event.attendeeCount() == 1 && has(event.attendees().first());
        });
}

Feature attachment(const char *name, const Attachment &attachment,
                   const std::function<bool(const Attachment &)> &has)
{
    return feature<Event>(
        name, plainEvent(), [attachment](Event &event) { event.addAttachment(attachment); },
        [has](const Event &event) {
            return event.attachments().size() == 1 && has(event.attachments().first());
        });
}

Features attendees()
{
    const QString anna = QStringLiteral("Anna");
    const QString mail = QStringLiteral("anna@example.org");
    Attendee delegated(anna, mail, false, Attendee::Delegated);
    delegated.setDelegate(QStringLiteral("<bo@example.org>"));
    delegated.setDelegator(QStringLiteral("<cy@example.org>"));
    Attendee room(anna, mail);
    room.setCuType(Attendee::Room);
    Attendee ownKind(anna, mail);
    ownKind.setCuType(QStringLiteral("X-DRONE"));
    Attendee withProperty(anna, mail);
    withProperty.customProperties().setNonKDECustomProperty("X-NUM-GUESTS", QStringLiteral("2"));
    const auto removed = Attendee::PartStat(8);
    return {
        attendee("attendee who accepted and shall answer",
                 Attendee(anna, mail, true, Attendee::Accepted, Attendee::Chair),
                 [mail](const Attendee &attendee) {
                     return attendee.RSVP() && attendee.status() == Attendee::Accepted
                         && attendee.role() == Attendee::Chair && attendee.email() == mail;
                 }),
        attendee("attendee who was removed", Attendee(anna, mail, false, removed),
                 [](const Attendee &attendee) { return int(attendee.status()) == 8; }),
        attendee("attendee with a phone number alone",
                 Attendee(anna, QStringLiteral("tel:+358401234567"), false, Attendee::NeedsAction,
                          Attendee::OptParticipant),
                 [](const Attendee &attendee) {
                     return attendee.email() == QLatin1String("tel:+358401234567");
                 }),
        attendee("attendee without an address", Attendee(anna, QString()),
                 [](const Attendee &attendee) {
                     return attendee.name() == QLatin1String("Anna") && attendee.email().isEmpty();
                 }),
        attendee("attendee with an identifier",
                 Attendee(anna, mail, false, Attendee::None, Attendee::ReqParticipant,
                          QStringLiteral("uid-1")),
                 [](const Attendee &attendee) { return attendee.uid() == QLatin1String("uid-1"); }),
        attendee("attendee who sends somebody else", delegated,
                 [](const Attendee &attendee) {
                     return attendee.delegate() == QLatin1String("<bo@example.org>")
                         && attendee.delegator() == QLatin1String("<cy@example.org>");
                 }),
        attendee("attendee that is a room", room,
                 [](const Attendee &attendee) { return attendee.cuType() == Attendee::Room; }),
        attendee("attendee of a kind of somebody's own", ownKind,
                 [](const Attendee &attendee) {
                     return attendee.cuTypeStr() == QLatin1String("X-DRONE");
                 }),
        attendee("attendee with a property", withProperty,
                 [](const Attendee &attendee) {
                     return attendee.customProperties().nonKDECustomProperty("X-NUM-GUESTS")
                         == QLatin1String("2");
                 }),
    };
}

Features attachments()
{
    const QByteArray bytes("\0\1\2\xff binary", 11);
    Attachment described(QStringLiteral("file:///a.pdf"), QStringLiteral("application/pdf"));
    described.setLabel(QStringLiteral("Plan"));
    described.setShowInline(true);
    described.setLocal(true);
    return {
        attachment("attachment elsewhere", described,
                   [](const Attachment &attachment) {
                       return attachment.isUri() && attachment.label() == QLatin1String("Plan")
                           && attachment.showInline() && attachment.isLocal()
                           && attachment.mimeType() == QLatin1String("application/pdf");
                   }),
        attachment("attachment inside", Attachment(bytes.toBase64(), QStringLiteral("a/b")),
                   [bytes](const Attachment &attachment) {
                       return attachment.isBinary() && attachment.decodedData() == bytes;
                   }),
        attachment("attachment that is no clean base64", Attachment(QByteArray("AA EC\nAw==")),
                   [](const Attachment &attachment) { return attachment.data() == "AA EC\nAw=="; }),
    };
}
} // namespace

Features peopleFeatures()
{
    const QStringList features{QStringLiteral("AUDIO"), QStringLiteral("VIDEO")};
    Conference call(QUrl(QStringLiteral("tel:+1-412-555-0123,,,654321")), QStringLiteral("Dial in"),
                    features, QStringLiteral("fi"));
    call.customProperties().setNonKDECustomProperty("X-PIN", QStringLiteral("12"));
    const Person boss(QStringLiteral("The \"Boss\", Dr."), QStringLiteral("boss@example.org"));
    return attendees() + attachments()
        + Features{
            feature<Event>(
                "organizer", plainEvent(), [boss](Event &event) { event.setOrganizer(boss); },
                [boss](const Event &event) { return event.organizer() == boss; }),
            feature<Event>(
                "organizer without an address", plainEvent(),
                [](Event &event) { event.setOrganizer(Person(QStringLiteral("Bo"), QString())); },
                [](const Event &event) { return event.organizer().name() == QLatin1String("Bo"); }),
            feature<Event>(
                "conferences", plainEvent(),
                [call](Event &event) {
                    event.addConference(Conference(QUrl(QStringLiteral("xmpp:a@b")), QString()));
                    event.addConference(call);
                },
                [features](const Event &event) {
                    const auto conferences = event.conferences();
                    return conferences.size() == 2 && conferences.last().features() == features
                        && conferences.last().language() == QLatin1String("fi")
                        && conferences.last().label() == QLatin1String("Dial in")
                        && conferences.last().customProperties().nonKDECustomProperty("X-PIN")
                        == QLatin1String("12");
                }),
        };
}
