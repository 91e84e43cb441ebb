// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MVIEWFACTORY_H
#define TOUCHCORE_MVIEWFACTORY_H

#include <QByteArray>
#include <QList>

class MWidgetController;
class MWidgetView;

/// Makes views by name.
///
/// The view of a controller is the one that the theme names for "<controller class>/<view type>",
/// looked up from the controller's class towards its bases; else the registered "<controller
/// class>View", from the class towards its bases; else a plain MWidgetView.
class MViewFactory
{
public:
    using Maker = MWidgetView *(*)(MWidgetController *);

    /// Called by M_REGISTER_VIEW. The name of a view is registered once; a later one of the same
    /// name is ignored with a warning. Always answers true.
    static bool registerView(const char *viewClass, const char *controllerClass, Maker maker);
    /// Never null. A theme that names an unknown view, or one for another controller, is warned
    /// about once, and the next rule applies.
    static MWidgetView *createView(MWidgetController *controller);
    static QList<QByteArray> registeredViews();
};

/// Registers the class \a View, which has a constructor that takes a \a Controller *. Stands once
/// in a source file of a shared library (static libraries lose what nobody names).
#define M_REGISTER_VIEW(View, Controller)                                                          \
    static const bool isRegistered##View = MViewFactory::registerView(                             \
        #View, #Controller, [](MWidgetController *controller) -> MWidgetView * {                   \
            return new View(static_cast<Controller *>(controller)); /* NOLINT: a type */           \
        });

#endif
