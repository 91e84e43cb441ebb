// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_CALENDARTEXT_H
#define MKCAL_CALENDARTEXT_H

#include <QByteArray>
#include <QIODevice>

namespace mKCal
{
/// Reads a text file line by line without holding it whole: UTF-8, or UTF-16 and UTF-32 when the
/// file begins with their byte-order mark. Lines end with CR, LF or CRLF.
class CalendarText
{
public:
    /// What a longer line has beyond this is left out.
    static constexpr int maximumLineLength = 32 * 1024 * 1024;

    /// @param device open for reading, at the beginning of the text; outlives this.
    explicit CalendarText(QIODevice *device);

    /// Reads the next line into @p line without its end and without NUL bytes; in UTF-8, unless the
    /// file only claims to be. False at the end of the file.
    bool readLine(QByteArray *line);
    /// Of the line that was read last, from 1.
    int lineNumber() const { return m_lineNumber; }
    /// How much of the device was read.
    qint64 bytesRead() const { return m_bytesRead; }

private:
    bool fill();
    QByteArray decoded(bool atEnd);

    QIODevice *m_device;
    QByteArray m_raw; ///< read, not yet decoded
    QByteArray m_text; ///< decoded, handed out up to m_position
    int m_position = 0;
    int m_lineNumber = 0;
    qint64 m_bytesRead = 0;
    int m_unitSize = 0; ///< bytes of a code unit; 0 before the byte-order mark was looked for
    bool m_bigEndian = false;
    bool m_afterCarriageReturn = false;
};
} // namespace mKCal

#endif
