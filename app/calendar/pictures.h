// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef PICTURES_H
#define PICTURES_H

#include <QString>

/// Writes every page of the calendar as a picture: in both themes, both orientations, at scale 1
/// and 2, in English, German and Arabic. Answers what was wrong, empty when all are written.
QString writePictures(const QString &folder);

#endif
