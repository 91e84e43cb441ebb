// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_CHANGEWATCHER_H
#define MKCAL_CHANGEWATCHER_H

#include <QFileSystemWatcher>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include <memory>

namespace mKCal
{
/// Says when a database may have been changed by somebody: its marker or its log was touched.
///
/// Lives on its storage's thread and begins there, in the event loop: a process without one, such
/// as a command, never pays for it.
class ChangeWatcher : public QObject
{
    Q_OBJECT
public:
    ChangeWatcher();
    ~ChangeWatcher() override;

    /// Watches these files from the next round of the event loop on. May be called on any thread.
    void watch(const QStringList &fileNames) { Q_EMIT watchRequested(fileNames); }
    void stop();
    /// Lets touched() come in the next round of the event loop. May be called on any thread.
    void requestLook() { Q_EMIT lookRequested(); }

Q_SIGNALS:
    /// Look now; comes also for changes of one's own.
    void touched();

    // From the calling thread to the watcher's.
    void lookRequested();
    void watchRequested(const QStringList &fileNames);

private:
    void begin(const QStringList &fileNames);
    void fileChanged(const QString &fileName);

    std::unique_ptr<QFileSystemWatcher> m_watcher;
    QStringList m_fileNames;
    QTimer m_recheck;
};
} // namespace mKCal

#endif
