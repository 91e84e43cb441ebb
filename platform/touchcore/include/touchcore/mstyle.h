// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MSTYLE_H
#define TOUCHCORE_MSTYLE_H

#include <QObject>

/// A set of named, typed attributes that the theme fills.
///
/// The attributes are properties of the meta-object, declared with M_STYLE_ATTRIBUTE. Styles are
/// shared between all widgets of the same class, style name and mode, and owned by the theme's
/// cache; widgets only read them, through an MStyleContainer.
class MStyle : public QObject
{
    Q_OBJECT

public:
    MStyle();
    ~MStyle() override;
};

/// Declares one attribute of a style: its type, getter, setter and (last, may hold commas) the
/// value it has where no rule of the theme says otherwise.
#define M_STYLE_ATTRIBUTE(Type, name, setter, ...)                                                 \
    Q_PROPERTY(Type name READ name WRITE setter)                                                   \
public:                                                                                            \
    const Type &name() const                                                                       \
    {                                                                                              \
        return m_##name;                                                                           \
    }                                                                                              \
    void setter(const Type &value)                                                                 \
    {                                                                                              \
        m_##name = value;                                                                          \
    }                                                                                              \
                                                                                                   \
private:                                                                                           \
    Type m_##name{__VA_ARGS__};

/// In a view or a stylable widget: names its style class, which gives it a typed style().
#define M_STYLE(StyleClass)                                                                        \
public:                                                                                            \
    const StyleClass *style() const                                                                \
    {                                                                                              \
        return static_cast<const StyleClass *>(styleContainer().current());                        \
    }                                                                                              \
                                                                                                   \
protected:                                                                                         \
    MStyle *newStyle() const override                                                              \
    {                                                                                              \
        return new StyleClass; /* NOLINT(bugprone-macro-parentheses): a type */                    \
    }                                                                                              \
                                                                                                   \
private:

#endif
