// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "mtextedit_p.h"

#include "areafield.h"
#include "linefield.h"

#include <QAction>
#include <QClipboard>
#include <QCoreApplication>
#include <QGraphicsProxyWidget>
#include <QGraphicsSceneContextMenuEvent>
#include <QGuiApplication>
#include <QInputMethod>
#include <QMimeData>
#include <QProxyStyle>
#include <QRegularExpression>

namespace
{
/// Qt's line edit leaves this many pixels free at its sides.
const int editMargin = 2;
/// U+2022, which every font has; Qt's own circle is larger than letters are.
const int bullet = 0x2022;

/// The look of the platform has no say within a field; a tap asks for the on-screen keyboard.
class FieldStyle : public QProxyStyle
{
public:
    FieldStyle() : QProxyStyle(QStringLiteral("fusion")) { }

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returned) const override
    {
        if (hint == SH_RequestSoftwareInputPanel)
            return RSIP_OnMouseClick;
        if (hint == SH_LineEdit_PasswordCharacter)
            return bullet;
        return QProxyStyle::styleHint(hint, option, widget, returned);
    }
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        return metric == PM_TextCursorWidth ? 2 : QProxyStyle::pixelMetric(metric, option, widget);
    }
};

/// Shows the widget, and has a menu of its own also while it has not the focus.
class FieldProxy : public QGraphicsProxyWidget
{
public:
    explicit FieldProxy(MTextEditPrivate *owner)
        : QGraphicsProxyWidget(owner->q), m_owner(owner) { }

protected:
    void focusInEvent(QFocusEvent *event) override
    {
        QGraphicsProxyWidget::focusInEvent(event);
        // Qt hands the focus on only to a widget that had it before.
        if (!widget()->hasFocus())
            widget()->setFocus(event->reason());
    }
    void contextMenuEvent(QGraphicsSceneContextMenuEvent *event) override
    {
        m_owner->openMenu(event->pos().toPoint(),
                          event->reason() == QGraphicsSceneContextMenuEvent::Keyboard);
    }

private:
    MTextEditPrivate *m_owner;
};

QStyle *fieldStyle()
{
    static QStyle *style = nullptr;
    if (!style) {
        style = new FieldStyle;
        style->setParent(QCoreApplication::instance());
        QObject::connect(style, &QObject::destroyed, [] { style = nullptr; });
    }
    return style;
}

/// Qt's own word for it, as Qt's catalogue has it, without the mark of its shortcut.
QString menuText(const char *source)
{
    QString text = QCoreApplication::translate("QLineEdit", source);
    static const QRegularExpression marks(QStringLiteral("\\(&.\\)|&"));
    return text.remove(marks);
}

bool isShown(const TextField &field)
{
    return field.echoMode() == QLineEdit::Normal;
}

bool canCopy(const TextField &field)
{
    return isShown(field) && !field.selectedText().isEmpty();
}

bool canCut(const TextField &field)
{
    return canCopy(field) && !field.isReadOnly();
}

bool canPaste(const TextField &field)
{
    const QMimeData *clipboard = QGuiApplication::clipboard()->mimeData();
    return !field.isReadOnly() && clipboard && clipboard->hasText();
}

bool canSelectAll(const TextField &field)
{
    const QString text = field.text();
    return !text.isEmpty() && field.selectedText().size() < text.size();
}

bool canUndo(const TextField &field)
{
    return field.canUndo() && !field.isReadOnly();
}

bool canRedo(const TextField &field)
{
    return field.canRedo() && !field.isReadOnly();
}
} // namespace

MTextEditPrivate::MTextEditPrivate(MTextEdit *edit, MTextEdit::LineMode lineMode)
    : q(edit), mode(lineMode)
{
    if (mode == MTextEdit::MultiLine)
        field = std::make_unique<AreaField>();
    else
        field = std::make_unique<LineField>();
    QWidget *widget = field->widget();
    widget->setStyle(fieldStyle());
    widget->setAttribute(Qt::WA_TranslucentBackground);
    widget->setFocusPolicy(Qt::TabFocus);
    widget->setAcceptDrops(false);
    proxy = new FieldProxy(this);
    proxy->setWidget(widget);
    // A press may become a pan: the focus comes with the release.
    proxy->setFocusPolicy(Qt::TabFocus);
    proxy->setMinimumSize(0, 0);
}

QMarginsF MTextEditPrivate::around() const
{
    return q->style()->margins() + q->style()->paddings();
}

void MTextEditPrivate::placeField()
{
    proxy->setGeometry(q->contentsRectangle().adjusted(-editMargin, 0, editMargin, 0));
}

void MTextEditPrivate::applyColors()
{
    const MTextEditStyle *style = q->style();
    QPalette palette;
    palette.setColor(QPalette::Window, Qt::transparent);
    palette.setColor(QPalette::Base, Qt::transparent);
    palette.setColor(QPalette::Text, style->color());
    palette.setColor(QPalette::PlaceholderText, style->promptColor());
    palette.setColor(QPalette::Highlight, style->selectionColor());
    palette.setColor(QPalette::HighlightedText, style->selectedTextColor());
    field->widget()->setPalette(palette);
    field->widget()->setFont(style->font());
}

void MTextEditPrivate::applyMode()
{
    if (hasError)
        q->setStyleMode(QByteArrayLiteral("error"));
    else
        q->setStyleMode(q->isEnabled() ? QByteArray() : QByteArrayLiteral("disabled"));
}

void MTextEditPrivate::takeFocus()
{
    proxy->setFocus(Qt::MouseFocusReason);
    if (!field->isReadOnly())
        QGuiApplication::inputMethod()->show();
}

void MTextEditPrivate::openMenu(const QPoint &position, bool isByKeyboard)
{
    if (!isByKeyboard && !proxy->hasFocus())
        proxy->setFocus(Qt::MouseFocusReason);
    if (!isByKeyboard && isShown(*field) && field->selectedText().isEmpty())
        field->selectWordAt(position);
    if (m_actions.isEmpty())
        addActions();
    for (const MenuAction &entry : qAsConst(m_actions))
        entry.action->setVisible(entry.isOffered(*field));
    const QPointF place = isByKeyboard ? q->rect().center() : proxy->pos() + position;
    q->openObjectMenu(q->mapToScene(place));
}

void MTextEditPrivate::addActions()
{
    addAction("Cu&t", &TextField::cut, canCut);
    addAction("&Copy", &TextField::copy, canCopy);
    addAction("&Paste", &TextField::paste, canPaste);
    addAction("Select All", &TextField::selectAll, canSelectAll);
    addAction("&Undo", &TextField::undo, canUndo);
    addAction("&Redo", &TextField::redo, canRedo);
}

void MTextEditPrivate::addAction(const char *text, void (TextField::*call)(),
                                 bool (*isOffered)(const TextField &))
{
    auto *action = new QAction(menuText(text), q);
    QObject::connect(action, &QAction::triggered, field.get(), [this, call] {
        (field.get()->*call)();
        proxy->setFocus(Qt::PopupFocusReason);
    });
    q->addAction(action);
    m_actions.append({action, isOffered});
}
