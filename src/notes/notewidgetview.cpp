// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "notewidgetview.h"

#include <daskel/notewidget.h>
#include <kcalcompat/clock.h>
#include <touchcore/mviewfactory.h>

#include <QPainter>
#include <QStyle>

M_REGISTER_VIEW(NoteWidgetView, NoteWidget)

namespace
{
/// Whether the members change only the colours of a note: a touch is no reason to read it anew.
bool areOfTheTouch(const QList<const char *> &members)
{
    for (const char *member : members) {
        if (qstrcmp(member, "pressed") != 0 && qstrcmp(member, "selected") != 0)
            return false;
    }
    return true;
}
} // namespace

NoteWidgetView::NoteWidgetView(NoteWidget *controller) : MWidgetView(controller) { }

NoteWidget *NoteWidgetView::note() const
{
    return static_cast<NoteWidget *>(controller());
}

qreal NoteWidgetView::stripeRoom() const
{
    return style()->stripeLeftMargin() + style()->stripeWidth() + style()->stripeRightMargin();
}

qreal NoteWidgetView::marksRoom() const
{
    return style()->alarmImageMarginRight()
        + m_marks.size() * (style()->alarmImageSize().width() + style()->indicatorsPaddingRight());
}

void NoteWidgetView::updateData(const QList<const char *> &modifications)
{
    const NoteWidgetModel *model = note()->model();
    if (!areOfTheTouch(modifications))
        showNote();
    if (contains(modifications, "pressed") || contains(modifications, "selected")) {
        setStyleMode(model->pressed()        ? QByteArrayLiteral("pressed")
                         : model->selected() ? QByteArrayLiteral("selected")
                                             : QByteArray());
    }
    MWidgetView::updateData(modifications);
}

void NoteWidgetView::applyStyle()
{
    showNote();
    MWidgetView::applyStyle();
}

void NoteWidgetView::showNote()
{
    const NoteWidgetModel *model = note()->model();
    m_details = noteDetails(*note());
    m_times = noteTimes(*model, m_details, KCalCompat::Clock::now().toLocalTime());
    m_marks.clear();
    if (model->squeezed())
        return;
    if (model->readOnly())
        m_marks.append(style()->readOnlyImage().id());
    if (m_details.isInvitation)
        m_marks.append(style()->invitationImage().id());
    if (m_details.isRepeating)
        m_marks.append(style()->repeatImage().id());
    if (model->hasAlarm())
        m_marks.append(style()->alarmImage().id());
    m_marks.removeAll(QString());
}

void NoteWidgetView::drawBackground(QPainter *painter) const
{
    if (style()->backgroundDraw())
        MWidgetView::drawBackground(painter);
    drawStripe(painter);
}

void NoteWidgetView::drawContents(QPainter *painter) const
{
    drawMarks(painter);
    drawTexts(painter);
}

void NoteWidgetView::drawStripe(QPainter *painter) const
{
    const NoteWidgetModel *model = note()->model();
    if (!model->color().isValid())
        return;
    const QRect rect = controller()->rect().toRect();
    const QRect leftToRight(
        style()->stripeLeftMargin(), style()->stripeTopMargin(), style()->stripeWidth(),
        rect.height() - style()->stripeTopMargin() - style()->stripeBottomMargin());
    const QRect stripe = QStyle::visualRect(controller()->layoutDirection(), rect, leftToRight);
    const MScalableImage mask =
        model->tentative() ? style()->stripeMaskImageAlt() : style()->stripeMaskImage();
    if (mask.isNull())
        painter->fillRect(stripe, model->color());
    else
        mask.draw(stripe, painter, model->color());
}

void NoteWidgetView::drawMarks(QPainter *painter) const
{
    const QRect rect = controller()->rect().toRect();
    const QSize size = style()->alarmImageSize().toSize();
    const int top = qMin(style()->alarmImageMarginTop(), (rect.height() - size.height()) / 2);
    int right = rect.width() - style()->alarmImageMarginRight();
    for (auto mark = m_marks.crbegin(); mark != m_marks.crend(); ++mark) {
        const QRect leftToRight(QPoint(right - size.width(), top), size);
        MScalableImage(*mark).draw(
            QStyle::visualRect(controller()->layoutDirection(), rect, leftToRight), painter,
            style()->markColor(), controller()->layoutDirection());
        right -= size.width() + style()->indicatorsPaddingRight();
    }
}

void NoteWidgetView::drawTexts(QPainter *painter) const
{
    const NoteWidgetModel *model = note()->model();
    const Qt::LayoutDirection direction = controller()->layoutDirection();
    const QString time =
        model->squeezed() ? QString() : m_times.first + QLatin1Char(' ') + m_times.second;
    const QString place = model->squeezed() ? QString() : model->location();
    const struct {
        QString text;
        QFont font;
        QColor color;
    } lines[] = {{model->title(), style()->titleFont(), style()->titleColor()},
                 {time.trimmed(), style()->timeFont(), style()->timeColor()},
                 {place, style()->locationFont(), style()->locationColor()}};
    const QRect rect = controller()->rect().toRect();
    const int top = qMin(style()->paddingTop(),
                         (rect.height() - QFontMetrics(style()->titleFont()).height()) / 2);
    QRect line(int(stripeRoom()), top, rect.width() - int(stripeRoom() + marksRoom()), 0);
    for (const auto &[text, font, color] : lines) {
        const QFontMetrics metrics(font);
        line.setHeight(metrics.height());
        const bool hasRoom = line.top() == top || line.bottom() <= rect.bottom();
        if (text.isEmpty() || !hasRoom)
            continue;
        painter->setFont(font);
        painter->setPen(color);
        // The row's direction aligns, the text's own direction orders its words.
        painter->setLayoutDirection(text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
        painter->drawText(QStyle::visualRect(direction, rect, line),
                          int(QStyle::visualAlignment(direction, Qt::AlignLeft | Qt::AlignVCenter))
                              | Qt::AlignAbsolute | Qt::TextSingleLine,
                          metrics.elidedText(text, Qt::ElideRight, line.width()));
        line.moveTop(line.bottom() + 1);
    }
}
