// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <kcalcompat/kdatetime.h>

#include <cstdlib>
#include <iterator>

namespace
{
/// What dates and times are spelled with: random letters alone hardly ever make a date.
constexpr const char *pieces[] = {
    "0",    "1",   "2",    "3",       "9",   "00",   "01",     "02",     "03",         "12",
    "14",   "15",  "23",   "24",      "27",  "28",   "29",     "30",     "31",         "59",
    "60",   "99",  "-",    "+",       ":",   ".",    ",",      "T",      "t",          " ",
    "Z",    "z",   "W",    "\n",      "-0",  "+0",   "é",      "1900",   "2011",       "060",
    "0000", "366", "-03-", "-10-30T", ":00", ".999", "+14:00", "-12:00", "9999-12-31T"};

QString spelled(const unsigned char *data, std::size_t size)
{
    QString text;
    for (std::size_t i = 0; i < size; ++i) {
        text += QString::fromUtf8(pieces[data[i] % std::size(pieces)]);
    }
    return text;
}

/// What can be read and written means the same when it is read again.
void checkRoundTrip(const QString &text, KDateTime::TimeFormat format)
{
    const KDateTime read = KDateTime::fromString(text, format);
    const QString written = read.toString(format);
    if (written.isEmpty()) {
        return;
    }
    const KDateTime again = KDateTime::fromString(written, format);
    if (again != read || again.toString(format) != written) {
        qCritical("%s gives %s", qPrintable(text), qPrintable(written));
        std::abort();
    }
}

void checkText(const QString &text)
{
    checkRoundTrip(text, KDateTime::ISODate);
    checkRoundTrip(text, KDateTime::RFC3339Date);
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    checkText(QString::fromUtf8(reinterpret_cast<const char *>(data), int(size)));
    checkText(spelled(data, size));
    return 0;
}
