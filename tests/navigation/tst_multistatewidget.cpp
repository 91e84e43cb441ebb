// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testtable.h"

#include <daskel/multistatewidget.h>
#include <touchcore/mapplication.h>
#include <touchcore/mlayout.h>
#include <touchcore/mlinearlayoutpolicy.h>
#include <touchcore/mwidgetview.h>
#include <touchcore/mwindow.h>

#include <QSignalSpy>

#include <memory>

namespace
{
const QSize portrait(480, 854);
const QSize landscape(854, 480);
} // namespace

class TestMultiStateWidget : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void arrangesByStateAndOrientation_data();
    void arrangesByStateAndOrientation();
    void reportsOnlyWhatDiffers();
    void keepsOneEntryForANumber();
    void leavesEqualPoliciesAlone();
    void waitsForAWindow();

private:
    void turn(const QSize &size);
    QChar shown() const;
    MAbstractLayoutPolicy *policy(char name);

    std::unique_ptr<MWindow> m_window;
    std::unique_ptr<MultiStateWidget> m_widget;
    QMap<char, MAbstractLayoutPolicy *> m_policies;
};

void TestMultiStateWidget::init()
{
    m_window = std::make_unique<MWindow>();
    turn(portrait);
    m_window->show();
    m_widget = std::make_unique<MultiStateWidget>();
}

void TestMultiStateWidget::cleanup()
{
    m_widget.reset();
    m_window.reset();
    m_policies.clear();
}

void TestMultiStateWidget::turn(const QSize &size)
{
    m_window->resize(size);
    QCoreApplication::processEvents();
}

/// A policy of the widget with a name of one letter; '-' is none.
MAbstractLayoutPolicy *TestMultiStateWidget::policy(char name)
{
    if (name == '-')
        return nullptr;
    if (!m_policies.contains(name)) {
        auto *layout = static_cast<MLayout *>(m_widget->layout());
        m_policies.insert(name, new MLinearLayoutPolicy(layout, Qt::Vertical));
    }
    return m_policies.value(name);
}

/// The name of the policy that is in force.
QChar TestMultiStateWidget::shown() const
{
    auto *layout = static_cast<MLayout *>(m_widget->layout());
    return QLatin1Char(layout->policy() ? m_policies.key(layout->policy()) : '-');
}

/// Each step is a state, or L or P to turn the window; what is in force after each step follows.
void TestMultiStateWidget::arrangesByStateAndOrientation_data()
{
    addColumns<QString, QString>("steps", "shown");
    const auto row = [](const char *name, const char *steps, const char *shown) {
        addRow(name, QString::fromLatin1(steps), QString::fromLatin1(shown));
    };
    row("portrait", "1", "b");
    row("landscape", "L1", "-a");
    row("another state", "12", "bd");
    row("turning", "1LPL", "baba");
    row("turning, then another state", "1L2P", "bacd");
    row("one policy for both", "3LP", "eee");
    row("nothing for portrait", "14L", "bbf");
    row("an unknown state keeps what is shown", "19LP", "bbbb");
    row("back from an unknown state", "191", "bbb");
    row("the same state again", "11", "bb");
}

void TestMultiStateWidget::arrangesByStateAndOrientation()
{
    QFETCH(QString, steps);
    m_widget->addState(1, policy('a'), policy('b'));
    m_widget->addState(2, policy('c'), policy('d'));
    m_widget->addState(3, policy('e'), policy('e'));
    m_widget->addState(4, policy('f'), nullptr);
    QString seen;
    for (const QChar step : steps) {
        if (step == QLatin1Char('L'))
            turn(landscape);
        else if (step == QLatin1Char('P'))
            turn(portrait);
        else
            m_widget->changeState(step.digitValue());
        seen += shown();
    }
    QTEST(seen, "shown");
}

void TestMultiStateWidget::reportsOnlyWhatDiffers()
{
    QStringList reported;
    connect(m_widget->model(), &MWidgetModel::modified, this,
            [&reported](const QList<const char *> &members) {
                for (const char *member : members)
                    reported << QLatin1String(member);
            });
    m_widget->addState(1, policy('a'), policy('b'));
    m_widget->addState(2, policy('a'), policy('c'));
    m_widget->changeState(1);
    QCOMPARE(reported.join(' '), QStringLiteral("activeLandscapeLayout activePortraitLayout"));
    reported.clear();
    m_widget->changeState(2);
    QCOMPARE(reported.join(' '), QStringLiteral("activePortraitLayout"));
    m_widget->changeState(9);
    QCOMPARE(m_widget->model()->activeLandscapeLayout(), nullptr);
    QCOMPARE(m_widget->model()->activePortraitLayout(), nullptr);
}

void TestMultiStateWidget::keepsOneEntryForANumber()
{
    m_widget->addState(1, policy('a'), policy('b'));
    m_widget->addState(1, policy('c'), policy('d'));
    m_widget->changeState(1);
    QCOMPARE(m_widget->model()->activeLandscapeLayout(), policy('c'));
    QCOMPARE(m_widget->model()->activePortraitLayout(), policy('d'));
}

/// Whoever put another policy into force by hand keeps it.
void TestMultiStateWidget::leavesEqualPoliciesAlone()
{
    m_widget->addState(1, policy('a'), policy('a'));
    m_widget->changeState(1);
    policy('b')->activate();
    turn(landscape);
    QCOMPARE(shown(), QChar('b'));
}

void TestMultiStateWidget::waitsForAWindow()
{
    m_widget.reset();
    m_policies.clear();
    m_window.reset();
    m_widget = std::make_unique<MultiStateWidget>();
    m_widget->addState(1, policy('a'), policy('b'));
    m_widget->changeState(1);
    QCOMPARE(shown(), QChar('-'));
    QCOMPARE(m_widget->model()->activePortraitLayout(), policy('b'));
}

int main(int argc, char **argv)
{
    MApplication application(argc, argv);
    TestMultiStateWidget test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_multistatewidget.moc"
