// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "scenetexts.h"

#include <touchcore/mbutton.h>
#include <touchcore/mlabel.h>
#include <touchcore/mmessagebox.h>

#include <QHash>

namespace
{
/// In the order in which they stand: the affirmative one last, where the thumb is.
struct Choice {
    QString (*text)();
    MMessageBox::StandardButton button;
    bool isAffirmative;
};

const Choice choices[] = {
    {SceneTexts::cancel, MMessageBox::Cancel, false},
    {SceneTexts::no, MMessageBox::No, false},
    {SceneTexts::yes, MMessageBox::Yes, true},
    {SceneTexts::ok, MMessageBox::Ok, true},
};
} // namespace

class MMessageBoxPrivate
{
public:
    MLabel *const text = new MLabel;
    QHash<int, MButton *> buttons;
};

MMessageBox::MMessageBox(const QString &title, const QString &text, StandardButtons buttons)
    : d(std::make_unique<MMessageBoxPrivate>())
{
    setTitle(title);
    setText(text);
    d->text->setStyleName(QStringLiteral("DialogText"));
    d->text->setWordWrap(true);
    setCentralWidget(d->text);
    for (const Choice &choice : choices) {
        if (!buttons.testFlag(choice.button))
            continue;
        MButton *button =
            addButton(choice.text(), choice.isAffirmative ? AffirmativeResult : choice.button);
        d->buttons.insert(choice.button, button);
        if (choice.isAffirmative) {
            button->setStyleName(QStringLiteral("MainActionButton"));
            setDefaultButton(button);
        }
    }
}

MMessageBox::MMessageBox(const QString &text, StandardButtons buttons)
    : MMessageBox(QString(), text, buttons)
{
}

MMessageBox::~MMessageBox() = default;

QString MMessageBox::text() const
{
    return d->text->text();
}

void MMessageBox::setText(const QString &text)
{
    d->text->setText(text);
}

MButton *MMessageBox::button(StandardButton which) const
{
    return d->buttons.value(which);
}

void MMessageBox::accept()
{
    done(AffirmativeResult);
}
