// Profiles: loaded as the panel does, saved over, and read as the host's own files.
#include "tests/fuzz/Fuzz.h"

#include "host/services/SoftIniProfile.h"
#include "preset/ProfileFile.h"
#include "ui/IniFile.h"

#include <QFile>
#include <QSettings>

namespace {

/// Reads everything in a group in every way that the panel reads values.
BF::Result ReadGroup(const MV::CIniGroup& profile)
{
    const QStringList keys = profile.Keys();
    for (const QString& key : keys) {
        const QVariant value = profile.Value(key);
        value.toBool();
        value.toInt();
        value.toUInt();
        value.toFloat();
        value.toStringList();
        for (const QVariant& item : value.toList()) {
            item.toFloat();
        }
    }
    return BF::Results::Success;
}

std::vector<MV::ProfileGroup> Groups()
{
    const auto save = [](QSettings& profile) {
        profile.setValue(QStringLiteral("Mass"), 5);
        profile.setValue(QStringLiteral("Friction"), 0.25);
        profile.setValue(QStringLiteral("List"), QVariantList{1, 2, 3});
    };
    return {{QStringLiteral("Preset"), ReadGroup, save}, {QStringLiteral("Property"), ReadGroup, save}};
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    Fuzz::StartApplication(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString path = Fuzz::WriteFile("profile.ini", Fuzz::Bytes(data, size));
    BF::Result result;
    MV::LoadProfile(path, Groups(), result);
    if (const auto change = Host::ReadSoftIni(path)) {
        Host::ClothState cloth;
        (*change)(cloth);
    }
    if (MV::SaveProfile(path, Groups()) == MV::EProfileProblem::None) {
        int mass = 0;
        const auto read = [&mass](const MV::CIniGroup& profile) {
            mass = profile.Value(QStringLiteral("Mass")).toInt();
            return BF::Result(BF::Results::Success);
        };
        MV::LoadProfile(path, {{QStringLiteral("Property"), read, {}}}, result);
        if (mass != 5) {
            Fuzz::Fail(QStringLiteral("a saved profile holds something else"));
        }
    }
    QFile::remove(path);
    return 0;
}

QVector<QByteArray> FuzzSeeds()
{
    return {"[Property]\nMass=5\nFriction=0.5\nLinear_Inertia_Scale=10\n",
            "[Preset]\nUse_Global_Gravity=true\n[Wind_Setting]\nExternal_Acceleration=1, 2, 3\nWind_Frequency=2.5\n",
            "[property]\nmass=3\nfriction=nan\n[wind]\nrandomFactor=1, 9\nuseGlobalGravity=false\n",
            "[Ignored_Material_Name_List]\nBody=Skin, \"Hair, long\"\n%U1234=\\x41\\\"\n",
            "; a comment\r\n[General]\r\nkey=\"quoted; text\"\r\nlist=a, b\\\r\n  c\r\n[x\n[]\n=\n",
            ""};
}
