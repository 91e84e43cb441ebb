// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef FAILINGDEVICE_H
#define FAILINGDEVICE_H

#include <cerrno>
#include <sqlite3.h>
#include <sys/types.h>

/// While it lives, SQLite's writes (or reads) in this process meet a disk that answers with an
/// error: EIO for a broken one, ENOSPC for a full one.
class FailingDevice
{
public:
    enum Direction { Writing, Reading };

    explicit FailingDevice(int error = EIO, Direction direction = Writing)
        : m_vfs(sqlite3_vfs_find(nullptr)), m_direction(direction)
    {
        errorNumber() = error;
        replace(reinterpret_cast<sqlite3_syscall_ptr>(&fail));
    }
    ~FailingDevice() { replace(nullptr); }
    FailingDevice(const FailingDevice &) = delete;
    FailingDevice &operator=(const FailingDevice &) = delete;

private:
    static int &errorNumber()
    {
        static int number = EIO;
        return number;
    }
    static ssize_t fail(int, const void *, size_t, off_t)
    {
        errno = errorNumber();
        return -1;
    }
    void replace(sqlite3_syscall_ptr call)
    {
        m_vfs->xSetSystemCall(m_vfs, m_direction == Writing ? "pwrite" : "pread", call);
        m_vfs->xSetSystemCall(m_vfs, m_direction == Writing ? "pwrite64" : "pread64", call);
    }

    sqlite3_vfs *const m_vfs;
    const Direction m_direction;
};

#endif
