// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MMESSAGEBOX_H
#define TOUCHCORE_MMESSAGEBOX_H

#include <touchcore/mdialog.h>

class MMessageBoxPrivate;

/// A question with a text and a few buttons.
///
/// Yes and OK end it with AffirmativeResult, the other buttons with their own value, and everything
/// else (Escape, a press beside it) with MDialog::Rejected.
class MMessageBox : public MDialog
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    /// The values, those of Qt's own buttons, are part of the interface.
    enum StandardButton {
        NoButton = 0,
        Ok = 0x00000400, // 1024
        Yes = 0x00004000, // 16384
        No = 0x00010000, // 65536
        Cancel = 0x00400000,
    };
    Q_DECLARE_FLAGS(StandardButtons, StandardButton)
    Q_FLAG(StandardButtons)

    /// Part of the interface.
    static constexpr int AffirmativeResult = 1024; // NOLINT(readability-identifier-naming)

    MMessageBox(const QString &title, const QString &text, StandardButtons buttons = Ok);
    explicit MMessageBox(const QString &text, StandardButtons buttons = Ok);
    ~MMessageBox() override;

    QString text() const;
    void setText(const QString &text);
    /// To give it a verb in place of its word, or the look of something destructive; null when the
    /// box does not have it.
    MButton *button(StandardButton which) const;

public Q_SLOTS:
    /// With AffirmativeResult.
    void accept() override;

private:
    std::unique_ptr<MMessageBoxPrivate> d;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(MMessageBox::StandardButtons)

#endif
