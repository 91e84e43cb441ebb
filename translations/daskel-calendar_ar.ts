<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!--
SPDX-FileCopyrightText: 2026 The daskel authors
SPDX-License-Identifier: LGPL-2.1-or-later
-->
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <message id="qtn_dcal_today_date">
        <source>%1 · today</source>
        <extracomment>Header of the present day in the agenda; %1 is the date.</extracomment>
        <translation>%1 · اليوم</translation>
    </message>
    <message id="qtn_dcal_overdue">
        <source>Overdue</source>
        <extracomment>Group of to-dos that should have been done by now.</extracomment>
        <translation>متأخرة</translation>
    </message>
    <message id="qtn_dcal_today">
        <source>Today</source>
        <extracomment>Group of to-dos for the present day.</extracomment>
        <translation>اليوم</translation>
    </message>
    <message id="qtn_dcal_this_week">
        <source>This week</source>
        <extracomment>Group of to-dos for the days until the week ends.</extracomment>
        <translation>هذا الأسبوع</translation>
    </message>
    <message id="qtn_dcal_later">
        <source>Later</source>
        <extracomment>Group of to-dos due after this week.</extracomment>
        <translation>لاحقًا</translation>
    </message>
    <message id="qtn_dcal_without_date">
        <source>Without date</source>
        <extracomment>Group of to-dos that are not due on any day.</extracomment>
        <translation>بلا تاريخ</translation>
    </message>
    <message id="qtn_dcal_done">
        <source>Done</source>
        <extracomment>Group of to-dos that are done.</extracomment>
        <translation>تم إنجازها</translation>
    </message>
    <message id="qtn_dcal_calendar">
        <source>Calendar</source>
        <extracomment>Name of the application.</extracomment>
        <translation>التقويم</translation>
    </message>
    <message id="qtn_dcal_agenda">
        <source>Agenda</source>
        <extracomment>Page that lists what happens day by day.</extracomment>
        <translation>الأجندة</translation>
    </message>
    <message id="qtn_dcal_todos">
        <source>To-dos</source>
        <extracomment>Page of to-dos.</extracomment>
        <translation>المهام</translation>
    </message>
    <message id="qtn_dcal_notes">
        <source>Notes</source>
        <extracomment>Page of notes.</extracomment>
        <translation>الملاحظات</translation>
    </message>
    <message id="qtn_dcal_event">
        <source>Event</source>
        <extracomment>Title of the page of one event.</extracomment>
        <translation>حدث</translation>
    </message>
    <message id="qtn_dcal_todo">
        <source>To-do</source>
        <extracomment>Title of the page of one to-do.</extracomment>
        <translation>مهمة</translation>
    </message>
    <message id="qtn_dcal_note">
        <source>Note</source>
        <extracomment>Title of the page of one note.</extracomment>
        <translation>ملاحظة</translation>
    </message>
    <message id="qtn_dcal_jump_to_date">
        <source>Go to date</source>
        <extracomment>Title of the dialog to choose a date, and name of the button that opens it.</extracomment>
        <translation>الانتقال إلى تاريخ</translation>
    </message>
    <message id="qtn_dcal_no_events">
        <source>Nothing is planned yet. Bring your calendar along from a file.</source>
        <extracomment>Agenda of an empty calendar.</extracomment>
        <translation>لا شيء مخطط له بعد. أحضر تقويمك من ملف.</translation>
    </message>
    <message id="qtn_dcal_no_todos">
        <source>Nothing to do. Enjoy the day!</source>
        <extracomment>Page of to-dos without any.</extracomment>
        <translation>لا شيء لتفعله. استمتع بيومك!</translation>
    </message>
    <message id="qtn_dcal_no_notes">
        <source>No notes yet.</source>
        <extracomment>Page of notes without any.</extracomment>
        <translation>لا ملاحظات بعد.</translation>
    </message>
    <message id="qtn_dcal_import">
        <source>Import files</source>
        <extracomment>Button that chooses iCalendar files to take in.</extracomment>
        <translation>استيراد ملفات</translation>
    </message>
    <message id="qtn_dcal_calendar_files">
        <source>Calendar files</source>
        <extracomment>Kind of files in the dialog that chooses them.</extracomment>
        <translation>ملفات التقويم</translation>
    </message>
    <message id="qtn_dcal_imported" numerus="yes">
        <source>%n items imported.</source>
        <extracomment>Banner after files were taken in.</extracomment>
        <translation>
            <numerusform>لم يُستورد أي عنصر.</numerusform>
            <numerusform>استُورد عنصر واحد.</numerusform>
            <numerusform>استُورد عنصران.</numerusform>
            <numerusform>استُوردت %Ln عناصر.</numerusform>
            <numerusform>استُورد %Ln عنصرًا.</numerusform>
            <numerusform>استُورد %Ln عنصر.</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_import_skipped" numerus="yes">
        <source>%n could not be read.</source>
        <extracomment>Follows the number of items imported.</extracomment>
        <translation>
            <numerusform>قُرئت كلها.</numerusform>
            <numerusform>تعذرت قراءة عنصر واحد.</numerusform>
            <numerusform>تعذرت قراءة عنصرين.</numerusform>
            <numerusform>تعذرت قراءة %Ln عناصر.</numerusform>
            <numerusform>تعذرت قراءة %Ln عنصرًا.</numerusform>
            <numerusform>تعذرت قراءة %Ln عنصر.</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_import_unreadable">
        <source>This is no calendar file that can be read.</source>
        <extracomment>Banner when nothing in the files could be read.</extracomment>
        <translation>هذا ليس ملف تقويم يمكن قراءته.</translation>
    </message>
    <message id="qtn_dcal_import_failed">
        <source>Nothing was imported. %1</source>
        <extracomment>Banner when nothing was imported; %1 says why.</extracomment>
        <translation>لم يُستورد شيء. %1</translation>
    </message>
    <message id="qtn_dcal_try_again">
        <source>Try again</source>
        <extracomment>Button on the page that tells of a failure.</extracomment>
        <translation>حاول مجددًا</translation>
    </message>
    <message id="qtn_dcal_open_locked">
        <source>Another program is using your calendar. Nothing is lost: close it and try again.</source>
        <extracomment>The database is in use.</extracomment>
        <translation>برنامج آخر يستخدم تقويمك. لم يُفقد شيء: أغلقه وحاول مجددًا.</translation>
    </message>
    <message id="qtn_dcal_open_forbidden">
        <source>Your calendar file cannot be opened for writing. Nothing is lost: check its permissions and try again.</source>
        <extracomment>The database file may not be read or written.</extracomment>
        <translation>تعذر فتح ملف تقويمك للكتابة. لم يُفقد شيء: تحقق من أذوناته وحاول مجددًا.</translation>
    </message>
    <message id="qtn_dcal_open_damaged">
        <source>Your calendar file is damaged and was left as it is. Put a copy of it back and try again.</source>
        <extracomment>The database file is damaged.</extracomment>
        <translation>ملف تقويمك تالف وتُرك كما هو. أعد نسخة منه وحاول مجددًا.</translation>
    </message>
    <message id="qtn_dcal_open_full">
        <source>The disk is full. Nothing is lost: make some room and try again.</source>
        <extracomment>No room to open the database.</extracomment>
        <translation>القرص ممتلئ. لم يُفقد شيء: وفّر بعض المساحة وحاول مجددًا.</translation>
    </message>
    <message id="qtn_dcal_open_failed">
        <source>Your calendar cannot be opened now. It was left as it is.</source>
        <extracomment>The database cannot be opened for another reason.</extracomment>
        <translation>تعذر فتح تقويمك الآن. تُرك كما هو.</translation>
    </message>
    <message id="qtn_dcal_save_locked">
        <source>Not saved: another program is using your calendar.</source>
        <extracomment>A change could not be written: the database is in use.</extracomment>
        <translation>لم يُحفظ: برنامج آخر يستخدم تقويمك.</translation>
    </message>
    <message id="qtn_dcal_save_forbidden">
        <source>Not saved: your calendar file is read-only.</source>
        <extracomment>A change could not be written: no permission.</extracomment>
        <translation>لم يُحفظ: ملف تقويمك للقراءة فقط.</translation>
    </message>
    <message id="qtn_dcal_save_damaged">
        <source>Not saved: your calendar file is damaged.</source>
        <extracomment>A change could not be written: the file is damaged.</extracomment>
        <translation>لم يُحفظ: ملف تقويمك تالف.</translation>
    </message>
    <message id="qtn_dcal_save_full">
        <source>Not saved: the disk is full.</source>
        <extracomment>A change could not be written: no room.</extracomment>
        <translation>لم يُحفظ: القرص ممتلئ.</translation>
    </message>
    <message id="qtn_dcal_save_failed">
        <source>Not saved: your calendar cannot be written now.</source>
        <extracomment>A change could not be written for another reason.</extracomment>
        <translation>لم يُحفظ: تعذرت الكتابة في تقويمك الآن.</translation>
    </message>
    <message id="qtn_dcal_day_and_time">
        <source>%1, %2</source>
        <extracomment>A moment: %1 is the day, %2 the time of day.</extracomment>
        <translation>%1، %2</translation>
    </message>
    <message id="qtn_dcal_from_to">
        <source>%1 – %2</source>
        <extracomment>A stretch of time: %1 is its start, %2 its end.</extracomment>
        <translation>%1 – %2</translation>
    </message>
    <message id="qtn_dcal_due">
        <source>Due %1</source>
        <extracomment>When a to-do is to be done.</extracomment>
        <translation>الاستحقاق: %1</translation>
    </message>
    <message id="qtn_dcal_repeats">
        <source>Repeats</source>
        <extracomment>Of a note that repeats in a way that has no short name.</extracomment>
        <translation>يتكرر</translation>
    </message>
    <message id="qtn_dcal_every_minutes" numerus="yes">
        <source>Repeats every %n minutes</source>
        <extracomment>How often a note repeats.</extracomment>
        <translation>
            <numerusform>يتكرر كل دقيقة</numerusform>
            <numerusform>يتكرر كل دقيقة</numerusform>
            <numerusform>يتكرر كل دقيقتين</numerusform>
            <numerusform>يتكرر كل %Ln دقائق</numerusform>
            <numerusform>يتكرر كل %Ln دقيقة</numerusform>
            <numerusform>يتكرر كل %Ln دقيقة</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_every_hours" numerus="yes">
        <source>Repeats every %n hours</source>
        <extracomment>How often a note repeats.</extracomment>
        <translation>
            <numerusform>يتكرر كل ساعة</numerusform>
            <numerusform>يتكرر كل ساعة</numerusform>
            <numerusform>يتكرر كل ساعتين</numerusform>
            <numerusform>يتكرر كل %Ln ساعات</numerusform>
            <numerusform>يتكرر كل %Ln ساعة</numerusform>
            <numerusform>يتكرر كل %Ln ساعة</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_every_days" numerus="yes">
        <source>Repeats every %n days</source>
        <extracomment>How often a note repeats.</extracomment>
        <translation>
            <numerusform>يتكرر كل يوم</numerusform>
            <numerusform>يتكرر كل يوم</numerusform>
            <numerusform>يتكرر كل يومين</numerusform>
            <numerusform>يتكرر كل %Ln أيام</numerusform>
            <numerusform>يتكرر كل %Ln يومًا</numerusform>
            <numerusform>يتكرر كل %Ln يوم</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_every_weeks" numerus="yes">
        <source>Repeats every %n weeks</source>
        <extracomment>How often a note repeats.</extracomment>
        <translation>
            <numerusform>يتكرر كل أسبوع</numerusform>
            <numerusform>يتكرر كل أسبوع</numerusform>
            <numerusform>يتكرر كل أسبوعين</numerusform>
            <numerusform>يتكرر كل %Ln أسابيع</numerusform>
            <numerusform>يتكرر كل %Ln أسبوعًا</numerusform>
            <numerusform>يتكرر كل %Ln أسبوع</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_every_months" numerus="yes">
        <source>Repeats every %n months</source>
        <extracomment>How often a note repeats.</extracomment>
        <translation>
            <numerusform>يتكرر كل شهر</numerusform>
            <numerusform>يتكرر كل شهر</numerusform>
            <numerusform>يتكرر كل شهرين</numerusform>
            <numerusform>يتكرر كل %Ln أشهر</numerusform>
            <numerusform>يتكرر كل %Ln شهرًا</numerusform>
            <numerusform>يتكرر كل %Ln شهر</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_every_years" numerus="yes">
        <source>Repeats every %n years</source>
        <extracomment>How often a note repeats.</extracomment>
        <translation>
            <numerusform>يتكرر كل سنة</numerusform>
            <numerusform>يتكرر كل سنة</numerusform>
            <numerusform>يتكرر كل سنتين</numerusform>
            <numerusform>يتكرر كل %Ln سنوات</numerusform>
            <numerusform>يتكرر كل %Ln سنة</numerusform>
            <numerusform>يتكرر كل %Ln سنة</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_repeats_on">
        <source>%1 on %2</source>
        <extracomment>%1 is how often, such as "Repeats every week", %2 the weekdays.</extracomment>
        <translation>%1 في %2</translation>
    </message>
    <message id="qtn_dcal_repeats_until">
        <source>%1 until %2</source>
        <extracomment>%1 is how often, %2 the last day.</extracomment>
        <translation>%1 حتى %2</translation>
    </message>
    <message id="qtn_dcal_repeats_times" numerus="yes">
        <source>%1, %n times</source>
        <extracomment>%1 is how often, %n the number of times in all.</extracomment>
        <translation>
            <numerusform>%1</numerusform>
            <numerusform>%1، مرة واحدة</numerusform>
            <numerusform>%1، مرتين</numerusform>
            <numerusform>%1، %Ln مرات</numerusform>
            <numerusform>%1، %Ln مرة</numerusform>
            <numerusform>%1، %Ln مرة</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_list_separator">
        <source>, </source>
        <extracomment>Stands between the items of a list.</extracomment>
        <translation>، </translation>
    </message>
    <message id="qtn_dcal_at_start">
        <source>At the start</source>
        <extracomment>A reminder at the moment when the note begins.</extracomment>
        <translation>عند البداية</translation>
    </message>
    <message id="qtn_dcal_minutes_before" numerus="yes">
        <source>%n minutes before</source>
        <extracomment>When a reminder rings.</extracomment>
        <translation>
            <numerusform>عند البداية</numerusform>
            <numerusform>قبل دقيقة</numerusform>
            <numerusform>قبل دقيقتين</numerusform>
            <numerusform>قبل %Ln دقائق</numerusform>
            <numerusform>قبل %Ln دقيقة</numerusform>
            <numerusform>قبل %Ln دقيقة</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_hours_before" numerus="yes">
        <source>%n hours before</source>
        <extracomment>When a reminder rings.</extracomment>
        <translation>
            <numerusform>عند البداية</numerusform>
            <numerusform>قبل ساعة</numerusform>
            <numerusform>قبل ساعتين</numerusform>
            <numerusform>قبل %Ln ساعات</numerusform>
            <numerusform>قبل %Ln ساعة</numerusform>
            <numerusform>قبل %Ln ساعة</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_days_before" numerus="yes">
        <source>%n days before</source>
        <extracomment>When a reminder rings.</extracomment>
        <translation>
            <numerusform>عند البداية</numerusform>
            <numerusform>قبل يوم</numerusform>
            <numerusform>قبل يومين</numerusform>
            <numerusform>قبل %Ln أيام</numerusform>
            <numerusform>قبل %Ln يومًا</numerusform>
            <numerusform>قبل %Ln يوم</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_minutes_after" numerus="yes">
        <source>%n minutes after</source>
        <extracomment>When a reminder rings.</extracomment>
        <translation>
            <numerusform>عند البداية</numerusform>
            <numerusform>بعد دقيقة</numerusform>
            <numerusform>بعد دقيقتين</numerusform>
            <numerusform>بعد %Ln دقائق</numerusform>
            <numerusform>بعد %Ln دقيقة</numerusform>
            <numerusform>بعد %Ln دقيقة</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_hours_after" numerus="yes">
        <source>%n hours after</source>
        <extracomment>When a reminder rings.</extracomment>
        <translation>
            <numerusform>عند البداية</numerusform>
            <numerusform>بعد ساعة</numerusform>
            <numerusform>بعد ساعتين</numerusform>
            <numerusform>بعد %Ln ساعات</numerusform>
            <numerusform>بعد %Ln ساعة</numerusform>
            <numerusform>بعد %Ln ساعة</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_days_after" numerus="yes">
        <source>%n days after</source>
        <extracomment>When a reminder rings.</extracomment>
        <translation>
            <numerusform>عند البداية</numerusform>
            <numerusform>بعد يوم</numerusform>
            <numerusform>بعد يومين</numerusform>
            <numerusform>بعد %Ln أيام</numerusform>
            <numerusform>بعد %Ln يومًا</numerusform>
            <numerusform>بعد %Ln يوم</numerusform>
        </translation>
    </message>
    <message id="qtn_dcal_accepted">
        <source>coming</source>
        <extracomment>What a participant answered.</extracomment>
        <translation>سيحضر</translation>
    </message>
    <message id="qtn_dcal_declined">
        <source>not coming</source>
        <extracomment>What a participant answered.</extracomment>
        <translation>لن يحضر</translation>
    </message>
    <message id="qtn_dcal_maybe">
        <source>maybe coming</source>
        <extracomment>What a participant answered.</extracomment>
        <translation>قد يحضر</translation>
    </message>
    <message id="qtn_dcal_no_answer">
        <source>no answer yet</source>
        <extracomment>A participant did not answer.</extracomment>
        <translation>لم يرد بعد</translation>
    </message>
    <message id="qtn_dcal_participant">
        <source>%1 · %2</source>
        <extracomment>%1 is a name, %2 what the participant answered.</extracomment>
        <translation>%1 · %2</translation>
    </message>
    <message id="qtn_dcal_organizer">
        <source>%1 · invites</source>
        <extracomment>%1 is the name of who invites.</extracomment>
        <translation>%1 · الداعي</translation>
    </message>
    <message id="qtn_dcal_place">
        <source>Place</source>
        <extracomment>Caption above where a note takes place.</extracomment>
        <translation>المكان</translation>
    </message>
    <message id="qtn_dcal_show_map">
        <source>Show on map</source>
        <extracomment>Button that opens a map of the place.</extracomment>
        <translation>عرض على الخريطة</translation>
    </message>
    <message id="qtn_dcal_reminders">
        <source>Reminders</source>
        <extracomment>Caption above the reminders of a note.</extracomment>
        <translation>التذكيرات</translation>
    </message>
    <message id="qtn_dcal_description">
        <source>Description</source>
        <extracomment>Caption above the text of a note.</extracomment>
        <translation>الوصف</translation>
    </message>
    <message id="qtn_dcal_participants">
        <source>Participants</source>
        <extracomment>Caption above who takes part.</extracomment>
        <translation>المشاركون</translation>
    </message>
    <message id="qtn_dcal_attachments">
        <source>Attachments</source>
        <extracomment>Caption above what is attached to a note.</extracomment>
        <translation>المرفقات</translation>
    </message>
    <message id="qtn_dcal_tentative">
        <source>Tentative</source>
        <extracomment>Below the title of a note that is not settled yet.</extracomment>
        <translation>مبدئي</translation>
    </message>
</context>
</TS>
