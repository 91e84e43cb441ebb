// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "mcatalogues.h"
#include "mdesktopsetting.h"
#include "mlocale_p.h"
#include "mlocalename.h"
#include "mposixpattern.h"

#include <touchcore/mcalendar.h>
#include <touchcore/mlocale.h>

#include <QCoreApplication>
#include <QPointer>

namespace
{
QStringList &translationPaths()
{
    static QStringList paths;
    return paths;
}

/// Makes the catalogues of \a settings the ones that qtTrId() asks first. They live as long as the
/// application object.
void publishCatalogues(const MLocalePrivate &settings)
{
    static QPointer<MCatalogues> published;
    if (QCoreApplication::instance() == nullptr || (settings.catalogues.isEmpty() && !published))
        return;
    if (published)
        QCoreApplication::removeTranslator(published);
    else
        published = new MCatalogues(QCoreApplication::instance());
    published->read(settings.catalogues, settings.languages,
                    MCatalogues::folders(translationPaths()));
    QCoreApplication::installTranslator(published);
}

/// The clock that the person chose in the settings of the desktop; null without an application.
MDesktopSetting *desktopClockSetting()
{
    static QPointer<MDesktopSetting> setting;
    if (!setting && QCoreApplication::instance() != nullptr)
        setting = new MDesktopSetting(QStringLiteral("org.gnome.desktop.interface"),
                                      QStringLiteral("clock-format"), QCoreApplication::instance());
    return setting;
}

MLocale::TimeFormat24h desktopClock()
{
    const QString value = desktopClockSetting()->value().toString();
    if (value == QLatin1String("12h"))
        return MLocale::TwelveHourTimeFormat24h;
    if (value == QLatin1String("24h"))
        return MLocale::TwentyFourHourTimeFormat24h;
    return MLocale::LocaleDefaultTimeFormat24h;
}
} // namespace

MLocalePrivate::MLocalePrivate(const QString &localeName)
    : name(MLocaleName::toIcu(localeName.isEmpty() ? MLocaleName::ofFormats() : localeName)),
      languages(localeName.isEmpty() ? MLocaleName::ofTexts() : QStringList(name))
{
}

MLocalePrivate::MLocalePrivate(const MLocalePrivate &other)
    : name(other.name), languages(other.languages), catalogues(other.catalogues),
      chosenClock(other.chosenClock), desktopClock(other.desktopClock)
{
}

bool MLocalePrivate::assign(const MLocalePrivate &other)
{
    const MLocalePrivate before(*this);
    name = other.name;
    languages = other.languages;
    catalogues = other.catalogues;
    chosenClock = other.chosenClock;
    if (!followsDesktop)
        desktopClock = other.desktopClock;
    forgetFormats();
    return name != before.name || languages != before.languages || clock() != before.clock();
}

MLocale::TimeFormat24h MLocalePrivate::clock() const
{
    return chosenClock == MLocale::LocaleDefaultTimeFormat24h ? desktopClock : chosenClock;
}

const MLocaleFormats &MLocalePrivate::formats() const
{
    if (!m_formats)
        m_formats = std::make_unique<MLocaleFormats>(name, clock());
    return *m_formats;
}

MLocale::MLocale(std::unique_ptr<MLocalePrivate> settings, QObject *parent)
    : QObject(parent), d(std::move(settings))
{
}

MLocale::MLocale(QObject *parent)
    : MLocale(std::make_unique<MLocalePrivate>(*getDefault().d), parent)
{
    d->catalogues.clear();
}

MLocale::MLocale(const QString &name, QObject *parent)
    : MLocale(std::make_unique<MLocalePrivate>(name), parent)
{
}

MLocale::MLocale(const MLocale &other) : MLocale(std::make_unique<MLocalePrivate>(*other.d)) { }

MLocale::~MLocale() = default;

MLocale &MLocale::operator=(const MLocale &other)
{
    const bool differs = d->assign(*other.d);
    if (this == &getDefault())
        publishCatalogues(*d);
    if (differs)
        Q_EMIT settingsChanged();
    return *this;
}

MLocale &MLocale::getDefault()
{
    // Never destroyed: what is drawn while the process ends may still ask for it.
    static auto *const locale = new MLocale(std::make_unique<MLocalePrivate>(QString()));
    return *locale;
}

void MLocale::setDefault(const MLocale &locale)
{
    getDefault() = locale;
}

QString MLocale::name() const
{
    return d->name;
}

QStringList MLocale::languages() const
{
    return d->languages;
}

MLocale::TimeFormat24h MLocale::timeFormat24h() const
{
    return d->clock();
}

void MLocale::setTimeFormat24h(TimeFormat24h clock)
{
    const TimeFormat24h before = d->clock();
    d->chosenClock = clock;
    if (d->clock() == before)
        return;
    d->forgetFormats();
    Q_EMIT settingsChanged();
}

MLocale::TimeFormat24h MLocale::defaultTimeFormat24h() const
{
    return d->formats().ownClock();
}

void MLocale::connectSettings()
{
    MDesktopSetting *setting = desktopClockSetting();
    if (d->followsDesktop || setting == nullptr)
        return;
    d->followsDesktop = true;
    const auto takeClock = [this] {
        const TimeFormat24h before = d->clock();
        d->desktopClock = desktopClock();
        if (d->clock() == before)
            return;
        d->forgetFormats();
        Q_EMIT settingsChanged();
    };
    connect(setting, &MDesktopSetting::changed, this, takeClock);
    // A value that is known already is news here, too, and comes from the event loop as any other.
    QMetaObject::invokeMethod(this, takeClock, Qt::QueuedConnection);
}

QString MLocale::icuFormatString(DateType dateType, TimeType timeType,
                                 CalendarType calendarType) const
{
    return d->formats().pattern(dateType, timeType, calendarType);
}

QString MLocale::formatDateTime(const MCalendar &calendar, DateType dateType,
                                TimeType timeType) const
{
    const MLocaleFormats &formats = d->formats();
    return formats.format(calendar.dateTime(), formats.pattern(dateType, timeType, calendar.type()),
                          calendar.type());
}

QString MLocale::formatDateTime(const MCalendar &calendar, const QString &pattern) const
{
    const MLocaleFormats &formats = d->formats();
    return formats.format(calendar.dateTime(),
                          icuPatternFromPosix(pattern, formats, calendar.type()), calendar.type());
}

QString MLocale::icuPatternFor(const QString &skeleton) const
{
    return d->formats().patternFor(skeleton);
}

QString MLocale::formatDateTimeICU(const QDateTime &dateTime, const QString &pattern) const
{
    return d->formats().format(dateTime, pattern, DefaultCalendar);
}

void MLocale::installTrCatalog(const QString &name)
{
    if (name.isEmpty())
        return;
    d->catalogues.removeAll(name);
    d->catalogues.append(name);
    if (this == &getDefault())
        publishCatalogues(*d);
}

QStringList MLocale::trCatalogs() const
{
    return d->catalogues;
}

void MLocale::addTranslationPath(const QString &path)
{
    translationPaths().removeAll(path);
    translationPaths().append(path);
}
