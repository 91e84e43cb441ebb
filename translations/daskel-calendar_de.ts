<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!--
SPDX-FileCopyrightText: 2026 The daskel authors
SPDX-License-Identifier: LGPL-2.1-or-later
-->
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <message id="qtn_dcal_today_date">
        <source>%1 · today</source>
        <extracomment>Header of the present day in the agenda; %1 is the date.</extracomment>
        <translation>%1 · heute</translation>
    </message>
    <message id="qtn_dcal_overdue">
        <source>Overdue</source>
        <extracomment>Group of to-dos that should have been done by now.</extracomment>
        <translation>Überfällig</translation>
    </message>
    <message id="qtn_dcal_today">
        <source>Today</source>
        <extracomment>Group of to-dos for the present day.</extracomment>
        <translation>Heute</translation>
    </message>
    <message id="qtn_dcal_this_week">
        <source>This week</source>
        <extracomment>Group of to-dos for the days until the week ends.</extracomment>
        <translation>Diese Woche</translation>
    </message>
    <message id="qtn_dcal_later">
        <source>Later</source>
        <extracomment>Group of to-dos due after this week.</extracomment>
        <translation>Später</translation>
    </message>
    <message id="qtn_dcal_without_date">
        <source>Without date</source>
        <extracomment>Group of to-dos that are not due on any day.</extracomment>
        <translation>Ohne Datum</translation>
    </message>
    <message id="qtn_dcal_done">
        <source>Done</source>
        <extracomment>Group of to-dos that are done.</extracomment>
        <translation>Erledigt</translation>
    </message>
    <message id="qtn_dcal_calendar">
        <source>Calendar</source>
        <extracomment>Name of the application.</extracomment>
        <translation>Kalender</translation>
    </message>
    <message id="qtn_dcal_agenda">
        <source>Agenda</source>
        <extracomment>Page that lists what happens day by day.</extracomment>
        <translation>Agenda</translation>
    </message>
    <message id="qtn_dcal_todos">
        <source>To-dos</source>
        <extracomment>Page of to-dos.</extracomment>
        <translation>Aufgaben</translation>
    </message>
    <message id="qtn_dcal_notes">
        <source>Notes</source>
        <extracomment>Page of notes.</extracomment>
        <translation>Notizen</translation>
    </message>
    <message id="qtn_dcal_event">
        <source>Event</source>
        <extracomment>Title of the page of one event.</extracomment>
        <translation>Termin</translation>
    </message>
    <message id="qtn_dcal_todo">
        <source>To-do</source>
        <extracomment>Title of the page of one to-do.</extracomment>
        <translation>Aufgabe</translation>
    </message>
    <message id="qtn_dcal_note">
        <source>Note</source>
        <extracomment>Title of the page of one note.</extracomment>
        <translation>Notiz</translation>
    </message>
    <message id="qtn_dcal_jump_to_date">
        <source>Go to date</source>
        <extracomment>Title of the dialog to choose a date, and name of the button that opens it.</extracomment>
        <translation>Zu Datum springen</translation>
    </message>
    <message id="qtn_dcal_no_events">
        <source>Nothing is planned yet. Bring your calendar along from a file.</source>
        <extracomment>Agenda of an empty calendar.</extracomment>
        <translation>Noch ist nichts geplant. Hol deinen Kalender aus einer Datei.</translation>
    </message>
    <message id="qtn_dcal_no_todos">
        <source>Nothing to do. Enjoy the day!</source>
        <extracomment>Page of to-dos without any.</extracomment>
        <translation>Nichts zu tun. Genieße den Tag!</translation>
    </message>
    <message id="qtn_dcal_no_notes">
        <source>No notes yet.</source>
        <extracomment>Page of notes without any.</extracomment>
        <translation>Noch keine Notizen.</translation>
    </message>
    <message id="qtn_dcal_import">
        <source>Import files</source>
        <extracomment>Button that chooses iCalendar files to take in.</extracomment>
        <translation>Dateien importieren</translation>
    </message>
    <message id="qtn_dcal_calendar_files">
        <source>Calendar files</source>
        <extracomment>Kind of files in the dialog that chooses them.</extracomment>
        <translation>Kalenderdateien</translation>
    </message>
    <message id="qtn_dcal_imported" numerus="yes">
        <source>%n items imported.</source>
        <extracomment>Banner after files were taken in.</extracomment>
        <translation>
            <numerusform>%Ln Eintrag importiert.</numerusform>
            <numerusform>%Ln Einträge importiert.</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_import_skipped" numerus="yes">
        <source>%n could not be read.</source>
        <extracomment>Follows the number of items imported.</extracomment>
        <translation>
            <numerusform>%Ln war nicht lesbar.</numerusform>
            <numerusform>%Ln waren nicht lesbar.</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_import_unreadable">
        <source>This is no calendar file that can be read.</source>
        <extracomment>Banner when nothing in the files could be read.</extracomment>
        <translation>Das ist keine lesbare Kalenderdatei.</translation>
    </message>
    <message id="qtn_dcal_import_failed">
        <source>Nothing was imported. %1</source>
        <extracomment>Banner when nothing was imported; %1 says why.</extracomment>
        <translation>Nichts wurde importiert. %1</translation>
    </message>
    <message id="qtn_dcal_try_again">
        <source>Try again</source>
        <extracomment>Button on the page that tells of a failure.</extracomment>
        <translation>Erneut versuchen</translation>
    </message>
    <message id="qtn_dcal_open_locked">
        <source>Another program is using your calendar. Nothing is lost: close it and try again.</source>
        <extracomment>The database is in use.</extracomment>
        <translation>Ein anderes Programm benutzt deinen Kalender. Nichts ist verloren: Schließe es und versuche es erneut.</translation>
    </message>
    <message id="qtn_dcal_open_forbidden">
        <source>Your calendar file cannot be opened for writing. Nothing is lost: check its permissions and try again.</source>
        <extracomment>The database file may not be read or written.</extracomment>
        <translation>Deine Kalenderdatei kann nicht zum Schreiben geöffnet werden. Nichts ist verloren: Prüfe ihre Rechte und versuche es erneut.</translation>
    </message>
    <message id="qtn_dcal_open_damaged">
        <source>Your calendar file is damaged and was left as it is. Put a copy of it back and try again.</source>
        <extracomment>The database file is damaged.</extracomment>
        <translation>Deine Kalenderdatei ist beschädigt und blieb unverändert. Lege eine Kopie zurück und versuche es erneut.</translation>
    </message>
    <message id="qtn_dcal_open_full">
        <source>The disk is full. Nothing is lost: make some room and try again.</source>
        <extracomment>No room to open the database.</extracomment>
        <translation>Der Speicher ist voll. Nichts ist verloren: Schaffe Platz und versuche es erneut.</translation>
    </message>
    <message id="qtn_dcal_open_failed">
        <source>Your calendar cannot be opened now. It was left as it is.</source>
        <extracomment>The database cannot be opened for another reason.</extracomment>
        <translation>Dein Kalender kann gerade nicht geöffnet werden. Er blieb unverändert.</translation>
    </message>
    <message id="qtn_dcal_save_locked">
        <source>Not saved: another program is using your calendar.</source>
        <extracomment>A change could not be written: the database is in use.</extracomment>
        <translation>Nicht gespeichert: Ein anderes Programm benutzt deinen Kalender.</translation>
    </message>
    <message id="qtn_dcal_save_forbidden">
        <source>Not saved: your calendar file is read-only.</source>
        <extracomment>A change could not be written: no permission.</extracomment>
        <translation>Nicht gespeichert: Deine Kalenderdatei ist schreibgeschützt.</translation>
    </message>
    <message id="qtn_dcal_save_damaged">
        <source>Not saved: your calendar file is damaged.</source>
        <extracomment>A change could not be written: the file is damaged.</extracomment>
        <translation>Nicht gespeichert: Deine Kalenderdatei ist beschädigt.</translation>
    </message>
    <message id="qtn_dcal_save_full">
        <source>Not saved: the disk is full.</source>
        <extracomment>A change could not be written: no room.</extracomment>
        <translation>Nicht gespeichert: Der Speicher ist voll.</translation>
    </message>
    <message id="qtn_dcal_save_failed">
        <source>Not saved: your calendar cannot be written now.</source>
        <extracomment>A change could not be written for another reason.</extracomment>
        <translation>Nicht gespeichert: Dein Kalender ist gerade nicht beschreibbar.</translation>
    </message>
    <message id="qtn_dcal_day_and_time">
        <source>%1, %2</source>
        <extracomment>A moment: %1 is the day, %2 the time of day.</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message id="qtn_dcal_from_to">
        <source>%1 – %2</source>
        <extracomment>A stretch of time: %1 is its start, %2 its end.</extracomment>
        <translation>%1 – %2</translation>
    </message>
    <message id="qtn_dcal_due">
        <source>Due %1</source>
        <extracomment>When a to-do is to be done.</extracomment>
        <translation>Fällig: %1</translation>
    </message>
    <message id="qtn_dcal_repeats">
        <source>Repeats</source>
        <extracomment>Of a note that repeats in a way that has no short name.</extracomment>
        <translation>Wiederholt sich</translation>
    </message>
    <message id="qtn_dcal_every_minutes" numerus="yes">
        <source>Repeats every %n minutes</source>
        <extracomment>How often a note repeats.</extracomment>
        <translation>
            <numerusform>Jede Minute</numerusform>
            <numerusform>Alle %Ln Minuten</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_every_hours" numerus="yes">
        <source>Repeats every %n hours</source>
        <extracomment>How often a note repeats.</extracomment>
        <translation>
            <numerusform>Jede Stunde</numerusform>
            <numerusform>Alle %Ln Stunden</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_every_days" numerus="yes">
        <source>Repeats every %n days</source>
        <extracomment>How often a note repeats.</extracomment>
        <translation>
            <numerusform>Jeden Tag</numerusform>
            <numerusform>Alle %Ln Tage</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_every_weeks" numerus="yes">
        <source>Repeats every %n weeks</source>
        <extracomment>How often a note repeats.</extracomment>
        <translation>
            <numerusform>Jede Woche</numerusform>
            <numerusform>Alle %Ln Wochen</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_every_months" numerus="yes">
        <source>Repeats every %n months</source>
        <extracomment>How often a note repeats.</extracomment>
        <translation>
            <numerusform>Jeden Monat</numerusform>
            <numerusform>Alle %Ln Monate</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_every_years" numerus="yes">
        <source>Repeats every %n years</source>
        <extracomment>How often a note repeats.</extracomment>
        <translation>
            <numerusform>Jedes Jahr</numerusform>
            <numerusform>Alle %Ln Jahre</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_repeats_on">
        <source>%1 on %2</source>
        <extracomment>%1 is how often, such as "Repeats every week", %2 the weekdays.</extracomment>
        <translation>%1 am %2</translation>
    </message>
    <message id="qtn_dcal_repeats_until">
        <source>%1 until %2</source>
        <extracomment>%1 is how often, %2 the last day.</extracomment>
        <translation>%1 bis %2</translation>
    </message>
    <message id="qtn_dcal_repeats_times" numerus="yes">
        <source>%1, %n times</source>
        <extracomment>%1 is how often, %n the number of times in all.</extracomment>
        <translation>
            <numerusform>%1, einmal</numerusform>
            <numerusform>%1, %Ln-mal</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_list_separator">
        <source>, </source>
        <extracomment>Stands between the items of a list.</extracomment>
        <translation>, </translation>
    </message>
    <message id="qtn_dcal_at_start">
        <source>At the start</source>
        <extracomment>A reminder at the moment when the note begins.</extracomment>
        <translation>Zu Beginn</translation>
    </message>
    <message id="qtn_dcal_minutes_before" numerus="yes">
        <source>%n minutes before</source>
        <extracomment>When a reminder rings.</extracomment>
        <translation>
            <numerusform>%Ln Minute vorher</numerusform>
            <numerusform>%Ln Minuten vorher</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_hours_before" numerus="yes">
        <source>%n hours before</source>
        <extracomment>When a reminder rings.</extracomment>
        <translation>
            <numerusform>%Ln Stunde vorher</numerusform>
            <numerusform>%Ln Stunden vorher</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_days_before" numerus="yes">
        <source>%n days before</source>
        <extracomment>When a reminder rings.</extracomment>
        <translation>
            <numerusform>%Ln Tag vorher</numerusform>
            <numerusform>%Ln Tage vorher</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_minutes_after" numerus="yes">
        <source>%n minutes after</source>
        <extracomment>When a reminder rings.</extracomment>
        <translation>
            <numerusform>%Ln Minute danach</numerusform>
            <numerusform>%Ln Minuten danach</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_hours_after" numerus="yes">
        <source>%n hours after</source>
        <extracomment>When a reminder rings.</extracomment>
        <translation>
            <numerusform>%Ln Stunde danach</numerusform>
            <numerusform>%Ln Stunden danach</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_days_after" numerus="yes">
        <source>%n days after</source>
        <extracomment>When a reminder rings.</extracomment>
        <translation>
            <numerusform>%Ln Tag danach</numerusform>
            <numerusform>%Ln Tage danach</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_accepted">
        <source>coming</source>
        <extracomment>What a participant answered.</extracomment>
        <translation>kommt</translation>
    </message>
    <message id="qtn_dcal_declined">
        <source>not coming</source>
        <extracomment>What a participant answered.</extracomment>
        <translation>kommt nicht</translation>
    </message>
    <message id="qtn_dcal_maybe">
        <source>maybe coming</source>
        <extracomment>What a participant answered.</extracomment>
        <translation>kommt vielleicht</translation>
    </message>
    <message id="qtn_dcal_no_answer">
        <source>no answer yet</source>
        <extracomment>A participant did not answer.</extracomment>
        <translation>noch keine Antwort</translation>
    </message>
    <message id="qtn_dcal_participant">
        <source>%1 · %2</source>
        <extracomment>%1 is a name, %2 what the participant answered.</extracomment>
        <translation>%1 · %2</translation>
    </message>
    <message id="qtn_dcal_organizer">
        <source>%1 · invites</source>
        <extracomment>%1 is the name of who invites.</extracomment>
        <translation>%1 · lädt ein</translation>
    </message>
    <message id="qtn_dcal_place">
        <source>Place</source>
        <extracomment>Caption above where a note takes place.</extracomment>
        <translation>Ort</translation>
    </message>
    <message id="qtn_dcal_show_map">
        <source>Show on map</source>
        <extracomment>Button that opens a map of the place.</extracomment>
        <translation>Auf der Karte zeigen</translation>
    </message>
    <message id="qtn_dcal_reminders">
        <source>Reminders</source>
        <extracomment>Caption above the reminders of a note.</extracomment>
        <translation>Erinnerungen</translation>
    </message>
    <message id="qtn_dcal_description">
        <source>Description</source>
        <extracomment>Caption above the text of a note.</extracomment>
        <translation>Beschreibung</translation>
    </message>
    <message id="qtn_dcal_participants">
        <source>Participants</source>
        <extracomment>Caption above who takes part.</extracomment>
        <translation>Teilnehmer</translation>
    </message>
    <message id="qtn_dcal_attachments">
        <source>Attachments</source>
        <extracomment>Caption above what is attached to a note.</extracomment>
        <translation>Anhänge</translation>
    </message>
    <message id="qtn_dcal_tentative">
        <source>Tentative</source>
        <extracomment>Below the title of a note that is not settled yet.</extracomment>
        <translation>Unter Vorbehalt</translation>
    </message>
</context>
</TS>
