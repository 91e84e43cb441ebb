// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "gallerypages.h"
#include "gallerywindow.h"
#include "pictures.h"
#include "teller.h"

#include <touchcore/mapplication.h>
#include <touchcore/mtheme.h>
#include <touchcore/mwindow.h>

#include <QCommandLineParser>

#include <cstdio>

namespace
{
const QSize usualSize(480, 854);
const int exitFailed = 1;

const GalleryPage *pageNamed(const QString &id)
{
    for (const GalleryPage &page : galleryPages()) {
        if (id == QLatin1String(page.id))
            return &page;
    }
    return nullptr;
}

int fail(const QString &text)
{
    std::fprintf(stderr, "%s: %s\n", qUtf8Printable(QCoreApplication::applicationName()),
                 qUtf8Printable(text));
    return exitFailed;
}
} // namespace

int main(int argc, char **argv)
{
    MApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Shows every widget."));
    parser.addHelpOption();
    const QCommandLineOption pictures(QStringLiteral("pictures"),
                                      QStringLiteral("Write a picture of each page into DIR."),
                                      QStringLiteral("DIR"));
    const QCommandLineOption dark(QStringLiteral("dark"), QStringLiteral("Show the dark palette."));
    const QCommandLineOption tell(QStringLiteral("tell"),
                                  QStringLiteral("Write what is seen to standard output."));
    parser.addOptions({pictures, dark, tell});
    parser.addPositionalArgument(QStringLiteral("page"), QStringLiteral("The page to open."),
                                 QStringLiteral("[page]"));
    parser.process(application);

    if (parser.isSet(pictures)) {
        const QString wrong = writePictures(parser.value(pictures));
        return wrong.isEmpty() ? 0 : fail(wrong);
    }
    if (parser.isSet(dark))
        MTheme::instance()->setColorScheme(M::DarkScheme);
    else
        MTheme::instance()->followDesktop();
    MWindow window;
    window.resize(usualSize);
    window.show();
    if (parser.isSet(tell))
        new Teller(&window);
    showGalleryIndex(&window);
    const QString wanted = parser.positionalArguments().value(0);
    if (const GalleryPage *page = pageNamed(wanted))
        showGalleryPage(&window, *page);
    else if (!wanted.isEmpty())
        return fail(QStringLiteral("there is no page \"%1\"").arg(wanted));
    return MApplication::exec();
}
