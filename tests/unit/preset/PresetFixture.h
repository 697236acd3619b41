#pragma once

#include "host/services/HostApplication.h"
#include "plugin/PhysicsSoftClothPlugin.h"
#include "preset/SoftClothPresetSection.h"
#include "tests/support/Children.h"
#include "tests/support/Files.h"
#include "tests/support/HostCalls.h"
#include "tests/support/NotingTranslator.h"
#include "tests/support/SampleModels.h"

#include <QListWidget>
#include <QPointer>
#include <QStringList>
#include <QTemporaryDir>
#include <QWidget>

#include <functional>
#include <memory>

/// The whole plug-in object, all its parts being real ones, in the stand-in host, with the Preset section shown in a
/// window of its own.
class PresetFixture
{
public:
    explicit PresetFixture(MV::ECompatibleApp app = MV::ECompatibleApp::FamilyA);
    /// Lets \p fillFolder put something into the host's data folder before the plug-in starts.
    PresetFixture(MV::ECompatibleApp app, const std::function<void(const QString&)>& fillFolder);
    ~PresetFixture();
    Q_DISABLE_COPY_MOVE(PresetFixture)

    /// Adds an object and selects it; it is no soft cloth.
    Host::Object& Add(Host::Object model = SampleModels::Hero());
    /// The same with all its materials being soft cloth.
    Host::Object& AddCloth(Host::Object model = SampleModels::Hero());
    Host::ClothState& Cloth(const Host::Object& object, int slot = 0) const;
    /// Takes a material of \p object out of the soft cloth and lists the rest.
    void DisableMaterial(const Host::Object& object, int material);

    /// The calls that were not made inside another one, and empties the journal.
    QStringList Take();
    /// The calls that change something or talk to the user, wherever they were made.
    QStringList TakeActions();

    MV::SoftClothSelection& Selection() { return plugin->Selection(); }
    /// The names of the selected object, mesh and material, as the journal has them.
    QString Triple() const;
    /// A call on the selected material: \p arguments follow those that name it.
    QString Call(const char* operation, const QStringList& arguments, const char* result = "0") const;

    template <class T>
    T* Find(const char* name) const
    {
        return Child<T>(section, name);
    }
    void Click(const char* button) const;
    /// Whether a widget is enabled apart from its parents.
    bool IsEnabled(const char* name) const;
    bool IsChecked(const char* name) const;
    QListWidget& List(int page) const;

    /// Calls a slot of the section by its name.
    void Invoke(const char* slot) const;
    /// Runs \p action inside the next call of \p operation, as an event of the host or the user would.
    void During(const char* operation, std::function<void()> action);
    QString Path(const QString& name) const { return folder.filePath(name); }

    QTemporaryDir folder;
    QTemporaryDir data;
    Host::HostApplication host;
    QWidget mainWindow;
    QWidget window;
    std::unique_ptr<MV::CPhysicsSoftClothPlugin> plugin;
    QPointer<MV::CSoftClothPresetSection> section;
};

/// Whether the body of any of the panel's sections is enabled.
bool IsBodyEnabled(const QWidget* section);

/// The names of the operations of \p calls, which are texts of the journal.
QStringList OperationsOf(const QStringList& calls);

/// What the section had translated, each text with the note to its translator: "text <note>". Sorted.
QStringList TranslatedTexts(const NotingTranslator& translator);

/// An image of \p size, encoded.
QByteArray ImageBytes(const QSize& size, const char* format = "PNG");

/// Texts that many tests share, as the journal has them.
namespace Journal {

QString GetDialogMode(int mode);
QString SetPhysicsActive(const char* object, bool active);

/// A message box of the section with Ok only.
QString Message(const QString& text);
/// The question about several materials, with the answer that it got.
QString Question(int answer);

} // namespace Journal
