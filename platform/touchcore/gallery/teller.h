// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TELLER_H
#define TELLER_H

#include <QObject>
#include <QString>

class MPannableViewport;
class MWindow;

/// Writes to standard output what the person sees now, a line for each change, for a script that
/// uses the gallery: "top <class> <title>", "position <pixels>", "orientation <name>",
/// "place <x> <y> <control>", "focus <control>", and of a field "focus <control>: <text>".
class Teller : public QObject
{
    Q_OBJECT

public:
    explicit Teller(MWindow *window);

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    void say(QString *last, const QString &line);
    QString topLine() const;
    QString positionLine() const;
    QString placeLines() const;
    QString focusLine() const;

    MWindow *m_window;
    QString m_top;
    QString m_position;
    QString m_places;
    QString m_focus;
    QString m_orientation;
};

#endif
