// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MWIDGETCONTROLLER_H
#define TOUCHCORE_MWIDGETCONTROLLER_H

#include <touchcore/mwidget.h>

#include <QList>

class MWidgetControllerPrivate;
class MWidgetModel;
class MWidgetView;

/// A widget that splits what it holds (a model), how it behaves (itself) and how it looks (a view
/// that the theme chooses by view type and fills with a style).
///
/// Owns its model, unless that has another parent, and its view.
class MWidgetController : public MWidget
{
    Q_OBJECT
    Q_PROPERTY(QString viewType READ viewType WRITE setViewType)
    Q_PROPERTY(QString styleName READ styleName WRITE setStyleName)

public:
    /// With a plain model that has no properties.
    explicit MWidgetController(QGraphicsItem *parent = nullptr);
    MWidgetController(MWidgetModel *model, QGraphicsItem *parent);
    ~MWidgetController() override;

    MWidgetModel *model() const;
    /// Replaces the model, never null; an own earlier one is deleted. The view hears of all
    /// members.
    void setModel(MWidgetModel *model);

    /// What the theme's "views" table looks the view up by; empty for the plain one.
    QString viewType() const;
    /// Takes effect when the view is next needed; an existing view is replaced.
    void setViewType(const QString &viewType);

    /// The named style of the theme that is applied over the rules of the classes.
    QString styleName() const;
    void setStyleName(const QString &styleName);

    /// The view, made on first use: not in a constructor of a base class, where the class is not
    /// known yet. A widget whose layout belongs to its view asks for it in its own constructor.
    MWidgetView *view() const;

    /// The rectangle of the widget and what its style draws around it.
    QRectF boundingRect() const override;
    QPainterPath shape() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option,
               QWidget *widget = nullptr) override;

public Q_SLOTS:
    /// Called with the names of the members of the model that changed; the base tells the view.
    virtual void updateData(const QList<const char *> &modifications);

protected:
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint = QSizeF()) const override;
    void changeEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

    /// How far the widget draws outside its rectangle (a shadow), in pixels.
    void setOverhang(qreal overhang);
    /// Where the focus ring runs: MWidgetStyle::focusOffset of the style in force.
    virtual int focusOffset() const;

    /// The style name changed or another theme, scheme, orientation or text scale came into force.
    virtual void restyle();

private:
    friend class MWidgetView;
    std::unique_ptr<MWidgetControllerPrivate> d;
};

#endif
