// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_PICTURE_H
#define TOUCHCORE_PICTURE_H

#include <QColor>
#include <QImage>
#include <QSizeF>
#include <QString>

/// A picture of the theme as it is drawn: which one, how large, in which colour.
struct PictureKey {
    QString id;
    QSize size; ///< device pixels; counts for drawings, bitmaps come as they are
    QRgb tint = 0; ///< transparent keeps the picture's own colours
    bool isMirrored = false;

    bool operator==(const PictureKey &other) const
    {
        return id == other.id && size == other.size && tint == other.tint
            && isMirrored == other.isMirrored;
    }
};

/// The picture, made on the first call and kept while there is room. Null and warned about once
/// when there is none or it cannot be read.
QImage picture(const PictureKey &key);

/// The size that a picture was drawn for; empty when there is none.
QSizeF naturalPictureSize(const QString &id);

/// Names may stand for other files from now on.
void clearPictures();

#endif
