// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "areafield.h"
#include "linefield.h"
#include "mtextedit_p.h"

#include <touchcore/mtheme.h>

#include <QEvent>
#include <QGraphicsProxyWidget>
#include <QGraphicsSceneMouseEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QtMath>

MTextEdit::MTextEdit(QGraphicsItem *parent) : MTextEdit(SingleLine, parent) { }

MTextEdit::MTextEdit(LineMode mode, QGraphicsItem *parent)
    : MStylableWidget(parent), d(std::make_unique<MTextEditPrivate>(this, mode))
{
    TextField *field = d->field.get();
    connect(field, &TextField::textChanged, this, &MTextEdit::textChanged);
    connect(field, &TextField::returnPressed, this, &MTextEdit::returnPressed);
    connect(field, &TextField::editingFinished, this, &MTextEdit::editingFinished);
    connect(field, &TextField::heightChanged, this, [this] { updateGeometry(); });
    field->widget()->installEventFilter(this);
    if (field->touched() != field->widget())
        field->touched()->installEventFilter(this);
    // Only what could have the focus itself hands it on.
    setFlag(ItemIsFocusable);
    setFocusProxy(d->proxy);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    policy.setHeightForWidth(mode == MultiLine);
    setSizePolicy(policy);
}

MTextEdit::~MTextEdit()
{
    d->field->disconnect(this);
}

MTextEdit::LineMode MTextEdit::lineMode() const
{
    return d->mode;
}

QString MTextEdit::text() const
{
    return d->field->text();
}

void MTextEdit::setText(const QString &text)
{
    if (text != d->field->text())
        d->field->setText(text);
}

QString MTextEdit::prompt() const
{
    return d->prompt;
}

void MTextEdit::setPrompt(const QString &prompt)
{
    d->prompt = prompt;
    d->field->setPrompt(prompt);
}

int MTextEdit::maximumLength() const
{
    return d->field->maximumLength();
}

void MTextEdit::setMaximumLength(int length)
{
    d->field->setMaximumLength(qMax(1, length));
}

bool MTextEdit::isReadOnly() const
{
    return d->field->isReadOnly();
}

void MTextEdit::setReadOnly(bool isReadOnly)
{
    d->field->setReadOnly(isReadOnly);
}

bool MTextEdit::hasError() const
{
    return d->hasError;
}

void MTextEdit::setError(bool hasError)
{
    d->hasError = hasError;
    d->applyMode();
}

QLineEdit::EchoMode MTextEdit::echoMode() const
{
    return d->field->echoMode();
}

void MTextEdit::setEchoMode(QLineEdit::EchoMode mode)
{
    d->field->setEchoMode(mode);
}

Qt::InputMethodHints MTextEdit::contentHints() const
{
    return d->field->widget()->inputMethodHints();
}

void MTextEdit::setContentHints(Qt::InputMethodHints hints)
{
    d->field->widget()->setInputMethodHints(hints);
}

int MTextEdit::minimumLines() const
{
    return d->minimumLines;
}

void MTextEdit::setMinimumLines(int lines)
{
    d->minimumLines = qMax(1, lines);
    updateGeometry();
}

int MTextEdit::cursorPosition() const
{
    return d->field->cursorPosition();
}

void MTextEdit::setCursorPosition(int position)
{
    d->field->setCursorPosition(position);
}

QString MTextEdit::selectedText() const
{
    return d->field->selectedText();
}

void MTextEdit::selectAll()
{
    d->field->selectAll();
}

void MTextEdit::cut()
{
    d->field->cut();
}

void MTextEdit::copy()
{
    d->field->copy();
}

void MTextEdit::paste()
{
    d->field->paste();
}

void MTextEdit::undo()
{
    d->field->undo();
}

void MTextEdit::redo()
{
    d->field->redo();
}

void MTextEdit::clear()
{
    setText(QString());
}

void MTextEdit::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget)
{
    MStylableWidget::paint(painter, option, widget);
    if (!d->proxy->hasFocus() || !style()->focusBorderColor().isValid())
        return;
    const qreal line = style()->focusBorderWidth();
    const QRectF frame = rect().marginsRemoved(style()->margins(layoutDirection()));
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(style()->focusBorderColor(), line));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(frame.adjusted(line / 2, line / 2, -line / 2, -line / 2),
                             style()->cornerRadius(), style()->cornerRadius());
    painter->restore();
}

void MTextEdit::applyStyle()
{
    d->applyColors();
    MStylableWidget::applyStyle();
    d->placeField();
}

QSizeF MTextEdit::sizeHint(Qt::SizeHint which, const QSizeF &constraint) const
{
    const QSizeF styled = MStylableWidget::sizeHint(which, constraint);
    if (which != Qt::MinimumSize && which != Qt::PreferredSize)
        return styled;
    const QMarginsF around = d->around();
    const qreal sides = around.left() + around.right();
    const qreal width = (constraint.width() >= 0 ? constraint.width() : size().width()) - sides;
    qreal height = d->field->height(width);
    if (d->mode == MultiLine) {
        const QFontMetricsF metrics(d->field->widget()->font());
        height = qMax(height, qCeil(metrics.lineSpacing()) * qreal(d->minimumLines));
    }
    height = qMax(height + around.top() + around.bottom(), style()->minimumSize().height());
    return {qMax(sides, styled.width()), height};
}

void MTextEdit::changeEvent(QEvent *event)
{
    MStylableWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        d->applyMode();
    // Qt tells only the proxy.
    if (event->type() == QEvent::LayoutDirectionChange)
        d->field->widget()->setLayoutDirection(layoutDirection());
}

void MTextEdit::resizeEvent(QGraphicsSceneResizeEvent *event)
{
    MStylableWidget::resizeEvent(event);
    d->placeField();
}

void MTextEdit::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    // The room around the text belongs to the field, too.
    event->setAccepted(event->button() == Qt::LeftButton);
}

void MTextEdit::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    if (rect().contains(event->pos()))
        d->takeFocus();
}

bool MTextEdit::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        update();
        break;
    case QEvent::MouseButtonRelease:
        // A touch that is taken over ends with a release far away.
        if (watched == d->field->touched()
            && d->field->touched()->rect().contains(static_cast<QMouseEvent *>(event)->pos()))
            d->takeFocus();
        break;
    default:
        break;
    }
    return MStylableWidget::eventFilter(watched, event);
}
