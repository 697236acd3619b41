#include "tests/support/PanelExpectation.h"

#include "host/services/HostApplication.h"
#include "plugin/services/SceneService.h"

#include <algorithm>
#include <set>

namespace PanelComparison {

namespace {

using MV::ECompatibleApp;

bool PassesGates(const Host::Scene& scene, ECompatibleApp app)
{
    static const std::set<quint32> types{1, 2, 3, 4, 5, 6, 30, 31, 32, 33, 34, 38, 39, 51, 52, 53};
    if (scene.physicsEngine != 1 || scene.Selection().size() != 1 || !HasAnyBit(app, ECompatibleApp::Both)) {
        return false;
    }
    const Host::ObjectTraits& traits = scene.FindObject(scene.Selection().first())->traits;
    const bool isB = HasAnyBit(app, ECompatibleApp::FamilyB);
    const bool isA = HasAnyBit(app, ECompatibleApp::FamilyA);
    const bool blocked = isB ? traits.blockedEx : traits.blocked;
    const bool converting = isA && (traits.type == 5 || traits.type == 6) && traits.convertState != 3;
    return !blocked && types.count(traits.type) != 0 && !converting;
}

} // namespace

Expectation Expect(const Host::Scene& scene, ECompatibleApp app)
{
    Expectation held;
    held.isShown = PassesGates(scene, app);
    if (!held.isShown) {
        return held;
    }
    const Host::Object& object = *scene.FindObject(scene.Selection().first());
    held.softCloth = object.state.softCloth;
    held.isConvertible = object.traits.type > 3 && object.traits.kind != 14;
    for (const Host::ClothAddress& address : Host::Scene::SlotsOf(object)) {
        const ExpectedRow row{address, scene.FindMesh(address.mesh)->name, scene.FindMaterial(address.material)->name,
                              scene.MayTakePart(address.material)};
        held.rows.push_back(row);
        if (row.offered) {
            held.listed.push_back(row);
        }
    }
    if (held.listed.empty()) {
        return held;
    }
    const auto active = std::find_if(held.listed.begin(), held.listed.end(), [&scene](const ExpectedRow& row) {
        return scene.FindSlot(row.address)->cloth.active;
    });
    held.currentRow = active == held.listed.end() ? 0 : int(active - held.listed.begin());
    held.address = held.listed[std::size_t(held.currentRow)].address;
    held.cloth = &scene.FindSlot(held.address)->cloth;
    held.isActive = held.softCloth && held.cloth->active;
    return held;
}

QStringList Expectation::ListedNames() const
{
    QStringList names;
    for (const ExpectedRow& row : listed) {
        names.append(QStringLiteral("%1( %2 )").arg(row.material, row.mesh));
    }
    return names;
}

QStringList Expectation::TableRows() const
{
    QStringList texts;
    for (const ExpectedRow& row : rows) {
        texts.append(QStringLiteral("%1 %2 %3").arg(row.offered ? 1 : 0).arg(row.mesh, row.material));
    }
    return texts;
}

QImage PictureOf(Host::HostApplication& host, const Host::ClothAddress& address, MV::ETextureChannel channel,
                 const QSize& size)
{
    MV::CSceneService& scene = *host.GetSceneService();
    BF::CHandle* thumbnail = nullptr;
    BF::CHandle* source = nullptr;
    bool hasSource = false;
    if (channel == MV::ETextureChannel::Weight) {
        scene.GetWeightTexture(address.object, address.mesh, address.material, thumbnail);
        hasSource = thumbnail && scene.GetThumbnailSourceImage(thumbnail, source);
    } else {
        bool hasTexture = false;
        bool unused = false;
        scene.GetMaterialTextureState(address.material, channel, hasTexture, unused, unused, unused);
        if (hasTexture) {
            scene.GetTextureThumbnail(address.material, channel, thumbnail, hasSource);
            if (hasSource) {
                scene.GetThumbnailSource(address.material, channel, source);
            }
        }
    }
    if (!thumbnail) {
        scene.GetDefaultThumbnail(thumbnail);
    }
    QImage picture(1, 1, QImage::Format_ARGB32);
    scene.RenderThumbnail(size.width(), size.height(), thumbnail, source, picture);
    return picture;
}

} // namespace PanelComparison
