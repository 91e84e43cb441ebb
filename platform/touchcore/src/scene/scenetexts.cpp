// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "scenetexts.h"

#include <QtGlobal>

namespace
{
/// An identifier without a translation comes back as it is.
QString textOf(const char *id, const char *english)
{
    const QString text = qtTrId(id);
    return text == QLatin1String(id) ? QLatin1String(english) : text;
}
} // namespace

namespace SceneTexts
{
QString ok()
{
    //% "OK"
    return textOf(QT_TRID_NOOP("qtn_comm_command_ok"), "OK");
}

QString cancel()
{
    //% "Cancel"
    return textOf(QT_TRID_NOOP("qtn_comm_command_cancel"), "Cancel");
}

QString yes()
{
    //% "Yes"
    return textOf(QT_TRID_NOOP("qtn_comm_command_yes"), "Yes");
}

QString no()
{
    //% "No"
    return textOf(QT_TRID_NOOP("qtn_comm_command_no"), "No");
}

QString back()
{
    //% "Back"
    return textOf(QT_TRID_NOOP("qtn_comm_command_back"), "Back");
}

QString close()
{
    //% "Close"
    return textOf(QT_TRID_NOOP("qtn_comm_command_close"), "Close");
}

QString moreActions()
{
    //% "More actions"
    return textOf(QT_TRID_NOOP("qtn_comm_more_actions"), "More actions");
}
} // namespace SceneTexts
