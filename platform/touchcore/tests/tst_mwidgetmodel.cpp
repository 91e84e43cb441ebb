// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <touchcore/mwidgetmodel.h>

#include <QStringList>
#include <QTest>

#include <functional>

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

using Story = std::function<void(RoomModel &)>;
Q_DECLARE_METATYPE(Story)

class TestMWidgetModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsOfChanges_data();
    void tellsOfChanges();
    void takesChangesOfListeners();
    void listsAllMembers();
    void startsWithTheDeclaredValues();
};

void TestMWidgetModel::tellsOfChanges_data()
{
    QTest::addColumn<Story>("story");
    QTest::addColumn<QStringList>("told");

    const auto row = [](const char *name, const Story &story, const QStringList &told) {
        QTest::newRow(name) << story << told;
    };
    row("each change at once",
        [](RoomModel &room) {
            room.setTitle(QStringLiteral("Attic"));
            room.setFloor(3);
        },
        {QStringLiteral("title"), QStringLiteral("floor")});
    row("the same value again", [](RoomModel &room) { room.setFloor(1); }, {});
    row("a transaction",
        [](RoomModel &room) {
            const MModelTransaction transaction(&room);
            room.setFloor(2);
            room.setTitle(QStringLiteral("Hall"));
            room.setExtent({5, 5});
        },
        {QStringLiteral("floor title extent")});
    row("there and back in a transaction",
        [](RoomModel &room) {
            const MModelTransaction transaction(&room);
            room.setFloor(2);
            room.setFloor(1);
        },
        {QStringLiteral("floor")});
    row("names are compared by text",
        [](RoomModel &room) {
            const MModelTransaction transaction(&room);
            room.setTitle(QStringLiteral("Hall"));
            room.reportTitle();
        },
        {QStringLiteral("title")});
    row("nested transactions tell at the outer end",
        [](RoomModel &room) {
            room.beginTransaction();
            room.setFloor(2);
            room.beginTransaction();
            room.setTitle(QStringLiteral("Hall"));
            room.commitTransaction();
            room.setFloor(3);
            room.commitTransaction();
            room.setFloor(4);
        },
        {QStringLiteral("floor title"), QStringLiteral("floor")});
    row("an empty transaction",
        [](RoomModel &room) {
            room.beginTransaction();
            room.commitTransaction();
        },
        {});
}

void TestMWidgetModel::tellsOfChanges()
{
    QFETCH(Story, story);
    QFETCH(QStringList, told);
    RoomModel room;
    QStringList heard;
    connect(&room, &MWidgetModel::modified, this, [&heard](const QList<const char *> &members) {
        QStringList names;
        for (const char *member : members)
            names.append(QString::fromLatin1(member));
        heard.append(names.join(QLatin1Char(' ')));
    });
    story(room);
    QCOMPARE(heard, told);
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

void TestMWidgetModel::startsWithTheDeclaredValues()
{
    const RoomModel room;
    QCOMPARE(room.property("floor").toInt(), 1);
    QCOMPARE(room.extent(), QSizeF(3, 4));
}

QTEST_GUILESS_MAIN(TestMWidgetModel)
#include "tst_mwidgetmodel.moc"
