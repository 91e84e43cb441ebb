// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "roundtripfeatures.h"

#include <QUrl>

using namespace KCalCore;

namespace
{
Features plainTexts()
{
    return {
        feature<Event>(
            "summary with every kind of letter", plainEvent(),
            [](Event &event) {
                event.setSummary(QStringLiteral("Kahvit; \"à 5\", 会議 🎂\n\\n"), false);
            },
            [](const Event &event) {
                return event.summary() == QStringLiteral("Kahvit; \"à 5\", 会議 🎂\n\\n")
                    && !event.summaryIsRich();
            }),
        feature<Event>(
            "plain summary that looks rich", plainEvent(),
            [](Event &event) { event.setSummary(QStringLiteral("a <b>c</b>"), false); },
            [](const Event &event) {
                return !event.summaryIsRich() && event.summary() == QLatin1String("a <b>c</b>");
            }),
        feature<Event>(
            "description of many lines", plainEvent(),
            [](Event &event) {
                event.setDescription(QStringLiteral("line\r\n\t").repeated(9000), false);
            },
            [](const Event &event) { return event.description().size() == 63000; }),
        feature<Event>(
            "location", plainEvent(),
            [](Event &event) { event.setLocation(QStringLiteral("Room, 5"), false); },
            [](const Event &event) { return event.location() == QLatin1String("Room, 5"); }),
        feature<Event>(
            "text that holds a null character", plainEvent(),
            [](Event &event) {
                event.setSummary(QStringLiteral("a") + QChar(0) + QLatin1Char('b'), false);
            },
            [](const Event &event) { return event.summary().size() == 3; }),
    };
}

Features richTexts()
{
    return {
        feature<Event>(
            "rich summary", plainEvent(),
            [](Event &event) { event.setSummary(QStringLiteral("<b>a</b>"), true); },
            [](const Event &event) {
                return event.summaryIsRich() && event.summary() == QLatin1String("<b>a</b>");
            }),
        feature<Event>(
            "rich description", plainEvent(),
            [](Event &event) { event.setDescription(QStringLiteral("<i>d</i>"), true); },
            [](const Event &event) {
                return event.descriptionIsRich()
                    && event.description() == QLatin1String("<i>d</i>");
            }),
        feature<Event>(
            "description in HTML beside the plain one", plainEvent(),
            [](Event &event) {
                event.setDescription(QStringLiteral("d"), false);
                event.setAltDescription(QStringLiteral("<html>d</html>"));
            },
            [](const Event &event) {
                return event.altDescription() == QLatin1String("<html>d</html>")
                    && event.description() == QLatin1String("d");
            }),
        feature<Event>(
            "rich location", plainEvent(),
            [](Event &event) { event.setLocation(QStringLiteral("<u>l</u>"), true); },
            [](const Event &event) {
                return event.locationIsRich() && event.location() == QLatin1String("<u>l</u>");
            }),
    };
}

Features lists()
{
    const auto list = [](const char *a, const char *b) {
        return QStringList{QString::fromLatin1(a), QString::fromLatin1(b)};
    };
    return {
        feature<Event>(
            "categories with commas", plainEvent(),
            [list](Event &event) { event.setCategories(list("Work, boring", "Travel")); },
            [list](const Event &event) {
                return event.categories() == list("Work, boring", "Travel");
            }),
        feature<Event>(
            "resources", plainEvent(),
            [list](Event &event) { event.setResources(list("Beamer, big", "Coffee")); },
            [list](const Event &event) {
                return event.resources() == list("Beamer, big", "Coffee");
            }),
        feature<Event>(
            "comments", plainEvent(),
            [](Event &event) {
                event.addComment(QStringLiteral("first"));
                event.addComment(QStringLiteral("second"));
            },
            [list](const Event &event) { return event.comments() == list("first", "second"); }),
        feature<Event>(
            "contacts", plainEvent(),
            [](Event &event) {
                event.addContact(QStringLiteral("Anna, +358"));
                event.addContact(QStringLiteral("Bo"));
            },
            [list](const Event &event) { return event.contacts() == list("Anna, +358", "Bo"); }),
        feature<Event>(
            "custom property of an application", plainEvent(),
            [](Event &event) { event.setCustomProperty("APP", "KEY-X", QStringLiteral("v")); },
            [](const Event &event) {
                return event.customProperty("APP", "KEY-X") == QLatin1String("v");
            }),
        feature<Event>(
            "custom property with parameters", plainEvent(),
            [](Event &event) {
                event.setNonKDECustomProperty("X-FOO", QStringLiteral("v"),
                                              QStringLiteral("A=1;B=\"2\""));
            },
            [](const Event &event) {
                return event.nonKDECustomProperty("X-FOO") == QLatin1String("v")
                    && event.nonKDECustomPropertyParameters("X-FOO")
                    == QLatin1String("A=1;B=\"2\"");
            }),
        feature<Event>(
            "empty custom property", plainEvent(),
            [](Event &event) { event.setNonKDECustomProperty("X-FOO", QStringLiteral("")); },
            [](const Event &event) { return event.customProperties().contains("X-FOO"); }),
    };
}

Features classes()
{
    return {
        feature<Event>(
            "private", plainEvent(),
            [](Event &event) { event.setSecrecy(Incidence::SecrecyPrivate); },
            [](const Event &event) { return event.secrecy() == Incidence::SecrecyPrivate; }),
        feature<Event>(
            "confidential", plainEvent(),
            [](Event &event) { event.setSecrecy(Incidence::SecrecyConfidential); },
            [](const Event &event) { return event.secrecy() == Incidence::SecrecyConfidential; }),
        feature<Event>(
            "tentative", plainEvent(),
            [](Event &event) { event.setStatus(Incidence::StatusTentative); },
            [](const Event &event) { return event.status() == Incidence::StatusTentative; }),
        feature<Event>(
            "cancelled", plainEvent(),
            [](Event &event) { event.setStatus(Incidence::StatusCanceled); },
            [](const Event &event) { return event.status() == Incidence::StatusCanceled; }),
        feature<Event>(
            "status of somebody's own", plainEvent(),
            [](Event &event) { event.setCustomStatus(QStringLiteral("POSTPONED")); },
            [](const Event &event) {
                return event.status() == Incidence::StatusX
                    && event.customStatus() == QLatin1String("POSTPONED");
            }),
        feature<Event>(
            "transparent", plainEvent(),
            [](Event &event) { event.setTransparency(Event::Transparent); },
            [](const Event &event) { return event.transparency() == Event::Transparent; }),
    };
}

Features numbers()
{
    return {
        feature<Event>(
            "priority", plainEvent(), [](Event &event) { event.setPriority(9); },
            [](const Event &event) { return event.priority() == 9; }),
        feature<Event>(
            "revision", plainEvent(), [](Event &event) { event.setRevision(17); },
            [](const Event &event) { return event.revision() == 17; }),
        feature<Event>(
            "only here", plainEvent(), [](Event &event) { event.setLocalOnly(true); },
            [](const Event &event) { return event.localOnly(); }),
        feature<Event>(
            "read-only", plainEvent(),
            [](Event &event) {
                event.setSummary(QStringLiteral("s"), false);
                event.setReadOnly(true);
            },
            [](const Event &event) {
                return event.isReadOnly() && event.summary() == QLatin1String("s");
            }),
        feature<Event>(
            "position", plainEvent(),
            [](Event &event) {
                event.setGeoLatitude(60.1699F);
                event.setGeoLongitude(-24.9384F);
            },
            [](const Event &event) {
                return event.geoLatitude() == 60.1699F && event.geoLongitude() == -24.9384F;
            }),
        feature<Event>(
            "position at zero", plainEvent(),
            [](Event &event) {
                event.setGeoLatitude(0);
                event.setGeoLongitude(0);
            },
            [](const Event &event) { return event.hasGeo() && event.geoLatitude() == 0; }),
    };
}

Features links()
{
    return {
        feature<Event>(
            "colour", plainEvent(), [](Event &event) { event.setColor(QStringLiteral("tomato")); },
            [](const Event &event) { return event.color() == QLatin1String("tomato"); }),
        feature<Event>(
            "address on the web", plainEvent(),
            [](Event &event) {
                event.setUrl(QUrl(QStringLiteral("https://example.org/ä?q=a%20b&c=%2F#x")));
            },
            [](const Event &event) { return event.url().host() == QLatin1String("example.org"); }),
        feature<Event>(
            "scheduling identifier", plainEvent(),
            [](Event &event) { event.setSchedulingID(QStringLiteral("other")); },
            [](const Event &event) { return event.schedulingID() == QLatin1String("other"); }),
        feature<Event>(
            "parent", plainEvent(),
            [](Event &event) { event.setRelatedTo(QStringLiteral("p"), Incidence::RelTypeParent); },
            [](const Event &event) {
                return event.relatedTo(Incidence::RelTypeParent) == QLatin1String("p");
            }),
        feature<Event>(
            "child", plainEvent(),
            [](Event &event) { event.setRelatedTo(QStringLiteral("c"), Incidence::RelTypeChild); },
            [](const Event &event) {
                return event.relatedTo(Incidence::RelTypeChild) == QLatin1String("c");
            }),
        feature<Event>(
            "sibling", plainEvent(),
            [](Event &event) {
                event.setRelatedTo(QStringLiteral("s"), Incidence::RelTypeSibling);
            },
            [](const Event &event) {
                return event.relatedTo(Incidence::RelTypeSibling) == QLatin1String("s");
            }),
    };
}
} // namespace

Features textFeatures()
{
    return plainTexts() + richTexts() + lists() + classes() + numbers() + links();
}
