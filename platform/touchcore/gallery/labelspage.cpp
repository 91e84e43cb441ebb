// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "gallerypages.h"
#include "pagebuilder.h"

#include <touchcore/mlabel.h>
#include <touchcore/mseparator.h>

namespace
{
const char sentence[] =
    "The meeting about the new bicycle shed moves to the large room on the third "
    "floor, since more people came than chairs could be found.";

MLabel *label(const char *text, const char *styleName = "")
{
    auto *made = new MLabel(QString::fromUtf8(text));
    made->setStyleName(QString::fromLatin1(styleName));
    return made;
}

MLabel *wrapped(const char *text, int maximumLines, Qt::Alignment alignment = Qt::AlignLeading)
{
    MLabel *made = label(text);
    made->setWordWrap(true);
    made->setMaximumLines(maximumLines);
    made->setAlignment(alignment | Qt::AlignVCenter);
    return made;
}
} // namespace

QGraphicsWidget *makeLabelsPage()
{
    PageBuilder builder;
    builder.addCaption(QStringLiteral("Sizes of type"));
    builder.add(label("Saturday 21", "DisplayLabel"));
    builder.add(label("November 2026", "TitleLabel"));
    builder.add(label("Dentist"));
    builder.add(label("Hall 3, Market Square", "SupportLabel"));
    builder.add(label("all day", "CaptionLabel"));
    builder.add(new MSeparator);
    builder.addCaption(QStringLiteral("One line, shortened"));
    builder.add(label(sentence));
    builder.addCaption(QStringLiteral("Wrapped; at most two lines"));
    builder.add(wrapped(sentence, 0));
    builder.add(wrapped(sentence, 2));
    builder.addCaption(QStringLiteral("Centred and trailing"));
    builder.add(wrapped("Nothing to do", 0, Qt::AlignHCenter));
    builder.add(wrapped("09:00 – 10:30", 0, Qt::AlignTrailing));
    builder.add(new MSeparator);
    builder.addCaption(QStringLiteral("Other scripts"));
    builder.add(wrapped("موعد طبيب الأسنان الساعة 9:00 في الطابق الثالث", 0));
    builder.add(label("歯医者さん · 牙醫 · Стоматолог · Οδοντίατρος"));
    builder.addCaption(QStringLiteral("Rich text"));
    auto *rich = wrapped("<b>Bring:</b> <i>passport</i>, tickets, "
                         "<a href=\"https://example.org/\">the map</a>",
                         0);
    rich->setTextFormat(Qt::RichText);
    builder.add(rich);
    auto *disabled = label("Not available");
    disabled->setEnabled(false);
    builder.add(disabled);
    return builder.page();
}
