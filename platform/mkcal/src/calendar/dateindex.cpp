// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "dateindex.h"

namespace mKCal
{
namespace
{
constexpr Msecs longestShort = 2 * msecsPerDay;

DateIndex::Entry startingAt(Msecs start)
{
    DateIndex::Entry entry;
    entry.first = {start, std::numeric_limits<Msecs>::min()};
    return entry;
}
} // namespace

bool DateIndex::Entry::operator<(const Entry &other) const
{
    if (first.start != other.first.start) {
        return first.start < other.first.start;
    }
    if (first.end != other.first.end) {
        return first.end < other.first.end;
    }
    const int byUid = uid.compare(other.uid);
    return byUid != 0 ? byUid < 0 : recurrenceId < other.recurrenceId;
}

DateIndex::Kind DateIndex::kindOf(const Entry &entry)
{
    if (!entry.isDated) {
        return Undated;
    }
    if (entry.recurs) {
        return Recurring;
    }
    return entry.first.end - entry.first.start > longestShort ? Long : Short;
}

void DateIndex::insert(const Entry &entry)
{
    remove(entry.incidence.data());
    const Kind kind = kindOf(entry);
    m_positions.insert(entry.incidence.data(), {kind, m_entries[kind].insert(entry).first});
}

void DateIndex::remove(const KCalCore::Incidence *incidence)
{
    const auto position = m_positions.constFind(incidence);
    if (position != m_positions.constEnd()) {
        m_entries[position->kind].erase(position->entry);
        m_positions.erase(position);
    }
}

void DateIndex::clear()
{
    m_positions.clear();
    for (Entries &entries : m_entries) {
        entries.clear();
    }
}

const DateIndex::Entry *DateIndex::find(const KCalCore::Incidence *incidence) const
{
    const auto position = m_positions.constFind(incidence);
    return position == m_positions.constEnd() ? nullptr : &*position->entry;
}

template <typename Accept>
void DateIndex::merge(std::array<Section, 3> sections, const Accept &accept, const Visitor &visit)
{
    for (Section &section : sections) {
        while (section.first != section.second && !accept(*section.first)) {
            ++section.first;
        }
    }
    for (;;) {
        Section *next = nullptr;
        for (Section &section : sections) {
            if (section.first != section.second
                && (next == nullptr || *section.first < *next->first)) {
                next = &section;
            }
        }
        if (next == nullptr) {
            return;
        }
        visit(*next->first);
        do {
            ++next->first;
        } while (next->first != next->second && !accept(*next->first));
    }
}

void DateIndex::visitAll(const Visitor &visit) const
{
    const auto whole = [this](Kind kind) {
        return Section(m_entries[kind].cbegin(), m_entries[kind].cend());
    };
    merge(
        {whole(Short), whole(Long), whole(Recurring)}, [](const Entry &) { return true; }, visit);
    for (const Entry &entry : m_entries[Undated]) {
        visit(entry);
    }
}

void DateIndex::visit(const Range &range, const Visitor &visit) const
{
    const Msecs from = qMin(range.moments.start, range.wall.start);
    const Entry end = startingAt(qMax(range.moments.end, range.wall.end));
    const auto section = [this, &end](Kind kind, Entries::const_iterator begin) {
        return Section(begin, m_entries[kind].lower_bound(end));
    };
    const auto overlaps = [&range](const Entry &entry) {
        const TimeSpan &days = entry.isWallBound ? range.wall : range.moments;
        return TimeSpan{entry.first.start, entry.until}.overlaps(days.start, days.end);
    };
    merge({section(Short, m_entries[Short].lower_bound(startingAt(from - longestShort))),
           section(Long, m_entries[Long].cbegin()),
           section(Recurring, m_entries[Recurring].cbegin())},
          overlaps, visit);
}
} // namespace mKCal
