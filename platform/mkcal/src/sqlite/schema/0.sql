-- SPDX-FileCopyrightText: 2026 The daskel authors
-- SPDX-License-Identifier: LGPL-2.1-or-later

CREATE TABLE Meta (
    key TEXT PRIMARY KEY,
    value
) WITHOUT ROWID;

INSERT INTO Meta(key, value) VALUES ('change', 0), ('writer', '');

CREATE TABLE Notebooks (
    uid TEXT PRIMARY KEY,
    position INTEGER NOT NULL,
    name TEXT NOT NULL,
    description TEXT,
    color TEXT,
    isShared INTEGER NOT NULL,
    isMaster INTEGER NOT NULL,
    isSynchronized INTEGER NOT NULL,
    isReadOnly INTEGER NOT NULL,
    isVisible INTEGER NOT NULL,
    isHidden INTEGER NOT NULL,
    eventsAllowed INTEGER NOT NULL,
    todosAllowed INTEGER NOT NULL,
    journalsAllowed INTEGER NOT NULL,
    pluginName TEXT,
    account TEXT,
    syncProfile TEXT,
    syncDate INTEGER,
    creationDate INTEGER,
    modifiedDate INTEGER,
    sharedWith TEXT
) WITHOUT ROWID;

CREATE TABLE NotebookProps (
    notebook TEXT NOT NULL REFERENCES Notebooks(uid) ON DELETE CASCADE,
    name TEXT NOT NULL,
    value TEXT NOT NULL,
    PRIMARY KEY (notebook, name)
) WITHOUT ROWID;

CREATE TABLE Components (
    id INTEGER PRIMARY KEY,
    notebook TEXT NOT NULL,
    uid TEXT NOT NULL,
    recId TEXT NOT NULL DEFAULT '',
    state INTEGER NOT NULL DEFAULT 0,
    stateTime INTEGER NOT NULL DEFAULT 0,
    change INTEGER NOT NULL,
    type INTEGER NOT NULL,
    span INTEGER NOT NULL,
    start INTEGER,
    end INTEGER,
    until INTEGER,
    completed INTEGER NOT NULL DEFAULT 0,
    flags INTEGER NOT NULL DEFAULT 0,
    allDay INTEGER NOT NULL DEFAULT 0,
    startWall INTEGER,
    startTz TEXT,
    endWall INTEGER,
    endTz TEXT,
    recIdWall INTEGER,
    recIdTz TEXT,
    dueWall INTEGER,
    dueTz TEXT,
    hasDuration INTEGER NOT NULL DEFAULT 0,
    duration INTEGER,
    durationDaily INTEGER NOT NULL DEFAULT 0,
    thisAndFuture INTEGER NOT NULL DEFAULT 0,
    summary TEXT,
    summaryRich INTEGER NOT NULL DEFAULT 0,
    description TEXT,
    descriptionRich INTEGER NOT NULL DEFAULT 0,
    location TEXT,
    locationRich INTEGER NOT NULL DEFAULT 0,
    organizerName TEXT,
    organizerEmail TEXT,
    status INTEGER NOT NULL DEFAULT 0,
    customStatus TEXT,
    secrecy INTEGER NOT NULL DEFAULT 0,
    transparency INTEGER NOT NULL DEFAULT 0,
    priority INTEGER NOT NULL DEFAULT 0,
    percentComplete INTEGER NOT NULL DEFAULT 0,
    completedTime INTEGER,
    revision INTEGER NOT NULL DEFAULT 0,
    created INTEGER,
    lastModified INTEGER,
    localOnly INTEGER NOT NULL DEFAULT 0,
    readOnly INTEGER NOT NULL DEFAULT 0,
    schedulingId TEXT,
    parent TEXT,
    child TEXT,
    sibling TEXT,
    url TEXT,
    color TEXT,
    latitude REAL,
    longitude REAL
);

CREATE UNIQUE INDEX ComponentsLive ON Components(uid, recId) WHERE state = 0;
CREATE INDEX ComponentsDeleted ON Components(uid) WHERE state = 1;
CREATE INDEX ComponentsDeletedTime ON Components(stateTime) WHERE state = 1;
CREATE INDEX ComponentsOverwritten ON Components(uid) WHERE state = 2;
CREATE INDEX ComponentsSpan ON Components(span, start, end) WHERE state = 0;
CREATE INDEX ComponentsSeries ON Components(span, until, start) WHERE state = 0 AND span = 2;
CREATE INDEX ComponentsOpen ON Components(start) WHERE state = 0 AND type = 1 AND completed = 0;
CREATE INDEX ComponentsCompleted ON Components(completed)
    WHERE state = 0 AND type = 1 AND completed > 0;
CREATE INDEX ComponentsJournal ON Components(start) WHERE state = 0 AND type = 2;
CREATE INDEX ComponentsChange ON Components(change);
CREATE INDEX ComponentsNotebook ON Components(notebook) WHERE state = 0;

CREATE TABLE Alarm (
    comp INTEGER NOT NULL REFERENCES Components(id) ON DELETE CASCADE,
    pos INTEGER NOT NULL,
    type INTEGER NOT NULL,
    enabled INTEGER NOT NULL,
    relation INTEGER NOT NULL, -- 0 at a time of its own, 1 to the start, 2 to the end
    timeWall INTEGER,
    timeTz TEXT,
    offset INTEGER,
    offsetDaily INTEGER NOT NULL DEFAULT 0,
    repeat INTEGER NOT NULL DEFAULT 0,
    snooze INTEGER NOT NULL DEFAULT 0,
    snoozeDaily INTEGER NOT NULL DEFAULT 0,
    text TEXT,
    file TEXT,
    detail TEXT,
    hasRadius INTEGER NOT NULL DEFAULT 0,
    radius INTEGER NOT NULL DEFAULT 0,
    PRIMARY KEY (comp, pos)
) WITHOUT ROWID;

CREATE TABLE Attendee (
    comp INTEGER NOT NULL REFERENCES Components(id) ON DELETE CASCADE,
    pos INTEGER NOT NULL,
    name TEXT,
    email TEXT,
    role INTEGER NOT NULL,
    status INTEGER NOT NULL,
    cuType TEXT,
    rsvp INTEGER NOT NULL,
    delegate TEXT,
    delegator TEXT,
    uid TEXT,
    PRIMARY KEY (comp, pos)
) WITHOUT ROWID;

CREATE TABLE Rule (
    comp INTEGER NOT NULL REFERENCES Components(id) ON DELETE CASCADE,
    pos INTEGER NOT NULL,
    exclude INTEGER NOT NULL, -- 0 RRULE, 1 EXRULE
    period INTEGER NOT NULL,
    frequency INTEGER NOT NULL,
    count INTEGER NOT NULL, -- -1 for ever, 0 until the end, else how many
    endWall INTEGER,
    endTz TEXT,
    startWall INTEGER, -- NULL: as the recurrence
    startTz TEXT,
    weekStart INTEGER NOT NULL,
    bySecond TEXT,
    byMinute TEXT,
    byHour TEXT,
    byDay TEXT,
    byMonthDay TEXT,
    byYearDay TEXT,
    byWeekNumber TEXT,
    byMonth TEXT,
    bySetPos TEXT,
    text TEXT,
    PRIMARY KEY (comp, pos)
) WITHOUT ROWID;

CREATE TABLE Dates (
    comp INTEGER NOT NULL REFERENCES Components(id) ON DELETE CASCADE,
    pos INTEGER NOT NULL,
    kind INTEGER NOT NULL, -- 0 RDATE date, 1 RDATE date-time, 2 RDATE period, 3, 4 EXDATE
    wall INTEGER,
    tz TEXT,
    endWall INTEGER,
    endTz TEXT,
    duration INTEGER,
    durationDaily INTEGER NOT NULL DEFAULT 0,
    PRIMARY KEY (comp, pos)
) WITHOUT ROWID;

CREATE TABLE Props (
    comp INTEGER NOT NULL REFERENCES Components(id) ON DELETE CASCADE,
    pos INTEGER NOT NULL,
    owner INTEGER NOT NULL, -- 0 the component, 1 alarm, 2 attendee, 3 conference
    ownerPos INTEGER NOT NULL,
    kind INTEGER NOT NULL, -- 0 property, 1 category, 2 resource, 3 comment, 4 contact,
                           -- 5 mail address, 6 mail attachment
    name TEXT,
    value TEXT,
    params TEXT,
    PRIMARY KEY (comp, pos)
) WITHOUT ROWID;

CREATE TABLE Attachment (
    comp INTEGER NOT NULL REFERENCES Components(id) ON DELETE CASCADE,
    pos INTEGER NOT NULL,
    uri TEXT,
    data,
    mimeType TEXT,
    label TEXT,
    showInline INTEGER NOT NULL,
    isLocal INTEGER NOT NULL,
    PRIMARY KEY (comp, pos)
) WITHOUT ROWID;

CREATE TABLE Conference (
    comp INTEGER NOT NULL REFERENCES Components(id) ON DELETE CASCADE,
    pos INTEGER NOT NULL,
    uri TEXT,
    label TEXT,
    features TEXT,
    language TEXT,
    PRIMARY KEY (comp, pos)
) WITHOUT ROWID;
