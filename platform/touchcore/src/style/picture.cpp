// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "picture.h"

#include <touchcore/mtheme.h>

#include <QCache>
#include <QHash>
#include <QPainter>
#include <QSet>
#include <QSvgRenderer>

namespace
{
const int keptKibibytes = 8 * 1024;

struct Pictures {
    QCache<PictureKey, QImage> made{keptKibibytes};
    QHash<QString, QSizeF> naturalSizes;
    QSet<QString> unreadable;
};

Pictures &pictures()
{
    static Pictures kept;
    return kept;
}

void warnOnce(const QString &id, const char *problem)
{
    if (pictures().unreadable.contains(id))
        return;
    pictures().unreadable.insert(id);
    qWarning("%s \"%s\".", problem, qUtf8Printable(id));
}

QString fileOf(const QString &id)
{
    if (id.startsWith(QLatin1Char('/')) || id.startsWith(QLatin1Char(':')))
        return id;
    QString file = MTheme::instance()->imageFile(id);
    if (file.isEmpty())
        warnOnce(id, "The theme has no picture named");
    return file;
}

bool isDrawing(const QString &file)
{
    return file.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive);
}

QImage drawn(const QString &file, const QSize &size)
{
    QSvgRenderer drawing(file);
    if (!drawing.isValid())
        return {};
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    drawing.render(&painter);
    return image;
}

QImage make(const PictureKey &key)
{
    const QString file = fileOf(key.id);
    if (file.isEmpty())
        return {};
    QImage image = isDrawing(file)
        ? drawn(file, key.size)
        : QImage(file).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) {
        warnOnce(key.id, "This picture cannot be read:");
        return {};
    }
    if (qAlpha(key.tint) > 0) {
        QPainter painter(&image);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(image.rect(), QColor::fromRgba(key.tint));
    }
    return key.isMirrored ? image.mirrored(true, false) : image;
}
} // namespace

static uint qHash(const PictureKey &key, uint seed)
{
    return qHash(key.id, seed) ^ uint(key.size.width() * 4093 + key.size.height() * 2)
        ^ qHash(key.tint, seed) ^ uint(key.isMirrored);
}

QImage picture(const PictureKey &key)
{
    if (const QImage *kept = pictures().made.object(key))
        return *kept;
    QImage image = make(key);
    pictures().made.insert(key, new QImage(image), 1 + int(image.sizeInBytes() / 1024));
    return image;
}

QSizeF naturalPictureSize(const QString &id)
{
    const auto known = pictures().naturalSizes.constFind(id);
    if (known != pictures().naturalSizes.constEnd())
        return *known;
    const QString file = fileOf(id);
    QSizeF size;
    if (!file.isEmpty()) {
        size = isDrawing(file) ? QSizeF(QSvgRenderer(file).defaultSize())
                               : QSizeF(QImage(file).size());
    }
    pictures().naturalSizes.insert(id, size);
    return size;
}

void clearPictures()
{
    pictures().made.clear();
    pictures().naturalSizes.clear();
    pictures().unreadable.clear();
}
