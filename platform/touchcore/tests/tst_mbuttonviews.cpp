// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "picture.h"
#include "touchscreen.h"

#include <touchcore/mbutton.h>
#include <touchcore/mbuttongroup.h>
#include <touchcore/mbuttonviews.h>
#include <touchcore/mscenemanager.h>
#include <touchcore/mtheme.h>

#include <QGraphicsLinearLayout>
#include <QtTest>

namespace
{
const QByteArray viewTypes[] = {"", "icon", "tab", "group", "switch", "check", "choice"};
} // namespace

class TestMButtonViews : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void areChosenByViewType_data();
    void areChosenByViewType();
    void areNeverSmallerThanAFinger_data() { everyView(); }
    void areNeverSmallerThanAFinger();
    void showEveryState_data() { everyView(); }
    void showEveryState();
    void mirrorInALayoutFromTheRight_data() { everyView(); }
    void mirrorInALayoutFromTheRight();
    void shortenALongText_data() { everyView(); }
    void shortenALongText();
    void slideTheThumbWhileOnDisplay();
    void giveTheThumbItsPlaceAtOnce_data();
    void giveTheThumbItsPlaceAtOnce();
    void roundTheEndsOfAGroup();
    void askTheirViewForTheSizeOfALayout();
    void wrapAChoice();

private:
    static void everyView();
    MButton *add(const QString &viewType, const QString &text);

    std::unique_ptr<TouchScreen> m_screen;
};

void TestMButtonViews::initTestCase()
{
    // Every state in colours of its own.
    QVERIFY(MTheme::instance()->load(R"({"styles": {"Loud": {
        "color": "#000000", "backgroundColor": "#aaaaaa", "pressedOverlay": "#0000ff/50",
        "markColor": "#101010", "markBackgroundColor": "#eeeeee", "markBorderColor": "#202020",
        "markImage": "check", "checked": {"backgroundColor": "#00ff00", "markColor": "#ff00ff"}}}})",
                                     QStringLiteral("test")));
}

void TestMButtonViews::init()
{
    m_screen = std::make_unique<TouchScreen>();
}

void TestMButtonViews::cleanup()
{
    MTheme::instance()->setMotionReduced(false);
    MSceneManager::setAnimationsEnabled(true);
    m_screen.reset();
}

void TestMButtonViews::everyView()
{
    QTest::addColumn<QString>("viewType");
    for (const QByteArray &viewType : viewTypes)
        QTest::newRow(viewType.isEmpty() ? "push" : viewType.constData())
            << QString::fromLatin1(viewType);
}

MButton *TestMButtonViews::add(const QString &viewType, const QString &text)
{
    auto *button = new MButton(text);
    button->setViewType(viewType);
    button->setIconID(QStringLiteral("calendar"));
    button->setCheckable(true);
    m_screen->scene.addItem(button);
    button->resize(button->effectiveSizeHint(Qt::PreferredSize));
    return button;
}

void TestMButtonViews::areChosenByViewType_data()
{
    QTest::addColumn<QString>("viewType");
    QTest::addColumn<QByteArray>("viewClass");
    QTest::newRow("push") << QString() << QByteArray("MButtonView");
    QTest::newRow("icon") << QStringLiteral("icon") << QByteArray("MButtonIconView");
    QTest::newRow("tab") << QStringLiteral("tab") << QByteArray("MButtonTabView");
    QTest::newRow("group") << QStringLiteral("group") << QByteArray("MButtonGroupView");
    QTest::newRow("switch") << QStringLiteral("switch") << QByteArray("MButtonSwitchView");
    QTest::newRow("check") << QStringLiteral("check") << QByteArray("MButtonCheckView");
    QTest::newRow("choice") << QStringLiteral("choice") << QByteArray("MButtonChoiceView");
}

void TestMButtonViews::areChosenByViewType()
{
    QFETCH(QString, viewType);
    QFETCH(QByteArray, viewClass);

    MButton *button = add(viewType, QStringLiteral("Text"));
    QCOMPARE(QByteArray(button->view()->metaObject()->className()), viewClass);
    QVERIFY(MTheme::instance()->warnings().isEmpty());
}

void TestMButtonViews::areNeverSmallerThanAFinger()
{
    QFETCH(QString, viewType);

    for (const QString &text : {QString(), QStringLiteral("i")}) {
        const MButton *button = add(viewType, text);
        for (const Qt::SizeHint which : {Qt::MinimumSize, Qt::PreferredSize}) {
            const QSizeF size = button->effectiveSizeHint(which);
            QVERIFY2(size.width() >= 48 && size.height() >= 48, qPrintable(viewType));
        }
    }
}

void TestMButtonViews::showEveryState()
{
    QFETCH(QString, viewType);

    MButton *button = add(viewType, QStringLiteral("Text"));
    button->setStyleName(QStringLiteral("Loud"));
    button->resize(200, 60);
    QVector<QImage> pictures{pictureOf(button)};
    button->model()->setDown(true);
    pictures << pictureOf(button);
    button->setChecked(true);
    pictures << pictureOf(button);
    button->model()->setDown(false);
    pictures << pictureOf(button);
    button->setEnabled(false);
    pictures << pictureOf(button);
    button->setChecked(false);
    pictures << pictureOf(button);
    for (int i = 0; i < pictures.size(); ++i) {
        for (int j = 0; j < i; ++j)
            QVERIFY2(pictures[i] != pictures[j], qPrintable(QStringLiteral("%1 %2").arg(i).arg(j)));
    }
    button->setEnabled(true);
    QCOMPARE(pictureOf(button), pictures.first());
}

void TestMButtonViews::mirrorInALayoutFromTheRight()
{
    QFETCH(QString, viewType);

    MButton *button = add(viewType, QString());
    button->resize(200, 60);
    button->setChecked(true);
    const QRect ink = inkOf(pictureOf(button));
    const int right = int(button->size().width()) - 1;
    button->setLayoutDirection(Qt::RightToLeft);
    const QRect mirrored = inkOf(pictureOf(button));
    // A drawing of 24 pixels need not be symmetric.
    QVERIFY(qAbs(mirrored.left() - (right - ink.right())) <= 6);
    QVERIFY(qAbs(mirrored.right() - (right - ink.left())) <= 6);
}

void TestMButtonViews::shortenALongText()
{
    QFETCH(QString, viewType);

    MButton *button = add(viewType, QString(200, QLatin1Char('w')));
    QVERIFY(button->effectiveSizeHint(Qt::MinimumSize).width() < 150);
    button->setPos(50, 50);
    button->resize(180, 60);
    QImage image(360, 600, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    m_screen->scene.render(&painter, QRectF(image.rect()), QRectF(image.rect()));
    painter.end();
    QVERIFY(button->sceneBoundingRect().toRect().contains(inkOf(image)));
}

void TestMButtonViews::slideTheThumbWhileOnDisplay()
{
    MButton *button = add(QStringLiteral("switch"), QStringLiteral("All day"));
    const auto *view = qobject_cast<MButtonSwitchView *>(button->view());
    QVERIFY(view);
    MWidget::updateDisplayState(button, true);
    m_screen->tap(button->rect().center());
    QVERIFY(button->isChecked());
    QVERIFY(view->thumbPosition() < 0.5);
    QTRY_COMPARE(view->thumbPosition(), 1.0);
    button->setChecked(false);
    button->setChecked(true);
    QTRY_COMPARE(view->thumbPosition(), 1.0);
}

void TestMButtonViews::giveTheThumbItsPlaceAtOnce_data()
{
    QTest::addColumn<bool>("isOnDisplay");
    QTest::addColumn<bool>("isMotionReduced");
    QTest::addColumn<bool>("areAnimationsEnabled");
    QTest::newRow("where nobody sees it") << false << false << true;
    QTest::newRow("where motion is reduced") << true << true << true;
    QTest::newRow("where nothing is animated") << true << false << false;
}

void TestMButtonViews::giveTheThumbItsPlaceAtOnce()
{
    QFETCH(bool, isOnDisplay);
    QFETCH(bool, isMotionReduced);
    QFETCH(bool, areAnimationsEnabled);

    MSceneManager::setAnimationsEnabled(areAnimationsEnabled);
    MTheme::instance()->setMotionReduced(isMotionReduced);
    MButton *button = add(QStringLiteral("switch"), QStringLiteral("All day"));
    MWidget::updateDisplayState(button, isOnDisplay);
    const auto *view = qobject_cast<MButtonSwitchView *>(button->view());
    button->setChecked(true);
    QCOMPARE(view->thumbPosition(), 1.0);
    button->setChecked(false);
    QCOMPARE(view->thumbPosition(), 0.0);
    // One that is on already comes with its thumb there.
    button->setChecked(true);
    button->setViewType(QStringLiteral("check"));
    button->setViewType(QStringLiteral("switch"));
    QCOMPARE(qobject_cast<MButtonSwitchView *>(button->view())->thumbPosition(), 1.0);
}

void TestMButtonViews::roundTheEndsOfAGroup()
{
    QVERIFY(MTheme::instance()->load(
        R"({"styles": {"Dark": {"backgroundColor": "#000000", "borderColor": "#000000",
            "borderWidth": 1, "cornerRadius": 10}}})",
        QStringLiteral("test")));
    MButtonGroup group;
    for (int i = 0; i < 3; ++i) {
        MButton *button = add(QStringLiteral("group"), QString());
        button->setIconID(QString());
        button->setStyleName(QStringLiteral("Dark"));
        button->setPos(100 * i, 0);
        group.addButton(button);
    }
    const auto isRound = [](const MButton *button) {
        const QImage image = pictureOf(button);
        const auto isWhite = [&image](int x) { return qGray(image.pixel(x, 0)) > 200; };
        return std::pair(isWhite(0), isWhite(image.width() - 1));
    };
    QCOMPARE(isRound(group.button(0)), std::pair(true, false));
    QCOMPARE(isRound(group.button(1)), std::pair(false, false));
    QCOMPARE(isRound(group.button(2)), std::pair(false, true));
    group.button(2)->hide();
    QCOMPARE(isRound(group.button(1)), std::pair(false, true));
    group.button(0)->setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(isRound(group.button(0)), std::pair(false, true));
}

void TestMButtonViews::askTheirViewForTheSizeOfALayout()
{
    MButton *button = add(QString(), QString());
    auto *layout = new QGraphicsLinearLayout(button);
    layout->addItem(new QGraphicsWidget);
    QCOMPARE(button->effectiveSizeHint(Qt::MinimumSize).height(), 48.0);
    auto *wide = new QGraphicsWidget;
    wide->setMinimumSize(300, 90);
    layout->addItem(wide);
    QVERIFY(button->effectiveSizeHint(Qt::PreferredSize).width() >= 300);
    QVERIFY(button->effectiveSizeHint(Qt::PreferredSize).height() >= 90);
}

void TestMButtonViews::wrapAChoice()
{
    MButton *button = add(QStringLiteral("choice"),
                          QString(12, QLatin1Char('w')).append(QLatin1Char(' ')).repeated(20));
    QSizePolicy policy = button->sizePolicy();
    policy.setHeightForWidth(true);
    button->setSizePolicy(policy);
    const qreal wide = button->effectiveSizeHint(Qt::PreferredSize, QSizeF(5000, -1)).height();
    const qreal narrow = button->effectiveSizeHint(Qt::PreferredSize, QSizeF(200, -1)).height();
    QCOMPARE(wide, 56.0);
    QCOMPARE(narrow, 56.0);
    MTheme::instance()->setTextScale(2);
    const qreal enlarged = button->effectiveSizeHint(Qt::PreferredSize, QSizeF(200, -1)).height();
    MTheme::instance()->setTextScale(1);
    QVERIFY(enlarged >= 2 * 44);
}

QTEST_MAIN(TestMButtonViews)
#include "tst_mbuttonviews.moc"
