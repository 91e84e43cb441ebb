// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_SCENETEXTS_H
#define TOUCHCORE_SCENETEXTS_H

#include <QString>

/// The few words that the toolkit says itself, in the person's language where a catalogue has them,
/// else in English.
namespace SceneTexts
{
QString ok();
QString cancel();
QString yes();
QString no();
QString back();
QString close();
QString moreActions();
} // namespace SceneTexts

#endif
