// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <QDirIterator>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <QtTest>

namespace
{
/// A text of a catalogue: its forms, one or as many as the language has plurals.
using Texts = QMap<QString, QStringList>;

Texts readCatalogue(const QString &name, const QString &language)
{
    const QString suffix =
        language == QLatin1String("en") ? QString() : QLatin1Char('_') + language;
    QFile file(QStringLiteral(DASKEL_SOURCE_DIR "/translations/") + name + suffix
               + QStringLiteral(".ts"));
    Texts texts;
    if (!file.open(QIODevice::ReadOnly))
        return texts;
    QString id;
    bool hasPlurals = false;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("message")) {
            id = xml.attributes().value(QLatin1String("id")).toString();
            hasPlurals = xml.attributes().hasAttribute(QLatin1String("numerus"));
        } else if (xml.name() == QLatin1String("numerusform")) {
            texts[id] << xml.readElementText();
        } else if (xml.name() == QLatin1String("translation") && !hasPlurals) {
            const QString text = xml.readElementText(QXmlStreamReader::SkipChildElements).trimmed();
            if (!text.isEmpty())
                texts[id] << text;
        }
    }
    return texts;
}

/// The identifiers in the sources below \a folders.
QSet<QString> usedIds(const QStringList &folders)
{
    static const QRegularExpression pattern(
        QStringLiteral("\"(qtn_(?:caln|comm|dcal)_[a-z0-9_]+)\""));
    QSet<QString> ids;
    for (const QString &folder : folders) {
        QDirIterator files(QStringLiteral(DASKEL_SOURCE_DIR "/") + folder,
                           {QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            if (!file.open(QIODevice::ReadOnly))
                continue;
            auto matches = pattern.globalMatch(QString::fromUtf8(file.readAll()));
            while (matches.hasNext())
                ids.insert(matches.next().captured(1));
        }
    }
    return ids;
}

QStringList sorted(const QSet<QString> &ids)
{
    QStringList list(ids.cbegin(), ids.cend());
    list.sort();
    return list;
}

QSet<QString> placeholders(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral("%[1-9]"));
    QSet<QString> found;
    auto matches = pattern.globalMatch(text);
    while (matches.hasNext())
        found.insert(matches.next().captured());
    return found;
}
} // namespace

/// Every text that the code names is in both catalogues, in every language, and none is idle.
class CataloguesTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everyIdIsThereAndUsed();
    void everyLanguageIsComplete_data();
    void everyLanguageIsComplete();
};

void CataloguesTest::everyIdIsThereAndUsed()
{
    const Texts library = readCatalogue(QStringLiteral("libdaskel"), QStringLiteral("en"));
    const Texts application =
        readCatalogue(QStringLiteral("daskel-calendar"), QStringLiteral("en"));
    QSet<QString> there(library.keyBegin(), library.keyEnd());
    const QSet<QString> used = usedIds(
        {QStringLiteral("src"), QStringLiteral("app"), QStringLiteral("platform/touchcore/src")});
    const QSet<QString> usedByLibrary = usedIds({QStringLiteral("src")});
    QCOMPARE(sorted(QSet<QString>(usedByLibrary) - there), QStringList());
    there += QSet<QString>(application.keyBegin(), application.keyEnd());
    QCOMPARE(sorted(QSet<QString>(used) - there), QStringList());
    QCOMPARE(sorted(there - used), QStringList());
}

void CataloguesTest::everyLanguageIsComplete_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("plurals");
    for (const char *name : {"libdaskel", "daskel-calendar"}) {
        const auto row = [name](const char *language, int plurals) {
            QTest::addRow("%s, %s", name, language) << name << language << plurals;
        };
        row("de", 2);
        row("fi", 2);
        row("ar", 6);
    }
}

void CataloguesTest::everyLanguageIsComplete()
{
    QFETCH(QString, name);
    QFETCH(QString, language);
    QFETCH(int, plurals);
    const Texts english = readCatalogue(name, QStringLiteral("en"));
    const Texts texts = readCatalogue(name, language);
    QVERIFY(!english.isEmpty());
    QCOMPARE(texts.keys(), english.keys());
    for (auto it = english.cbegin(); it != english.cend(); ++it) {
        const QStringList forms = texts.value(it.key());
        QVERIFY2(forms.size() == (it->size() > 1 ? plurals : 1), qPrintable(it.key()));
        for (const QString &form : forms) {
            QVERIFY2(!form.trimmed().isEmpty(), qPrintable(it.key()));
            QVERIFY2(placeholders(form) == placeholders(it->last()), qPrintable(it.key()));
        }
    }
}

QTEST_GUILESS_MAIN(CataloguesTest)
#include "tst_catalogues.moc"
