// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MTEXTEDIT_H
#define TOUCHCORE_MTEXTEDIT_H

#include <touchcore/mstylablewidget.h>

#include <QFont>
#include <QLineEdit>

class MTextEditPrivate;

/// How a text field looks. The style's block "error" holds while it has an error.
class MTextEditStyle : public MWidgetStyle
{
    Q_OBJECT
    M_STYLE_ATTRIBUTE(QFont, font, setFont)
    M_STYLE_ATTRIBUTE(QColor, color, setColor, Qt::black)
    M_STYLE_ATTRIBUTE(QColor, promptColor, setPromptColor, Qt::gray)
    M_STYLE_ATTRIBUTE(QColor, selectionColor, setSelectionColor, Qt::lightGray)
    M_STYLE_ATTRIBUTE(QColor, selectedTextColor, setSelectedTextColor, Qt::black)
    /// The frame while the field has the focus, by finger or by keyboard: it says where one types.
    M_STYLE_ATTRIBUTE(QColor, focusBorderColor, setFocusBorderColor)
    /// In pixels at scale 1.
    M_STYLE_ATTRIBUTE(int, focusBorderWidth, setFocusBorderWidth, 2)
};

/// A field to type a text into, on one line or on many.
///
/// The field of many lines grows with its text, so that the page scrolls and not the field. A tap
/// gives it the focus and asks for the on-screen keyboard; a touch that becomes a pan does not. A
/// long press offers to cut, copy and paste. When the focus goes, whoever shows the window hides
/// the keyboard.
class MTextEdit : public MStylableWidget
{
    Q_OBJECT
    M_STYLE(MTextEditStyle)
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged USER true)
    Q_PROPERTY(QString prompt READ prompt WRITE setPrompt)
    Q_PROPERTY(int maximumLength READ maximumLength WRITE setMaximumLength)
    Q_PROPERTY(bool readOnly READ isReadOnly WRITE setReadOnly)
    Q_PROPERTY(bool error READ hasError WRITE setError)

public:
    enum LineMode {
        SingleLine,
        MultiLine,
    };
    Q_ENUM(LineMode)

    explicit MTextEdit(QGraphicsItem *parent = nullptr);
    explicit MTextEdit(LineMode mode, QGraphicsItem *parent = nullptr);
    ~MTextEdit() override;

    LineMode lineMode() const;

    QString text() const;
    /// Forgets what could be undone. A text that is too long is cut.
    void setText(const QString &text);

    /// Shown while the text is empty, to say what belongs here.
    QString prompt() const;
    void setPrompt(const QString &prompt);

    /// In UTF-16 units, from 1; 32767 by default. What is typed or pasted beyond it is cut off; no
    /// character is cut in two.
    int maximumLength() const;
    void setMaximumLength(int length);

    bool isReadOnly() const;
    void setReadOnly(bool isReadOnly);

    /// Whether the text is refused by whoever asked for it; typing does not take it back.
    bool hasError() const;
    void setError(bool hasError);

    /// How a single line shows what is typed. Text that is not shown is neither cut nor copied.
    /// Without effect on many lines.
    QLineEdit::EchoMode echoMode() const;
    void setEchoMode(QLineEdit::EchoMode mode);

    /// What kind of text the on-screen keyboard should expect.
    Qt::InputMethodHints contentHints() const;
    void setContentHints(Qt::InputMethodHints hints);

    /// The height of an empty field of many lines: 3 by default.
    int minimumLines() const;
    void setMinimumLines(int lines);

    /// In UTF-16 units from the start.
    int cursorPosition() const;
    void setCursorPosition(int position);
    /// Empty when nothing is selected.
    QString selectedText() const;

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option,
               QWidget *widget = nullptr) override;

public Q_SLOTS:
    void selectAll();
    void cut();
    void copy();
    void paste();
    void undo();
    void redo();
    void clear();

Q_SIGNALS:
    /// By typing or by the program.
    void textChanged();
    /// The return key on a single line.
    void returnPressed();
    /// The return key on a single line, or the focus went elsewhere.
    void editingFinished();

protected:
    void applyStyle() override;
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint = QSizeF()) const override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QGraphicsSceneResizeEvent *event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    std::unique_ptr<MTextEditPrivate> d;
};

#endif
