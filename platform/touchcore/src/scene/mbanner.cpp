// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <touchcore/mbanner.h>
#include <touchcore/mbutton.h>
#include <touchcore/mimagewidget.h>
#include <touchcore/mlabel.h>

#include <QBasicTimer>
#include <QGraphicsLinearLayout>
#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>
#include <QPointer>
#include <QTimerEvent>

class MBannerPrivate
{
public:
    explicit MBannerPrivate(MBanner *banner)
        : row(new QGraphicsLinearLayout(Qt::Horizontal, banner)), icon(new MImageWidget(banner)),
          title(new MLabel(banner)), action(new MButton(banner))
    {
    }

    QGraphicsLinearLayout *const row;
    MImageWidget *const icon;
    MLabel *const title;
    MButton *const action;
    QBasicTimer timer;
    int timeout = -1;
};

MBanner::MBanner(QGraphicsItem *parent)
    : MSceneWindow(BannerLayer, parent), d(std::make_unique<MBannerPrivate>(this))
{
    d->row->setContentsMargins(0, 0, 0, 0);
    d->icon->setStyleName(QStringLiteral("BannerIcon"));
    d->icon->hide();
    d->title->setStyleName(QStringLiteral("BannerTitle"));
    d->title->setWordWrap(true);
    d->title->setMaximumLines(2);
    d->action->setStyleName(QStringLiteral("BannerButton"));
    d->action->hide();
    d->row->addItem(d->icon);
    d->row->addItem(d->title);
    d->row->setStretchFactor(d->title, 1);
    d->row->addItem(d->action);
    d->row->setAlignment(d->icon, Qt::AlignVCenter);
    d->row->setAlignment(d->title, Qt::AlignVCenter);
    d->row->setAlignment(d->action, Qt::AlignVCenter);
    connect(d->action, &MButton::clicked, this, &MBanner::actionClicked);
    connect(d->action, &MButton::clicked, this, &MBanner::disappear);
    connect(this, &MSceneWindow::appeared, this, [this] {
        const int styled = actionText().isEmpty() ? style()->timeout() : style()->actionTimeout();
        const int time = d->timeout < 0 ? styled : d->timeout;
        if (time > 0)
            d->timer.start(time, this);
    });
    connect(this, &MSceneWindow::disappearing, this, [this] { d->timer.stop(); });
}

MBanner::~MBanner() = default;

QString MBanner::title() const
{
    return d->title->text();
}

void MBanner::setTitle(const QString &title)
{
    d->title->setText(title);
}

QString MBanner::iconID() const
{
    return d->icon->image();
}

void MBanner::setIconID(const QString &id)
{
    d->icon->setImage(id);
    d->icon->setVisible(!id.isEmpty());
}

QString MBanner::actionText() const
{
    return d->action->text();
}

void MBanner::setActionText(const QString &text)
{
    d->action->setText(text);
    d->action->setVisible(!text.isEmpty());
}

int MBanner::timeout() const
{
    return d->timeout;
}

void MBanner::setTimeout(int milliseconds)
{
    d->timeout = milliseconds;
}

QRectF MBanner::place(const QSizeF &area) const
{
    const int limit = style()->maximumWidth();
    qreal width = area.width() - 2 * style()->edgeDistance();
    if (limit > 0)
        width = qMin<qreal>(width, limit);
    const QSizeF size(width, effectiveSizeHint(Qt::PreferredSize, QSizeF(width, -1)).height());
    const QPointF corner((area.width() - width) / 2,
                         area.height() - style()->bottomDistance() - size.height());
    return QRectF(corner, size).toRect();
}

MSceneWindow::Motion MBanner::motion() const
{
    return RiseMotion;
}

void MBanner::applyStyle()
{
    d->row->setSpacing(style()->spacing());
    MSceneWindow::applyStyle();
}

void MBanner::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    event->accept();
}

void MBanner::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    if (!rect().contains(event->pos()))
        return;
    const QPointer<MBanner> guard(this);
    Q_EMIT clicked();
    if (guard)
        disappear();
}

void MBanner::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != d->timer.timerId()) {
        MSceneWindow::timerEvent(event);
        return;
    }
    // Whoever is about to use its button by keyboard gets the time for it.
    if (!d->action->hasFocus()) {
        d->timer.stop();
        disappear();
    }
}
