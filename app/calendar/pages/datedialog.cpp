// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "datedialog.h"

#include "loaders/dates.h"

#include <daskel/pageswitcher.h>
#include <touchcore/mdatepicker.h>
#include <touchcore/mdialog.h>

QDate askForDate(const QDate &day)
{
    MDialog dialog;
    dialog.setTitle(qtTrId("qtn_dcal_jump_to_date"));
    auto *picker = new MDatePicker;
    picker->setToday(Dates::today());
    picker->setDate(day);
    dialog.setCentralWidget(picker);
    dialog.addButton(qtTrId("qtn_comm_cancel"), MDialog::Rejected);
    // A tap on a day is the answer.
    QObject::connect(picker, &MDatePicker::dateTapped, &dialog, &MDialog::accept);
    PageSwitcher::instance()->registerAutokillDialog(&dialog);
    return dialog.exec() == MDialog::Accepted ? picker->date() : QDate();
}
