// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef LIBRARYPAGES_H
#define LIBRARYPAGES_H

class MWindow;
class QGraphicsWidget;

QGraphicsWidget *makeEventsPage();
QGraphicsWidget *makeHeaderPage();
QGraphicsWidget *makeNarrowNotesPage();
QGraphicsWidget *makeStatesPage();
QGraphicsWidget *makeTodosPage();

void openDeleteQuestion(MWindow *window);

#endif
