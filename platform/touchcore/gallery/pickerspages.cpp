// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "gallerypages.h"
#include "pagebuilder.h"

#include <touchcore/mchoicelist.h>
#include <touchcore/mdatepicker.h>
#include <touchcore/mprogressindicator.h>
#include <touchcore/mslider.h>
#include <touchcore/mtimepicker.h>

#include <QDate>

QGraphicsWidget *makeDatePage()
{
    PageBuilder builder;
    auto *date = new MDatePicker;
    date->setToday(QDate(2026, 11, 21));
    date->setDate(QDate(2026, 11, 24));
    builder.add(date);
    return builder.page();
}

QGraphicsWidget *makeTimePage()
{
    PageBuilder builder;
    auto *time = new MTimePicker;
    time->setTime(QTime(9, 30));
    builder.add(time);
    return builder.page();
}

QGraphicsWidget *makeChoicesPage()
{
    PageBuilder builder;
    builder.addCaption(QStringLiteral("One of many"));
    auto *choices = new MChoiceList;
    choices->setChoices({QStringLiteral("No reminder"), QStringLiteral("At the start"),
                         QStringLiteral("15 minutes before"), QStringLiteral("1 hour before"),
                         QStringLiteral("1 day before")});
    choices->setCurrentIndex(2);
    builder.addWide(choices);
    builder.addCaption(QStringLiteral("Amounts"));
    auto *slider = new MSlider;
    slider->setRange(0, 100);
    slider->setValue(40);
    builder.add(slider);
    builder.addCaption(QStringLiteral("Progress"));
    auto *bar = new MProgressIndicator;
    bar->setRange(0, 100);
    bar->setValue(60);
    builder.add(bar);
    auto *spinner = new MProgressIndicator;
    spinner->setViewType(QStringLiteral("spinner"));
    spinner->setUnknownDuration(true);
    spinner->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    builder.addRow({spinner});
    return builder.page();
}
