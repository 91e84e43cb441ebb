// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "flickfigures.h"

#include <daskel/notelistwidget.h>
#include <touchcore/mlabel.h>
#include <touchcore/mlabelstyle.h>
#include <touchcore/mpannableviewport.h>
#include <touchcore/mphysics2dpanning.h>
#include <touchcore/mtheme.h>

#include <QCoreApplication>
#include <QPainter>

#include <calendarwindow.h>
#include <cmath>
#include <pages/agendacontent.h>

namespace
{
constexpr int rounds = 9;
constexpr int frames = 60;
constexpr qreal step = 23; // pixels of a frame, a brisk flick

/// The texts that a window shows, painted as one would without any toolkit.
class BareTexts : public QWidget
{
public:
    explicit BareTexts(const MWindow &shown)
    {
        m_background = MTheme::instance()->color(QStringLiteral("background"));
        const QList<QGraphicsItem *> items = shown.scene()->items(QRectF(shown.rect()));
        for (const QGraphicsItem *item : items) {
            const auto *label = dynamic_cast<const MLabel *>(item);
            if (label && label->isVisible() && !label->text().isEmpty())
                m_texts.append({label->mapRectToScene(label->rect()), label->text(),
                                label->style()->font(), label->style()->color()});
        }
        setAttribute(Qt::WA_OpaquePaintEvent);
        resize(shown.size());
        show();
        QCoreApplication::processEvents();
    }

    int count() const { return m_texts.size(); }
    void scrollBy(qreal way)
    {
        m_position = std::fmod(m_position + way, height());
        repaint();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), m_background);
        for (const Text &text : m_texts) {
            QRectF place = text.place.translated(0, -m_position);
            if (place.bottom() < 0)
                place.translate(0, height());
            painter.setFont(text.font);
            painter.setPen(text.color);
            painter.drawText(place, Qt::AlignVCenter, text.text);
        }
    }

private:
    struct Text {
        QRectF place;
        QString text;
        QFont font;
        QColor color;
    };
    QVector<Text> m_texts;
    QColor m_background;
    qreal m_position = 0;
};
} // namespace

void measureFlicking(const Bench &bench, int count, CalendarWindow *window)
{
    MPhysics2DPanning *physics = window->agenda()->viewport()->physics();
    // The rows that are flicked through are there: loading them is measured by itself.
    for (int frame = 0; frame < (rounds + 1) * frames; ++frame) {
        physics->moveBy(QPointF(0, step));
        QCoreApplication::processEvents();
    }
    window->agenda()->viewport()->setPosition(QPointF(0, 0));
    QCoreApplication::processEvents();
    BareTexts bare(*window);
    const Times times = inTurn(
        rounds,
        [&] {
            return microseconds([&] {
                       for (int frame = 0; frame < frames; ++frame) {
                           physics->moveBy(QPointF(0, step));
                           QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
                           window->viewport()->repaint();
                       }
                   })
                / frames;
        },
        [&] {
            return microseconds([&] {
                       for (int frame = 0; frame < frames; ++frame)
                           bare.scrollBy(step);
                   })
                / frames;
        });
    bench.add({QStringLiteral("flicked frame of the agenda, to its bare texts"),
               count,
               times,
               {Aim::AtMost, 3},
               {{QStringLiteral("texts"), bare.count()}}});
}
