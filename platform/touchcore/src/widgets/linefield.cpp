// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "linefield.h"

#include <QFocusEvent>
#include <QFontMetrics>
#include <QSignalBlocker>

LineField::LineField() : m_edit(new QLineEdit)
{
    m_edit->setFrame(false);
    m_edit->setDragEnabled(false);
    m_edit->installEventFilter(this);
    connect(m_edit, &QLineEdit::textChanged, this, [this] {
        dropHalfCharacter();
        align();
        Q_EMIT textChanged();
    });
    connect(m_edit, &QLineEdit::returnPressed, this, &TextField::returnPressed);
    connect(m_edit, &QLineEdit::editingFinished, this, &TextField::editingFinished);
    align();
}

/// A text begins where its script does; what stands in its place, where the page begins.
void LineField::align()
{
    const bool isMirrored = m_edit->layoutDirection() == Qt::RightToLeft;
    const Qt::Alignment edge = isMirrored ? Qt::AlignRight : Qt::AlignLeft;
    m_edit->setAlignment(
        Qt::AlignVCenter
        | (m_edit->text().isEmpty() ? edge | Qt::AlignAbsolute : Qt::AlignLeading));
}

void LineField::dropHalfCharacter()
{
    // Qt cuts a text that is too long between two UTF-16 units.
    const QString text = m_edit->text();
    const int end = m_edit->cursorPosition();
    if (end > 0 && text[end - 1].isHighSurrogate()
        && (end == text.size() || !text[end].isLowSurrogate())) {
        const QSignalBlocker once(m_edit);
        m_edit->backspace();
    }
}

void LineField::setText(const QString &text)
{
    m_edit->setText(text);
    if (!m_edit->hasFocus())
        m_edit->setCursorPosition(0);
}

bool LineField::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LayoutDirectionChange)
        align();
    // A text too long for the field is read from its start, but edited at its end.
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        const bool isIn = event->type() == QEvent::FocusIn;
        if (reason == Qt::OtherFocusReason && isIn && m_edit->cursorPosition() == 0)
            m_edit->end(false);
        else if (!isIn && reason != Qt::ActiveWindowFocusReason && !m_edit->hasSelectedText())
            m_edit->setCursorPosition(0);
    }
    return TextField::eventFilter(watched, event);
}

void LineField::setCursorPosition(int position)
{
    m_edit->setCursorPosition(qBound(0, position, m_edit->text().size()));
}

void LineField::selectWordAt(const QPoint &position)
{
    m_edit->setCursorPosition(m_edit->cursorPositionAt(position));
    m_edit->cursorWordBackward(false);
    m_edit->cursorWordForward(true);
    // The blanks behind a word are not part of it.
    const QString selected = m_edit->selectedText();
    if (selected.isEmpty())
        return;
    int blanks = 0;
    while (blanks < selected.size() && selected[selected.size() - 1 - blanks].isSpace())
        ++blanks;
    m_edit->setSelection(m_edit->selectionStart(), selected.size() - blanks);
}

bool LineField::isSelectedAt(const QPoint &position) const
{
    const int at = const_cast<QLineEdit *>(m_edit)->cursorPositionAt(position);
    return m_edit->hasSelectedText() && at >= m_edit->selectionStart()
        && at <= m_edit->selectionEnd();
}

qreal LineField::height(qreal) const
{
    return QFontMetrics(m_edit->font()).height() + 2;
}
