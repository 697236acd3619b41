#pragma once

#include "host/workbench/SidePanel.h"

#include <functional>
#include <vector>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QSpinBox;

namespace Host {

struct ObjectTraits;

class HostApplication;

/// Drives every gate of the panel by hand: application, engine, traits of the selected object, modes, playing, events
/// and failing calls.
class HostControls : public SidePanel
{
    Q_OBJECT

public:
    HostControls(HostApplication& host, QWidget* parent = nullptr);

    /// Shows which application the plug-in runs in, without a signal.
    void ShowApplication(int index);

Q_SIGNALS:
    /// The user chose another application: 0 family A, 1 family B, 2 neither. The plug-in has to start again.
    void ApplicationChosen(int index);

private:
    void AddApplicationControls(QFormLayout* form);
    void AddObjectControls(QFormLayout* form);
    void AddModeControls(QFormLayout* form);
    void AddEventControls(QFormLayout* form);
    void AddFaultControls(QFormLayout* form);

    QSpinBox* AddTrait(QFormLayout* form, const QString& label, const QString& toolTip, const char* name, int maximum);
    void ConnectScene();
    /// Shows the host's state in all controls.
    void Refresh();
    void EditTraits(const std::function<void(ObjectTraits&)>& change);

    HostApplication& m_host;
    QComboBox* m_application = nullptr;
    QSpinBox* m_engine = nullptr;
    QCheckBox* m_softCloth = nullptr;
    QSpinBox* m_type = nullptr;
    QSpinBox* m_kind = nullptr;
    QSpinBox* m_convertState = nullptr;
    QCheckBox* m_blocked = nullptr;
    QCheckBox* m_blockedEx = nullptr;
    QComboBox* m_dialogMode = nullptr;
    QComboBox* m_pickMode = nullptr;
    QCheckBox* m_playing = nullptr;
    std::vector<QWidget*> m_objectControls; ///< Enabled while an object is selected.
    bool m_refreshing = false;
};

} // namespace Host
