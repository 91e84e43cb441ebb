// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "mtheme_p.h"
#include "picture.h"
#include "stylefiller.h"

#include <touchcore/mstyle.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace
{
const char baseLibrary[] = "base";
/// The values of the desktop's setting: 0 no preference, 1 dark, 2 light.
const uint preferDark = 1;
} // namespace

uint qHash(const StyleKey &key, uint seed)
{
    return ::qHash(key.styleClass, seed) ^ ::qHash(key.widgetClass, seed) * 31
        ^ ::qHash(key.styleName, seed) ^ ::qHash(key.mode, seed);
}

MThemePrivate::MThemePrivate(MTheme *theme) : q(theme)
{
    values.rules = &rules;
}

bool MThemePrivate::readFile(const QString &file, const QStringList &outer)
{
    if (outer.contains(file)) {
        warn(QStringLiteral("%1: includes itself").arg(file));
        return false;
    }
    QFile theme(file);
    if (!theme.open(QIODevice::ReadOnly)) {
        warn(QStringLiteral("%1: %2").arg(file, theme.errorString()));
        return false;
    }
    QStringList includes;
    bool isRead = read(theme.readAll(), file, &includes);
    for (const QString &name : qAsConst(includes))
        isRead =
            readFile(QFileInfo(file).dir().filePath(name), outer + QStringList{file}) && isRead;
    return isRead;
}

bool MThemePrivate::read(const QByteArray &json, const QString &source, QStringList *includes)
{
    QStringList found;
    const bool isRead = readTheme(json, source, &rules, includes, &found);
    for (const QString &text : qAsConst(found))
        warn(text);
    return isRead;
}

void MThemePrivate::warn(const QString &text)
{
    if (warnings.contains(text))
        return;
    warnings.append(text);
    qWarning("%s", qUtf8Printable(text));
}

QStringList MThemePrivate::foldersOf(const QString &library)
{
    const QString below = QLatin1String("/daskel/themes/") + library;
    const auto isTheme = [](const QString &folder) {
        return QFileInfo::exists(folder + QLatin1String("/theme.json"));
    };
    const QString installed =
        QCoreApplication::applicationDirPath() + QLatin1String("/../share") + below;
    const QString builtIn = QLatin1Char(':') + below;
    const QString personal =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + below;
    QStringList folders;
    if (isTheme(installed))
        folders.append(QDir::cleanPath(installed));
    else if (isTheme(builtIn))
        folders.append(builtIn);
    if (isTheme(personal))
        folders.append(personal);
    return folders;
}

void MThemePrivate::setScheme(M::ColorScheme scheme)
{
    const bool isDark = scheme == M::DarkScheme;
    if (isDark == values.isDark)
        return;
    values.isDark = isDark;
    restyleAll();
}

void MThemePrivate::followPreference()
{
    setScheme(preference->value().toUInt() == preferDark ? M::DarkScheme : M::LightScheme);
}

void MThemePrivate::stopFollowing()
{
    if (!preference)
        return;
    preference->disconnect(q);
    preference.release()->deleteLater();
}

void MThemePrivate::restyleAll()
{
    styles.clear();
    Q_EMIT q->changed();
}

MTheme *MTheme::instance()
{
    static MTheme theme;
    return &theme;
}

MTheme::MTheme() : d(std::make_unique<MThemePrivate>(this))
{
    addLibrary(QLatin1String(baseLibrary));
}

MTheme::~MTheme() = default;

bool MTheme::addLibrary(const QString &library)
{
    if (d->libraries.contains(library))
        return true;
    d->libraries.insert(library);
    const QStringList folders = MThemePrivate::foldersOf(library);
    if (folders.isEmpty())
        d->warn(QStringLiteral("There is no theme of the library \"%1\".").arg(library));
    bool isRead = false;
    for (const QString &folder : folders) {
        d->imageFolders.prepend(folder + QLatin1String("/images"));
        isRead = d->readFile(folder + QLatin1String("/theme.json")) || isRead;
    }
    d->imageFiles.clear();
    clearPictures();
    if (!folders.isEmpty())
        d->restyleAll();
    return isRead;
}

void MTheme::registerStylableType(const char *, const QString &library)
{
    addLibrary(library);
}

bool MTheme::load(const QByteArray &json, const QString &source)
{
    QStringList includes;
    if (!d->read(json, source, &includes))
        return false;
    for (const QString &name : qAsConst(includes))
        d->warn(QStringLiteral("%1: a text cannot include \"%2\"").arg(source, name));
    d->restyleAll();
    return true;
}

QStringList MTheme::warnings() const
{
    return d->warnings;
}

M::ColorScheme MTheme::colorScheme() const
{
    return d->values.isDark ? M::DarkScheme : M::LightScheme;
}

void MTheme::setColorScheme(M::ColorScheme scheme)
{
    d->stopFollowing();
    d->setScheme(scheme);
}

void MTheme::followDesktop()
{
    if (d->preference)
        return;
    d->preference = std::make_unique<MDesktopSetting>(QStringLiteral("org.freedesktop.appearance"),
                                                      QStringLiteral("color-scheme"), nullptr);
    connect(d->preference.get(), &MDesktopSetting::changed, this,
            [this] { d->followPreference(); });
    d->followPreference();
}

M::Orientation MTheme::orientation() const
{
    return d->orientation;
}

void MTheme::setOrientation(M::Orientation orientation)
{
    if (orientation == d->orientation)
        return;
    d->orientation = orientation;
    if (d->rules.dependOnOrientation)
        d->restyleAll();
}

void MTheme::setTextScale(qreal scale)
{
    const qreal bounded = qBound(0.5, scale, 3.0);
    if (qFuzzyCompare(bounded, d->values.textScale))
        return;
    d->values.textScale = bounded;
    d->restyleAll();
}

qreal MTheme::textScale() const
{
    return d->values.textScale;
}

bool MTheme::isMotionReduced() const
{
    return d->isMotionReduced;
}

void MTheme::setMotionReduced(bool isReduced)
{
    d->isMotionReduced = isReduced;
}

QColor MTheme::color(const QString &role) const
{
    QColor color = d->values.color(role);
    if (!color.isValid())
        d->warn(QStringLiteral("The theme has no colour \"%1\".").arg(role));
    return color;
}

int MTheme::measure(const QString &name) const
{
    if (!d->rules.measures.contains(name))
        d->warn(QStringLiteral("The theme has no measure \"%1\".").arg(name));
    return d->rules.measures.value(name);
}

QFont MTheme::font(const QString &name) const
{
    const std::optional<QFont> font = d->values.font(name);
    if (!font)
        d->warn(QStringLiteral("The theme has no font \"%1\".").arg(name));
    return font.value_or(QFont());
}

QString MTheme::imageFile(const QString &id) const
{
    const auto known = d->imageFiles.constFind(id);
    if (known != d->imageFiles.constEnd())
        return *known;
    QString found;
    for (const QString &folder : qAsConst(d->imageFolders)) {
        for (const char *ending : {".svg", ".png"}) {
            const QString file = folder + QLatin1Char('/') + id + QLatin1String(ending);
            if (found.isEmpty() && QFile::exists(file))
                found = file;
        }
    }
    d->imageFiles.insert(id, found);
    return found;
}

bool MTheme::isMirrored(const QString &id) const
{
    return d->rules.mirroredImages.contains(id);
}

QString MTheme::viewClass(const QMetaObject *widgetClass, const QString &viewType) const
{
    for (; widgetClass; widgetClass = widgetClass->superClass()) {
        const QString key =
            QString::fromLatin1(widgetClass->className()) + QLatin1Char('/') + viewType;
        const auto found = d->rules.views.constFind(key);
        if (found != d->rules.views.constEnd())
            return *found;
    }
    return {};
}

QSharedPointer<const MStyle> MTheme::style(const std::function<MStyle *()> &maker,
                                           const QMetaObject *styleClass,
                                           const QMetaObject *widgetClass, const QString &styleName,
                                           const QByteArray &mode)
{
    const StyleKey key{styleClass, widgetClass, styleName, mode};
    const auto kept = d->styles.constFind(key);
    if (kept != d->styles.constEnd())
        return *kept;
    const QSharedPointer<MStyle> made(maker());
    const StyleFiller filler(d->values, d->orientation, mode,
                             [this](const QString &text) { d->warn(text); });
    filler.applyClasses(widgetClass, made.data());
    if (!styleName.isEmpty())
        filler.applyNamed(styleName, made.data());
    d->styles.insert(key, made);
    return made;
}

int MTheme::styleCount() const
{
    return d->styles.size();
}
