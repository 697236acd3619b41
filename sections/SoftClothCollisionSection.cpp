#include "sections/SoftClothCollisionSection.h"

#include "panel/PanelForm.h"
#include "plugin/PhysicsSoftClothPlugin.h"
#include "sections/ProfileNumbers.h"
#include "sections/SectionRecord.h"
#include "ui/IniFile.h"
#include "ui/WidgetAccess.h"

#include <BFQtCustomWidgetPluginU/QDoubleSpinBoxEx.h>

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSettings>

namespace MV {

namespace {

const QString rigidKey = QStringLiteral("Soft_Vs_Rigid_Collision");
const QString rigidMarginKey = QStringLiteral("Soft_Vs_Rigid_Collision_Margin");
const QString selfKey = QStringLiteral("Self_Collision");
const QString selfMarginKey = QStringLiteral("Self_Collision_Margin");

} // namespace

CSoftClothCollisionSection::CSoftClothCollisionSection(CPhysicsSoftClothPlugin* plugin)
    : QWidget(plugin)
    , m_plugin(plugin)
{
    hide();
}

CSoftClothCollisionSection::~CSoftClothCollisionSection() = default;

BF::Result CSoftClothCollisionSection::Init(const QString& /*pluginPath*/, const QString& resourceBase,
                                            CMoviraInterface* host)
{
    if (!host) {
        return BF::Results::InvalidArgument;
    }
    m_host = host;
    const BF::Result built = BuildPanelForm(QStringLiteral("SoftClothCollision"), this, m_ui, resourceBase, host);
    if (built.IsFailure()) {
        return built;
    }
    SetSectionWidgets(m_ui.expandButton, m_ui.sectionGroupBox);
    ConnectWidgets();
    return BF::Results::Success;
}

void CSoftClothCollisionSection::ConnectWidgets()
{
    using Section = CSoftClothCollisionSection;
    ConnectClicked(m_ui.collideWithRigidCheckBox, this, &Section::OnClickCollideWithRigidCheckBox);
    ConnectClicked(m_ui.selfCollisionCheckBox, this, &Section::OnClickSelfCollisionCheckBox);
    ConnectEdited(m_ui.rigidMarginSpinBox, this,
                  [this](double value) { OnClickCollideWithRigidMarginDoubleSpinBox(value); });
    ConnectEdited(m_ui.selfMarginSpinBox, this,
                  [this](double value) { OnClickSelfCollisionMarginDoubleSpinBox(value); });
}

BF::Result CSoftClothCollisionSection::UpdateUi()
{
    SoftClothCollisionData record;
    const BF::Result read = ReadShownRecord(m_plugin->Selection(), m_host, m_ui.sectionGroupBox,
                                            &CSceneService::GetSoftClothCollision, record);
    if (!read.IsSuccess()) {
        return read;
    }
    SetChecked(m_ui.collideWithRigidCheckBox, record.collideWithRigid);
    SetChecked(m_ui.selfCollisionCheckBox, record.selfCollision);
    ShowValue(m_ui.rigidMarginSpinBox, double(record.rigidMargin));
    EnableRigidMargin(record.collideWithRigid);
    ShowValue(m_ui.selfMarginSpinBox, double(record.selfMargin));
    EnableSelfMargin(record.selfCollision);
    return BF::Results::Success;
}

void CSoftClothCollisionSection::EnableRigidMargin(bool enable)
{
    EnableWidget(m_ui.rigidMarginSpinBox, enable);
    EnableWidget(m_ui.rigidMarginLabel, enable);
}

void CSoftClothCollisionSection::EnableSelfMargin(bool enable)
{
    EnableWidget(m_ui.selfMarginSpinBox, enable);
    EnableWidget(m_ui.selfMarginLabel, enable);
}

void CSoftClothCollisionSection::OnClickCollideWithRigidCheckBox()
{
    const bool collide = IsChecked(m_ui.collideWithRigidCheckBox);
    EnableRigidMargin(collide);
    WriteField(ESoftClothCollisionType::CollideWithRigid, &SoftClothCollisionData::collideWithRigid, collide);
}

void CSoftClothCollisionSection::OnClickSelfCollisionCheckBox()
{
    const bool collide = IsChecked(m_ui.selfCollisionCheckBox);
    EnableSelfMargin(collide);
    WriteField(ESoftClothCollisionType::SelfCollision, &SoftClothCollisionData::selfCollision, collide);
}

void CSoftClothCollisionSection::OnClickCollideWithRigidMarginDoubleSpinBox(double fValue)
{
    WriteField(ESoftClothCollisionType::RigidMargin, &SoftClothCollisionData::rigidMargin, float(fValue));
}

void CSoftClothCollisionSection::OnClickSelfCollisionMarginDoubleSpinBox(double fValue)
{
    WriteField(ESoftClothCollisionType::SelfMargin, &SoftClothCollisionData::selfMargin, float(fValue));
}

template <class Value>
void CSoftClothCollisionSection::WriteField(ESoftClothCollisionType type, Value SoftClothCollisionData::*field,
                                            Value value)
{
    SoftClothCollisionData record;
    record.*field = value;
    Write(type, record);
}

void CSoftClothCollisionSection::Write(ESoftClothCollisionType type, const SoftClothCollisionData& record)
{
    WriteRecord(m_plugin->Selection(), m_host, &CEditService::SetSoftClothCollision, type, record);
}

void CSoftClothCollisionSection::LoadProfile(const CIniGroup& profile)
{
    SoftClothCollisionData record;
    record.collideWithRigid = profile.Value(rigidKey).toBool();
    record.rigidMargin = ProfileNumber<float>(profile.Value(rigidMarginKey));
    record.selfCollision = profile.Value(selfKey).toBool();
    record.selfMargin = ProfileNumber<float>(profile.Value(selfMarginKey));

    SetChecked(m_ui.collideWithRigidCheckBox, record.collideWithRigid);
    ShowValue(m_ui.rigidMarginSpinBox, double(record.rigidMargin));
    SetChecked(m_ui.selfCollisionCheckBox, record.selfCollision);
    ShowValue(m_ui.selfMarginSpinBox, double(record.selfMargin));
    Write(ESoftClothCollisionType::All, record);
}

void CSoftClothCollisionSection::SaveProfile(QSettings& profile) const
{
    profile.setValue(rigidKey, IsChecked(m_ui.collideWithRigidCheckBox));
    profile.setValue(rigidMarginKey, ValueOf(m_ui.rigidMarginSpinBox));
    profile.setValue(selfKey, IsChecked(m_ui.selfCollisionCheckBox));
    profile.setValue(selfMarginKey, ValueOf(m_ui.selfMarginSpinBox));
}

} // namespace MV
