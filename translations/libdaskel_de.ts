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
    <message id="qtn_caln_delete_question">
        <source>Delete “%1”?</source>
        <extracomment>%1 is the title of a note.</extracomment>
        <translation>„%1“ löschen?</translation>
    </message>
    <message id="qtn_caln_delete_repeating">
        <source>“%1” repeats. How much of it do you want to delete?</source>
        <extracomment>%1 is the title of a note. Below are buttons for this one, for this and all later ones, and for the series.</extracomment>
        <translation>„%1“ wiederholt sich. Wie viel davon möchten Sie löschen?</translation>
    </message>
    <message id="qtn_caln_delete_this">
        <source>Delete this one</source>
        <extracomment>Button: one occurrence of a repeating note.</extracomment>
        <translation>Nur dieses löschen</translation>
    </message>
    <message id="qtn_caln_delete_later">
        <source>Delete this and later ones</source>
        <extracomment>Button: an occurrence of a repeating note and those after it.</extracomment>
        <translation>Dieses und spätere löschen</translation>
    </message>
    <message id="qtn_caln_delete_series">
        <source>Delete series</source>
        <extracomment>Button: all occurrences of a repeating note.</extracomment>
        <translation>Ganze Serie löschen</translation>
    </message>
    <message id="qtn_caln_deleted">
        <source>“%1” deleted</source>
        <extracomment>Beside a button to undo it. %1 is the title of a note.</extracomment>
        <translation>„%1“ gelöscht</translation>
    </message>
    <message id="qtn_caln_delete_failed">
        <source>“%1” could not be deleted. Nothing was changed.</source>
        <extracomment>%1 is the title of a note.</extracomment>
        <translation>„%1“ konnte nicht gelöscht werden. Es wurde nichts geändert.</translation>
    </message>
    <message id="qtn_caln_delete_read_only">
        <source>“%1” can only be read, not deleted.</source>
        <extracomment>%1 is the title of a note.</extracomment>
        <translation>„%1“ kann nur gelesen, nicht gelöscht werden.</translation>
    </message>
    <message id="qtn_caln_undo_failed">
        <source>“%1” is back, but it could not be saved yet.</source>
        <extracomment>%1 is the title of a note that was deleted.</extracomment>
        <translation>„%1“ ist wieder da, konnte aber noch nicht gespeichert werden.</translation>
    </message>
    <message id="qtn_caln_open_link">
        <source>Open this with another program?</source>
        <extracomment>Above the address of a link or an attachment.</extracomment>
        <translation>Mit einem anderen Programm öffnen?</translation>
    </message>
    <message id="qtn_comm_open">
        <source>Open</source>
        <extracomment>Button.</extracomment>
        <translation>Öffnen</translation>
    </message>
    <message id="qtn_comm_cancel">
        <source>Cancel</source>
        <extracomment>Button.</extracomment>
        <translation>Abbrechen</translation>
    </message>
    <message id="qtn_comm_undo">
        <source>Undo</source>
        <extracomment>Button.</extracomment>
        <translation>Rückgängig</translation>
    </message>
    <message id="qtn_comm_command_ok">
        <source>OK</source>
        <extracomment>Button of a dialog.</extracomment>
        <translation>OK</translation>
    </message>
    <message id="qtn_comm_command_cancel">
        <source>Cancel</source>
        <extracomment>Button of a dialog.</extracomment>
        <translation>Abbrechen</translation>
    </message>
    <message id="qtn_comm_command_yes">
        <source>Yes</source>
        <extracomment>Button of a question.</extracomment>
        <translation>Ja</translation>
    </message>
    <message id="qtn_comm_command_no">
        <source>No</source>
        <extracomment>Button of a question.</extracomment>
        <translation>Nein</translation>
    </message>
    <message id="qtn_comm_command_back">
        <source>Back</source>
        <extracomment>Name of the button that leaves a page.</extracomment>
        <translation>Zurück</translation>
    </message>
    <message id="qtn_comm_command_close">
        <source>Close</source>
        <extracomment>Name of the button that closes a page or a sheet.</extracomment>
        <translation>Schließen</translation>
    </message>
    <message id="qtn_comm_more_actions">
        <source>More actions</source>
        <extracomment>Name of the button that opens the menu of a page.</extracomment>
        <translation>Weitere Aktionen</translation>
    </message>
</context>
</TS>
