// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_DSKMPHYSICS2DPANNING_H
#define DASKEL_DSKMPHYSICS2DPANNING_H

#include <touchcore/mphysics2dpanning.h>

/// The panning of the note lists, which also tells when the finger leaves: from then on the list
/// moves by itself, and where it came from no longer says where the person wants to go.
class DskMPhysics2DPanning : public MPhysics2DPanning
{
    Q_OBJECT

public:
    explicit DskMPhysics2DPanning(QObject *parent = nullptr);
    ~DskMPhysics2DPanning() override;

    void pointerRelease() override;

Q_SIGNALS:
    /// Before the movement goes on by itself.
    void pointerReleased();
};

#endif
