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
</context>
</TS>
