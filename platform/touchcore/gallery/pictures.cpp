// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "pictures.h"

#include "gallerypages.h"
#include "gallerywindow.h"

#include <touchcore/mscenemanager.h>
#include <touchcore/mtheme.h>
#include <touchcore/mwindow.h>

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QPainter>

namespace
{
const QSize portrait(480, 854);

struct Variant {
    const char *name;
    M::ColorScheme scheme;
    M::Orientation orientation;
    Qt::LayoutDirection direction;
    int scale;
    qreal textScale = 1;
};

QVector<Variant> variants()
{
    QVector<Variant> all{
        {"light-large-text", M::LightScheme, M::Portrait, Qt::LeftToRight, 1, 1.3}};
    for (const int scale : {1, 2}) {
        all += Variant{"light", M::LightScheme, M::Portrait, Qt::LeftToRight, scale};
        all += Variant{"dark", M::DarkScheme, M::Portrait, Qt::LeftToRight, scale};
        all += Variant{"light-landscape", M::LightScheme, M::Landscape, Qt::LeftToRight, scale};
        all += Variant{"dark-landscape", M::DarkScheme, M::Landscape, Qt::LeftToRight, scale};
        all += Variant{"light-rtl", M::LightScheme, M::Portrait, Qt::RightToLeft, scale};
        all += Variant{"dark-rtl-landscape", M::DarkScheme, M::Landscape, Qt::RightToLeft, scale};
    }
    return all;
}

QImage pictureOf(MWindow *window, int scale)
{
    QImage image(window->size() * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    QPainter painter(&image);
    // Without it the size is taken for that of the image, which is scaled already.
    window->render(&painter, QRectF(QPointF(), window->size()));
    return image;
}
} // namespace

QString writePictures(const QString &folder)
{
    if (!QDir().mkpath(folder))
        return QStringLiteral("The folder %1 cannot be made.").arg(folder);
    MSceneManager::setAnimationsEnabled(false);
    for (const Variant &variant : variants()) {
        MTheme::instance()->setColorScheme(variant.scheme);
        MTheme::instance()->setTextScale(variant.textScale);
        QGuiApplication::setLayoutDirection(variant.direction);
        for (const GalleryPage &page : galleryPages()) {
            MWindow window;
            window.resize(variant.orientation == M::Landscape ? portrait.transposed() : portrait);
            window.show();
            showGalleryPage(&window, page);
            QApplication::processEvents();
            const QString file =
                QStringLiteral("%1/%2-%3-%4x.png")
                    .arg(folder, QLatin1String(page.id), QLatin1String(variant.name))
                    .arg(variant.scale);
            if (!pictureOf(&window, variant.scale).save(file))
                return QStringLiteral("The picture %1 cannot be written.").arg(file);
        }
    }
    return {};
}
