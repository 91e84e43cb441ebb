// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MSHEET_H
#define TOUCHCORE_MSHEET_H

#include <touchcore/mscenewindow.h>

class MSheetPrivate;
class QAction;

/// A sheet for one task, such as editing: it rises over the page and goes when the task is done or
/// given up.
///
/// It fills the window, or is as wide as its style allows, in the middle. The header, which has a
/// title and the actions to end it by, is there as soon as one of them is set.
class MSheet : public MSceneWindow
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle)

public:
    explicit MSheet(QGraphicsItem *parent = nullptr);
    ~MSheet() override;

    QString title() const;
    void setTitle(const QString &title);

    /// What gives the task up: a close button at the start of the header, and Escape. Not owned;
    /// null, the default, takes it away. The sheet itself goes only when it is dismissed.
    void setCancelAction(QAction *action);
    QAction *cancelAction() const;
    /// What ends the task: a button at the end of the header. As the action to cancel.
    void setDoneAction(QAction *action);
    QAction *doneAction() const;

    /// Null until one is set.
    QGraphicsWidget *centralWidget() const;
    /// Owned by the sheet, which deletes the one before; null leaves the sheet empty.
    void setCentralWidget(QGraphicsWidget *widget);

    /// Triggers the action to cancel; without one, backRequested() decides or the sheet is
    /// dismissed.
    void goBack() override;

Q_SIGNALS:
    /// The person wants to leave a sheet that has no action to cancel. When something is connected
    /// here, the sheet stays and that decides.
    void backRequested();

protected:
    QRectF place(const QSizeF &area) const override;
    Motion motion() const override;
    bool isModal() const override;
    void resizeEvent(QGraphicsSceneResizeEvent *event) override;

private:
    std::unique_ptr<MSheetPrivate> d;
};

#endif
