// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef BENCH_H
#define BENCH_H

#include "sampledata.h"

#include <mkcal/extendedstorage.h>

#include <QDir>
#include <QElapsedTimer>
#include <QJsonObject>
#include <QStringList>

/// What a figure should reach: at most so many times its floor, or at least so many times faster.
struct Aim {
    enum Kind { None, AtMost, FasterBy };
    Kind kind = None;
    double value = 0;
};

/// Two medians, in microseconds or the figure's unit.
struct Times {
    double ours = 0;
    double floor = 0;
};

struct Figure {
    QString name;
    int count = 0; ///< how many incidences there are
    Times times;
    Aim aim;
    QJsonObject work; ///< what was done for it, such as statements and rows
    QString unit = QStringLiteral("µs");
};

/// A sample calendar on disk, as a database and as an iCalendar file.
struct Sample {
    int count = 0;
    QString databaseName;
    QString iCalendarName;
};

/// One run: the samples in its folder, and the figures that were asked for.
class Bench
{
public:
    Bench(const QString &folder, const QStringList &filters);

    /// Whether a figure of that name is wanted; all are when there is no filter.
    bool wants(const QString &name) const;
    /// Prints it as one line of JSON.
    void add(const Figure &figure) const;

    /// Makes what is not in the folder yet.
    void makeSamples() const;
    Sample sample(int count) const;
    /// 100,000 incidences of which those around the middle are the ones of sample(10000).
    Sample sampleOfEqualRows() const;
    /// A new name in the folder.
    QString scratchName(const QString &suffix) const;

private:
    Sample named(int count, const QString &folder) const;

    QDir m_folder;
    QStringList m_filters;
};

/// What this process has used of the processor until now, in microseconds.
double processorTime();

/// The microseconds that @p work kept the processor busy: what else runs on the machine is not in
/// them.
template <typename Work> double microseconds(Work &&work)
{
    const double start = processorTime();
    work();
    return processorTime() - start;
}

/// The microseconds that passed, for what waits for the disk.
template <typename Work> double microsecondsPassed(Work &&work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return double(timer.nsecsElapsed()) / 1000;
}

/// Lets both measure themselves in turn, so that what disturbs the machine disturbs both; the first
/// round only warms up.
template <typename Ours, typename Floor> Times inTurn(int rounds, Ours &&ours, Floor &&floor)
{
    QVector<double> oursAll;
    QVector<double> floorAll;
    ours();
    floor();
    for (int i = 0; i < rounds; ++i) {
        oursAll.append(ours());
        floorAll.append(floor());
    }
    std::sort(oursAll.begin(), oursAll.end());
    std::sort(floorAll.begin(), floorAll.end());
    return {oursAll.at(rounds / 2), floorAll.at(rounds / 2)};
}

/// A calendar with its storage, opened.
struct OpenedStorage {
    explicit OpenedStorage(const QString &databaseName);

    mKCal::ExtendedCalendar::Ptr calendar;
    mKCal::ExtendedStorage::Ptr storage;
};

/// The notebook that all samples are in.
extern const QString sampleNotebook;

/// Ends the program: a figure of something that failed would mean nothing.
void require(bool condition, const QString &what);

/// Does one thing that is measured in a process of its own and prints what it took; false when
/// there is no such task.
bool runTask(const QStringList &words);

// The figures, by what they are of.
void measureStorage(const Bench &bench);
void measureImport(const Bench &bench);
void measureCalendar(const Bench &bench);
void measureCache(const Bench &bench);
void measureLocale(const Bench &bench);
void measureWidgets(const Bench &bench);
void measureLists(const Bench &bench);
void measureServices(const Bench &bench);

#endif
