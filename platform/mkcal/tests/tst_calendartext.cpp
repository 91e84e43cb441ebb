// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "exchange/componentsplitter.h"
#include "exchange/contentline.h"
#include "exchange/timezonerules.h"

#include <QBuffer>
#include <QtEndian>
#include <QtTest>

#include <ctime>

using namespace mKCal;

namespace
{
template <typename Unit> QByteArray encoded(const QVector<Unit> &units, bool bigEndian)
{
    QByteArray bytes;
    for (const Unit unit : units) {
        const Unit ordered = bigEndian ? qToBigEndian(unit) : qToLittleEndian(unit);
        bytes.append(reinterpret_cast<const char *>(&ordered), sizeof(Unit));
    }
    return bytes;
}

QByteArray utf16(const QString &text, bool bigEndian)
{
    const auto *units = reinterpret_cast<const quint16 *>(text.utf16());
    return encoded(QVector<quint16>(units, units + text.size()), bigEndian);
}

QByteArray utf32(const QString &text, bool bigEndian)
{
    QVector<quint32> units;
    for (const uint unit : text.toUcs4()) {
        units.append(unit);
    }
    return encoded(units, bigEndian);
}

/// Hands out one byte at a time, the way a slow device may.
class ByteByByte : public QBuffer
{
public:
    using QBuffer::QBuffer;

protected:
    qint64 readData(char *data, qint64 maxSize) override
    {
        return QBuffer::readData(data, qMin(maxSize, qint64(1)));
    }
};

QList<QByteArray> linesOf(QIODevice *device)
{
    device->open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    CalendarText text(device);
    QList<QByteArray> lines;
    for (QByteArray line; text.readLine(&line);) {
        lines.append(QByteArray(line.constData(), line.size()));
    }
    return lines;
}

QVector<CalendarComponent> componentsOf(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    CalendarText text(&buffer);
    ComponentSplitter splitter(&text);
    QVector<CalendarComponent> components;
    for (CalendarComponent component; splitter.next(&component);) {
        components.append(component);
    }
    return components;
}

QByteArray definition(const QByteArray &standard, const QByteArray &daylight)
{
    return "BEGIN:VTIMEZONE\r\nTZID:Office\r\nBEGIN:STANDARD\r\n" + standard
        + "END:STANDARD\r\nBEGIN:DAYLIGHT\r\n" + daylight + "END:DAYLIGHT\r\nEND:VTIMEZONE\r\n";
}

QByteArray observance(const QByteArray &rule, const QByteArray &from, const QByteArray &to,
                      const QByteArray &start = "16010101T020000")
{
    return "DTSTART:" + start + "\r\nRRULE:FREQ=YEARLY;" + rule + "\r\nTZOFFSETFROM:" + from
        + "\r\nTZOFFSETTO:" + to + "\r\n";
}
} // namespace

/// Calendar files as text: encodings, lines, the borders of components, the rules of zones.
class CalendarTextTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void lines_data();
    void lines();
    void latin1IsTakenByLine();
    void characterBrokenOverLines();
    void deepNesting();
    void hugeComponent();
    void stableUid();
    void folding_data();
    void folding();
    void zoneRules_data();
    void zoneRules();
};

void CalendarTextTest::initTestCase()
{
    qputenv("TZ", "Asia/Tokyo");
    tzset();
}

void CalendarTextTest::lines_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QList<QByteArray>>("lines");
    const QString text = QString::fromUtf8("a\nÄ€\U0001F4C5\n\nz");
    const QList<QByteArray> lines = {"a", "Ä€\U0001F4C5", "", "z"};
    const QByteArray utf8 = text.toUtf8();
    QTest::newRow("UTF-8") << utf8 << lines;
    QTest::newRow("UTF-8 with mark") << "\xEF\xBB\xBF" + utf8 << lines;
    QTest::newRow("UTF-16, little-endian") << "\xFF\xFE" + utf16(text, false) << lines;
    QTest::newRow("UTF-16, big-endian") << "\xFE\xFF" + utf16(text, true) << lines;
    QTest::newRow("UTF-32, little-endian")
        << QByteArray("\xFF\xFE\0\0", 4) + utf32(text, false) << lines;
    QTest::newRow("UTF-32, big-endian")
        << QByteArray("\0\0\xFE\xFF", 4) + utf32(text, true) << lines;
    QTest::newRow("UTF-16, cut off in a character")
        << "\xFF\xFE" + utf16(QStringLiteral("ab"), false).chopped(1) << QList<QByteArray>{"a"};
    QTest::newRow("CRLF") << QByteArray("a\r\nb\r\n") << QList<QByteArray>{"a", "b"};
    QTest::newRow("CR alone") << QByteArray("a\rb\r") << QList<QByteArray>{"a", "b"};
    QTest::newRow("CR, CR, LF") << QByteArray("a\r\r\nb") << QList<QByteArray>{"a", "", "b"};
    QTest::newRow("null bytes") << QByteArray("a\0b\n\0", 5) << QList<QByteArray>{"ab", ""};
    QTest::newRow("files joined, each with a mark") << QByteArray("\xEF\xBB\xBF"
                                                                  "a\n\xEF\xBB\xBF"
                                                                  "b")
                                                    << QList<QByteArray>{"a", "b"};
    QTest::newRow("empty") << QByteArray() << QList<QByteArray>();
    QTest::newRow("a mark alone") << QByteArray("\xEF\xBB\xBF") << QList<QByteArray>();
}

void CalendarTextTest::lines()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QList<QByteArray>, lines);
    QBuffer whole(&bytes);
    QCOMPARE(linesOf(&whole), lines);
    ByteByByte slow(&bytes);
    QCOMPARE(linesOf(&slow), lines);
}

void CalendarTextTest::latin1IsTakenByLine()
{
    const auto components =
        componentsOf("BEGIN:VEVENT\nSUMMARY:Caf\xE9\nLOCATION:Café\nEND:VEVENT\n");
    QCOMPARE(components.size(), 1);
    QVERIFY(components.first().wasLatin1);
    QCOMPARE(components.first().text,
             QByteArray("BEGIN:VEVENT\r\nSUMMARY:Café\r\nLOCATION:Café\r\nEND:VEVENT\r\n"));
}

void CalendarTextTest::characterBrokenOverLines()
{
    const auto components = componentsOf(
        "BEGIN:VEVENT\r\nSUMMARY:Caf\xC3\r\n \xA9 now\r\n\r\n\there\r\nEND:VEVENT\r\n");
    QCOMPARE(components.size(), 1);
    QVERIFY(!components.first().wasLatin1);
    QVERIFY(components.first().text.contains("\r\nSUMMARY:Café nowhere\r\n"));
}

void CalendarTextTest::deepNesting()
{
    constexpr int depth = 100000;
    QByteArray text = "BEGIN:VEVENT\nUID:deep\n";
    text += QByteArray("BEGIN:X\n").repeated(depth);
    text += QByteArray("END:X\n").repeated(depth);
    text += "END:VEVENT\nBEGIN:VEVENT\nUID:next\nEND:VEVENT\n";
    const auto components = componentsOf(text);
    QCOMPARE(components.size(), 2);
    QCOMPARE(components.first().fault, CalendarComponent::TooDeep);
    QCOMPARE(components.last().uid, QByteArray("next"));
    QCOMPARE(components.last().line, 2 + 2 * depth + 2);
}

void CalendarTextTest::hugeComponent()
{
    QByteArray text = "BEGIN:VEVENT\nUID:huge\n";
    const QByteArray line = "X-PADDING:" + QByteArray(1024 * 1024, 'x') + '\n';
    for (int size = 0; size <= ComponentSplitter::maximumSize; size += line.size()) {
        text += line;
    }
    const auto components = componentsOf(text + "END:VEVENT\nBEGIN:VTODO\nEND:VTODO\n");
    QCOMPARE(components.size(), 2);
    QCOMPARE(components.first().fault, CalendarComponent::TooLarge);
    QCOMPARE(components.first().uid, QByteArray("huge"));
    QCOMPARE(components.last().fault, CalendarComponent::NoFault);
}

/// A server that makes its answer anew each time stamps it anew; the UID must not follow.
void CalendarTextTest::stableUid()
{
    const QByteArray text = "BEGIN:VEVENT\nDTSTAMP:%1\nSUMMARY:Same\nEND:VEVENT\n";
    const auto first = componentsOf(QByteArray(text).replace("%1", "20260101T000000Z"));
    const auto second = componentsOf(QByteArray(text).replace("%1", "20260202T000000Z"));
    const auto other = componentsOf(QByteArray(text).replace("Same", "Other"));
    QCOMPARE(first.first().stableUid(), second.first().stableUid());
    QVERIFY(first.first().stableUid() != other.first().stableUid());
}

void CalendarTextTest::folding_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("short") << QByteArray("SUMMARY:a");
    QTest::newRow("75 octets") << QByteArray(75, 'x');
    QTest::newRow("76 octets") << QByteArray(76, 'x');
    QTest::newRow("long") << QByteArray(1000, 'x');
    QTest::newRow("two-byte characters") << QByteArray("X") + QByteArray("ä").repeated(200);
    QTest::newRow("four-byte characters") << QByteArray("XY") + QByteArray("📅").repeated(100);
}

void CalendarTextTest::folding()
{
    QFETCH(QByteArray, line);
    const QByteArray folded = ContentLine::folded(line);
    QVERIFY(folded.endsWith("\r\n"));
    for (const QByteArray &part : ContentLine::split(folded)) {
        QVERIFY(part.size() <= 75);
        QVERIFY(ContentLine::isUtf8(part));
    }
    QCOMPARE(QByteArray(folded).replace("\r\n ", ""), line + "\r\n");
}

void CalendarTextTest::zoneRules_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("zone");
    const QByteArray lastSundays = "BYDAY=-1SU;BYMONTH=10";
    QTest::newRow("London, not El Aaiun")
        << definition(observance(lastSundays, "+0100", "+0000"),
                      observance("BYDAY=-1SU;BYMONTH=3", "+0000", "+0100", "16010101T010000"))
        << QByteArray("Europe/London");
    QTest::newRow("Pacific time") << definition(
        observance("BYDAY=1SU;BYMONTH=11", "-0700", "-0800"),
        observance("BYDAY=2SU;BYMONTH=3", "-0800", "-0700"))
                                  << QByteArray("America/Los_Angeles");
    QTest::newRow("summer in the south")
        << definition(observance("BYDAY=1SU;BYMONTH=4", "+1100", "+1000", "16010101T030000"),
                      observance("BYDAY=1SU;BYMONTH=10", "+1000", "+1100"))
        << QByteArray("Australia/");
    QTest::newRow("the same all year")
        << definition("DTSTART:19700101T000000\r\nTZOFFSETFROM:+0530\r\nTZOFFSETTO:+0530\r\n",
                      "DTSTART:19700101T000000\r\nTZOFFSETFROM:+0530\r\nTZOFFSETTO:+0530\r\n")
        << QByteArray("UTC+05:30");
    QTest::newRow("rules of no place")
        << definition(observance("BYMONTH=1;BYMONTHDAY=1", "+0617", "+0517"),
                      observance("BYMONTH=6;BYMONTHDAY=1", "+0517", "+0617"))
        << QByteArray();
    QTest::newRow("nothing") << QByteArray("BEGIN:VTIMEZONE\r\nEND:VTIMEZONE\r\n") << QByteArray();
}

void CalendarTextTest::zoneRules()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, zone);
    const QByteArray found = TimeZoneRules(text).systemZone(2024);
    QCOMPARE(found.isEmpty(), zone.isEmpty());
    QVERIFY2(found.startsWith(zone), found.constData());
}

QTEST_GUILESS_MAIN(CalendarTextTest)
#include "tst_calendartext.moc"
