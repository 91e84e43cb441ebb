// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "links.h"

#include <QFileInfo>
#include <QMimeDatabase>
#include <QTextDocumentFragment>
#include <QUrl>

QString Links::mapAddress(const KCalCore::Incidence &incidence)
{
    if (incidence.hasGeo()) {
        return QStringLiteral("geo:%1,%2")
            .arg(double(incidence.geoLatitude()))
            .arg(double(incidence.geoLongitude()));
    }
    return QStringLiteral("geo:0,0?q=")
        + QString::fromLatin1(QUrl::toPercentEncoding(incidence.location()));
}

QString Links::fileName(const KCalCore::Attachment &attachment)
{
    // A label may come from anybody: it names a file, and no folder.
    const QString label =
        QFileInfo(QString(attachment.label()).replace(QLatin1Char('\\'), QLatin1Char('/')))
            .fileName();
    const bool isName = !label.isEmpty() && !label.startsWith(QLatin1Char('.'));
    const QString suffix = QMimeDatabase().mimeTypeForName(attachment.mimeType()).preferredSuffix();
    const QString name = isName ? label : QStringLiteral("attachment");
    return suffix.isEmpty() || name.contains(QLatin1Char('.')) ? name
                                                               : name + QLatin1Char('.') + suffix;
}

QString Links::plainDescription(const KCalCore::Incidence &incidence)
{
    return incidence.descriptionIsRich()
        ? QTextDocumentFragment::fromHtml(incidence.description()).toPlainText()
        : incidence.description();
}
