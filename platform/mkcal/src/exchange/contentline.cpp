// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contentline.h"

#include <QString>

#include <algorithm>

namespace mKCal
{
namespace
{
constexpr int maximumOctets = 75;

bool isContinuationByte(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}
} // namespace

QByteArray ContentLine::name(const QByteArray &line)
{
    const auto end =
        std::find_if(line.begin(), line.end(), [](char c) { return c == ':' || c == ';'; });
    return line.left(int(end - line.begin())).trimmed().toUpper();
}

bool ContentLine::isNamed(const QByteArray &line, const char *upperCaseName)
{
    // Asked a dozen times for each line of a file.
    if (line.isEmpty() || (line.at(0) & ~0x20) != upperCaseName[0]) {
        return false;
    }
    const auto size = int(qstrlen(upperCaseName));
    return line.size() > size && qstrnicmp(line.constData(), upperCaseName, uint(size)) == 0
        && (line.at(size) == ':' || line.at(size) == ';' || line.at(size) == ' ');
}

int ContentLine::valueStart(const QByteArray &text, int from)
{
    bool quoted = false;
    for (int i = from; i < text.size() && text.at(i) != '\n'; ++i) {
        if (text.at(i) == '"') {
            quoted = !quoted;
        } else if (text.at(i) == ':' && !quoted) {
            return i + 1;
        }
    }
    return -1;
}

QByteArray ContentLine::value(const QByteArray &line)
{
    const int start = valueStart(line);
    return start < 0 ? QByteArray() : line.mid(start);
}

QByteArray ContentLine::parameter(const QByteArray &line, const QByteArray &name)
{
    const int end = valueStart(line) - 1;
    const QByteArray head = ';' + name + '=';
    int start = line.left(std::max(end, 0)).toUpper().indexOf(head);
    if (start < 0) {
        return QByteArray();
    }
    start += head.size();
    if (line.at(start) == '"') {
        return line.mid(start + 1, line.indexOf('"', start + 1) - start - 1);
    }
    const int next = line.indexOf(';', start);
    return line.mid(start, (next < 0 || next > end ? end : next) - start);
}

QByteArray ContentLine::folded(const QByteArray &line)
{
    QByteArray result;
    result.reserve(line.size() + line.size() / maximumOctets * 3 + 2);
    int position = 0;
    int room = maximumOctets;
    while (line.size() - position > room) {
        int length = room;
        while (length > 1 && isContinuationByte(line.at(position + length))) {
            --length;
        }
        result.append(line.constData() + position, length).append("\r\n ");
        position += length;
        room = maximumOctets - 1;
    }
    return result.append(line.constData() + position, line.size() - position).append("\r\n");
}

bool ContentLine::isUtf8(const QByteArray &line)
{
    const bool ascii = std::all_of(line.begin(), line.end(),
                                   [](char c) { return static_cast<signed char>(c) >= 0; });
    return ascii || QString::fromUtf8(line).toUtf8() == line;
}

QList<QByteArray> ContentLine::split(const QByteArray &text)
{
    QList<QByteArray> lines;
    int start = 0;
    for (int end = text.indexOf("\r\n"); end >= 0; end = text.indexOf("\r\n", start)) {
        lines.append(text.mid(start, end - start));
        start = end + 2;
    }
    if (start < text.size()) {
        lines.append(text.mid(start));
    }
    return lines;
}

QByteArray ContentLine::find(const QByteArray &component, const char *upperCaseName)
{
    int depth = 0;
    int start = 0;
    for (int end = component.indexOf('\r'); end >= 0; end = component.indexOf('\r', start)) {
        const QByteArray line = QByteArray::fromRawData(component.constData() + start, end - start);
        if (isNamed(line, "BEGIN")) {
            ++depth;
        } else if (isNamed(line, "END")) {
            --depth;
        } else if (depth == 1 && isNamed(line, upperCaseName)) {
            return component.mid(start, end - start);
        }
        start = end + 2;
    }
    return QByteArray();
}
} // namespace mKCal
