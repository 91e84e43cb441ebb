// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MCHOICELIST_H
#define TOUCHCORE_MCHOICELIST_H

#include <touchcore/mstylablewidget.h>

#include <QStringList>

class MChoiceListPrivate;

/// Answers below each other of which one is chosen; a check mark stands at its end.
///
/// Made for a screenful of answers: each is a button. Long lists are MList's.
class MChoiceList : public MStylableWidget
{
    Q_OBJECT
    Q_PROPERTY(QStringList choices READ choices WRITE setChoices)
    Q_PROPERTY(int currentIndex READ currentIndex WRITE setCurrentIndex NOTIFY currentIndexChanged
                   USER true)

public:
    explicit MChoiceList(QGraphicsItem *parent = nullptr);
    ~MChoiceList() override;

    QStringList choices() const;
    /// The present choice stays where its number still has a row.
    void setChoices(const QStringList &choices);

    /// Counted from 0; -1 when none is chosen.
    int currentIndex() const;
    /// A number without a row means none.
    void setCurrentIndex(int index);

Q_SIGNALS:
    void currentIndexChanged(int index);
    /// Tapped, also when it was chosen already: a dialog may close now.
    void activated(int index);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    std::unique_ptr<MChoiceListPrivate> d;
};

#endif
