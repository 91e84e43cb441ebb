// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_DIALOGBUTTONS_H
#define TOUCHCORE_DIALOGBUTTONS_H

#include <QGraphicsWidget>

class MButton;

/// The buttons of a dialog: of equal width in a row, or below each other when the widest is too
/// wide for that.
class DialogButtons : public QGraphicsWidget
{
    Q_OBJECT

public:
    explicit DialogButtons(QGraphicsItem *parent);
    ~DialogButtons() override;

    void add(MButton *button);
    QList<MButton *> buttons() const { return m_buttons; }
    /// Room above the buttons, in pixels.
    void setTopMargin(qreal margin);

protected:
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint) const override;
    void resizeEvent(QGraphicsSceneResizeEvent *event) override;
    bool event(QEvent *event) override;

private:
    void arrange();
    QSizeF largestButton() const;
    qreal rowWidth() const;

    QList<MButton *> m_buttons;
    qreal m_topMargin = 0;
};

#endif
