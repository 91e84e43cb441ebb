// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_TEXTFIELD_H
#define TOUCHCORE_TEXTFIELD_H

#include <QLineEdit>
#include <QObject>

/// What a text field asks of the Qt widget that edits the text.
class TextField : public QObject
{
    Q_OBJECT

public:
    /// The widget that takes the focus. Owned by the proxy that shows it.
    virtual QWidget *widget() const = 0;
    /// The one that gets the touches.
    virtual QWidget *touched() const { return widget(); }

    virtual QString text() const = 0;
    virtual void setText(const QString &text) = 0;
    virtual void setPrompt(const QString &prompt) = 0;
    virtual int maximumLength() const = 0;
    virtual void setMaximumLength(int length) = 0;
    virtual bool isReadOnly() const = 0;
    virtual void setReadOnly(bool isReadOnly) = 0;
    virtual QLineEdit::EchoMode echoMode() const { return QLineEdit::Normal; }
    virtual void setEchoMode(QLineEdit::EchoMode) { }

    virtual int cursorPosition() const = 0;
    virtual void setCursorPosition(int position) = 0;
    virtual QString selectedText() const = 0;
    /// Selects the word at a place of touched().
    virtual void selectWordAt(const QPoint &position) = 0;
    virtual bool isSelectedAt(const QPoint &position) const = 0;
    virtual bool canUndo() const = 0;
    virtual bool canRedo() const = 0;

    virtual void selectAll() = 0;
    virtual void cut() = 0;
    virtual void copy() = 0;
    virtual void paste() = 0;
    virtual void undo() = 0;
    virtual void redo() = 0;

    /// What the text needs, broken for \a width when it has many lines.
    virtual qreal height(qreal width) const = 0;

Q_SIGNALS:
    void textChanged();
    void returnPressed();
    void editingFinished();
    void heightChanged();
};

#endif
