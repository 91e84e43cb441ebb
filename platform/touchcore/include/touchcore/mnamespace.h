// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MNAMESPACE_H
#define TOUCHCORE_MNAMESPACE_H

#include <QMetaType>

/// Small types that the whole toolkit shares.
namespace M
{
/// How a window is held. The values are part of the interface: settings and saved layouts use them.
enum Orientation {
    Portrait = 0, ///< higher than wide
    Landscape = 1, ///< wider than high, or square
};

/// Which palette of the theme is shown.
enum ColorScheme {
    LightScheme = 0,
    DarkScheme = 1,
};
} // namespace M

Q_DECLARE_METATYPE(M::Orientation)
Q_DECLARE_METATYPE(M::ColorScheme)

#endif
