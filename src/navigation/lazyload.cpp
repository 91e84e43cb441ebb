// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <daskel/lazyloadpageiface.h>
#include <daskel/lazyloadsheetiface.h>
#include <daskel/pageswitchobserveriface.h>

LazyLoadPageIFace::~LazyLoadPageIFace() = default;

void LazyLoadPageIFace::ensureContent()
{
    if (m_hasContent)
        return;
    m_hasContent = true;
    createContent();
}

LazyLoadSheetIFace::LazyLoadSheetIFace(QGraphicsItem *parent) : MSheet(parent) { }

LazyLoadSheetIFace::~LazyLoadSheetIFace() = default;

void LazyLoadSheetIFace::releaseContent() { }

PageSwitchObserverIface::~PageSwitchObserverIface() = default;
