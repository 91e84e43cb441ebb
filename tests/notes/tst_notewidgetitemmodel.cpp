// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "assertions.h"
#include "notesfixture.h"
#include "testtable.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QSignalSpy>

#include <memory>
#include <random>

class TestNoteWidgetItemModel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { m_notes = std::make_unique<NotesFixture>(); }
    void cleanup() { m_notes.reset(); }

    void groups_data();
    void groups();
    void saysWhatRowsAre();
    void showsWhatIsStored();
    void keepsIndexesWhileItGrows();
    void loadsAtEdges_data();
    void loadsAtEdges();
    void reloads();
    void isAModelWhateverComes();
    void asserts_data();
    void asserts();

private:
    std::unique_ptr<NotesFixture> m_notes;
};

void TestNoteWidgetItemModel::groups_data()
{
    addColumns<QString, QStringList, QStringList, QString>("first", "earlier", "later", "rows");
    const auto row = [](const char *name, const char *first, const QStringList &earlier,
                        const QStringList &later, const char *rows) {
        addRow(name, QString::fromLatin1(first), earlier, later, QString::fromLatin1(rows));
    };
    row("nothing", "", {}, {}, "");
    row("without headers", "- a b", {"- y z", "- x"}, {"- c"}, "x y z a b c");
    row("a header without notes", "A", {}, {}, "");
    row("a header without notes between others", "A a; B; C c", {}, {}, "A a; C c");
    row("in the order handed over", "B b1 b2; A a1", {}, {}, "B b1 b2; A a1");
    row("the same header again", "A a1; A a2", {}, {}, "A a1 a2");
    row("at the front of its group", "A a1 a2 ^a3", {}, {}, "A a3 a1 a2");
    row("a day without notes", "A _; B b", {}, {}, "A _; B b");
    row("above, nearest first", "D d", {"C c1 c2; B b", "A a1 a2"}, {},
        "A a1 a2; B b; C c1 c2; D d");
    row("below", "A a", {}, {"B b1 b2; C c", "D d"}, "A a; B b1 b2; C c; D d");
    row("nothing more", "A a", {""}, {"", "B"}, "A a");
    row("a header of an earlier batch", "A a1", {}, {"A a2"}, "A a1; A a2");
}

void TestNoteWidgetItemModel::groups()
{
    QFETCH(QString, first);
    QFETCH(QStringList, earlier);
    QFETCH(QStringList, later);
    QFETCH(QString, rows);
    ScriptLoader loader;
    loader.first = first;
    loader.earlier = earlier;
    loader.later = later;
    NoteWidgetItemModel model(&loader);
    // The tester takes for granted that a first row is shown as text, which a note is not.
    std::unique_ptr<QAbstractItemModelTester> tester;
    if (!first.startsWith(QLatin1Char('-')))
        tester = std::make_unique<QAbstractItemModelTester>(&model);
    model.reload();
    while (!loader.earlier.isEmpty() || !loader.later.isEmpty()) {
        const int before = model.noteCount();
        const int brought = loader.earlier.isEmpty() ? model.loadLater() : model.loadEarlier();
        QCOMPARE(model.noteCount(), before + brought);
    }
    QCOMPARE(writtenDown(model), rows);
}

void TestNoteWidgetItemModel::saysWhatRowsAre()
{
    ScriptLoader loader;
    loader.first = QStringLiteral("2011-03-10 a b; 2011-03-11 c");
    NoteWidgetItemModel model(&loader);
    model.reload();
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(model.columnCount(), 1);
    const QModelIndex header = model.index(1, 0);
    const QModelIndex note = model.index(0, 0, header);
    QCOMPARE(header.data(NoteWidgetItemModel::StartRole).toDateTime().date(), QDate(2011, 3, 11));
    QCOMPARE(int(header.flags()), 33);
    QCOMPARE(int(note.flags()), 49);
    QCOMPARE(note.parent(), header);
    QCOMPARE(note.data(NoteWidgetItemModel::StartRole).toDateTime(), localTime("2011-03-11T09:00"));
    QCOMPARE(note.data(NoteWidgetItemModel::EndRole).toDateTime(), localTime("2011-03-11T10:00"));
    QVERIFY(!note.data(Qt::EditRole + 1).isValid());
    QVERIFY(!model.data({}, Qt::DisplayRole).isValid());
    for (const QModelIndex &outside :
         {model.index(2, 0), model.index(-1, 0), model.index(1, 0, header)})
        QVERIFY(!outside.isValid());
}

void TestNoteWidgetItemModel::showsWhatIsStored()
{
    ScriptLoader loader;
    loader.first = QStringLiteral("- a b");
    NoteWidgetItemModel model(&loader);
    model.reload();
    const auto calendar = DbInstance::instance()->calendar();
    calendar->deleteIncidence(calendar->incidence(QStringLiteral("a")));
    QCOMPARE(writtenDown(model), QStringLiteral("_ b"));
    QVERIFY(!(model.flags(model.index(0, 0)) & Qt::ItemIsUserCheckable));
}

void TestNoteWidgetItemModel::keepsIndexesWhileItGrows()
{
    ScriptLoader loader;
    loader.first = QStringLiteral("B b1 b2");
    loader.earlier = QStringList{QStringLiteral("A a")};
    NoteWidgetItemModel model(&loader);
    model.reload();
    const QPersistentModelIndex kept = model.index(1, 0, model.index(0, 0));
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    QCOMPARE(model.loadEarlier(), 1);
    QCOMPARE(inserted.count(), 2);
    QCOMPARE(kept.parent().row(), 1);
    QCOMPARE(kept.data().value<KCalCore::Incidence::Ptr>()->uid(), QStringLiteral("b2"));
}

void TestNoteWidgetItemModel::loadsAtEdges_data()
{
    addColumns<QString, QString, bool, int, QString>("first", "last", "hasMore", "result", "rows");
    const auto row = [](const char *name, const char *first, const char *last, bool hasMore,
                        int result, const char *rows) {
        addRow(name, QString::fromLatin1(first), QString::fromLatin1(last), hasMore, result,
               QString::fromLatin1(rows));
    };
    row("nothing is visible", "", "", true, 2, "B b1 b2; C c1 c2; D d");
    row("the first header", "0", "1", true, 1, "A a; B b1 b2; C c1 c2");
    row("the first note", "0.0", "1.0", true, 1, "A a; B b1 b2; C c1 c2");
    row("the first note, nothing before", "0.0", "1.0", false, 0, "B b1 b2; C c1 c2");
    row("in the middle", "0.1", "1.0", true, 0, "B b1 b2; C c1 c2");
    row("the last note", "0.1", "1.1", true, 2, "B b1 b2; C c1 c2; D d");
    row("the last note, nothing behind", "0.1", "1.1", false, 2, "B b1 b2; C c1 c2");
    row("both", "0", "1.1", true, 3, "A a; B b1 b2; C c1 c2; D d");
    row("both, nothing there", "0", "1.1", false, 2, "B b1 b2; C c1 c2");
    row("the last header is not the bottom", "0.1", "1", true, 0, "B b1 b2; C c1 c2");
}

void TestNoteWidgetItemModel::loadsAtEdges()
{
    QFETCH(QString, first);
    QFETCH(QString, last);
    QFETCH(bool, hasMore);
    ScriptLoader loader;
    loader.first = QStringLiteral("B b1 b2; C c1 c2");
    if (hasMore) {
        loader.earlier = QStringList{QStringLiteral("A a")};
        loader.later = QStringList{QStringLiteral("D d")};
    }
    NoteWidgetItemModel model(&loader);
    model.reload();
    const auto named = [&model](const QString &place) {
        const QStringList rows = place.split(QLatin1Char('.'), Qt::SkipEmptyParts);
        const QModelIndex header = model.index(rows.value(0, QStringLiteral("-1")).toInt(), 0);
        return rows.size() < 2 ? header : model.index(rows.at(1).toInt(), 0, header);
    };
    QTEST(model.loadAtEdges(named(first), named(last)), "result");
    QTEST(writtenDown(model), "rows");
}

void TestNoteWidgetItemModel::reloads()
{
    ScriptLoader loader;
    loader.first = QStringLiteral("A a; B b");
    NoteWidgetItemModel model(&loader);
    const QAbstractItemModelTester tester(&model);
    // What nobody asked for is not shown with the next batch.
    loader.loadLater();
    loader.backend()->addGroupHeader(QStringLiteral("X"), 0, {});
    loader.addIncidence(QStringLiteral("X"), nullptr, nullptr, {}, false);
    model.reload();
    QCOMPARE(writtenDown(model), loader.first);
    QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    loader.first = QStringLiteral("C c");
    model.reload();
    QCOMPARE(removed.count(), 1);
    QCOMPARE(writtenDown(model), loader.first);
}

/// Random batches at both ends, followed in a plain list.
void TestNoteWidgetItemModel::isAModelWhateverComes()
{
    std::mt19937 random(20110310);
    const auto below = [&random](int limit) { return int(random() % unsigned(limit)); };
    int number = 0;
    ScriptLoader loader;
    NoteWidgetItemModel model(&loader);
    const QAbstractItemModelTester tester(&model);
    QStringList expected;
    for (int step = 0; step < 150; ++step) {
        const bool isReload = step % 50 == 0;
        const bool isAbove = !isReload && below(2) == 0;
        QStringList groups;
        for (int left = below(4); left > 0; --left) {
            QStringList words{QStringLiteral("g%1").arg(++number)};
            for (int notes = 1 + below(3); notes > 0; --notes)
                words << QStringLiteral("n%1").arg(++number);
            groups << words.join(QLatin1Char(' '));
        }
        const QString batch = groups.join(QLatin1Char(';'));
        if (isReload) {
            expected.clear();
            loader.first = batch;
            model.reload();
        } else if (isAbove) {
            loader.earlier << batch;
            model.loadEarlier();
            std::reverse(groups.begin(), groups.end());
        } else {
            loader.later << batch;
            model.loadLater();
        }
        expected = isAbove ? groups + expected : expected + groups;
        QCOMPARE(writtenDown(model), expected.join(QStringLiteral("; ")));
    }
}

void TestNoteWidgetItemModel::asserts_data()
{
    const QByteArray noHeader("\"!insertHeaders\" in file notewidgetitemmodel, line 86");
    addColumns<QByteArray>("text");
    addRow("--no-header-after-headers", noHeader);
    addRow("--no-header-after-reload", noHeader);
    addRow("--another-group",
           QByteArray("\"groupName.isEmpty() || (lastGroupHeader && groupName == "
                      "lastGroupHeader->label())\" in file notewidgetitemmodel, line 353"));
}

void TestNoteWidgetItemModel::asserts()
{
    QFETCH(QByteArray, text);
    verifyAssertion(QLatin1String(QTest::currentDataTag()), text);
}

namespace
{
/// Whether the program was started only to do something wrong.
bool isDoneWrong(const QByteArray &what)
{
    if (!what.startsWith("--no-header") && what != "--another-group")
        return false;
    const NotesFixture notes;
    ScriptLoader loader;
    loader.first = QStringLiteral("A a");
    NoteWidgetItemModel model(&loader);
    model.reload();
    if (what == "--another-group") {
        loader.backend()->addGroupHeader(QStringLiteral("B"), 0, {});
        loader.addIncidence(QStringLiteral("C"), nullptr, nullptr, {}, false);
    } else if (what == "--no-header-after-headers") {
        loader.later = QStringList{QStringLiteral("- b")};
        model.loadLater();
    } else {
        loader.first = QStringLiteral("- b");
        model.reload();
    }
    return true;
}
} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    if (argc == 2 && isDoneWrong(argv[1]))
        return 0;
    TestNoteWidgetItemModel test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_notewidgetitemmodel.moc"
