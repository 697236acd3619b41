#include "sections/SoftClothPropertySection.h"

#include "panel/PanelForm.h"
#include "plugin/PhysicsSoftClothPlugin.h"
#include "sections/ProfileNumbers.h"
#include "sections/SectionRecord.h"
#include "sections/SoftClothConversions.h"
#include "ui/IniFile.h"
#include "ui/WidgetAccess.h"

#include <BFQtCustomWidgetPluginU/QComboSpinBox.h>
#include <BFQtCustomWidgetPluginU/QDoubleSpinBoxEx.h>
#include <BFQtCustomWidgetPluginU/QSpinBoxEx.h>

#include <QGroupBox>
#include <QPushButton>
#include <QSettings>

#include <array>

namespace MV {

namespace {

using Record = SoftClothPropertyData;
using Type = ESoftClothPropertyType;
using Ui = CSoftClothPropertyUiComponent;

/// A field and its key in a profile.
struct ProfileField
{
    QLatin1String key;
    float Record::*field = nullptr;
};

const std::array<ProfileField, 3> inertiaScales{{
    {QLatin1String("Linear_Inertia_Scale"), &Record::linearInertiaScale},
    {QLatin1String("Angular_Inertia_Scale"), &Record::angularInertiaScale},
    {QLatin1String("Centrifugal_Inertia_Scale"), &Record::centrifugalInertiaScale},
}};

const std::array<ProfileField, 4> fieldsWithoutBox{{
    {QLatin1String("Stiffness_Frequency"), &Record::stiffnessFrequency},
    {QLatin1String("Collision_Mass_Scale"), &Record::collisionMassScale},
    {QLatin1String("Sleep_Linear_Velocity"), &Record::sleepLinearVelocity},
    {QLatin1String("Wake_Counter_Value"), &Record::wakeCounterValue},
}};

/// Calls \p visit with profile key, box, field, selector and conversion of each field that has a box of its own, in
/// the order of the profile. The box of the three inertia scales is none of these.
template <class Visit>
void ForEachField(Visit visit)
{
    const auto row = [&visit](const char* key, auto... rest) { visit(QLatin1String(key), rest...); };
    row("Mass", &Ui::massSpinBox, &Record::mass, Type::Mass, WholeNumber());
    row("Friction", &Ui::frictionSpinBox, &Record::friction, Type::Friction, Decimal());
    row("Damping", &Ui::dampingSpinBox, &Record::damping, Type::Damping, Decimal());
    row("Drag", &Ui::dragSpinBox, &Record::drag, Type::Drag, Decimal());
    row("Solver_Frequency", &Ui::solverFrequencySpinBox, &Record::solverFrequency, Type::SolverFrequency,
        WholeNumber());
    row("Tether_Limit", &Ui::tetherLimitSpinBox, &Record::tetherLimit, Type::TetherLimit, Decimal());
    row("Tether_Stiffness", &Ui::tetherStiffnessSpinBox, &Record::tetherStiffness, Type::TetherStiffness,
        TakenPercentFromOne());
    row("Stiffness", &Ui::stiffnessSpinBox, &Record::stiffness, Type::Stiffness, TakenPercent());
    row("Bending", &Ui::bendingSpinBox, &Record::bending, Type::Bending, TakenPercent());
}

} // namespace

CSoftClothPropertySection::CSoftClothPropertySection(CPhysicsSoftClothPlugin* plugin)
    : QWidget(plugin)
    , m_plugin(plugin)
{
    hide();
}

CSoftClothPropertySection::~CSoftClothPropertySection() = default;

BF::Result CSoftClothPropertySection::Init(const QString& /*pluginPath*/, const QString& resourceBase,
                                           CMoviraInterface* host)
{
    if (!host) {
        return BF::Results::InvalidArgument;
    }
    m_host = host;
    const BF::Result built = BuildPanelForm(QStringLiteral("SoftClothProperty"), this, m_ui, resourceBase, host);
    if (built.IsFailure()) {
        return built;
    }
    SetSectionWidgets(m_ui.expandButton, m_ui.sectionGroupBox);
    ConnectWidgets();
    return BF::Results::Success;
}

void CSoftClothPropertySection::ConnectWidgets()
{
    ForEachField([this](QLatin1String /*key*/, auto box, auto field, Type type, auto conversion) {
        ConnectEdited(m_ui.*box, this, [=](auto value) {
            Record record;
            record.*field = conversion.ToHost(value);
            Write(type, record);
        });
    });
    ConnectEdited(m_ui.inertiaScaleSpinBox, this, [this](int value) {
        Record record;
        for (const ProfileField& scale : inertiaScales) {
            record.*scale.field = Tenths::ToHost(value);
        }
        Write(Type::InertiaScale, record);
    });
}

BF::Result CSoftClothPropertySection::UpdateUi()
{
    Record record;
    const BF::Result read = ReadShownRecord(m_plugin->Selection(), m_host, m_ui.sectionGroupBox,
                                            &CSceneService::GetSoftClothProperty, record);
    if (!read.IsSuccess()) {
        return read;
    }
    ForEachField([&](QLatin1String /*key*/, auto box, auto field, Type /*type*/, auto conversion) {
        ShowValue(m_ui.*box, conversion.ToBox(record.*field));
    });
    ShowValue(m_ui.inertiaScaleSpinBox, Tenths::ToBox(record.linearInertiaScale));
    return BF::Results::Success;
}

void CSoftClothPropertySection::EnableUi(bool enable)
{
    EnableWidget(m_ui.sectionGroupBox, enable);
}

void CSoftClothPropertySection::Write(Type type, const Record& record)
{
    WriteRecord(m_plugin->Selection(), m_host, &CEditService::SetSoftClothProperty, type, record);
}

void CSoftClothPropertySection::LoadProfile(const CIniGroup& profile)
{
    Record record;
    ForEachField([&](QLatin1String key, auto box, auto field, Type /*type*/, auto conversion) {
        const auto value = ProfileNumber<typename decltype(conversion)::Profile>(profile.Value(key));
        record.*field = conversion.ToHost(value);
        ShowValue(m_ui.*box, static_cast<decltype(ValueOf(m_ui.*box))>(value));
    });
    for (const ProfileField& scale : inertiaScales) {
        record.*scale.field = Tenths::ToHost(ProfileNumber<float>(profile.Value(scale.key)));
    }
    // The one that has the box counts as a whole number there.
    const int linear = profile.Value(inertiaScales.front().key).toInt();
    record.linearInertiaScale = Tenths::ToHost(linear);
    ShowValue(m_ui.inertiaScaleSpinBox, linear);
    for (const ProfileField& other : fieldsWithoutBox) {
        record.*other.field = ProfileNumber<float>(profile.Value(other.key));
    }
    Write(Type::All, record);
}

void CSoftClothPropertySection::SaveProfile(QSettings& profile) const
{
    Record record;
    const SoftClothSelection& selection = m_plugin->Selection();
    if (!m_host) {
        return;
    }
    m_host->GetSceneService()->GetSoftClothProperty(selection.object, selection.mesh, selection.material, record);
    ForEachField([&](QLatin1String key, auto box, auto /*field*/, Type /*type*/, auto /*conversion*/) {
        profile.setValue(key, ValueOf(m_ui.*box));
    });
    for (const ProfileField& scale : inertiaScales) {
        profile.setValue(scale.key, Tenths::ToBox(record.*scale.field));
    }
    for (const ProfileField& other : fieldsWithoutBox) {
        profile.setValue(other.key, Decimal::ToBox(record.*other.field));
    }
}

} // namespace MV
