#pragma once

#include "material/SoftClothMaterialDlg.h"
#include "material/SoftClothMaterialTable.h"
#include "plugin/PhysicsSoftClothPlugin.h"
#include "tests/support/Children.h"
#include "tests/support/HostCalls.h"
#include "tests/support/ImageHost.h"
#include "tests/support/SampleModels.h"

#include <QPointer>
#include <QSharedPointer>
#include <QStringList>
#include <QWidget>

#include <functional>

/// The material dialog and its table in the stand-in host. The plug-in object around them has no other parts, so that
/// a refresh of the whole panel shows in the journal as one question, "IsPhysicsActive".
class DialogFixture
{
public:
    explicit DialogFixture(MV::ECompatibleApp app = MV::ECompatibleApp::FamilyA);
    Q_DISABLE_COPY_MOVE(DialogFixture)

    /// Adds \p model and makes it the plug-in's and the host's selected object.
    Host::Object& Add(Host::Object model = SampleModels::Hero());
    /// Lists the object's materials, the first one is chosen.
    void List();
    /// Shows the dialog by the host's dialog mode.
    void Show();
    /// An object with its materials listed, in the open dialog.
    void Open(Host::Object model = SampleModels::Hero());

    /// What the plug-in called since the last time.
    QStringList Take();
    /// The names of these operations only.
    QStringList TakeOperations();
    /// Runs \p action inside the next call of \p operation, as an event of the host or the user would.
    void During(const char* operation, std::function<void()> action);

    MV::SoftClothSelection& Selection() { return plugin.Selection(); }
    template <class T>
    T* Find(const char* name) const
    {
        return Child<T>(dialog, name);
    }
    void Click(const char* buttonName) const;
    /// Whether a widget is enabled apart from its parents.
    bool IsEnabled(const QString& name) const;
    /// Those of \p names whose widgets are enabled.
    QStringList EnabledOf(const QStringList& names) const;

    Host::Id MaterialId(int index) const { return object->materials.at(std::size_t(index)).id; }
    Host::Id MeshId(int index) const { return object->meshes.at(std::size_t(index)).id; }

    ImageHost host;
    MV::CPhysicsSoftClothPlugin plugin;
    QWidget window;
    QSharedPointer<MV::CSoftClothMaterialTable> table;
    QPointer<MV::CSoftClothMaterialDlg> dialog; ///< Owned by the window.
    Host::Object* object = nullptr;
};

/// The widgets that are of use only while a material is chosen.
QStringList EditWidgets();

/// Journal texts that many tests share.
namespace Journal {

/// A message box with Ok only and the panel's title.
QString Message(const QString& text);
QString Refresh();      ///< The refresh of the whole panel.
QString RefreshScene(); ///< The host draws its scene again.
/// The operations of the dialog's own refresh when nothing has a texture.
QStringList DialogRefresh();
/// A thumbnail drawn with as many pixels as its label has on the screen.
QString Draw(const QString& thumbnail, const QString& source);

} // namespace Journal
