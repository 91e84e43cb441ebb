// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "areafield.h"

#include <QAbstractTextDocumentLayout>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QTextBlock>
#include <QTextDocumentFragment>
#include <QtMath>

AreaField::AreaField() : m_edit(new QTextEdit)
{
    m_edit->setFrameShape(QFrame::NoFrame);
    m_edit->setAcceptRichText(false);
    m_edit->setTabChangesFocus(true);
    m_edit->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_edit->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_edit->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    m_edit->document()->setDocumentMargin(2);
    m_edit->installEventFilter(this);
    m_edit->viewport()->installEventFilter(this);
    connect(m_edit->document(), &QTextDocument::contentsChange, this,
            [this](int position, int, int added) { m_lastChangeEnd = position + added; });
    connect(m_edit, &QTextEdit::textChanged, this, &AreaField::cutExcess);
    connect(m_edit->document()->documentLayout(), &QAbstractTextDocumentLayout::documentSizeChanged,
            this, &TextField::heightChanged);
}

void AreaField::setText(const QString &text)
{
    m_edit->setPlainText(text);
}

void AreaField::setMaximumLength(int length)
{
    m_maximumLength = length;
    m_lastChangeEnd = m_edit->document()->characterCount() - 1;
    cutExcess();
}

void AreaField::cutExcess()
{
    // The document counts the end of its last paragraph, too.
    const int excess = m_edit->document()->characterCount() - 1 - m_maximumLength;
    if (excess > 0) {
        const QSignalBlocker once(m_edit);
        QTextCursor cursor(m_edit->document());
        const int end = qMax(excess, qMin(m_lastChangeEnd, m_maximumLength + excess));
        cursor.setPosition(end - excess);
        // Both halves of a character go together.
        if (cursor.position() > 0
            && m_edit->document()->characterAt(cursor.position()).isLowSurrogate())
            cursor.setPosition(cursor.position() - 1);
        cursor.setPosition(end, QTextCursor::KeepAnchor);
        cursor.joinPreviousEditBlock();
        cursor.removeSelectedText();
        cursor.endEditBlock();
    }
    Q_EMIT textChanged();
}

void AreaField::setCursorPosition(int position)
{
    QTextCursor cursor = m_edit->textCursor();
    cursor.setPosition(qBound(0, position, m_edit->document()->characterCount() - 1));
    m_edit->setTextCursor(cursor);
}

QString AreaField::selectedText() const
{
    return m_edit->textCursor().selection().toPlainText();
}

void AreaField::selectWordAt(const QPoint &position)
{
    QTextCursor cursor = m_edit->cursorForPosition(position);
    cursor.select(QTextCursor::WordUnderCursor);
    m_edit->setTextCursor(cursor);
}

bool AreaField::isSelectedAt(const QPoint &position) const
{
    const QTextCursor selection = m_edit->textCursor();
    const int at = m_edit->cursorForPosition(position).position();
    return selection.hasSelection() && at >= selection.selectionStart()
        && at <= selection.selectionEnd();
}

qreal AreaField::height(qreal width) const
{
    QTextDocument *document = m_edit->document();
    // Asked in every layout pass: most often the document is broken for this width already.
    if (width <= 0 || qFuzzyCompare(document->textWidth(), width))
        return qCeil(document->size().height());
    const std::unique_ptr<QTextDocument> copy(document->clone());
    copy->setTextWidth(width);
    return qCeil(copy->size().height());
}

bool AreaField::eventFilter(QObject *watched, QEvent *event)
{
    // Qt would begin to drag a selected text away where a finger begins to pan.
    if (watched == m_edit->viewport()) {
        if (event->type() == QEvent::MouseButtonPress)
            m_isPressOnSelection = isSelectedAt(static_cast<QMouseEvent *>(event)->pos());
        else if (event->type() == QEvent::MouseMove && m_isPressOnSelection)
            return true;
    } else if (event->type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
            Q_EMIT editingFinished();
    }
    return TextField::eventFilter(watched, event);
}
