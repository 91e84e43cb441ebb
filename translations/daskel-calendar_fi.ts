<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!--
SPDX-FileCopyrightText: 2026 The daskel authors
SPDX-License-Identifier: LGPL-2.1-or-later
-->
<TS version="2.1" language="fi" sourcelanguage="en">
<context>
    <message id="qtn_dcal_today_date">
        <source>%1 · today</source>
        <extracomment>Header of the present day in the agenda; %1 is the date.</extracomment>
        <translation>%1 · tänään</translation>
    </message>
    <message id="qtn_dcal_overdue">
        <source>Overdue</source>
        <extracomment>Group of to-dos that should have been done by now.</extracomment>
        <translation>Myöhässä</translation>
    </message>
    <message id="qtn_dcal_today">
        <source>Today</source>
        <extracomment>Group of to-dos for the present day.</extracomment>
        <translation>Tänään</translation>
    </message>
    <message id="qtn_dcal_this_week">
        <source>This week</source>
        <extracomment>Group of to-dos for the days until the week ends.</extracomment>
        <translation>Tällä viikolla</translation>
    </message>
    <message id="qtn_dcal_later">
        <source>Later</source>
        <extracomment>Group of to-dos due after this week.</extracomment>
        <translation>Myöhemmin</translation>
    </message>
    <message id="qtn_dcal_without_date">
        <source>Without date</source>
        <extracomment>Group of to-dos that are not due on any day.</extracomment>
        <translation>Ilman päivää</translation>
    </message>
    <message id="qtn_dcal_done">
        <source>Done</source>
        <extracomment>Group of to-dos that are done.</extracomment>
        <translation>Tehdyt</translation>
    </message>
    <message id="qtn_dcal_calendar">
        <source>Calendar</source>
        <extracomment>Name of the application.</extracomment>
        <translation>Kalenteri</translation>
    </message>
    <message id="qtn_dcal_agenda">
        <source>Agenda</source>
        <extracomment>Page that lists what happens day by day.</extracomment>
        <translation>Agenda</translation>
    </message>
    <message id="qtn_dcal_todos">
        <source>To-dos</source>
        <extracomment>Page of to-dos.</extracomment>
        <translation>Tehtävät</translation>
    </message>
    <message id="qtn_dcal_notes">
        <source>Notes</source>
        <extracomment>Page of notes.</extracomment>
        <translation>Muistiinpanot</translation>
    </message>
    <message id="qtn_dcal_event">
        <source>Event</source>
        <extracomment>Title of the page of one event.</extracomment>
        <translation>Tapahtuma</translation>
    </message>
    <message id="qtn_dcal_todo">
        <source>To-do</source>
        <extracomment>Title of the page of one to-do.</extracomment>
        <translation>Tehtävä</translation>
    </message>
    <message id="qtn_dcal_note">
        <source>Note</source>
        <extracomment>Title of the page of one note.</extracomment>
        <translation>Muistiinpano</translation>
    </message>
    <message id="qtn_dcal_jump_to_date">
        <source>Go to date</source>
        <extracomment>Title of the dialog to choose a date, and name of the button that opens it.</extracomment>
        <translation>Siirry päivään</translation>
    </message>
    <message id="qtn_dcal_no_events">
        <source>Nothing is planned yet. Bring your calendar along from a file.</source>
        <extracomment>Agenda of an empty calendar.</extracomment>
        <translation>Mitään ei ole vielä suunniteltu. Tuo kalenterisi tiedostosta.</translation>
    </message>
    <message id="qtn_dcal_no_todos">
        <source>Nothing to do. Enjoy the day!</source>
        <extracomment>Page of to-dos without any.</extracomment>
        <translation>Ei tehtävää. Nauti päivästä!</translation>
    </message>
    <message id="qtn_dcal_no_notes">
        <source>No notes yet.</source>
        <extracomment>Page of notes without any.</extracomment>
        <translation>Ei vielä muistiinpanoja.</translation>
    </message>
    <message id="qtn_dcal_import">
        <source>Import files</source>
        <extracomment>Button that chooses iCalendar files to take in.</extracomment>
        <translation>Tuo tiedostoja</translation>
    </message>
    <message id="qtn_dcal_calendar_files">
        <source>Calendar files</source>
        <extracomment>Kind of files in the dialog that chooses them.</extracomment>
        <translation>Kalenteritiedostot</translation>
    </message>
    <message id="qtn_dcal_imported" numerus="yes">
        <source>%n items imported.</source>
        <extracomment>Banner after files were taken in.</extracomment>
        <translation>
            <numerusform>%Ln kohde tuotu.</numerusform>
            <numerusform>%Ln kohdetta tuotu.</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_import_skipped" numerus="yes">
        <source>%n could not be read.</source>
        <extracomment>Follows the number of items imported.</extracomment>
        <translation>
            <numerusform>%Ln ei ollut luettavissa.</numerusform>
            <numerusform>%Ln ei ollut luettavissa.</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_import_unreadable">
        <source>This is no calendar file that can be read.</source>
        <extracomment>Banner when nothing in the files could be read.</extracomment>
        <translation>Tämä ei ole luettava kalenteritiedosto.</translation>
    </message>
    <message id="qtn_dcal_import_failed">
        <source>Nothing was imported. %1</source>
        <extracomment>Banner when nothing was imported; %1 says why.</extracomment>
        <translation>Mitään ei tuotu. %1</translation>
    </message>
    <message id="qtn_dcal_try_again">
        <source>Try again</source>
        <extracomment>Button on the page that tells of a failure.</extracomment>
        <translation>Yritä uudelleen</translation>
    </message>
    <message id="qtn_dcal_open_locked">
        <source>Another program is using your calendar. Nothing is lost: close it and try again.</source>
        <extracomment>The database is in use.</extracomment>
        <translation>Toinen ohjelma käyttää kalenteriasi. Mitään ei ole kadonnut: sulje se ja yritä uudelleen.</translation>
    </message>
    <message id="qtn_dcal_open_forbidden">
        <source>Your calendar file cannot be opened for writing. Nothing is lost: check its permissions and try again.</source>
        <extracomment>The database file may not be read or written.</extracomment>
        <translation>Kalenteritiedostoa ei voi avata kirjoittamista varten. Mitään ei ole kadonnut: tarkista oikeudet ja yritä uudelleen.</translation>
    </message>
    <message id="qtn_dcal_open_damaged">
        <source>Your calendar file is damaged and was left as it is. Put a copy of it back and try again.</source>
        <extracomment>The database file is damaged.</extracomment>
        <translation>Kalenteritiedosto on vahingoittunut, eikä siihen koskettu. Palauta kopio ja yritä uudelleen.</translation>
    </message>
    <message id="qtn_dcal_open_full">
        <source>The disk is full. Nothing is lost: make some room and try again.</source>
        <extracomment>No room to open the database.</extracomment>
        <translation>Levy on täynnä. Mitään ei ole kadonnut: vapauta tilaa ja yritä uudelleen.</translation>
    </message>
    <message id="qtn_dcal_open_failed">
        <source>Your calendar cannot be opened now. It was left as it is.</source>
        <extracomment>The database cannot be opened for another reason.</extracomment>
        <translation>Kalenteriasi ei voi nyt avata. Siihen ei koskettu.</translation>
    </message>
    <message id="qtn_dcal_save_locked">
        <source>Not saved: another program is using your calendar.</source>
        <extracomment>A change could not be written: the database is in use.</extracomment>
        <translation>Ei tallennettu: toinen ohjelma käyttää kalenteriasi.</translation>
    </message>
    <message id="qtn_dcal_save_forbidden">
        <source>Not saved: your calendar file is read-only.</source>
        <extracomment>A change could not be written: no permission.</extracomment>
        <translation>Ei tallennettu: kalenteritiedosto on vain luettava.</translation>
    </message>
    <message id="qtn_dcal_save_damaged">
        <source>Not saved: your calendar file is damaged.</source>
        <extracomment>A change could not be written: the file is damaged.</extracomment>
        <translation>Ei tallennettu: kalenteritiedosto on vahingoittunut.</translation>
    </message>
    <message id="qtn_dcal_save_full">
        <source>Not saved: the disk is full.</source>
        <extracomment>A change could not be written: no room.</extracomment>
        <translation>Ei tallennettu: levy on täynnä.</translation>
    </message>
    <message id="qtn_dcal_save_failed">
        <source>Not saved: your calendar cannot be written now.</source>
        <extracomment>A change could not be written for another reason.</extracomment>
        <translation>Ei tallennettu: kalenteriin ei voi nyt kirjoittaa.</translation>
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
        <translation>Määräaika: %1</translation>
    </message>
    <message id="qtn_dcal_repeats">
        <source>Repeats</source>
        <extracomment>Of a note that repeats in a way that has no short name.</extracomment>
        <translation>Toistuu</translation>
    </message>
    <message id="qtn_dcal_every_minutes" numerus="yes">
        <source>Repeats every %n minutes</source>
        <extracomment>How often a note repeats.</extracomment>
        <translation>
            <numerusform>Toistuu joka minuutti</numerusform>
            <numerusform>Toistuu %Ln minuutin välein</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_every_hours" numerus="yes">
        <source>Repeats every %n hours</source>
        <extracomment>How often a note repeats.</extracomment>
        <translation>
            <numerusform>Toistuu joka tunti</numerusform>
            <numerusform>Toistuu %Ln tunnin välein</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_every_days" numerus="yes">
        <source>Repeats every %n days</source>
        <extracomment>How often a note repeats.</extracomment>
        <translation>
            <numerusform>Toistuu joka päivä</numerusform>
            <numerusform>Toistuu %Ln päivän välein</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_every_weeks" numerus="yes">
        <source>Repeats every %n weeks</source>
        <extracomment>How often a note repeats.</extracomment>
        <translation>
            <numerusform>Toistuu joka viikko</numerusform>
            <numerusform>Toistuu %Ln viikon välein</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_every_months" numerus="yes">
        <source>Repeats every %n months</source>
        <extracomment>How often a note repeats.</extracomment>
        <translation>
            <numerusform>Toistuu joka kuukausi</numerusform>
            <numerusform>Toistuu %Ln kuukauden välein</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_every_years" numerus="yes">
        <source>Repeats every %n years</source>
        <extracomment>How often a note repeats.</extracomment>
        <translation>
            <numerusform>Toistuu joka vuosi</numerusform>
            <numerusform>Toistuu %Ln vuoden välein</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_repeats_on">
        <source>%1 on %2</source>
        <extracomment>%1 is how often, such as "Repeats every week", %2 the weekdays.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message id="qtn_dcal_repeats_until">
        <source>%1 until %2</source>
        <extracomment>%1 is how often, %2 the last day.</extracomment>
        <translation>%1, viimeinen päivä %2</translation>
    </message>
    <message id="qtn_dcal_repeats_times" numerus="yes">
        <source>%1, %n times</source>
        <extracomment>%1 is how often, %n the number of times in all.</extracomment>
        <translation>
            <numerusform>%1, kerran</numerusform>
            <numerusform>%1, %Ln kertaa</numerusform>
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
        <translation>Alkaessa</translation>
    </message>
    <message id="qtn_dcal_minutes_before" numerus="yes">
        <source>%n minutes before</source>
        <extracomment>When a reminder rings.</extracomment>
        <translation>
            <numerusform>%Ln minuutti ennen</numerusform>
            <numerusform>%Ln minuuttia ennen</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_hours_before" numerus="yes">
        <source>%n hours before</source>
        <extracomment>When a reminder rings.</extracomment>
        <translation>
            <numerusform>%Ln tunti ennen</numerusform>
            <numerusform>%Ln tuntia ennen</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_days_before" numerus="yes">
        <source>%n days before</source>
        <extracomment>When a reminder rings.</extracomment>
        <translation>
            <numerusform>%Ln päivä ennen</numerusform>
            <numerusform>%Ln päivää ennen</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_minutes_after" numerus="yes">
        <source>%n minutes after</source>
        <extracomment>When a reminder rings.</extracomment>
        <translation>
            <numerusform>%Ln minuutti jälkeen</numerusform>
            <numerusform>%Ln minuuttia jälkeen</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_hours_after" numerus="yes">
        <source>%n hours after</source>
        <extracomment>When a reminder rings.</extracomment>
        <translation>
            <numerusform>%Ln tunti jälkeen</numerusform>
            <numerusform>%Ln tuntia jälkeen</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_days_after" numerus="yes">
        <source>%n days after</source>
        <extracomment>When a reminder rings.</extracomment>
        <translation>
            <numerusform>%Ln päivä jälkeen</numerusform>
            <numerusform>%Ln päivää jälkeen</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_accepted">
        <source>coming</source>
        <extracomment>What a participant answered.</extracomment>
        <translation>tulossa</translation>
    </message>
    <message id="qtn_dcal_declined">
        <source>not coming</source>
        <extracomment>What a participant answered.</extracomment>
        <translation>ei tule</translation>
    </message>
    <message id="qtn_dcal_maybe">
        <source>maybe coming</source>
        <extracomment>What a participant answered.</extracomment>
        <translation>tulee ehkä</translation>
    </message>
    <message id="qtn_dcal_no_answer">
        <source>no answer yet</source>
        <extracomment>A participant did not answer.</extracomment>
        <translation>ei vielä vastausta</translation>
    </message>
    <message id="qtn_dcal_participant">
        <source>%1 · %2</source>
        <extracomment>%1 is a name, %2 what the participant answered.</extracomment>
        <translation>%1 · %2</translation>
    </message>
    <message id="qtn_dcal_organizer">
        <source>%1 · invites</source>
        <extracomment>%1 is the name of who invites.</extracomment>
        <translation>%1 · kutsuja</translation>
    </message>
    <message id="qtn_dcal_place">
        <source>Place</source>
        <extracomment>Caption above where a note takes place.</extracomment>
        <translation>Paikka</translation>
    </message>
    <message id="qtn_dcal_show_map">
        <source>Show on map</source>
        <extracomment>Button that opens a map of the place.</extracomment>
        <translation>Näytä kartalla</translation>
    </message>
    <message id="qtn_dcal_reminders">
        <source>Reminders</source>
        <extracomment>Caption above the reminders of a note.</extracomment>
        <translation>Muistutukset</translation>
    </message>
    <message id="qtn_dcal_description">
        <source>Description</source>
        <extracomment>Caption above the text of a note.</extracomment>
        <translation>Kuvaus</translation>
    </message>
    <message id="qtn_dcal_participants">
        <source>Participants</source>
        <extracomment>Caption above who takes part.</extracomment>
        <translation>Osallistujat</translation>
    </message>
    <message id="qtn_dcal_attachments">
        <source>Attachments</source>
        <extracomment>Caption above what is attached to a note.</extracomment>
        <translation>Liitteet</translation>
    </message>
    <message id="qtn_dcal_tentative">
        <source>Tentative</source>
        <extracomment>Below the title of a note that is not settled yet.</extracomment>
        <translation>Alustava</translation>
    </message>
</context>
</TS>
