-- SPDX-FileCopyrightText: 2026 The daskel authors
-- SPDX-License-Identifier: LGPL-2.1-or-later

CREATE TABLE Reminders (
    id INTEGER PRIMARY KEY,
    notebook TEXT NOT NULL,
    uid TEXT NOT NULL,
    recId TEXT NOT NULL DEFAULT '',
    recIdWall INTEGER,
    recIdTz TEXT,
    recIdDateOnly INTEGER NOT NULL DEFAULT 0,
    alarm INTEGER NOT NULL,
    time INTEGER NOT NULL,
    shown INTEGER NOT NULL DEFAULT 0,
    dismissed INTEGER NOT NULL DEFAULT 0,
    UNIQUE (uid, recId, alarm, time)
);

CREATE INDEX RemindersTime ON Reminders(time) WHERE dismissed = 0;
