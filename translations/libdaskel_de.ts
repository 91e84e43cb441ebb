<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!--
SPDX-FileCopyrightText: 2026 The daskel authors
SPDX-License-Identifier: LGPL-2.1-or-later
-->
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <message id="qtn_caln_personal_caln">
        <source>Personal</source>
        <extracomment>Name of the notebook that every calendar starts with.</extracomment>
        <translation>Persönlich</translation>
    </message>
    <message id="qtn_caln_notes_caln">
        <source>Notes</source>
        <extracomment>Name of the notebook that holds journals only.</extracomment>
        <translation>Notizen</translation>
    </message>
    <message id="qtn_caln_no_title">
        <source>No title</source>
        <extracomment>In place of the title of a note that has none.</extracomment>
        <translation>Ohne Titel</translation>
    </message>
    <message id="qtn_caln_no_events_today">
        <source>Nothing today</source>
        <extracomment>In place of the notes of a day that has none.</extracomment>
        <translation>Heute nichts</translation>
    </message>
    <message id="qtn_caln_all_day">
        <source>All day</source>
        <extracomment>In place of a time of day. Little room.</extracomment>
        <translation>Ganztags</translation>
    </message>
    <message id="qtn_caln_until">
        <source>until</source>
        <extracomment>Above a date or a time of day, on the later days of something long. Little room.</extracomment>
        <translation>bis</translation>
    </message>
    <message id="qtn_comm_today">
        <source>Today</source>
        <extracomment>In place of a date.</extracomment>
        <translation>Heute</translation>
    </message>
    <message id="qtn_caln_completed">
        <source>Done</source>
        <extracomment>Said of a to-do.</extracomment>
        <translation>Erledigt</translation>
    </message>
    <message id="qtn_caln_overdue">
        <source>Overdue</source>
        <extracomment>Said of a to-do.</extracomment>
        <translation>Überfällig</translation>
    </message>
    <message id="qtn_caln_cancelled">
        <source>Cancelled</source>
        <extracomment>Said of an event.</extracomment>
        <translation>Abgesagt</translation>
    </message>
    <message id="qtn_caln_mark_compl">
        <source>Mark as done</source>
        <extracomment>Menu of a to-do.</extracomment>
        <translation>Als erledigt markieren</translation>
    </message>
    <message id="qtn_caln_mark_uncompl">
        <source>Mark as not done</source>
        <extracomment>Menu of a to-do that is done.</extracomment>
        <translation>Als nicht erledigt markieren</translation>
    </message>
    <message id="qtn_comm_edit">
        <source>Edit</source>
        <extracomment>Menu of a note.</extracomment>
        <translation>Bearbeiten</translation>
    </message>
    <message id="qtn_comm_command_delete">
        <source>Delete</source>
        <extracomment>Menu of a note, and the button that does it.</extracomment>
        <translation>Löschen</translation>
    </message>
</context>
</TS>
