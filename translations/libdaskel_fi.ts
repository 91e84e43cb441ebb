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
</context>
</TS>
