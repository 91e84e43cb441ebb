// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <touchcore/mwidgetmodel.h>

#include <QStringList>
#include <QTest>

class PlaceModel : public MWidgetModel
{
    Q_OBJECT
    M_MODEL_PROPERTY(QString, title, setTitle)
    M_MODEL_PROPERTY(int, floor, setFloor, 1)
};

class RoomModel : public PlaceModel
{
    Q_OBJECT
    M_MODEL_PROPERTY(QSizeF, extent, setExtent, 3.0, 4.0)

public:
    /// The same name at another address, as from another library.
    void reportTitle()
    {
        static const char name[] = "title";
        memberModified(name);
    }
};

class TestMWidgetModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsOfChanges_data();
    void tellsOfChanges();
    void takesChangesOfListeners();
    void listsAllMembers();
};

void TestMWidgetModel::tellsOfChanges_data()
{
    // What is done: t and f set another title and floor, s the same floor, r reports the title from
    // elsewhere, { and } begin and commit a transaction.
    QTest::addColumn<QString>("story");
    QTest::addColumn<QString>("told"); // notices, of names
    const auto row = [](const char *name, const char *story, const char *told) {
        QTest::newRow(name) << QString::fromLatin1(story) << QString::fromLatin1(told);
    };
    row("each change at once", "t f", "title, floor");
    row("the same value again", "s", "");
    row("a transaction", "{ f t }", "floor title");
    row("a name is told once", "{ f t f f }", "floor title");
    row("names are compared by text", "{ t r }", "title");
    row("nested transactions tell at the outer end", "{ f { t } f } f", "floor title, floor");
    row("an empty transaction", "{ }", "");
    row("an inner one without a change", "{ t { } }", "title");
}

void TestMWidgetModel::tellsOfChanges()
{
    QFETCH(QString, story);
    RoomModel room;
    QStringList told;
    connect(&room, &MWidgetModel::modified, this, [&told](const QList<const char *> &members) {
        QStringList names;
        for (const char *member : members)
            names.append(QString::fromLatin1(member));
        told.append(names.join(QLatin1Char(' ')));
    });
    for (const QChar step : qAsConst(story)) {
        if (step == QLatin1Char('t'))
            room.setTitle(room.title() + QLatin1Char('x'));
        else if (step == QLatin1Char('f'))
            room.setFloor(room.floor() + 1);
        else if (step == QLatin1Char('s'))
            room.setFloor(room.floor());
        else if (step == QLatin1Char('r'))
            room.reportTitle();
        else if (step == QLatin1Char('{'))
            room.beginTransaction();
        else if (step == QLatin1Char('}'))
            room.commitTransaction();
    }
    QTEST(told.join(QStringLiteral(", ")), "told");
}

void TestMWidgetModel::takesChangesOfListeners()
{
    RoomModel room;
    int told = 0;
    connect(&room, &MWidgetModel::modified, this, [&] {
        ++told;
        // Changes inside of a transaction of its own, until it has what it wants.
        const MModelTransaction transaction(&room);
        room.setFloor(qMin(5, room.floor() + 1));
    });
    {
        const MModelTransaction transaction(&room);
        room.setTitle(QStringLiteral("Hall"));
    }
    QCOMPARE(room.floor(), 5);
    QCOMPARE(told, 5);
}

void TestMWidgetModel::listsAllMembers()
{
    const RoomModel room;
    QStringList names;
    const QList<const char *> members = room.allMembers();
    for (const char *member : members)
        names.append(QString::fromLatin1(member));
    QCOMPARE(names.join(QLatin1Char(' ')), QStringLiteral("title floor extent"));
    QVERIFY(MWidgetModel().allMembers().isEmpty());
}

QTEST_GUILESS_MAIN(TestMWidgetModel)
#include "tst_mwidgetmodel.moc"
