// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_LINEFIELD_H
#define TOUCHCORE_LINEFIELD_H

#include "textfield.h"

/// One line of text.
class LineField : public TextField
{
    Q_OBJECT

public:
    LineField();

    QWidget *widget() const override { return m_edit; }
    QString text() const override { return m_edit->text(); }
    void setText(const QString &text) override;
    void setPrompt(const QString &prompt) override { m_edit->setPlaceholderText(prompt); }
    int maximumLength() const override { return m_edit->maxLength(); }
    void setMaximumLength(int length) override { m_edit->setMaxLength(length); }
    bool isReadOnly() const override { return m_edit->isReadOnly(); }
    void setReadOnly(bool isReadOnly) override { m_edit->setReadOnly(isReadOnly); }
    QLineEdit::EchoMode echoMode() const override { return m_edit->echoMode(); }
    void setEchoMode(QLineEdit::EchoMode mode) override { m_edit->setEchoMode(mode); }

    int cursorPosition() const override { return m_edit->cursorPosition(); }
    void setCursorPosition(int position) override;
    QString selectedText() const override { return m_edit->selectedText(); }
    void selectWordAt(const QPoint &position) override;
    bool isSelectedAt(const QPoint &position) const override;
    bool canUndo() const override { return m_edit->isUndoAvailable(); }
    bool canRedo() const override { return m_edit->isRedoAvailable(); }

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
    void dropHalfCharacter();
    void align();

    QLineEdit *m_edit;
};

#endif
