<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!--
SPDX-FileCopyrightText: 2026 The daskel authors
SPDX-License-Identifier: LGPL-2.1-or-later
-->
<TS version="2.1" language="fi" sourcelanguage="en">
<context>
    <message id="qtn_caln_personal_caln">
        <source>Personal</source>
        <extracomment>Name of the notebook that every calendar starts with.</extracomment>
        <translation>Oma</translation>
    </message>
    <message id="qtn_caln_notes_caln">
        <source>Notes</source>
        <extracomment>Name of the notebook that holds journals only.</extracomment>
        <translation>Muistiinpanot</translation>
    </message>
    <message id="qtn_caln_no_title">
        <source>No title</source>
        <extracomment>In place of the title of a note that has none.</extracomment>
        <translation>Ei otsikkoa</translation>
    </message>
    <message id="qtn_caln_no_events_today">
        <source>Nothing today</source>
        <extracomment>In place of the notes of a day that has none.</extracomment>
        <translation>Ei mitään tänään</translation>
    </message>
    <message id="qtn_caln_all_day">
        <source>All day</source>
        <extracomment>In place of a time of day. Little room.</extracomment>
        <translation>Koko pv</translation>
    </message>
    <message id="qtn_caln_until">
        <source>until</source>
        <extracomment>Above a date or a time of day, on the later days of something long. Little room.</extracomment>
        <translation>päättyy</translation>
    </message>
    <message id="qtn_comm_today">
        <source>Today</source>
        <extracomment>In place of a date.</extracomment>
        <translation>Tänään</translation>
    </message>
    <message id="qtn_caln_completed">
        <source>Done</source>
        <extracomment>Said of a to-do.</extracomment>
        <translation>Tehty</translation>
    </message>
    <message id="qtn_caln_overdue">
        <source>Overdue</source>
        <extracomment>Said of a to-do.</extracomment>
        <translation>Myöhässä</translation>
    </message>
    <message id="qtn_caln_cancelled">
        <source>Cancelled</source>
        <extracomment>Said of an event.</extracomment>
        <translation>Peruttu</translation>
    </message>
    <message id="qtn_caln_mark_compl">
        <source>Mark as done</source>
        <extracomment>Menu of a to-do.</extracomment>
        <translation>Merkitse tehdyksi</translation>
    </message>
    <message id="qtn_caln_mark_uncompl">
        <source>Mark as not done</source>
        <extracomment>Menu of a to-do that is done.</extracomment>
        <translation>Merkitse tekemättömäksi</translation>
    </message>
    <message id="qtn_comm_edit">
        <source>Edit</source>
        <extracomment>Menu of a note.</extracomment>
        <translation>Muokkaa</translation>
    </message>
    <message id="qtn_comm_command_delete">
        <source>Delete</source>
        <extracomment>Menu of a note, and the button that does it.</extracomment>
        <translation>Poista</translation>
    </message>
    <message id="qtn_caln_delete_question">
        <source>Delete “%1”?</source>
        <extracomment>%1 is the title of a note.</extracomment>
        <translation>Poistetaanko ”%1”?</translation>
    </message>
    <message id="qtn_caln_delete_repeating">
        <source>“%1” repeats. How much of it do you want to delete?</source>
        <extracomment>%1 is the title of a note. Below are buttons for this one, for this and all later ones, and for the series.</extracomment>
        <translation>”%1” toistuu. Kuinka suuren osan haluat poistaa?</translation>
    </message>
    <message id="qtn_caln_delete_this">
        <source>Delete this one</source>
        <extracomment>Button: one occurrence of a repeating note.</extracomment>
        <translation>Poista vain tämä</translation>
    </message>
    <message id="qtn_caln_delete_later">
        <source>Delete this and later ones</source>
        <extracomment>Button: an occurrence of a repeating note and those after it.</extracomment>
        <translation>Poista tämä ja myöhemmät</translation>
    </message>
    <message id="qtn_caln_delete_series">
        <source>Delete series</source>
        <extracomment>Button: all occurrences of a repeating note.</extracomment>
        <translation>Poista koko sarja</translation>
    </message>
    <message id="qtn_caln_deleted">
        <source>“%1” deleted</source>
        <extracomment>Beside a button to undo it. %1 is the title of a note.</extracomment>
        <translation>”%1” poistettu</translation>
    </message>
    <message id="qtn_caln_delete_failed">
        <source>“%1” could not be deleted. Nothing was changed.</source>
        <extracomment>%1 is the title of a note.</extracomment>
        <translation>”%1” ei poistunut. Mitään ei muutettu.</translation>
    </message>
    <message id="qtn_caln_delete_read_only">
        <source>“%1” can only be read, not deleted.</source>
        <extracomment>%1 is the title of a note.</extracomment>
        <translation>”%1” on vain luettavissa, eikä sitä voi poistaa.</translation>
    </message>
    <message id="qtn_caln_undo_failed">
        <source>“%1” is back, but it could not be saved yet.</source>
        <extracomment>%1 is the title of a note that was deleted.</extracomment>
        <translation>”%1” on palautettu, mutta sitä ei voitu vielä tallentaa.</translation>
    </message>
    <message id="qtn_caln_open_link">
        <source>Open this with another program?</source>
        <extracomment>Above the address of a link or an attachment.</extracomment>
        <translation>Avataanko toisella ohjelmalla?</translation>
    </message>
    <message id="qtn_comm_open">
        <source>Open</source>
        <extracomment>Button.</extracomment>
        <translation>Avaa</translation>
    </message>
    <message id="qtn_comm_cancel">
        <source>Cancel</source>
        <extracomment>Button.</extracomment>
        <translation>Peruuta</translation>
    </message>
    <message id="qtn_comm_undo">
        <source>Undo</source>
        <extracomment>Button.</extracomment>
        <translation>Kumoa</translation>
    </message>
    <message id="qtn_comm_command_ok">
        <source>OK</source>
        <extracomment>Button of a dialog.</extracomment>
        <translation>OK</translation>
    </message>
    <message id="qtn_comm_command_cancel">
        <source>Cancel</source>
        <extracomment>Button of a dialog.</extracomment>
        <translation>Peruuta</translation>
    </message>
    <message id="qtn_comm_command_yes">
        <source>Yes</source>
        <extracomment>Button of a question.</extracomment>
        <translation>Kyllä</translation>
    </message>
    <message id="qtn_comm_command_no">
        <source>No</source>
        <extracomment>Button of a question.</extracomment>
        <translation>Ei</translation>
    </message>
    <message id="qtn_comm_command_back">
        <source>Back</source>
        <extracomment>Name of the button that leaves a page.</extracomment>
        <translation>Takaisin</translation>
    </message>
    <message id="qtn_comm_command_close">
        <source>Close</source>
        <extracomment>Name of the button that closes a page or a sheet.</extracomment>
        <translation>Sulje</translation>
    </message>
    <message id="qtn_comm_more_actions">
        <source>More actions</source>
        <extracomment>Name of the button that opens the menu of a page.</extracomment>
        <translation>Lisää toimintoja</translation>
    </message>
</context>
</TS>
