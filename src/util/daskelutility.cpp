// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "visibilitycontainerwidget_p.h"

#include <daskel/daskelutility.h>
#include <daskel/pageswitcher.h>
#include <touchcore/mbanner.h>
#include <touchcore/mmessagebox.h>

#include <QPointer>

#include <memory>

namespace
{
constexpr int prefixAndUidLength = 47;
constexpr int answerYes = 1024;

MMessageBox *newQuestion(const QString &title, const QString &text)
{
    auto *question = new MMessageBox(title, text, MMessageBox::Yes | MMessageBox::No);
    PageSwitcher::instance()->registerAutokillDialog(question);
    return question;
}

/// A question in a nested event loop may be deleted there, with its page or the program.
bool isAnsweredYes(const QPointer<MMessageBox> &question)
{
    const bool isYes = question && question->result() == answerYes;
    delete question;
    return isYes;
}

void askLater(MMessageBox *question, QObject *receiver, const char *member)
{
    QObject::connect(question, SIGNAL(finished(int)), receiver, member);
    question->appear(MSceneWindow::DestroyWhenDone);
}
} // namespace

QString daskelUtilityStringToUID(const QString &uri)
{
    const QString address = uri.left(prefixAndUidLength);
    for (const QLatin1String prefix : {QLatin1String("urn:x-ical:"), QLatin1String("urn:uri:")}) {
        if (address.startsWith(prefix))
            return address.mid(prefix.size());
    }
    return address;
}

KDateTime daskelUtilityUriToRecurrenceId(const QString &uri)
{
    const int start = prefixAndUidLength + 1;
    return uri.size() > start ? KDateTime::fromString(uri.mid(start), KDateTime::ISODate)
                              : KDateTime();
}

bool daskelUtilityAskYesNo(QString text)
{
    const QPointer<MMessageBox> question = newQuestion(QString(), text);
    question->exec();
    // Listed once more while the answer is read: pages that are torn down by it close it, too.
    if (question)
        PageSwitcher::instance()->registerAutokillDialog(question);
    return isAnsweredYes(question);
}

bool daskelUtilityAskYesNoWithTitle(const QString &title, const QString &text)
{
    const QPointer<MMessageBox> question = newQuestion(title, text);
    question->exec();
    return isAnsweredYes(question);
}

void daskelUtilityAskYesNo(const QString &text, QObject *receiver, const char *member)
{
    askLater(newQuestion(QString(), text), receiver, member);
}

void daskelUtilityAskYesNoWithTitle(const QString &title, const QString &text, QObject *receiver,
                                    const char *member)
{
    askLater(newQuestion(title, text), receiver, member);
}

void daskelUtilityShowInfoBanner(QGraphicsScene *scene, QString text)
{
    auto *banner = new MBanner;
    banner->setStyleName(QStringLiteral("InformationBanner"));
    banner->setTitle(text);
    banner->appear(scene, MSceneWindow::DestroyWhenDone);
}

MWidget *daskelUtilityWrapVisibilityNotificationIF(VisibilityNotificationIF *child, MWidget *parent)
{
    return new VisibilityContainerWidgetPrivate(child, parent);
}
