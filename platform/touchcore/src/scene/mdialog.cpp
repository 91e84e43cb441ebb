// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "dialogbuttons.h"

#include <touchcore/mbutton.h>
#include <touchcore/mdialog.h>
#include <touchcore/mlabel.h>
#include <touchcore/mscenemanager.h>

#include <QEventLoop>
#include <QGraphicsLinearLayout>
#include <QGraphicsScene>
#include <QKeyEvent>
#include <QPointer>

class MDialogPrivate
{
public:
    explicit MDialogPrivate(MDialog *dialog)
        : column(new QGraphicsLinearLayout(Qt::Vertical, dialog)), title(new MLabel(dialog)),
          buttons(new DialogButtons(dialog))
    {
    }

    QGraphicsLinearLayout *const column;
    MLabel *const title;
    DialogButtons *const buttons;
    QPointer<QGraphicsWidget> central;
    QPointer<MButton> defaultButton;
    int result = MDialog::Rejected;
    /// finished() was sent since it last appeared.
    bool isFinished = true;
    bool isExecuting = false;
};

MDialog::MDialog(QGraphicsItem *parent)
    : MSceneWindow(DialogLayer, parent), d(std::make_unique<MDialogPrivate>(this))
{
    d->column->setContentsMargins(0, 0, 0, 0);
    d->title->setStyleName(QStringLiteral("DialogTitle"));
    d->title->setWordWrap(true);
    d->title->hide();
    d->buttons->hide();
    d->column->addItem(d->title);
    d->column->addItem(d->buttons);
    connect(this, &MSceneWindow::appearing, this, [this] {
        d->result = Rejected;
        d->isFinished = false;
    });
    connect(this, &MSceneWindow::disappeared, this, [this] {
        if (!d->isFinished) {
            d->isFinished = true;
            Q_EMIT finished(d->result);
        }
    });
}

MDialog::~MDialog() = default;

QString MDialog::title() const
{
    return d->title->text();
}

void MDialog::setTitle(const QString &title)
{
    d->title->setText(title);
    d->title->setVisible(!title.isEmpty());
}

QGraphicsWidget *MDialog::centralWidget() const
{
    return d->central;
}

void MDialog::setCentralWidget(QGraphicsWidget *widget)
{
    if (widget == d->central)
        return;
    delete d->central;
    d->central = widget;
    if (widget)
        d->column->insertItem(1, widget);
}

MButton *MDialog::addButton(const QString &text, int result)
{
    auto *button = new MButton(text);
    d->buttons->add(button);
    d->buttons->show();
    connect(button, &MButton::clicked, this, [this, result] { done(result); });
    return button;
}

QList<MButton *> MDialog::buttons() const
{
    return d->buttons->buttons();
}

void MDialog::setDefaultButton(MButton *button)
{
    d->defaultButton = button;
}

int MDialog::exec(MWindow *window)
{
    if (d->isExecuting)
        return Rejected;
    const QPointer<MDialog> guard(this);
    QEventLoop loop;
    connect(this, &MDialog::finished, &loop, &QEventLoop::quit);
    connect(this, &QObject::destroyed, &loop, &QEventLoop::quit);
    d->isExecuting = true;
    appear(window);
    // The button whose click asks would keep the finger's events until the answer, to itself.
    QGraphicsItem *touched = guard && scene() ? scene()->mouseGrabberItem() : nullptr;
    if (touched)
        touched->ungrabMouse();
    // Without a window, or answered already by one who heard that it appeared.
    if (guard && !d->isFinished)
        loop.exec(QEventLoop::DialogExec);
    if (!guard)
        return Rejected;
    d->isExecuting = false;
    if (!d->isFinished)
        sceneManager()->disappearSceneWindowNow(this);
    return d->result;
}

int MDialog::result() const
{
    return d->result;
}

void MDialog::goBack()
{
    reject();
}

void MDialog::done(int result)
{
    if (d->isFinished)
        return;
    d->isFinished = true;
    d->result = result;
    const QPointer<MDialog> guard(this);
    disappear();
    if (guard)
        Q_EMIT finished(result);
}

void MDialog::accept()
{
    done(Accepted);
}

void MDialog::reject()
{
    done(Rejected);
}

QRectF MDialog::place(const QSizeF &area) const
{
    const int distance = 2 * style()->edgeDistance();
    const int limit = style()->maximumWidth();
    qreal width = area.width() - distance;
    if (limit > 0)
        width = qMin<qreal>(width, limit);
    const qreal wanted = effectiveSizeHint(Qt::PreferredSize, QSizeF(width, -1)).height();
    const qreal height = qMin(area.height() - distance, wanted);
    const QSizeF size = QSizeF(width, height).toSize();
    return {
        QPointF((area.width() - size.width()) / 2, (area.height() - size.height()) / 2).toPoint(),
        size};
}

MSceneWindow::Motion MDialog::motion() const
{
    return GrowMotion;
}

bool MDialog::isModal() const
{
    return true;
}

void MDialog::pressedOutside()
{
    reject();
}

void MDialog::applyStyle()
{
    d->column->setSpacing(style()->spacing());
    d->buttons->setTopMargin(style()->buttonDistance() - style()->spacing());
    MSceneWindow::applyStyle();
}

void MDialog::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && d->defaultButton)
        d->defaultButton->click();
    else
        MSceneWindow::keyPressEvent(event);
}
