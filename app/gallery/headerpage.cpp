// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "librarypages.h"

#include <daskel/daskelpageheaderwidget.h>
#include <daskel/daskelutility.h>
#include <daskel/mycolorlabel.h>
#include <touchcore/mbutton.h>
#include <touchcore/mlabel.h>
#include <touchcore/mseparator.h>

#include <QGraphicsLinearLayout>

#include <pagebuilder.h>

namespace
{
const char *const notebookColors[] = {"#C62828", "#2E7D32", "#1565C0", "#F9A825", "#000000"};

DaskelPageHeaderWidget *header(const QString &title)
{
    auto *made = new DaskelPageHeaderWidget;
    made->setTitle(title);
    return made;
}

DaskelPageHeaderWidget *fullHeader()
{
    DaskelPageHeaderWidget *made = header(QStringLiteral("November 2026"));
    made->setImage(QStringLiteral("calendar"));
    made->getButtonWidget()->setText(QStringLiteral("Today"));
    made->setButtonVisible(true);
    made->setSeparatorVisible(true);
    return made;
}

QList<QGraphicsLayoutItem *> swatches()
{
    QList<QGraphicsLayoutItem *> made;
    for (const char *color : notebookColors) {
        auto *swatch = new MyColorLabel;
        swatch->setColor(QColor(QLatin1String(color)));
        made << swatch;
    }
    return made;
}
} // namespace

QGraphicsWidget *makeHeaderPage()
{
    PageBuilder builder;
    builder.addCaption(QStringLiteral("Title; icon, button and line"));
    builder.add(header(QStringLiteral("To-dos")));
    builder.add(fullHeader());
    builder.addCaption(QStringLiteral("Colours of notebooks"));
    for (const char *color : notebookColors) {
        DaskelPageHeaderWidget *colored = header(QStringLiteral("Family"));
        colored->setColor(QColor(QLatin1String(color)));
        builder.add(colored);
    }
    builder.addCaption(QStringLiteral("A title that does not fit"));
    DaskelPageHeaderWidget *longTitle = header(
        QStringLiteral("Parents\u2019 evening of the music school with the plans for next year ")
            .repeated(4)
            .trimmed());
    longTitle->setImage(QStringLiteral("calendar"));
    builder.add(longTitle);
    builder.addCaption(QStringLiteral("Swatches; a common panel with a separator"));
    builder.addRow(swatches());
    QGraphicsLinearLayout *layout = nullptr;
    MStylableWidget *panel = daskelUtilityCreateCommonPanel(nullptr, layout, Qt::Vertical);
    layout->addItem(new MLabel(QStringLiteral("Family"), panel));
    layout->addItem(daskelUtilityCreateSeparator(panel));
    layout->addItem(new MLabel(QStringLiteral("Work"), panel));
    builder.add(panel);
    return builder.page();
}
