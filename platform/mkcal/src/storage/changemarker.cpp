// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "storage/changemarker.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace mKCal
{
ChangeMarker::ChangeMarker(const QString &databaseName)
    : m_fileName(databaseName + QLatin1String(".changed"))
{
}

ChangeMarker::~ChangeMarker()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

void ChangeMarker::open()
{
    if (m_descriptor < 0) {
        m_descriptor = ::open(QFile::encodeName(m_fileName).constData(),
                              O_WRONLY | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    }
}

void ChangeMarker::touch()
{
    open();
    if (m_descriptor >= 0)
        ::futimens(m_descriptor, nullptr);
}
} // namespace mKCal
