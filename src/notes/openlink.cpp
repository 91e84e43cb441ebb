// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <daskel/openlink.h>
#include <daskel/pageswitcher.h>
#include <touchcore/mmessagebox.h>
#include <touchcore/mwindow.h>

#include <QDesktopServices>
#include <QUrl>

namespace
{
constexpr int openResult = 1;

bool isOfTheWeb(const QUrl &link)
{
    return link.scheme() == QLatin1String("https") || link.scheme() == QLatin1String("http");
}
} // namespace

bool openLink(const QUrl &link, MWindow *window)
{
    if (!link.isValid() || link.isRelative())
        return false;
    if (isOfTheWeb(link)) {
        QDesktopServices::openUrl(link);
        return true;
    }
    // Encoded, so that nothing in it can look like something else.
    auto *question = new MMessageBox(qtTrId("qtn_caln_open_link"),
                                     QString::fromLatin1(link.toEncoded()), MMessageBox::NoButton);
    question->addButton(qtTrId("qtn_comm_open"), openResult);
    question->addButton(qtTrId("qtn_comm_cancel"), MDialog::Rejected);
    PageSwitcher::instance()->registerAutokillDialog(question);
    QObject::connect(question, &MDialog::finished, question, [link](int answer) {
        if (answer == openResult)
            QDesktopServices::openUrl(link);
    });
    question->appear(window, MSceneWindow::DestroyWhenDone);
    return true;
}
