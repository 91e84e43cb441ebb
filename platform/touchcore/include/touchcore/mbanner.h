// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MBANNER_H
#define TOUCHCORE_MBANNER_H

#include <touchcore/mscenewindow.h>

class MBannerPrivate;

/// Tells what happened, for a moment, at the lower edge of the window; it may offer something to do
/// about it, such as undoing it.
///
/// It goes after its timeout, by a tap, or when a newer banner takes its place. A banner that
/// offers something keeps its place from those that do not; they come after it. What is below can
/// be used all the while.
class MBanner : public MSceneWindow
{
    Q_OBJECT
    M_STYLE(MBannerStyle)
    Q_PROPERTY(QString title READ title WRITE setTitle)

public:
    explicit MBanner(QGraphicsItem *parent = nullptr);
    ~MBanner() override;

    /// One line, or two where it does not fit.
    QString title() const;
    void setTitle(const QString &title);
    /// The name of a picture of the theme; empty, the default, for none.
    QString iconID() const;
    void setIconID(const QString &id);
    /// The word on its button; empty, the default, for no button.
    QString actionText() const;
    void setActionText(const QString &text);

    /// How long it stays once it has appeared, in milliseconds: below 0, the default, as long as
    /// the style says for one with or without a button; 0 until it is tapped.
    int timeout() const;
    void setTimeout(int milliseconds);

Q_SIGNALS:
    /// Its button was tapped. The banner goes.
    void actionClicked();
    /// The banner itself was tapped. It goes.
    void clicked();

protected:
    QRectF place(const QSizeF &area) const override;
    Motion motion() const override;
    void applyStyle() override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    std::unique_ptr<MBannerPrivate> d;
};

#endif
