#pragma once

#include "app/AppCommands.h"
#include "app/AppModel.h"
#include "app/AppSession.h"
#include "app/AppSettings.h"
#include "app/NavigationPath.h"
#include "app/OpenMode.h"
#include "app/PageEntry.h"
#include "app/Router.h"
#include "app/SystemAppearance.h"
#include "app/TabsModel.h"
#include "app/WindowSession.h"
#include "navigation/ProductPreview.h"

#include <QtQml/qqmlregistration.h>

// Declares to pages the types of the application model and of windows. None of them is made in QML. Written out,
// because moc expands no macro that holds Q_GADGET. Those of the subsystems stand beside this file.

struct AppModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::AppModel)
    QML_NAMED_ELEMENT(AppModel)
    QML_UNCREATABLE("made by the application")
};

struct AppCommandsForQml {
    Q_GADGET
    QML_FOREIGN(loom::AppCommands)
    QML_NAMED_ELEMENT(AppCommands)
    QML_UNCREATABLE("made by the application model")
};

namespace AppCommandForQml
{
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(loom::AppCommand)
QML_NAMED_ELEMENT(AppCommand)
} // namespace AppCommandForQml

struct AppSessionForQml {
    Q_GADGET
    QML_FOREIGN(loom::AppSession)
    QML_NAMED_ELEMENT(AppSession)
    QML_UNCREATABLE("made by the application model")
};

struct AppSettingsForQml {
    Q_GADGET
    QML_FOREIGN(loom::AppSettings)
    QML_NAMED_ELEMENT(AppSettings)
    QML_UNCREATABLE("made by the application model")
};

struct AppUpdaterForQml {
    Q_GADGET
    QML_FOREIGN(loom::AppUpdater)
    QML_NAMED_ELEMENT(AppUpdater)
    QML_UNCREATABLE("made by the application model")
};

struct NavigationPathForQml {
    Q_GADGET
    QML_FOREIGN(loom::NavigationPath)
    QML_NAMED_ELEMENT(NavigationPath)
    QML_UNCREATABLE("made by the router")
};

namespace OpenModeForQml
{
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(loom::OpenModes)
QML_NAMED_ELEMENT(OpenModes)
} // namespace OpenModeForQml

struct ProductPreviewForQml {
    Q_GADGET
    QML_FOREIGN(loom::ProductPreview)
    QML_VALUE_TYPE(productPreview)
};

namespace PageKindForQml
{
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(loom::PageKind)
QML_NAMED_ELEMENT(PageKind)
} // namespace PageKindForQml

struct PageEntryForQml {
    Q_GADGET
    QML_FOREIGN(loom::PageEntry)
    QML_VALUE_TYPE(pageEntry)
};

struct RouterForQml {
    Q_GADGET
    QML_FOREIGN(loom::Router)
    QML_NAMED_ELEMENT(Router)
    QML_UNCREATABLE("made by a window session")
};

struct SystemAppearanceForQml {
    Q_GADGET
    QML_FOREIGN(loom::SystemAppearance)
    QML_NAMED_ELEMENT(SystemAppearance)
    QML_UNCREATABLE("made by the application")
};

struct TabsModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::TabsModel)
    QML_NAMED_ELEMENT(TabsModel)
    QML_UNCREATABLE("made by a window session")
};

struct WindowSessionForQml {
    Q_GADGET
    QML_FOREIGN(loom::WindowSession)
    QML_NAMED_ELEMENT(WindowSession)
    QML_UNCREATABLE("made by the application model")
};
