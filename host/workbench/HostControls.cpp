#include "host/workbench/HostControls.h"

#include "host/services/HostApplication.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSpinBox>

namespace Host {

namespace {

using MV::CEventSender;

/// The first selected object; null when there is none.
Object* SelectedObject(const HostApplication& host)
{
    const Scene& scene = host.CurrentScene();
    return scene.Selection().isEmpty() ? nullptr : scene.FindObject(scene.Selection().first());
}

void AddTitle(QFormLayout* form, const QString& title)
{
    auto* label = new QLabel(QStringLiteral("<b>%1</b>").arg(title));
    form->addRow(label);
}

void SelectData(QComboBox* combo, int data)
{
    combo->setCurrentIndex(combo->findData(data));
}

} // namespace

HostControls::HostControls(HostApplication& host, QWidget* parent)
    : SidePanel(parent)
    , m_host(host)
{
    setObjectName(QStringLiteral("hostControls"));
    auto* content = new QWidget(this);
    auto* form = new QFormLayout(content);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    AddApplicationControls(form);
    AddObjectControls(form);
    AddModeControls(form);
    AddEventControls(form);
    AddFaultControls(form);
    setWidget(content);

    connect(&host, &HostApplication::StateChanged, this, &HostControls::Refresh);
    connect(&host, &HostApplication::SceneReplaced, this, &HostControls::ConnectScene);
    ConnectScene();
}

void HostControls::ConnectScene()
{
    const Scene& scene = m_host.CurrentScene();
    connect(&scene, &Scene::SelectionChanged, this, &HostControls::Refresh);
    connect(&scene, &Scene::EditApplied, this, &HostControls::Refresh);
    Refresh();
}

void HostControls::AddApplicationControls(QFormLayout* form)
{
    AddTitle(form, tr("Application"));
    m_application = new QComboBox;
    m_application->setObjectName(QStringLiteral("applicationControl"));
    m_application->addItems({tr("Family A (0x7)"), tr("Family B (0x1800000)"), tr("Neither")});
    m_application->setToolTip(tr("The application that runs the plug-in. Another choice starts the plug-in again."));
    connect(m_application, qOverload<int>(&QComboBox::activated), this, &HostControls::ApplicationChosen);
    // No mnemonics here: there are not letters enough for the menus, the panel and these.
    form->addRow(tr("Family"), m_application);

    m_engine = new QSpinBox;
    m_engine->setObjectName(QStringLiteral("engineControl"));
    m_engine->setRange(0, 9);
    m_engine->setToolTip(tr("Physics engine of the scene. The panel is shown for engine 1 only."));
    connect(m_engine, qOverload<int>(&QSpinBox::valueChanged), this, [this](int engine) {
        if (!m_refreshing) {
            m_host.SetPhysicsEngine(engine);
        }
    });
    form->addRow(tr("Engine"), m_engine);
}

QSpinBox* HostControls::AddTrait(QFormLayout* form, const QString& label, const QString& toolTip, const char* name,
                                 int maximum)
{
    auto* box = new QSpinBox;
    box->setObjectName(QLatin1String(name));
    box->setRange(0, maximum);
    box->setKeyboardTracking(false);
    box->setToolTip(toolTip);
    form->addRow(label, box);
    m_objectControls.push_back(box);
    return box;
}

void HostControls::AddObjectControls(QFormLayout* form)
{
    AddTitle(form, tr("Selected object"));
    m_softCloth = new QCheckBox(tr("Soft cloth physics"));
    m_softCloth->setObjectName(QStringLiteral("softClothControl"));
    m_softCloth->setToolTip(tr("Switches soft cloth physics of the object, as the host's own menus would"));
    connect(m_softCloth, &QCheckBox::clicked, this, [this](bool active) {
        if (const Object* object = SelectedObject(m_host)) {
            if (active) {
                m_host.ConvertToSoftCloth(object->handle);
            } else {
                m_host.SetSoftClothActive(object->handle, false);
            }
        }
    });
    form->addRow(QString(), m_softCloth);
    m_objectControls.push_back(m_softCloth);

    m_type = AddTrait(form, tr("Type"),
                      tr("Type code. Shown types: 1 to 6, 30 to 34, 38, 39, 51 to 53. Types 5 and 6 can be converted."),
                      "typeControl", 99);
    connect(m_type, qOverload<int>(&QSpinBox::valueChanged), this,
            [this](int type) { EditTraits([type](ObjectTraits& traits) { traits.type = quint32(type); }); });
    m_kind = AddTrait(form, tr("Kind"), tr("Kind code. Kind 14 has no choice of rigid body or soft cloth."),
                      "kindControl", 99);
    connect(m_kind, qOverload<int>(&QSpinBox::valueChanged), this,
            [this](int kind) { EditTraits([kind](ObjectTraits& traits) { traits.kind = kind; }); });
    m_convertState = AddTrait(form, tr("Convert state"),
                              tr("3 is at rest; another state of a type 5 or 6 object hides the panel in family A"),
                              "convertStateControl", 9);
    connect(m_convertState, qOverload<int>(&QSpinBox::valueChanged), this, [this](int state) {
        const Object* object = SelectedObject(m_host);
        if (!m_refreshing && object) {
            m_host.SetConvertState(object->handle, state);
        }
    });

    const auto addGate = [&](const QString& label, const char* name, bool ObjectTraits::*gate) {
        auto* box = new QCheckBox(label);
        box->setObjectName(QLatin1String(name));
        box->setToolTip(tr("Hides the panel for this object"));
        connect(box, &QCheckBox::clicked, this, [this, gate](bool blocked) {
            EditTraits([gate, blocked](ObjectTraits& traits) { traits.*gate = blocked; });
        });
        form->addRow(QString(), box);
        m_objectControls.push_back(box);
        return box;
    };
    m_blocked = addGate(tr("Blocked in family A"), "blockedControl", &ObjectTraits::blocked);
    m_blockedEx = addGate(tr("Blocked in family B"), "blockedExControl", &ObjectTraits::blockedEx);
}

void HostControls::AddModeControls(QFormLayout* form)
{
    AddTitle(form, tr("Modes"));
    m_dialogMode = new QComboBox;
    m_dialogMode->setObjectName(QStringLiteral("dialogModeControl"));
    m_dialogMode->addItem(tr("None (0)"), int(MV::EDialogMode::None));
    m_dialogMode->addItem(tr("Weight map (25)"), int(MV::EDialogMode::WeightMap));
    m_dialogMode->addItem(tr("Another (7)"), 7);
    connect(m_dialogMode, qOverload<int>(&QComboBox::activated), this,
            [this] { m_host.SetDialogMode(MV::EDialogMode(m_dialogMode->currentData().toInt())); });
    form->addRow(tr("Dialog mode"), m_dialogMode);

    m_pickMode = new QComboBox;
    m_pickMode->setObjectName(QStringLiteral("pickModeControl"));
    m_pickMode->addItem(tr("None (0)"), int(MV::EPickMode::None));
    m_pickMode->addItem(tr("Material (7)"), int(MV::EPickMode::Material));
    m_pickMode->addItem(tr("Another (3)"), 3);
    connect(m_pickMode, qOverload<int>(&QComboBox::activated), this,
            [this] { m_host.SetPickMode(MV::EPickMode(m_pickMode->currentData().toInt())); });
    form->addRow(tr("Pick mode"), m_pickMode);

    m_playing = new QCheckBox(tr("Playing"));
    m_playing->setObjectName(QStringLiteral("playingControl"));
    connect(m_playing, &QCheckBox::clicked, this, [this](bool playing) { m_host.SetPlaying(playing); });
    form->addRow(QString(), m_playing);
}

void HostControls::AddEventControls(QFormLayout* form)
{
    AddTitle(form, tr("Events by hand"));
    const auto objects = [this] {
        BF::CArrayList<BF::CHandle*> selected;
        for (BF::CHandle* handle : m_host.CurrentScene().Selection()) {
            selected.Add(handle);
        }
        return selected;
    };
    auto* dataBits = new QComboBox;
    dataBits->setObjectName(QStringLiteral("dataBitsControl"));
    dataBits->addItem(tr("Topology (0x2)"), 0x2);
    dataBits->addItem(tr("Replaced (0x4)"), 0x4);
    dataBits->addItem(tr("Material list (0x8)"), 0x8);
    dataBits->addItem(tr("Removed (0x40)"), 0x40);
    dataBits->addItem(tr("Material names (0x100)"), 0x100);
    dataBits->setToolTip(tr("Sends that the data of the selected objects have changed"));
    connect(dataBits, qOverload<int>(&QComboBox::activated), this, [this, dataBits, objects] {
        m_host.Send("ObjectDataChanged", &CEventSender::ObjectDataChanged, objects(),
                    MV::EObjectChangedDataType(dataBits->currentData().toUInt()));
    });
    form->addRow(tr("Data changed"), dataBits);

    const auto addButton = [&](const QString& text, const std::function<void()>& send) {
        auto* button = new QPushButton(text);
        button->setToolTip(tr("Sends this event to the plug-in"));
        connect(button, &QPushButton::clicked, this, send);
        form->addRow(QString(), button);
    };
    addButton(tr("Hierarchy changed"), [this] { m_host.Send("HierarchyChanged", &CEventSender::HierarchyChanged); });
    addButton(tr("Undo or redo done"), [this] { m_host.Send("UndoRedoDone", &CEventSender::UndoRedoDone); });
    addButton(tr("About to convert"), [this] {
        m_host.Send("AboutToConvertPhysicsObjectType", &CEventSender::AboutToConvertPhysicsObjectType);
    });
    addButton(tr("Several materials detected"), [this] {
        if (Object* object = SelectedObject(m_host)) {
            m_host.Send("PhysicsSoftClothMultiMaterialsDetected", &CEventSender::PhysicsSoftClothMultiMaterialsDetected,
                        object->handle);
        }
    });
    addButton(tr("Edited image saved"),
              [this, objects] { m_host.Send("LaunchedImageChanged", &CEventSender::LaunchedImageChanged, objects()); });
}

void HostControls::AddFaultControls(QFormLayout* form)
{
    AddTitle(form, tr("Failing calls"));
    auto* operation = new QLineEdit;
    operation->setObjectName(QStringLiteral("faultOperationControl"));
    operation->setPlaceholderText(tr("GetSoftClothCollision"));
    operation->setToolTip(tr("Host operation that is to fail, as the Host Calls view names it"));
    form->addRow(tr("Operation"), operation);

    auto* code = new QComboBox;
    for (const quint32 value : {0x80000002U, 0x80000003U, 0x80000004U, 0x80000005U, 0x80000006U}) {
        code->addItem(QStringLiteral("0x%1").arg(value, 8, 16, QLatin1Char('0')), value);
    }
    code->setToolTip(tr("Status that the failing call answers"));
    form->addRow(tr("Status"), code);

    auto* fail = new QPushButton(tr("Let it fail"));
    connect(fail, &QPushButton::clicked, this, [this, operation, code] {
        const QString name = operation->text().isEmpty() ? operation->placeholderText() : operation->text();
        m_host.Faults().FailOperation(name, BF::Result(code->currentData().toUInt()));
    });
    auto* mend = new QPushButton(tr("Mend all"));
    connect(mend, &QPushButton::clicked, this, [this] { m_host.Faults().Clear(); });
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(fail);
    buttons->addWidget(mend);
    form->addRow(QString(), buttons);
}

void HostControls::ShowApplication(int index)
{
    m_application->setCurrentIndex(index);
}

void HostControls::EditTraits(const std::function<void(ObjectTraits&)>& change)
{
    const Object* object = SelectedObject(m_host);
    if (m_refreshing || !object) {
        return;
    }
    ObjectTraits traits = object->traits;
    change(traits);
    m_host.SetTraits(object->handle, traits);
}

void HostControls::Refresh()
{
    const QScopedValueRollback<bool> refreshing(m_refreshing, true);
    const Scene& scene = m_host.CurrentScene();
    m_engine->setValue(scene.physicsEngine);
    SelectData(m_dialogMode, int(scene.dialogMode));
    SelectData(m_pickMode, int(scene.pickMode));
    m_playing->setChecked(scene.playing);

    const Object* object = SelectedObject(m_host);
    for (QWidget* control : m_objectControls) {
        control->setEnabled(object);
    }
    const ObjectTraits traits = object ? object->traits : ObjectTraits();
    m_softCloth->setChecked(object && object->state.softCloth);
    m_type->setValue(int(traits.type));
    m_kind->setValue(traits.kind);
    m_convertState->setValue(traits.convertState);
    m_blocked->setChecked(traits.blocked);
    m_blockedEx->setChecked(traits.blockedEx);
}

} // namespace Host
