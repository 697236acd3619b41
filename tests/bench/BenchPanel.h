#pragma once

#include "plugin/PhysicsSoftClothPlugin.h"

#include <QWidget>
#include <QtGlobal>

/// The whole plug-in object in a host of the given kind.
template <class HostKind>
struct BenchPanel
{
    BenchPanel()
    {
        host.SetMainWindow(&window);
        host.Answers().unattended = true;
        plugin.SetCurrentApp(MV::ECompatibleApp::FamilyA);
        if (plugin.Initialize(QStringLiteral(SOFTCLOTH_PLUGIN_FILE), QString(), &host).IsFailure()) {
            qFatal("the plug-in object does not start");
        }
    }

    HostKind host;
    QWidget window;
    MV::CPhysicsSoftClothPlugin plugin;
};
