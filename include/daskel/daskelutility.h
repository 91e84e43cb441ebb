// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_DASKELUTILITY_H
#define DASKEL_DASKELUTILITY_H

#include <kcalcompat/kdatetime.h>

#include <QString>
#include <Qt>

class MListItem;
class MSeparator;
class MStylableWidget;
class MWidget;
class QGraphicsGridLayout;
class QGraphicsItem;
class QGraphicsLayoutItem;
class QGraphicsLinearLayout;
class QGraphicsScene;
class QObject;
class VisibilityNotificationIF;

// Small things that the views share. On the UI thread only, but for the addresses of notes.

// A note's address: "urn:x-ical:", the UID of 36 characters and, for one occurrence, ":" and the
// ISO 8601 form of its recurrence identifier. "urn:uri:" is read as the prefix, too.

/// The UID in an address. A text without a prefix comes back as it is; what is longer than prefix
/// and UID is cut at 47 characters before the prefix is looked at.
QString daskelUtilityStringToUID(const QString &uri);
/// The recurrence identifier in an address, from character 48 on; invalid when there is none that
/// can be read.
KDateTime daskelUtilityUriToRecurrenceId(const QString &uri);

// Questions, answered by Yes or No. They close by themselves when PageSwitcher takes pages away.

/// Asks and waits. True for Yes, false for anything else, as when the question is dismissed.
bool daskelUtilityAskYesNo(QString text);
bool daskelUtilityAskYesNoWithTitle(const QString &title, const QString &text);
/// Asks and returns. The answer goes to \a member, a slot of \a receiver written with SLOT() that
/// takes the result code, an int: 1024 is Yes.
void daskelUtilityAskYesNo(const QString &text, QObject *receiver, const char *member);
void daskelUtilityAskYesNoWithTitle(const QString &title, const QString &text, QObject *receiver,
                                    const char *member);

/// Shows a line of text at the top for a moment.
void daskelUtilityShowInfoBanner(QGraphicsScene *scene, QString text);

// Parts of pages. Each is new and belongs to the parent, or to the caller where that is null.
// Layouts have no margins and no spacing.

void daskelUtilityNewGridLayout(QGraphicsGridLayout *&out, QGraphicsLayoutItem *parent);
void daskelUtilityNewVerticalLayout(QGraphicsLinearLayout *&out,
                                    QGraphicsLayoutItem *parent = nullptr);
MListItem *daskelUtilityCreateListItem(QGraphicsItem *parent, const QString &styleName);
MListItem *daskelUtilityCreateListItem(QGraphicsItem *parent, const QString &styleName,
                                       QGraphicsLinearLayout *&out, Qt::Orientation orientation);
MStylableWidget *daskelUtilityCreatePanel(QGraphicsItem *parent, const QString &styleName);
MStylableWidget *daskelUtilityCreatePanel(QGraphicsItem *parent, const QString &styleName,
                                          QGraphicsLinearLayout *&out, Qt::Orientation orientation);
/// Without a parent, around \a content when that is not null.
MStylableWidget *daskelUtilityCreatePanel(const QString &styleName, QGraphicsLayoutItem *content);
/// With the style "CommonPanel".
MStylableWidget *daskelUtilityCreateCommonPanel(QGraphicsItem *parent, QGraphicsLinearLayout *&out,
                                                Qt::Orientation orientation);
MStylableWidget *daskelUtilityCreateCommonPanel(QGraphicsLayoutItem *content);
MStylableWidget *daskelUtilityCreateSpacer(const QString &styleName,
                                           QGraphicsItem *parent = nullptr);
/// With the style "CommonSpacer".
MStylableWidget *daskelUtilityCreateCommonSpacer(QGraphicsItem *parent = nullptr);
MSeparator *daskelUtilityCreateSeparator(QGraphicsItem *parent = nullptr,
                                         const QString &styleName = QString(),
                                         Qt::Orientation orientation = Qt::Horizontal);

/// Puts \a child, which is an MWidget, too, into a container that refreshes it only while it can be
/// seen: the reasons that come meanwhile are collected, and it is refreshed once when it comes
/// back.
MWidget *daskelUtilityWrapVisibilityNotificationIF(VisibilityNotificationIF *child,
                                                   MWidget *parent);

/// Sends all messages of Qt to the file \a fileName (ASCII), which is emptied. When it cannot be
/// opened, messages go to standard error as before. A fatal message ends the program after it is
/// written.
void debugOutputToFile(const QString &fileName);

#endif
