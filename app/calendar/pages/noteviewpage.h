// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef NOTEVIEWPAGE_H
#define NOTEVIEWPAGE_H

#include <kcalcompat/kdatetime.h>
#include <touchcore/mapplicationpage.h>

class NoteDeletion;
class NoteViewContent;
class QAction;

/// One note with all that is known of it.
///
/// It leaves by itself when its note was deleted.
class NoteViewPage : public MApplicationPage
{
    Q_OBJECT

public:
    explicit NoteViewPage(NoteDeletion *deletion);

    /// \a start is that of the occurrence, or of a day's piece of it.
    void showNote(const QString &uid, const KDateTime &recurrenceId, const QDateTime &start);
    void retranslate();

private:
    NoteViewContent *m_content;
    QAction *m_delete;
};

#endif
