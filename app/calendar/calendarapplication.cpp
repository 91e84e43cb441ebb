// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "calendarapplication.h"

#include "calendarwindow.h"

#include <daskel/daskeltranslator.h>
#include <daskel/daskelutility.h>
#include <daskel/db_instance.h>
#include <mkcal/calendarimporter.h>
#include <mkcal/sqlitestorage.h>
#include <touchcore/mlocale.h>
#include <touchcore/mtheme.h>

#include <QCryptographicHash>
#include <QDBusConnection>
#include <QDBusInterface>
#include <QDBusReply>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLocale>
#include <QTranslator>

/// What a static library holds is not found by itself. Outside of any namespace, as Qt wants it.
static void initResources()
{
    Q_INIT_RESOURCE(daskel_calendar_catalogue);
    Q_INIT_RESOURCE(theme_daskel_calendar);
}

namespace
{
/// Whenever a catalogue is installed, also later by the library, Qt asks them all for the reading
/// direction, and only its own would answer.
class ReadingDirection : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *source, const char *, int) const override
    {
        if (qstrcmp(source, "QT_LAYOUT_DIRECTION") != 0)
            return QString();
        const bool isMirrored = QLocale().textDirection() == Qt::RightToLeft;
        return isMirrored ? QStringLiteral("RTL") : QStringLiteral("LTR");
    }
};

const QString busPath = QStringLiteral("/org/daskel/Calendar");
const QString busInterface = QStringLiteral("org.daskel.Calendar");

struct ErrorText {
    int code; ///< SQLite's
    const char *openId;
    const char *saveId;
};
constexpr ErrorText errorTexts[] = {
    {5, "qtn_dcal_open_locked", "qtn_dcal_save_locked"}, // SQLITE_BUSY
    {6, "qtn_dcal_open_locked", "qtn_dcal_save_locked"}, // SQLITE_LOCKED
    {3, "qtn_dcal_open_forbidden", "qtn_dcal_save_forbidden"}, // SQLITE_PERM
    {8, "qtn_dcal_open_forbidden", "qtn_dcal_save_forbidden"}, // SQLITE_READONLY
    {14, "qtn_dcal_open_forbidden", "qtn_dcal_save_forbidden"}, // SQLITE_CANTOPEN
    {11, "qtn_dcal_open_damaged", "qtn_dcal_save_damaged"}, // SQLITE_CORRUPT
    {26, "qtn_dcal_open_damaged", "qtn_dcal_save_damaged"}, // SQLITE_NOTADB
    {13, "qtn_dcal_open_full", "qtn_dcal_save_full"}, // SQLITE_FULL
};

const ErrorText *errorText(int code)
{
    for (const ErrorText &text : errorTexts) {
        if (text.code == code)
            return &text;
    }
    return nullptr;
}

int errorCode()
{
    const auto sqlite = DbInstance::instance()->storage().dynamicCast<mKCal::SqliteStorage>();
    if (!sqlite)
        return 0;
    return sqlite->saveErrors().isEmpty() ? sqlite->errorCode() : sqlite->saveErrors().first();
}
} // namespace

CalendarApplication::CalendarApplication(CalendarWindow *window) : m_window(window)
{
    connect(window, &CalendarWindow::importWanted, this, &CalendarApplication::askForFiles);
    connect(window, &CalendarWindow::retryWanted, this,
            [] { DbInstance::instance()->tryOpenDatabase(); });
}

CalendarApplication::~CalendarApplication() = default;

void CalendarApplication::prepare()
{
    initResources();
    installTexts();
    MTheme::instance()->addLibrary(QStringLiteral("libdaskel"));
    MTheme::instance()->addLibrary(QStringLiteral("daskel-calendar"));
}

void CalendarApplication::installTexts()
{
    // Numbers in texts are written as the language writes them, and all runs in its direction.
    const QLocale language(MLocale::getDefault().name());
    QLocale::setDefault(language);
    static ReadingDirection direction;
    static const bool isInstalled = QCoreApplication::installTranslator(&direction);
    Q_UNUSED(isInstalled)
    DaskelTranslator::installLibdaskelTranslationCatalogs(QStringLiteral("daskel-calendar"));
    QGuiApplication::setLayoutDirection(language.textDirection());
}

void CalendarApplication::start(const QStringList &files)
{
    m_pendingFiles = files;
    DbInstance *const db = DbInstance::instance();
    db->setUser(DbInstance::CalendarUser);
    connect(db, &DbInstance::dbOpenedOk, this, &CalendarApplication::databaseOpened);
    connect(db, &DbInstance::dbOpenedNok, this, &CalendarApplication::openFailed);
    // From the worker that reads the calendar.
    connect(db, &DbInstance::dataUpdated, this, &CalendarApplication::importPending,
            Qt::QueuedConnection);
    connect(db, &DbInstance::dbSaved, this, [this](DbInstance::DbSaveError code) {
        if (code != DbInstance::DbSaveOk)
            tellFailedSave();
    });
    // The pages are there while the database is still waited for.
    m_window->showCalendar();
    if (db->tryOpenDatabase())
        databaseOpened();
}

void CalendarApplication::databaseOpened()
{
    DbInstance::instance()->threadedInit();
    m_window->showCalendar();
}

void CalendarApplication::openFailed()
{
    m_window->showError(openErrorText(errorCode()));
}

QString CalendarApplication::openErrorText(int sqliteCode)
{
    const ErrorText *text = errorText(sqliteCode);
    return qtTrId(text ? text->openId : "qtn_dcal_open_failed");
}

QString CalendarApplication::saveErrorText(int sqliteCode)
{
    const ErrorText *text = errorText(sqliteCode);
    return qtTrId(text ? text->saveId : "qtn_dcal_save_failed");
}

void CalendarApplication::tellFailedSave()
{
    tell(saveErrorText(errorCode()));
}

void CalendarApplication::tell(const QString &text)
{
    daskelUtilityShowInfoBanner(m_window->scene(), text);
}

void CalendarApplication::askForFiles()
{
    importFiles(QFileDialog::getOpenFileNames(m_window, qtTrId("qtn_dcal_import"), QString(),
                                              qtTrId("qtn_dcal_calendar_files")
                                                  + QStringLiteral(" (*.ics *.ical *.ifb)")));
}

void CalendarApplication::importFiles(const QStringList &files)
{
    m_pendingFiles += files;
    importPending();
}

void CalendarApplication::importPending()
{
    DbInstance *const db = DbInstance::instance();
    if (m_pendingFiles.isEmpty() || !db->isEnabled())
        return;
    const QStringList files = std::exchange(m_pendingFiles, {});
    mKCal::CalendarImporter importer(db->storage());
    mKCal::ImportReport report;
    if (!importer.importFiles(files, &report)) {
        // Where the database is not at fault, no file could be read.
        const int code = errorCode();
        tell(code == 0 ? qtTrId("qtn_dcal_import_unreadable")
                       : qtTrId("qtn_dcal_import_failed").arg(saveErrorText(code)));
        return;
    }
    const int taken = report.created + report.changed + report.same;
    QString text = taken > 0 || report.skipped.isEmpty() ? qtTrId("qtn_dcal_imported", taken)
                                                         : qtTrId("qtn_dcal_import_unreadable");
    if (taken > 0 && !report.skipped.isEmpty())
        text += QLatin1Char(' ') + qtTrId("qtn_dcal_import_skipped", report.skipped.size());
    tell(text);
}

QString CalendarApplication::serviceName(const QString &fileName)
{
    constexpr int digits = 12;
    if (fileName.isEmpty())
        return busInterface;
    const QByteArray hash = QCryptographicHash::hash(
        QFileInfo(fileName).absoluteFilePath().toUtf8(), QCryptographicHash::Sha1);
    return busInterface + QStringLiteral(".d") + QString::fromLatin1(hash.toHex().left(digits));
}

bool CalendarApplication::handOver(const QString &service, const QStringList &files)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return false;
    bus.registerObject(busPath, this, QDBusConnection::ExportScriptableSlots);
    if (bus.registerService(service))
        return false;
    QDBusInterface running(service, busPath, busInterface, bus);
    return QDBusReply<void>(running.call(QStringLiteral("activate"), files)).isValid();
}

void CalendarApplication::activate(const QStringList &files)
{
    m_window->setWindowState(m_window->windowState() & ~Qt::WindowMinimized);
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
    importFiles(files);
}
