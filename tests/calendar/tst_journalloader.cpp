// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "filleddatabase.h"
#include "incidences.h"
#include "loadedrows.h"
#include "loaders/journalloader.h"

/// The list of notes: the newest first, in batches.
class JournalLoaderTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void newestFirst();
};

void JournalLoaderTest::newestFirst()
{
    const auto undated = makeJournal("undated", QDateTime());
    undated->setCreated(localTime("2011-02-15T08:00").toUTC());
    const FilledDatabase database({makeJournal("old", localTime("2009-01-01T10:00")), undated,
                                   makeJournal("new", localTime("2011-03-09T10:00")),
                                   makeJournal("last year", localTime("2010-01-01T10:00"))},
                                  {makeJournal("unseen", localTime("2011-03-09T10:00"))});
    JournalLoader loader;
    LoadedRows rows(&loader);
    loader.setBatchSize(3);
    loader.load();
    QCOMPARE(rows.takeUids(), QStringList({"new", "undated", "last year"}));
    loader.loadLater();
    QCOMPARE(rows.takeUids(), QStringList("old"));
    loader.loadLater();
    loader.loadEarlier();
    QCOMPARE(rows.takeUids(), QStringList());
    QCOMPARE(loader.incidenceCount(), 4);
}

LOADER_TEST_MAIN(JournalLoaderTest)
#include "tst_journalloader.moc"
