// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_SCENETRANSITION_H
#define TOUCHCORE_SCENETRANSITION_H

#include <QVariantAnimation>

class MSceneWindow;

/// Moves a scene window, with its dim, between gone and its place. Starts where it is, so that a
/// window that is on its way can be called back. Owned by the window; deleted when it ends.
class SceneTransition : public QVariantAnimation
{
    Q_OBJECT

public:
    SceneTransition(MSceneWindow *window, bool isEntering);

    /// Shows \a window as far as it has come.
    static void showProgress(MSceneWindow *window, qreal progress);

protected:
    void updateCurrentValue(const QVariant &value) override;

private:
    MSceneWindow *m_window;
};

#endif
