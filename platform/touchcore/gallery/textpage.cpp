// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "gallerypages.h"
#include "pagebuilder.h"

#include <touchcore/mtextedit.h>

namespace
{
MTextEdit *field(const char *text, const char *prompt = "")
{
    auto *made = new MTextEdit(MTextEdit::SingleLine);
    made->setText(QString::fromUtf8(text));
    made->setPrompt(QString::fromUtf8(prompt));
    return made;
}
} // namespace

QGraphicsWidget *makeTextPage()
{
    PageBuilder builder;
    builder.addCaption(QStringLiteral("One line"));
    builder.add(field("", "Title"));
    builder.add(field("Dentist"));
    builder.add(field("A title that is longer than the field is wide, as titles sometimes are when "
                      "people paste them"));
    builder.add(field("موعد طبيب الأسنان"));
    auto *wrong = field("anna@");
    wrong->setError(true);
    builder.add(wrong);
    auto *readOnly = field("Family (shared with you)");
    readOnly->setReadOnly(true);
    builder.add(readOnly);
    auto *disabled = field("Not now");
    disabled->setEnabled(false);
    builder.add(disabled);
    builder.addCaption(QStringLiteral("Many lines"));
    auto *notes = new MTextEdit(MTextEdit::MultiLine);
    notes->setMinimumLines(3);
    notes->setText(
        QStringLiteral("Bring the X-rays.\nPark behind the house: the gate is open until "
                       "six, later one has to ring."));
    builder.add(notes);
    auto *empty = new MTextEdit(MTextEdit::MultiLine);
    empty->setPrompt(QStringLiteral("Notes"));
    builder.add(empty);
    return builder.page();
}
