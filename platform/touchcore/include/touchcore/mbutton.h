// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MBUTTON_H
#define TOUCHCORE_MBUTTON_H

#include <touchcore/mbuttonmodel.h>
#include <touchcore/mwidgetcontroller.h>

class MButtonGroup;
class MButtonPrivate;

/// Something to tap that does one thing or, when checkable, holds one answer.
///
/// The view type chooses what it looks like: none for a push button, "icon" for a picture alone,
/// "switch", "check", "choice" (a row with a mark when it is the chosen one), "group" (a segment of
/// its MButtonGroup) and "tab" (a picture over a caption). The base theme has the style names
/// "MainActionButton" (the one thing to do here), "QuietButton", "DestructiveButton" and
/// "RoundButton".
class MButton : public MWidgetController
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(QString iconID READ iconID WRITE setIconID)
    Q_PROPERTY(bool checkable READ isCheckable WRITE setCheckable)
    Q_PROPERTY(bool checked READ isChecked WRITE setChecked NOTIFY toggled)
    Q_PROPERTY(bool down READ isDown)

public:
    explicit MButton(QGraphicsItem *parent = nullptr);
    explicit MButton(const QString &text, QGraphicsItem *parent = nullptr);
    ~MButton() override;

    MButtonModel *model() const { return static_cast<MButtonModel *>(MWidgetController::model()); }

    /// A view without room for it, such as "icon", keeps the text for those who listen.
    QString text() const;
    void setText(const QString &text);
    /// The name of a picture of the theme; empty for none.
    QString iconID() const;
    void setIconID(const QString &id);
    bool isCheckable() const;
    /// A button that stops being checkable is unchecked.
    void setCheckable(bool isCheckable);
    bool isChecked() const;
    bool isDown() const;
    /// The group that it belongs to, or null.
    MButtonGroup *group() const;

public Q_SLOTS:
    /// Refused (nothing happens) for a button that is not checkable.
    void setChecked(bool isChecked);
    void toggle();
    /// As a tap: toggles a checkable button (in an exclusive group it only checks) and emits
    /// clicked(). Nothing happens while it is disabled.
    void click();
    void updateData(const QList<const char *> &modifications) override;

Q_SIGNALS:
    /// Tapped, or released by the keyboard; \a isChecked is the state that this led to.
    void clicked(bool isChecked = false);
    void pressed();
    /// Let go of, whether or not that made a click.
    void released();
    /// Also when the program changed the state.
    void toggled(bool isChecked);

protected:
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint = QSizeF()) const override;
    void changeEvent(QEvent *event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void ungrabMouseEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void cancelEvent() override;

private:
    friend class MButtonGroup;
    void hold();
    void letGo(bool isMeant);

    std::unique_ptr<MButtonPrivate> d;
};

#endif
