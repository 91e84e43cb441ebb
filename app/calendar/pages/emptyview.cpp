// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "emptyview.h"

#include <touchcore/mbutton.h>
#include <touchcore/mimagewidget.h>
#include <touchcore/mlabel.h>

#include <QGraphicsLinearLayout>

EmptyView::EmptyView(QGraphicsItem *parent)
    : MStylableWidget(parent), m_image(new MImageWidget(this)), m_label(new MLabel(this)),
      m_button(new MButton(this))
{
    m_label->setStyleName(QStringLiteral("EmptyPageLabel"));
    m_label->setWordWrap(true);
    m_label->setAlignment(Qt::AlignCenter);
    m_button->setStyleName(QStringLiteral("EmptyPageButton"));
    constexpr qreal spacing = 24;
    auto *layout = new QGraphicsLinearLayout(Qt::Vertical, this);
    layout->setSpacing(spacing);
    layout->addStretch();
    layout->addItem(m_image);
    layout->setAlignment(m_image, Qt::AlignHCenter);
    layout->addItem(m_label);
    layout->addItem(m_button);
    layout->setAlignment(m_button, Qt::AlignHCenter);
    layout->addStretch();
    connect(m_button, &MButton::clicked, this, [this] { Q_EMIT buttonClicked(); });
}

void EmptyView::show(const QString &image, const QString &text, const QString &buttonText)
{
    // Signs of the icon set are square, the drawings are not.
    m_image->setStyleName(image == QLatin1String("error") ? QStringLiteral("ErrorPageImage")
                                                          : QStringLiteral("EmptyPageImage"));
    m_image->setImage(image);
    m_label->setText(text);
    m_button->setText(buttonText);
    m_button->setVisible(!buttonText.isEmpty());
    setVisible(true);
}
