// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MWIDGETMODEL_H
#define TOUCHCORE_MWIDGETMODEL_H

#include <QList>
#include <QObject>

#include <memory>

class MWidgetModelPrivate;

/// The values that a widget shows, as named properties.
///
/// A controller owns its model; a view reads it and is told the names of the properties that
/// changed. Derived models declare each property with M_MODEL_PROPERTY. UI thread only.
class MWidgetModel : public QObject
{
    Q_OBJECT

public:
    explicit MWidgetModel(QObject *parent = nullptr);
    ~MWidgetModel() override;

    /// Collects the changes until the matching commitTransaction(). Calls nest.
    void beginTransaction();
    /// Ends the innermost transaction. The outermost one emits modified() once with each changed
    /// name once, in the order of the first change; nothing when nothing changed.
    void commitTransaction();

    /// The names of all properties that derived models declare, in order of declaration.
    QList<const char *> allMembers() const;

Q_SIGNALS:
    /// \a members: names of properties, compared by text (qstrcmp), not by address.
    void modified(const QList<const char *> &members);

protected:
    /// Reports that the property \a member has a new value: at once, or when the transaction ends.
    void memberModified(const char *member);

private:
    std::unique_ptr<MWidgetModelPrivate> d;
};

/// A transaction of a model that ends with the scope, also on an early return.
class MModelTransaction
{
public:
    explicit MModelTransaction(MWidgetModel *model) : m_model(model)
    {
        m_model->beginTransaction();
    }
    ~MModelTransaction() { m_model->commitTransaction(); }
    Q_DISABLE_COPY(MModelTransaction)

private:
    MWidgetModel *m_model;
};

/// Declares one property of a model: its type, getter, setter and (last, may hold commas) the value
/// it starts with. The setter reports a change only when the value differs.
#define M_MODEL_PROPERTY(Type, name, setter, ...)                                                  \
    Q_PROPERTY(Type name READ name WRITE setter)                                                   \
public:                                                                                            \
    const Type &name() const                                                                       \
    {                                                                                              \
        return m_##name;                                                                           \
    }                                                                                              \
    void setter(const Type &value)                                                                 \
    {                                                                                              \
        if (!(m_##name == value)) {                                                                \
            m_##name = value;                                                                      \
            memberModified(#name);                                                                 \
        }                                                                                          \
    }                                                                                              \
                                                                                                   \
private:                                                                                           \
    Type m_##name{__VA_ARGS__};

#endif
