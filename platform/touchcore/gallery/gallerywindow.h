// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef GALLERYWINDOW_H
#define GALLERYWINDOW_H

struct GalleryPage;
class MWindow;

/// Shows the list of all pages in the window.
void showGalleryIndex(MWindow *window);
/// Shows one page and what opens above it.
void showGalleryPage(MWindow *window, const GalleryPage &page);

#endif
