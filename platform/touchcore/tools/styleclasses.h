// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef STYLECLASSES_H
#define STYLECLASSES_H

#include <QMetaObject>
#include <QVector>

class MStyle;

struct StyleClass {
    const QMetaObject *meta;
    MStyle *(*make)();
};

/// Every style class that the toolkit's public headers declare; the build lists them.
const QVector<StyleClass> &styleClasses();

#endif
