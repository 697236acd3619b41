#include "host/workbench/window/PanelHint.h"

#include "host/services/HostApplication.h"

#include <QCoreApplication>

namespace Host {

namespace {

QString Text(const char* text)
{
    return QCoreApplication::translate("PanelHint", text);
}

} // namespace

QString PanelHint(const HostApplication& host)
{
    const Scene& scene = host.CurrentScene();
    if (scene.Objects().empty()) {
        return Text(QT_TRANSLATE_NOOP("PanelHint",
                                      "The scene is empty. Import a model with File > Import Model, or drop "
                                      "its file on this window."));
    }
    if (scene.Selection().isEmpty()) {
        return Text(QT_TRANSLATE_NOOP("PanelHint", "Click an object in the scene to edit its soft cloth."));
    }
    if (scene.Selection().size() > 1) {
        return Text(QT_TRANSLATE_NOOP("PanelHint", "Several objects are selected. Select one alone to edit its soft "
                                                   "cloth."));
    }
    if (scene.physicsEngine != 1) {
        return Text(QT_TRANSLATE_NOOP("PanelHint", "Soft cloth needs physics engine 1: see Host Controls."));
    }
    return Text(QT_TRANSLATE_NOOP("PanelHint",
                                  "There is no soft cloth for this object. Its type, its kind or a block may "
                                  "keep it out: see Host Controls."));
}

} // namespace Host
