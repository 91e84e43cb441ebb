// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MBUTTONVIEWS_H
#define TOUCHCORE_MBUTTONVIEWS_H

#include <touchcore/mbuttonview.h>

class MButtonSwitchViewPrivate;

/// The view type "icon": the picture alone, never larger than it prefers. The text is for those who
/// listen.
class MButtonIconView : public MButtonView
{
    Q_OBJECT

public:
    explicit MButtonIconView(MButton *button);
    void drawContents(QPainter *painter) const override;
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint) const override;

protected:
    QString defaultStyleName() const override;
    QSizeF contentsSize(qreal width) const override;
};

/// The view type "tab": the picture over a caption, for the bar that switches pages.
class MButtonTabView : public MButtonView
{
    Q_OBJECT

public:
    explicit MButtonTabView(MButton *button);
    void drawContents(QPainter *painter) const override;

protected:
    QString defaultStyleName() const override;
    QSizeF contentsSize(qreal width) const override;
};

/// The view type "group": a segment of the button's group. The segments stand beside each other
/// without spacing, in the order of the group; the first and the last one have round ends.
class MButtonGroupView : public MButtonView
{
    Q_OBJECT

public:
    explicit MButtonGroupView(MButton *button);
    void drawBackground(QPainter *painter) const override;

protected:
    QString defaultStyleName() const override;
};

/// A row with a mark that says whether it is checked: the base of the next three.
class MButtonMarkView : public MButtonView
{
    Q_OBJECT

public:
    explicit MButtonMarkView(MButton *button);
    void drawContents(QPainter *painter) const override;

protected:
    QSizeF contentsSize(qreal width) const override;
    /// Whether the mark stands before the text.
    virtual bool isMarkAtStart() const { return false; }
    virtual void drawMark(QPainter *painter, const QRectF &rect) const = 0;
    /// Draws the background and border of the mark.
    void drawMarkFrame(QPainter *painter, const QRectF &rect, qreal radius) const;

private:
    qreal markRoom() const;
};

/// The view type "switch": on or off, in force at once. The thumb slides to its side.
class MButtonSwitchView : public MButtonMarkView
{
    Q_OBJECT

public:
    explicit MButtonSwitchView(MButton *button);
    ~MButtonSwitchView() override;
    void updateData(const QList<const char *> &modifications) override;

    /// Where the thumb is: from 0 (off) to 1 (on).
    qreal thumbPosition() const;

protected:
    QString defaultStyleName() const override;
    void drawMark(QPainter *painter, const QRectF &rect) const override;

private:
    std::unique_ptr<MButtonSwitchViewPrivate> d;
};

/// The view type "check": a box with a check mark, before the text.
class MButtonCheckView : public MButtonMarkView
{
    Q_OBJECT

public:
    explicit MButtonCheckView(MButton *button);

protected:
    QString defaultStyleName() const override;
    bool isMarkAtStart() const override { return true; }
    void drawMark(QPainter *painter, const QRectF &rect) const override;
};

/// The view type "choice": a row of a list of answers; a check mark at the end of the chosen one.
class MButtonChoiceView : public MButtonMarkView
{
    Q_OBJECT

public:
    explicit MButtonChoiceView(MButton *button);

protected:
    QString defaultStyleName() const override;
    void drawMark(QPainter *painter, const QRectF &rect) const override;
};

#endif
