// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_AREAFIELD_H
#define TOUCHCORE_AREAFIELD_H

#include "textfield.h"

#include <QTextEdit>

/// Many lines of plain text.
class AreaField : public TextField
{
    Q_OBJECT

public:
    AreaField();

    QWidget *widget() const override { return m_edit; }
    QWidget *touched() const override { return m_edit->viewport(); }
    QString text() const override { return m_edit->toPlainText(); }
    void setText(const QString &text) override;
    void setPrompt(const QString &prompt) override { m_edit->setPlaceholderText(prompt); }
    int maximumLength() const override { return m_maximumLength; }
    void setMaximumLength(int length) override;
    bool isReadOnly() const override { return m_edit->isReadOnly(); }
    void setReadOnly(bool isReadOnly) override { m_edit->setReadOnly(isReadOnly); }

    int cursorPosition() const override { return m_edit->textCursor().position(); }
    void setCursorPosition(int position) override;
    QString selectedText() const override;
    void selectWordAt(const QPoint &position) override;
    bool isSelectedAt(const QPoint &position) const override;
    bool canUndo() const override { return m_edit->document()->isUndoAvailable(); }
    bool canRedo() const override { return m_edit->document()->isRedoAvailable(); }

    void selectAll() override { m_edit->selectAll(); }
    void cut() override { m_edit->cut(); }
    void copy() override { m_edit->copy(); }
    void paste() override { m_edit->paste(); }
    void undo() override { m_edit->undo(); }
    void redo() override { m_edit->redo(); }
    qreal height(qreal width) const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void cutExcess();

    QTextEdit *m_edit;
    int m_maximumLength = 32767;
    int m_lastChangeEnd = 0; ///< where the newest text ends: the excess is cut before it
    bool m_isPressOnSelection = false;
};

#endif
