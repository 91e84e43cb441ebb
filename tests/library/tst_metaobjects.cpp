// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testtable.h"
#include "visibilitycontainerwidget_p.h"

#include <daskel/calendarconf.h>
#include <daskel/clickablelabel.h>
#include <daskel/db_instance.h>
#include <daskel/dskmphysics2dpanning.h>
#include <daskel/expandedincidencescache.h>
#include <daskel/notebookmanager.h>
#include <daskel/notelistwidget.h>
#include <daskel/notelistwidgetwrapper.h>
#include <daskel/notewidget.h>
#include <daskel/pageswitcher.h>
#include <daskel/timerservice.h>

#include <QMetaMethod>
#include <QtTest>

Q_DECLARE_METATYPE(const QMetaObject *)

static_assert(DbInstance::CalendarUser == 0 && DbInstance::NotesUser == 1
              && DbInstance::NoUser == 2);
static_assert(DbInstance::DbSaveOk == 0 && DbInstance::DbSaveFailed == 1
              && DbInstance::DbSaveStorageError10 == 2);
static_assert(NotebookManager::NoModifyError == 0 && NotebookManager::ModifyFailed == 1
              && NotebookManager::ModifyStorageError10 == 2);
static_assert(NoteWidgetModel::EventNote == 1 && NoteWidgetModel::TodoNote == 2);

/// What other programs rely on by number: the order of signals and slots, the values of the
/// enumerations.
class MetaObjectsTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void methods_data();
    void methods();
};

void MetaObjectsTest::methods_data()
{
    addColumns<const QMetaObject *, QStringList>("metaObject", "signatures");

    addRow("DbInstance", &DbInstance::staticMetaObject,
           QStringList{"signal dataUpdated()", "signal dbEnabled()", "signal dbOpenedOk()",
                       "signal dbOpenedNok()", "signal dbSaved(DbInstance::DbSaveError)",
                       "slot timeSettingsChanged(Ostra::Timed::WallClock::Info,bool)",
                       "slot enableDb()", "slot save(bool)", "slot save()",
                       "slot tryOpenDatabase()", "slot threadedInit()",
                       "slot updateNotebookAsync()"});
    addRow("ExpandedIncidencesCache", &ExpandedIncidencesCache::staticMetaObject, QStringList{});
    addRow("NotebookManager", &NotebookManager::staticMetaObject,
           QStringList{"signal notebooksChanged()",
                       "signal notebooksModified(NotebookManager::ModifyError)",
                       "slot dataUpdated()"});
    addRow("CalendarConf", &CalendarConf::staticMetaObject,
           QStringList{"signal dataUpdated()", "slot settingsFileChanged(QString)",
                       "slot syncSettingsCallback()"});
    addRow("TimerService", &TimerService::staticMetaObject,
           QStringList{"signal minuteChanged()", "signal hourChanged()", "signal dateChanged()",
                       "slot enable()", "slot disable()", "slot timerExpired()",
                       "slot qmTimeOrSettingsChanged()"});
    addRow("PageSwitcher", &PageSwitcher::staticMetaObject,
           QStringList{"slot backClicked()", "slot hideTopSheetPageNow()",
                       "slot dialogDestroyed(QObject*)"});
    addRow("DskMPhysics2DPanning", &DskMPhysics2DPanning::staticMetaObject,
           QStringList{"signal pointerReleased()"});
    addRow("VisibilityContainerWidgetPrivate", &VisibilityContainerWidgetPrivate::staticMetaObject,
           QStringList{"signal updateChild()", "slot dataUpdated()", "slot configUpdated()",
                       "slot dateChanged()", "slot hourChanged()", "slot minuteChanged()",
                       "slot queuedUpdateChild()", "slot notebooksChanged()"});
    addRow("NoteListWidget", &NoteListWidget::staticMetaObject,
           QStringList{"signal noteClicked()", "signal listReloaded()", "slot contentUpdated(int)",
                       "slot selectAll()", "slot deselectAll()", "slot listStarted()",
                       "slot listStopped()", "slot viewportPositionChanged(QPointF)",
                       "slot viewportMouseReleased()", "slot ensureListScrolled()"});
    addRow("NoteListWidgetWrapper", &NoteListWidgetWrapper::staticMetaObject,
           QStringList{"slot updateLayout(bool)"});
    addRow("NoteWidget", &NoteWidget::staticMetaObject,
           QStringList{"signal noteClicked(QString,KDateTime,KDateTime)",
                       "signal editNote(QString,KDateTime,KDateTime)",
                       "signal deleteNote(QString,KDateTime,KDateTime,QString)", "signal clicked()",
                       "slot retranslateUI()", "slot updateData(QList<const char*>)",
                       "slot editActionActivated()", "slot deleteActionActivated()",
                       "slot setCompleted()", "slot setUncompleted()",
                       "slot viewActionActivated()"});
    addRow("ClickableLabel", &ClickableLabel::staticMetaObject, QStringList{"signal clicked()"});
}

void MetaObjectsTest::methods()
{
    QFETCH(const QMetaObject *, metaObject);
    QStringList found;
    for (int i = metaObject->methodOffset(); i < metaObject->methodCount(); ++i) {
        const QMetaMethod method = metaObject->method(i);
        found << (method.methodType() == QMetaMethod::Signal ? QLatin1String("signal ")
                                                             : QLatin1String("slot "))
                + QLatin1String(method.methodSignature());
    }
    QTEST(found, "signatures");
}

QTEST_GUILESS_MAIN(MetaObjectsTest)
#include "tst_metaobjects.moc"
