// Loading a profile.
#include "host/services/HostApplication.h"
#include "plugin/services/EditService.h"
#include "preset/SoftClothPresetSection.h"
#include "tests/bench/BenchPanel.h"
#include "tests/bench/Report.h"
#include "tests/support/Files.h"
#include "tests/support/SampleModels.h"

#include <QApplication>
#include <QDir>
#include <QDoubleSpinBox>
#include <QFileInfo>
#include <QSettings>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QUndoStack>

#include <array>

namespace {

/// More than the settings store keeps in memory, so that each one is read from its file.
constexpr int profileCount = 100;

/// Two profiles that agree in nothing, so that each value of the panel changes.
constexpr const char* profileTexts[] = {
    "[Preset]\nUse_Global_Gravity=true\n\n"
    "[Property]\nMass=7\nFriction=0.5\nDamping=0.25\nDrag=0.125\nSolver_Frequency=300\nTether_Limit=1.25\n"
    "Tether_Stiffness=20\nStiffness=40\nBending=80\nLinear_Inertia_Scale=5\nAngular_Inertia_Scale=15\n"
    "Centrifugal_Inertia_Scale=20\nStiffness_Frequency=12.5\nCollision_Mass_Scale=17.5\nSleep_Linear_Velocity=0.0625\n"
    "Wake_Counter_Value=0.75\n\n"
    "[Collision]\nSoft_Vs_Rigid_Collision=true\nSoft_Vs_Rigid_Collision_Margin=1.5\nSelf_Collision=true\n"
    "Self_Collision_Margin=0.25\n\n"
    "[Wind_Setting]\nExternal_Acceleration=10, 20, 30\nRandom_Acceleration=1, 2, 3\nWind_Frequency=2.5\n"
    "Wind_Random_Factor=3, 8\n",
    "[Preset]\nUse_Global_Gravity=false\n\n"
    "[Property]\nMass=3\nFriction=0.25\nDamping=0.5\nDrag=0.5\nSolver_Frequency=200\nTether_Limit=1.5\n"
    "Tether_Stiffness=30\nStiffness=60\nBending=10\nLinear_Inertia_Scale=8\nAngular_Inertia_Scale=9\n"
    "Centrifugal_Inertia_Scale=7\nStiffness_Frequency=10.5\nCollision_Mass_Scale=11.5\nSleep_Linear_Velocity=0.125\n"
    "Wake_Counter_Value=0.25\n\n"
    "[Collision]\nSoft_Vs_Rigid_Collision=false\nSoft_Vs_Rigid_Collision_Margin=0.5\nSelf_Collision=false\n"
    "Self_Collision_Margin=0.75\n\n"
    "[Wind_Setting]\nExternal_Acceleration=40, 50, 60\nRandom_Acceleration=4, 5, 6\nWind_Frequency=1.5\n"
    "Wind_Random_Factor=2, 7\n"};

/// \param differing  whether the two profiles take turns
QStringList WriteProfiles(const QString& folder, bool differing)
{
    QStringList paths;
    for (int i = 0; i < profileCount; ++i) {
        const QString path =
            QStringLiteral("%1/%2/%3.ini").arg(folder, QLatin1String(differing ? "differing" : "equal")).arg(i);
        paths.append(Files::Write(path, profileTexts[differing ? i % 2 : 0]));
    }
    return paths;
}

/// As many boxes as the panel has for the values of a profile.
struct BareBoxes
{
    BareBoxes()
    {
        for (QSpinBox& box : wholes) {
            box.setRange(-10000, 10000);
        }
    }

    void Show(const MV::SoftClothPropertyData& property, const MV::SoftClothCollisionData& collision,
              const MV::SoftClothWindData& wind)
    {
        const float wholeNumbers[] = {float(property.mass),
                                      float(property.solverFrequency),
                                      property.tetherStiffness,
                                      property.stiffness,
                                      property.bending,
                                      property.linearInertiaScale,
                                      wind.externalAcceleration[0],
                                      wind.externalAcceleration[1],
                                      wind.externalAcceleration[2],
                                      wind.randomAcceleration[0],
                                      wind.randomAcceleration[1],
                                      wind.randomAcceleration[2]};
        const float decimalNumbers[] = {property.friction,    property.damping,      property.drag,
                                        property.tetherLimit, collision.rigidMargin, collision.selfMargin,
                                        wind.frequency};
        for (std::size_t i = 0; i < wholes.size(); ++i) {
            wholes[i].setValue(int(wholeNumbers[i]));
        }
        for (std::size_t i = 0; i < decimals.size(); ++i) {
            decimals[i].setValue(double(decimalNumbers[i]));
        }
    }

    std::array<QSpinBox, 12> wholes;
    std::array<QDoubleSpinBox, 7> decimals;
};

/// The keys in the types that the panel takes them in, and the writes that follow.
/// \param boxes  shows the values; null for none
void LoadBare(const QString& path, bool gravityChanges, const MV::SoftClothSelection& to, MV::CEditService& edit,
              BareBoxes* boxes)
{
    QSettings profile(path, QSettings::IniFormat);
    profile.setIniCodec("UTF-8");
    const auto number = [&profile](const char* key) { return profile.value(QLatin1String(key)).toFloat(); };
    const auto list = [&profile](const char* key) {
        QVector<float> numbers;
        const QStringList texts = profile.value(QLatin1String(key)).toStringList();
        for (const QString& text : texts) {
            numbers.append(text.toFloat());
        }
        return numbers;
    };
    const bool gravity = profile.value(QStringLiteral("Preset/Use_Global_Gravity")).toBool();
    if (gravityChanges) {
        // A check box that changes writes as well.
        edit.SetUseGlobalGravity(to.object, to.mesh, to.material, gravity, false);
    }
    edit.SetUseGlobalGravity(to.object, to.mesh, to.material, gravity, false);

    MV::SoftClothPropertyData property;
    property.mass = qint64(number("Property/Mass"));
    property.friction = number("Property/Friction");
    property.damping = number("Property/Damping");
    property.drag = number("Property/Drag");
    property.solverFrequency = qint64(number("Property/Solver_Frequency"));
    property.tetherLimit = number("Property/Tether_Limit");
    property.tetherStiffness = number("Property/Tether_Stiffness");
    property.stiffness = number("Property/Stiffness");
    property.bending = number("Property/Bending");
    property.linearInertiaScale = number("Property/Linear_Inertia_Scale");
    property.angularInertiaScale = number("Property/Angular_Inertia_Scale");
    property.centrifugalInertiaScale = number("Property/Centrifugal_Inertia_Scale");
    property.stiffnessFrequency = number("Property/Stiffness_Frequency");
    property.collisionMassScale = number("Property/Collision_Mass_Scale");
    property.sleepLinearVelocity = number("Property/Sleep_Linear_Velocity");
    property.wakeCounterValue = number("Property/Wake_Counter_Value");
    edit.SetSoftClothProperty(to.object, to.mesh, to.material, MV::ESoftClothPropertyType::All, property, false);

    MV::SoftClothCollisionData collision;
    collision.collideWithRigid = profile.value(QStringLiteral("Collision/Soft_Vs_Rigid_Collision")).toBool();
    collision.rigidMargin = number("Collision/Soft_Vs_Rigid_Collision_Margin");
    collision.selfCollision = profile.value(QStringLiteral("Collision/Self_Collision")).toBool();
    collision.selfMargin = number("Collision/Self_Collision_Margin");
    edit.SetSoftClothCollision(to.object, to.mesh, to.material, MV::ESoftClothCollisionType::All, collision, false);

    MV::SoftClothWindData wind;
    const QVector<float> external = list("Wind_Setting/External_Acceleration");
    const QVector<float> random = list("Wind_Setting/Random_Acceleration");
    const QVector<float> factor = list("Wind_Setting/Wind_Random_Factor");
    wind.externalAcceleration = {external.at(0), external.at(1), external.at(2)};
    wind.randomAcceleration = {random.at(0), random.at(1), random.at(2)};
    wind.frequency = number("Wind_Setting/Wind_Frequency");
    wind.randomFactor = {factor.at(0), factor.at(1)};
    edit.SetSoftClothWind(to.object, to.mesh, to.material, MV::ESoftClothWindType::All, wind, false);
    if (boxes) {
        boxes->Show(property, collision, wind);
    }
}

/// Measures with profiles in a folder inside \p place. \return the exit code
int Measure(const QString& place)
{
    const QTemporaryDir folder(place + QStringLiteral("/softcloth-bench-XXXXXX"));
    const QStringList equal = WriteProfiles(folder.path(), false);
    const QStringList differing = WriteProfiles(folder.path(), true);
    BenchPanel<Host::HostApplication> panel;
    panel.host.SetSoftClothActive(panel.host.AddModel(SampleModels::Flag()), true);
    auto& section = *panel.plugin.findChild<MV::CSoftClothPresetSection*>();
    BareBoxes boxes;

    const auto forget = [&panel] {
        panel.host.Journal().Clear();
        panel.host.CurrentScene().UndoStack().clear();
    };
    // One after the other, so that two works that take turns both come to all of them.
    const auto product = [&](const QStringList& paths) {
        return Bench::Work{[&section, &paths, i = 0]() mutable {
                               if (section.LoadProfileFile(paths.at(i++ % paths.size())) != BF::Results::Success) {
                                   qFatal("a profile is not loaded");
                               }
                           },
                           forget};
    };
    const auto bare = [&](const QStringList& paths, BareBoxes* shown) {
        const bool gravityChanges = &paths == &differing;
        return Bench::Work{[&panel, &paths, gravityChanges, shown, i = 0]() mutable {
                               LoadBare(paths.at(i++ % paths.size()), gravityChanges, panel.plugin.Selection(),
                                        *panel.host.GetEditService(), shown);
                           },
                           forget};
    };

    // One profile is so short a piece of work that some of many are not disturbed by anything.
    constexpr int repetitions = 2000;
    Bench::Report report(QStringLiteral("Profile, one of %1 in %2").arg(profileCount).arg(place));
    report.Compare(QStringLiteral("values already shown"), product(equal), bare(equal, nullptr), 1.2, repetitions);
    // New numbers in nineteen boxes are nineteen texts to be laid out, which takes longer than all the rest.
    report.Compare(QStringLiteral("all values new, bare in boxes too"), product(differing), bare(differing, &boxes),
                   1.5, repetitions);
    report.Compare(QStringLiteral("all values new, bare without boxes"), product(differing), bare(differing, nullptr),
                   std::nullopt, repetitions);
    return report.Print();
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication app(argc, argv);
    int code = 0;
    // The second one is in memory, where there is such a thing.
    for (const QString& place : {QDir::tempPath(), QStringLiteral("/dev/shm")}) {
        if (QFileInfo(place).isWritable()) {
            code |= Measure(place);
        }
    }
    return code;
}
