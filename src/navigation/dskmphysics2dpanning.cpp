// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <daskel/dskmphysics2dpanning.h>

DskMPhysics2DPanning::DskMPhysics2DPanning(QObject *parent) : MPhysics2DPanning(parent) { }

DskMPhysics2DPanning::~DskMPhysics2DPanning() = default;

void DskMPhysics2DPanning::pointerRelease()
{
    Q_EMIT pointerReleased();
    MPhysics2DPanning::pointerRelease();
}
