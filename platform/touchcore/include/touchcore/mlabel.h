// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MLABEL_H
#define TOUCHCORE_MLABEL_H

#include <touchcore/mlabelstyle.h>
#include <touchcore/mstylablewidget.h>

class MLabelPrivate;

/// A text to read.
///
/// It stands on one line that is shortened with an ellipsis, or is wrapped over as many lines as it
/// needs or maximumLines() allows. What is laid out is kept: drawing it again costs little. Presses
/// go on to what lies below, except on a link.
class MLabel : public MStylableWidget
{
    Q_OBJECT
    M_STYLE(MLabelStyle)
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(Qt::TextFormat textFormat READ textFormat WRITE setTextFormat)
    Q_PROPERTY(bool wordWrap READ wordWrap WRITE setWordWrap)
    Q_PROPERTY(int maximumLines READ maximumLines WRITE setMaximumLines)
    Q_PROPERTY(Qt::Alignment alignment READ alignment WRITE setAlignment)
    Q_PROPERTY(Qt::TextElideMode textElide READ textElide WRITE setTextElide)

public:
    explicit MLabel(QGraphicsItem *parent = nullptr);
    explicit MLabel(const QString &text, QGraphicsItem *parent = nullptr);
    ~MLabel() override;

    QString text() const;
    /// Without word wrap, line breaks in a plain text stand as spaces.
    void setText(const QString &text);

    /// Plain by default, so that a title typed by somebody is shown as typed. Rich text and, where
    /// it looks like such, auto text are HTML; pictures and style sheets in it are not loaded.
    Qt::TextFormat textFormat() const;
    void setTextFormat(Qt::TextFormat format);

    /// Off by default. On, the height depends on the width.
    bool wordWrap() const;
    void setWordWrap(bool isWrapped);

    /// With word wrap, the lines shown of a plain text; the last one ends in an ellipsis when text
    /// remains. 0, the default, is no limit.
    int maximumLines() const;
    void setMaximumLines(int lines);

    /// Leading and vertically centred by default. Leading and trailing go by the layout direction
    /// of the label, whatever the script of the text; within a line the text runs in its own
    /// direction.
    Qt::Alignment alignment() const;
    void setAlignment(Qt::Alignment alignment);

    /// Where a text that is too long is shortened: at its end by default.
    Qt::TextElideMode textElide() const;
    void setTextElide(Qt::TextElideMode mode);

    /// Whether the text as laid out at the present width is shortened.
    bool isElided() const;
    /// What is read aloud: the text without the marks of rich text.
    QString plainText() const;

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option,
               QWidget *widget = nullptr) override;

Q_SIGNALS:
    /// A link of a rich text was tapped. The label itself opens nothing.
    void linkActivated(const QString &link);

protected:
    void applyStyle() override;
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint = QSizeF()) const override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QGraphicsSceneResizeEvent *event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    void cancelEvent() override;

private:
    std::unique_ptr<MLabelPrivate> d;
};

#endif
