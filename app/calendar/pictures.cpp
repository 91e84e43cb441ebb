// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "pictures.h"

#include "calendarapplication.h"
#include "calendarwindow.h"
#include "loaders/dates.h"
#include "pages/agendacontent.h"

#include <daskel/db_instance.h>
#include <daskel/notelistwidget.h>
#include <daskel/notewidgetitemmodel.h>
#include <daskel/pageswitcher.h>
#include <touchcore/mlocale.h>
#include <touchcore/mscenemanager.h>
#include <touchcore/mtheme.h>

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QPainter>

#include <functional>

namespace
{
const QSize portrait(480, 854);

struct Language {
    const char *name;
    const char *locale;
};
const Language languages[] = {
    {"en", "en_GB"},
    {"de", "de_DE"},
    {"ar", "ar_EG"},
};

struct Scheme {
    const char *name;
    M::ColorScheme scheme;
};
const Scheme schemes[] = {{"light", M::LightScheme}, {"dark", M::DarkScheme}};

struct Picture {
    const char *name;
    std::function<void(CalendarWindow *)> show;
};

/// The note of the list with the most to tell.
void openRichestNote(CalendarWindow *window)
{
    const QAbstractItemModel *model = window->agenda()->list()->itemModel();
    QModelIndex richest;
    int most = -1;
    for (int row = 0; row < model->rowCount(); ++row) {
        const QModelIndex header = model->index(row, 0);
        for (int child = 0; child < model->rowCount(header); ++child) {
            const QModelIndex index = model->index(child, 0, header);
            const auto note = index.data().value<KCalCore::Incidence::Ptr>();
            const int told = !note ? -1
                                   : note->attendees().size() + note->alarms().size()
                    + int(note->recurs()) + int(!note->location().isEmpty())
                    + int(!note->description().isEmpty()) + note->attachments().size();
            if (told > most) {
                most = told;
                richest = index;
            }
        }
    }
    if (const auto note = richest.data().value<KCalCore::Incidence::Ptr>()) {
        window->showNote(note->uid(), KDateTime(note->recurrenceId()),
                         richest.data(NoteWidgetItemModel::StartRole).toDateTime());
    }
}

const QVector<Picture> &pictures()
{
    static const QVector<Picture> all = {
        {"agenda",
         [](CalendarWindow *window) {
             window->showPage(PageBar::Agenda);
             window->agenda()->goToToday();
         }},
        {"agenda-later",
         [](CalendarWindow *window) {
             window->showPage(PageBar::Agenda);
             window->agenda()->jumpTo(Dates::today().addDays(40));
         }},
        {"todos", [](CalendarWindow *window) { window->showPage(PageBar::Todos); }},
        {"notes", [](CalendarWindow *window) { window->showPage(PageBar::Journals); }},
        {"note",
         [](CalendarWindow *window) {
             window->showPage(PageBar::Agenda);
             openRichestNote(window);
         }},
        {"error",
         [](CalendarWindow *window) {
             constexpr int notADatabase = 26;
             window->showError(CalendarApplication::openErrorText(notADatabase));
         }},
    };
    return all;
}

QImage pictureOf(MWindow *window, int scale)
{
    QImage image(window->size() * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    QPainter painter(&image);
    // Without the rectangle the view takes the picture's pixels for its own.
    window->render(&painter, QRectF(QPointF(0, 0), window->size()));
    return image;
}

void settle()
{
    // Layouts and lists go on in several turns of the event loop.
    constexpr int turns = 6;
    for (int turn = 0; turn < turns; ++turn)
        QApplication::processEvents();
}

/// Every page of \a window, in the language, scheme and shape that are in force.
QString writePages(CalendarWindow *window, const QString &folder, const QString &variant)
{
    for (const Picture &picture : pictures()) {
        picture.show(window);
        settle();
        for (const int scale : {1, 2}) {
            const QString file = QStringLiteral("%1/%2-%3-%4x.png")
                                     .arg(folder, QLatin1String(picture.name), variant)
                                     .arg(scale);
            if (!pictureOf(window, scale).save(file))
                return QStringLiteral("The picture %1 cannot be written.").arg(file);
        }
    }
    return {};
}
/// In one language and scheme, in both orientations.
QString writeVariant(const QString &folder, const QString &variant)
{
    for (const bool isLandscape : {false, true}) {
        CalendarWindow window;
        window.resize(isLandscape ? portrait.transposed() : portrait);
        window.show();
        QApplication::setActiveWindow(&window);
        QString wrong = writePages(&window, folder,
                                   isLandscape ? variant + QStringLiteral("-landscape") : variant);
        if (!wrong.isEmpty())
            return wrong;
    }
    return {};
}
} // namespace

QString writePictures(const QString &folder)
{
    if (!QDir().mkpath(folder))
        return QStringLiteral("The folder %1 cannot be made.").arg(folder);
    MSceneManager::setAnimationsEnabled(false);
    DbInstance::instance()->setUser(DbInstance::CalendarUser);
    DbInstance::instance()->enableDb();
    for (const Language &language : languages) {
        MLocale::setDefault(MLocale(QLatin1String(language.locale)));
        CalendarApplication::installTexts();
        for (const Scheme &scheme : schemes) {
            MTheme::instance()->setColorScheme(scheme.scheme);
            QString wrong = writeVariant(folder,
                                         QStringLiteral("%1-%2").arg(QLatin1String(language.name),
                                                                     QLatin1String(scheme.name)));
            if (!wrong.isEmpty())
                return wrong;
        }
    }
    return {};
}
