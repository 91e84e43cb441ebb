// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef WARNINGCAPTURE_H
#define WARNINGCAPTURE_H

#include <QStringList>

/// Keeps what goes to Qt's warning stream during its life, from all threads, instead of printing
/// it. One at a time.
class WarningCapture
{
public:
    WarningCapture();
    ~WarningCapture();
    Q_DISABLE_COPY(WarningCapture)

    /// The warnings so far, which are forgotten.
    QStringList take();

private:
    const QtMessageHandler m_before;
};

#endif
