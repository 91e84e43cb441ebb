// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <touchcore/mtheme.h>
#include <touchcore/mviewfactory.h>
#include <touchcore/mwidgetcontroller.h>
#include <touchcore/mwidgetview.h>

#include <QHash>
#include <QSet>

namespace
{
struct Registration {
    QByteArray controllerClass;
    MViewFactory::Maker make;
};

/// A function's static: views register before main() in no fixed order.
QHash<QByteArray, Registration> &registrations()
{
    static QHash<QByteArray, Registration> known;
    return known;
}

void warnOnce(const QString &text)
{
    static QSet<QString> said;
    if (!said.contains(text)) {
        said.insert(text);
        qWarning("%s", qUtf8Printable(text));
    }
}

MWidgetView *createNamed(const QByteArray &viewClass, MWidgetController *controller)
{
    const auto found = registrations().constFind(viewClass);
    return found != registrations().constEnd() && controller->inherits(found->controllerClass)
        ? found->make(controller)
        : nullptr;
}
} // namespace

bool MViewFactory::registerView(const char *viewClass, const char *controllerClass, Maker maker)
{
    if (registrations().contains(viewClass))
        qWarning("The view %s is registered twice; the first one holds.", viewClass);
    else
        registrations().insert(viewClass, {controllerClass, maker});
    return true;
}

MWidgetView *MViewFactory::createView(MWidgetController *controller)
{
    const QMetaObject *widgetClass = controller->metaObject();
    const QString wanted = MTheme::instance()->viewClass(widgetClass, controller->viewType());
    if (!wanted.isEmpty()) {
        if (MWidgetView *view = createNamed(wanted.toLatin1(), controller))
            return view;
        warnOnce(QStringLiteral("The theme wants the view %1 for %2: there is none of that name.")
                     .arg(wanted, QString::fromLatin1(widgetClass->className())));
    }
    for (; widgetClass; widgetClass = widgetClass->superClass()) {
        if (MWidgetView *view =
                createNamed(QByteArray(widgetClass->className()) + "View", controller))
            return view;
    }
    return new MWidgetView(controller);
}

QList<QByteArray> MViewFactory::registeredViews()
{
    return registrations().keys();
}
