// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef EMPTYVIEW_H
#define EMPTYVIEW_H

#include <touchcore/mstylablewidget.h>

class MButton;
class MImageWidget;
class MLabel;

/// What stands where there is nothing to show: a drawing, what is the matter in a sentence or two,
/// and a button for what can be done.
class EmptyView : public MStylableWidget
{
    Q_OBJECT

public:
    explicit EmptyView(QGraphicsItem *parent = nullptr);

    /// \a image: the name of a picture of the theme. \a buttonText: empty for no button.
    void show(const QString &image, const QString &text, const QString &buttonText);

Q_SIGNALS:
    void buttonClicked();

private:
    MImageWidget *m_image;
    MLabel *m_label;
    MButton *m_button;
};

#endif
