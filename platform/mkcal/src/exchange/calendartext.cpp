// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "calendartext.h"

#include <QVector>
#include <QtEndian>

#include <algorithm>

namespace mKCal
{
namespace
{
constexpr qint64 chunkSize = 64 * 1024;
constexpr int longestMark = 4;

struct ByteOrderMark {
    QByteArray bytes;
    int unitSize;
    bool bigEndian;
};

// UTF-32 before UTF-16: the little-endian mark of the one begins with that of the other.
const ByteOrderMark &byteOrderMark(const QByteArray &raw)
{
    static const ByteOrderMark marks[] = {
        {QByteArray("\xEF\xBB\xBF", 3), 1, false}, {QByteArray("\xFF\xFE\0\0", 4), 4, false},
        {QByteArray("\0\0\xFE\xFF", 4), 4, true},  {QByteArray("\xFF\xFE", 2), 2, false},
        {QByteArray("\xFE\xFF", 2), 2, true},      {QByteArray(), 1, false},
    };
    return *std::find_if(std::begin(marks), std::end(marks),
                         [&raw](const ByteOrderMark &mark) { return raw.startsWith(mark.bytes); });
}

template <typename Unit> Unit codeUnit(const char *bytes, bool bigEndian)
{
    return bigEndian ? qFromBigEndian<Unit>(bytes) : qFromLittleEndian<Unit>(bytes);
}

template <typename Unit> QVector<Unit> codeUnits(const QByteArray &raw, bool bigEndian)
{
    QVector<Unit> units(raw.size() / int(sizeof(Unit)));
    for (int i = 0; i < units.size(); ++i) {
        units[i] = codeUnit<Unit>(raw.constData() + i * int(sizeof(Unit)), bigEndian);
    }
    return units;
}

void appendWithoutNul(QByteArray *line, const char *begin, const char *end)
{
    const int room = CalendarText::maximumLineLength - line->size();
    end = std::min(end, begin + std::max(room, 0));
    while (begin != end) {
        const char *nul = std::find(begin, end, '\0');
        line->append(begin, int(nul - begin));
        begin = nul == end ? end : nul + 1;
    }
}
} // namespace

CalendarText::CalendarText(QIODevice *device) : m_device(device) { }

bool CalendarText::readLine(QByteArray *line)
{
    line->resize(0);
    bool anything = false;
    while (m_position < m_text.size() || fill()) {
        if (m_afterCarriageReturn) {
            m_afterCarriageReturn = false;
            m_position += m_text.at(m_position) == '\n' ? 1 : 0;
            continue;
        }
        anything = true;
        const char *begin = m_text.constData() + m_position;
        const char *end = m_text.constData() + m_text.size();
        const char *lineEnd =
            std::find_if(begin, end, [](char c) { return c == '\n' || c == '\r'; });
        appendWithoutNul(line, begin, lineEnd);
        m_position += int(lineEnd - begin);
        if (lineEnd != end) {
            m_afterCarriageReturn = *lineEnd == '\r';
            ++m_position;
            break;
        }
    }
    // Files that were joined have the mark of the second one in the middle.
    if (line->startsWith("\xEF\xBB\xBF")) {
        line->remove(0, 3);
    }
    m_lineNumber += anything ? 1 : 0;
    return anything;
}

/// Reads on until there is text to hand out; false at the end.
bool CalendarText::fill()
{
    m_text.clear();
    m_position = 0;
    while (m_text.isEmpty()) {
        const QByteArray chunk = m_device->read(chunkSize);
        m_bytesRead += chunk.size();
        m_raw += chunk;
        if (m_unitSize == 0 && m_raw.size() < longestMark && !chunk.isEmpty()) {
            continue;
        }
        if (m_unitSize == 0) {
            const ByteOrderMark &mark = byteOrderMark(m_raw);
            m_unitSize = mark.unitSize;
            m_bigEndian = mark.bigEndian;
            m_raw.remove(0, mark.bytes.size());
        }
        m_text = decoded(chunk.isEmpty());
        if (chunk.isEmpty()) {
            break;
        }
    }
    return !m_text.isEmpty();
}

/// Takes what can be decoded out of m_raw: whole code units, no half surrogate pair.
QByteArray CalendarText::decoded(bool atEnd)
{
    int usable = m_raw.size() - m_raw.size() % m_unitSize;
    if (m_unitSize == 2 && usable > 0 && !atEnd) {
        const auto last = codeUnit<quint16>(m_raw.constData() + usable - 2, m_bigEndian);
        usable -= QChar::isHighSurrogate(last) ? 2 : 0;
    }
    QByteArray raw = m_raw.left(usable);
    m_raw.remove(0, usable);
    if (m_unitSize == 1) {
        return raw;
    }
    if (m_unitSize == 2) {
        const QVector<ushort> units = codeUnits<ushort>(raw, m_bigEndian);
        return QString::fromUtf16(units.constData(), units.size()).toUtf8();
    }
    const QVector<uint> units = codeUnits<uint>(raw, m_bigEndian);
    return QString::fromUcs4(units.constData(), units.size()).toUtf8();
}
} // namespace mKCal
