// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MAPPLICATIONPAGE_H
#define TOUCHCORE_MAPPLICATIONPAGE_H

#include <touchcore/mapplicationpagemodel.h>
#include <touchcore/mscenewindow.h>

class MApplicationPagePrivate;

/// A page of the program: a header and, below it, one widget that fills the rest.
///
/// The header shows the button that leaves the page, the title and the page's actions(): up to two
/// as buttons (QAction::priority() says which come first; those of low priority never), the others
/// in a menu. The dynamic property "iconID" of an action names its picture in the theme.
class MApplicationPage : public MSceneWindow
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle)

public:
    explicit MApplicationPage(QGraphicsItem *parent = nullptr);
    ~MApplicationPage() override;

    MApplicationPageModel *model() const
    {
        return static_cast<MApplicationPageModel *>(MSceneWindow::model());
    }

    QString title() const;
    void setTitle(const QString &title);
    MApplicationPageModel::EscapeMode escapeMode() const;
    void setEscapeMode(MApplicationPageModel::EscapeMode mode);
    /// Pages that bring a header of their own hide this one.
    bool isHeaderVisible() const;
    void setHeaderVisible(bool isVisible);

    /// Null until one is set.
    QGraphicsWidget *centralWidget() const;
    /// Owned by the page, which deletes the one before; null leaves the page empty.
    void setCentralWidget(QGraphicsWidget *widget);

    void goBack() override;

public Q_SLOTS:
    void updateData(const QList<const char *> &modifications) override;

Q_SIGNALS:
    /// The button that leaves the page was tapped, or Escape or the back key pressed.
    void backButtonClicked();

protected:
    Motion motion() const override;
    void enterDisplayEvent() override;
    void resizeEvent(QGraphicsSceneResizeEvent *event) override;
    bool event(QEvent *event) override;

private:
    std::unique_ptr<MApplicationPagePrivate> d;
};

#endif
