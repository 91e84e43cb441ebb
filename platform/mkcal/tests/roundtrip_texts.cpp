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
        event("summary with every kind of letter",
              [](Event &event) { event.setSummary("Kahvit; \"à 5\", 会議 🎂\n\\n", false); }),
        event("plain summary that looks rich",
              [](Event &event) { event.setSummary("a <b>c</b>", false); }),
        event("description of many lines",
              [](Event &event) {
                  event.setDescription(QStringLiteral("line\r\n\t").repeated(9000), false);
              }),
        event("location", [](Event &event) { event.setLocation("Room, 5", false); }),
        event("text that holds a null character",
              [](Event &event) { event.setSummary(QString("a") + QChar(0) + "b", false); }),
    };
}

Features richTexts()
{
    return {
        event("rich summary", [](Event &event) { event.setSummary("<b>a</b>", true); }),
        event("rich description", [](Event &event) { event.setDescription("<i>d</i>", true); }),
        event("description in HTML beside the plain one",
              [](Event &event) {
                  event.setDescription("d", false);
                  event.setAltDescription("<html>d</html>");
              }),
        event("rich location", [](Event &event) { event.setLocation("<u>l</u>", true); }),
    };
}

Features lists()
{
    return {
        event("categories with commas",
              [](Event &event) {
                  event.setCategories(QStringList{"Work, boring", "Travel"});
              }),
        event("resources",
              [](Event &event) {
                  event.setResources({"Beamer, big", "Coffee"});
              }),
        event("comments",
              [](Event &event) {
                  event.addComment("first");
                  event.addComment("second");
              }),
        event("contacts",
              [](Event &event) {
                  event.addContact("Anna, +358");
                  event.addContact("Bo");
              }),
        event("custom property of an application",
              [](Event &event) { event.setCustomProperty("APP", "KEY-X", "v"); }),
        event("custom property with parameters",
              [](Event &event) { event.setNonKDECustomProperty("X-FOO", "v", "A=1;B=\"2\""); }),
        event("empty custom property",
              [](Event &event) { event.setNonKDECustomProperty("X-FOO", ""); }),
    };
}

Features classes()
{
    return {
        event("private", [](Event &event) { event.setSecrecy(Incidence::SecrecyPrivate); }),
        event("confidential",
              [](Event &event) { event.setSecrecy(Incidence::SecrecyConfidential); }),
        event("tentative", [](Event &event) { event.setStatus(Incidence::StatusTentative); }),
        event("cancelled", [](Event &event) { event.setStatus(Incidence::StatusCanceled); }),
        event("status of somebody's own", [](Event &event) { event.setCustomStatus("POSTPONED"); }),
        event("transparent", [](Event &event) { event.setTransparency(Event::Transparent); }),
    };
}

Features numbers()
{
    return {
        event("priority", [](Event &event) { event.setPriority(9); }),
        event("revision", [](Event &event) { event.setRevision(17); }),
        event("only here", [](Event &event) { event.setLocalOnly(true); }),
        event("read-only",
              [](Event &event) {
                  event.setSummary("s", false);
                  event.setReadOnly(true);
              }),
        event("position",
              [](Event &event) {
                  event.setGeoLatitude(60.1699F);
                  event.setGeoLongitude(-24.9384F);
              }),
        event("position at zero",
              [](Event &event) {
                  event.setGeoLatitude(0);
                  event.setGeoLongitude(0);
              }),
    };
}

Features links()
{
    return {
        event("colour", [](Event &event) { event.setColor("tomato"); }),
        event("address on the web",
              [](Event &event) { event.setUrl(QUrl("https://example.org/ä?q=a%20b&c=%2F#x")); }),
        event("scheduling identifier", [](Event &event) { event.setSchedulingID("other"); }),
        event("parent", [](Event &event) { event.setRelatedTo("p", Incidence::RelTypeParent); }),
        event("child", [](Event &event) { event.setRelatedTo("c", Incidence::RelTypeChild); }),
        event("sibling", [](Event &event) { event.setRelatedTo("s", Incidence::RelTypeSibling); }),
    };
}
} // namespace

Features textFeatures()
{
    return plainTexts() + richTexts() + lists() + classes() + numbers() + links();
}
