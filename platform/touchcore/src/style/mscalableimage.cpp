// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <QImage>
#include <QPainter>
#include <QPixmapCache>
#include <QSet>
#include <QSvgRenderer>
#include <QtMath>

#include <touchcore/mscalableimage.h>
#include <touchcore/mtheme.h>

namespace
{
QString fileOf(const QString &id)
{
    if (id.startsWith(QLatin1Char('/')) || id.startsWith(QLatin1Char(':')))
        return id;
    const QString file = MTheme::instance()->imageFile(id);
    static QSet<QString> missing;
    if (file.isEmpty() && !missing.contains(id)) {
        missing.insert(id);
        qWarning("The theme has no picture named \"%s\".", qUtf8Printable(id));
    }
    return file;
}

bool isDrawing(const QString &file)
{
    return file.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive);
}

void fillShape(QImage *image, const QColor &tint)
{
    QPainter painter(image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image->rect(), tint);
}

/// The picture in device pixels. \a size counts for drawings; bitmaps come as they are.
QPixmap rendered(const QString &id, const QSize &size, const QColor &tint)
{
    const QString file = fileOf(id);
    if (file.isEmpty())
        return {};
    const QString key = QStringLiteral("touchcore/%1/%2x%3/%4")
                            .arg(file)
                            .arg(size.width())
                            .arg(size.height())
                            .arg(tint.isValid() ? tint.rgba() : 0, 0, 16);
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap))
        return pixmap;
    QImage image;
    if (isDrawing(file)) {
        image = QImage(size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        QSvgRenderer(file).render(&painter);
    } else {
        image.load(file);
        image = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    }
    if (tint.isValid() && !image.isNull())
        fillShape(&image, tint);
    pixmap = QPixmap::fromImage(image);
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

/// The four lines that cut a side of a nine-patch: its ends and its borders.
struct Cuts {
    Cuts(qreal start, qreal length, qreal before, qreal after)
        : at{start, start + before, start + length - after, start + length}
    {
    }
    qreal at[4];
};

void drawNinePatch(QPainter *painter, const QRectF &rect, const QPixmap &pixmap,
                   const QMargins &borders, qreal scale)
{
    const Cuts x(rect.x(), rect.width(), borders.left(), borders.right());
    const Cuts y(rect.y(), rect.height(), borders.top(), borders.bottom());
    const Cuts fromX(0, pixmap.width(), borders.left() * scale, borders.right() * scale);
    const Cuts fromY(0, pixmap.height(), borders.top() * scale, borders.bottom() * scale);
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column) {
            const QRectF to(QPointF(x.at[column], y.at[row]),
                            QPointF(x.at[column + 1], y.at[row + 1]));
            const QRectF from(QPointF(fromX.at[column], fromY.at[row]),
                              QPointF(fromX.at[column + 1], fromY.at[row + 1]));
            if (!to.isEmpty() && !from.isEmpty())
                painter->drawPixmap(to, pixmap, from);
        }
    }
}
} // namespace

MScalableImage::MScalableImage(const QString &id, const QMargins &borders)
    : m_id(id), m_borders(borders)
{
}

QSizeF MScalableImage::naturalSize() const
{
    const QString file = m_id.isEmpty() ? QString() : fileOf(m_id);
    if (file.isEmpty())
        return {};
    return isDrawing(file) ? QSizeF(QSvgRenderer(file).defaultSize()) : QSizeF(QImage(file).size());
}

void MScalableImage::draw(const QRectF &rect, QPainter *painter, const QColor &tint) const
{
    if (m_id.isEmpty() || rect.isEmpty())
        return;
    const qreal scale = painter->device()->devicePixelRatioF();
    const bool isStretched = !m_borders.isNull();
    const QSizeF size = isStretched ? naturalSize() : rect.size();
    const QSize pixels(qCeil(size.width() * scale), qCeil(size.height() * scale));
    const QPixmap pixmap = rendered(m_id, pixels, tint);
    if (pixmap.isNull())
        return;
    if (isStretched)
        drawNinePatch(painter, rect, pixmap, m_borders, pixmap.width() / size.width());
    else
        painter->drawPixmap(rect, pixmap, QRectF(pixmap.rect()));
}
