#pragma once

#include "tests/support/PanelFixture.h"

#include <QAbstractButton>
#include <QApplication>
#include <QPointer>
#include <QString>

/// The panel that is tortured, and the hands of its user.
namespace Torture {

/// The built library in the stand-in host, with two objects of soft cloth whose values all differ.
///
/// Every hand finds its widget when it is used and does nothing when that was destroyed: in the middle of an action
/// anything may go.
class Stage
{
public:
    /// \param app     the kind of application
    /// \param folder  an empty folder for the files of the actions
    Stage(MV::ECompatibleApp app, const QString& folder);

    PanelFixture panel;
    const MV::ECompatibleApp family;
    BF::CHandle* hero; ///< Three materials on two meshes; selected.
    BF::CHandle* flag; ///< One material.

    Host::HostApplication& App() { return panel.App(); }
    Host::Scene& Scene() { return panel.CurrentScene(); }
    /// The slot of the hero's first material.
    Host::ClothAddress First() { return Host::Scene::SlotsOf(*Scene().FindObject(hero)).front(); }
    /// A file in the folder of this run.
    QString File(const char* name) const;

    /// The child called \p name of the form \p form, or the form itself; null when it is gone.
    template <class T>
    T* Find(const char* form, const char* name) const
    {
        QWidget* root = Form(form);
        return root ? root->findChild<T*>(QLatin1String(name)) : nullptr;
    }
    QWidget* Form(const char* name) const;

    // Preparations.

    void OpenDialog() { App().SetDialogMode(MV::EDialogMode::WeightMap); }
    void CloseDialog() { App().SetDialogMode(MV::EDialogMode::None); }
    void SelectFlag() { App().Select({flag}); }
    /// Selects the hero as an object of another type.
    void SetType(quint32 type);
    /// Makes the hero no soft cloth at all.
    void MakePlain();
    void LinkWeight(const char* file);
    void EmbedWeight(const char* file);
    /// Takes all materials of the object out of the soft cloth.
    void IgnoreAll(BF::CHandle* object);

    // Hands.

    void Click(const char* form, const char* name);
    /// Types into a spin box, or into the one inside a combo box, and presses Return.
    void Type(const char* form, const char* name, const char* text);
    void Key(const char* form, const char* name, Qt::Key key, int times = 1);
    /// Moves the slider of a combo box by keys.
    void Slide(const char* form, const char* name, Qt::Key key);
    void ClickRow(int row);
    void DoubleClickPreset(const char* list, int row);
    void DragRandomFactor(int from, int to);
    void Drop(const char* label, const QString& file);
    void DoubleClickLabel(const char* label);
    void ClickLabel(const char* label);
    /// Chooses a file in the file dialog that \p trigger opens; an empty path cancels.
    void WithFileDialog(const std::function<void()>& trigger, const QString& path);
    /// Opens the material table, ticks only the first row and presses a button.
    void UseTable(const char* button);
    /// A point of the panel's own, as good as a host call: here a host may do what it may inside one.
    void Inside(const char* what);

    template <class... Parameters, class... Arguments>
    void Send(const char* name, void (MV::CEventSender::*event)(Parameters...), const Arguments&... arguments)
    {
        App().Send(name, event, arguments...);
    }
    void SendChanged(quint32 bits, bool shown = true);

    /// The host exchanges its scene for another one, whose hero is selected.
    void LoadOtherScene();

private:
    Host::Object Textured(Host::Object object) const;

    QString m_folder;
};

} // namespace Torture
