// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MCATALOGUES_H
#define MCATALOGUES_H

#include <QStringList>
#include <QTranslator>

#include <memory>
#include <vector>

/// Several catalogues as one translator, so that the application learns of a change once.
class MCatalogues : public QTranslator
{
    Q_OBJECT
public:
    explicit MCatalogues(QObject *parent = nullptr);

    /// Reads the catalogues \a names: each in the first of \a languages that it is found in, and in
    /// English below that. Later ones are asked before earlier ones.
    void read(const QStringList &names, const QStringList &languages, const QStringList &folders);

    bool isEmpty() const override;
    QString translate(const char *context, const char *sourceText, const char *disambiguation,
                      int n) const override;

    /// Where \a paths, which MLocale::addTranslationPath() describes, may lie: those of a later
    /// path first, for each the folders from the nearest to the program. None needs to exist.
    static QStringList folders(const QStringList &paths);

private:
    void add(const QString &name, const QStringList &languages, const QStringList &folders);

    std::vector<std::unique_ptr<QTranslator>> m_catalogues; ///< the first is asked first
};

#endif
