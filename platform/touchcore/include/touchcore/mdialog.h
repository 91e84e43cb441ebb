// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MDIALOG_H
#define TOUCHCORE_MDIALOG_H

#include <touchcore/mscenewindow.h>

class MButton;
class MDialogPrivate;

/// A question or a small form in the middle of the window, over what is dimmed below.
///
/// As high as its contents, at most 400 pixels wide by default. The keyboard's focus stays inside.
/// A press beside it, Escape and the back key reject it.
class MDialog : public MSceneWindow
{
    Q_OBJECT
    M_STYLE(MDialogStyle)
    Q_PROPERTY(QString title READ title WRITE setTitle)

public:
    enum DialogResult { Rejected = 0, Accepted = 1 };

    explicit MDialog(QGraphicsItem *parent = nullptr);
    ~MDialog() override;

    QString title() const;
    void setTitle(const QString &title);
    /// Null until one is set.
    QGraphicsWidget *centralWidget() const;
    /// Owned by the dialog, which deletes the one before; null takes it away.
    void setCentralWidget(QGraphicsWidget *widget);

    /// Adds a button at the end that ends the dialog with \a result. Buttons stand in a row, or
    /// below each other when they are too wide for it.
    MButton *addButton(const QString &text, int result);
    /// In the order in which they were added.
    QList<MButton *> buttons() const;
    /// What the enter key clicks when the focus is on no button; null, the default, for nothing.
    void setDefaultButton(MButton *button);

    /// Shows the dialog in \a window (null: the active one) and answers its result() when it ends;
    /// Rejected when there is no window, when it is deleted, or when the program quits meanwhile.
    /// The program goes on; a dialog that is being executed refuses a second call with Rejected.
    int exec(MWindow *window = nullptr);
    /// Of the last time that it was shown.
    int result() const;

    void goBack() override;

public Q_SLOTS:
    /// Ends the dialog: it disappears, and finished() is sent. Ignored while it is not shown.
    virtual void done(int result);
    virtual void accept();
    virtual void reject();

Q_SIGNALS:
    /// Sent once each time it was shown: by done() at once, else when it has disappeared, then with
    /// Rejected.
    void finished(int result);

protected:
    QRectF place(const QSizeF &area) const override;
    Motion motion() const override;
    bool isModal() const override;
    void pressedOutside() override;
    void applyStyle() override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    std::unique_ptr<MDialogPrivate> d;
};

#endif
