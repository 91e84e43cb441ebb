// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef FAILINGDEVICE_H
#define FAILINGDEVICE_H

#include <cerrno>
#include <sqlite3.h>
#include <sys/types.h>

/// While it lives, every write of SQLite in this process meets a broken disk (SQLITE_IOERR, 10).
class FailingDevice
{
public:
    FailingDevice() : m_vfs(sqlite3_vfs_find(nullptr))
    {
        for (const char *call : {"pwrite", "pwrite64"})
            m_vfs->xSetSystemCall(m_vfs, call, reinterpret_cast<sqlite3_syscall_ptr>(&fail));
    }
    ~FailingDevice()
    {
        for (const char *call : {"pwrite", "pwrite64"})
            m_vfs->xSetSystemCall(m_vfs, call, nullptr);
    }
    FailingDevice(const FailingDevice &) = delete;
    FailingDevice &operator=(const FailingDevice &) = delete;

private:
    static ssize_t fail(int, const void *, size_t, off_t)
    {
        errno = EIO;
        return -1;
    }

    sqlite3_vfs *const m_vfs;
};

#endif
