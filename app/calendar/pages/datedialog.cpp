// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "datedialog.h"

#include "loaders/dates.h"

#include <daskel/pageswitcher.h>
#include <touchcore/mdatepicker.h>
#include <touchcore/mdialog.h>

void askForDate(const QDate &day, const std::function<void(const QDate &)> &answer)
{
    auto *dialog = new MDialog;
    dialog->setTitle(qtTrId("qtn_dcal_jump_to_date"));
    auto *picker = new MDatePicker;
    picker->setToday(Dates::today());
    picker->setDate(day);
    dialog->setCentralWidget(picker);
    dialog->addButton(qtTrId("qtn_comm_cancel"), MDialog::Rejected);
    // A tap on a day is the answer.
    QObject::connect(picker, &MDatePicker::dateTapped, dialog, [dialog, answer](const QDate &date) {
        dialog->accept();
        answer(date);
    });
    PageSwitcher::instance()->registerAutokillDialog(dialog);
    dialog->appear(MSceneWindow::DestroyWhenDone);
}
