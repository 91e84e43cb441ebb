// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef NOTEVIEWCONTENT_H
#define NOTEVIEWCONTENT_H

#include <daskel/visibilitynotificationif.h>
#include <kcalcompat/kdatetime.h>
#include <touchcore/mstylablewidget.h>

#include <KCalendarCore/Attachment>
#include <KCalendarCore/Incidence>

#include <QTemporaryDir>

#include <memory>

class QGraphicsLinearLayout;

/// What is known of one note, from its title down to its attachments.
class NoteViewContent : public MStylableWidget, public VisibilityNotificationIF
{
    Q_OBJECT

public:
    explicit NoteViewContent(QGraphicsItem *parent = nullptr);

    void showNote(const QString &uid, const KDateTime &recurrenceId, const QDateTime &start);
    QString uid() const { return m_uid; }
    KDateTime recurrenceId() const { return m_recurrenceId; }
    QDateTime start() const { return m_start; }
    /// What kind of note it is: the title of the page.
    QString kindText() const;

    /// Shows the note as it is stored now.
    void refresh();

    void notifyUpdate(unsigned int reasons) override;
    unsigned int notificationMask() const override;

Q_SIGNALS:
    /// It was deleted.
    void noteGone();

private:
    void clear();
    void addTitle(const KCalCore::Incidence::Ptr &incidence);
    void addPeople(const KCalCore::Incidence &incidence);
    void addLinks(const KCalCore::Incidence &incidence);
    void addEnclosed(const KCalCore::Attachment &attachment);
    void addSection(const char *captionId, const QString &text);
    void addText(const QString &text, const char *styleName);
    void addLink(const QString &text, const QString &address);
    void addCompletion(const KCalCore::Incidence::Ptr &incidence);
    KCalCore::Incidence::Ptr incidence() const;

    QString m_uid;
    KDateTime m_recurrenceId;
    QDateTime m_start;
    QGraphicsLinearLayout *m_layout = nullptr;
    std::unique_ptr<QTemporaryDir> m_enclosed; ///< attachments written out, made when needed
};

#endif
