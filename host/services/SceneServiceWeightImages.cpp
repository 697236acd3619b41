#include "host/services/SceneServiceReads.h"

#include "host/services/ImageEditor.h"
#include "host/services/WeightImages.h"

// Queries of weight images.
namespace Host {

BF::Result SceneService::GetWeightTexture(BF::CHandle* object, Id mesh, Id material, BF::CHandle*& texture)
{
    return ReadSlot("GetWeightTexture", object, mesh, material, {Out(texture)}, [&](const MaterialSlot& slot) {
        texture = slot.cloth.weight.IsNone()
                      ? nullptr
                      : App().Images().Handles().Of(PictureKey::OfWeight({object, mesh, material}));
    });
}

BF::Result SceneService::GetWeightImageAdjust(BF::CHandle* object, Id mesh, Id material, MV::WeightImageAdjust& adjust)
{
    return ReadSlot("GetWeightImageAdjust", object, mesh, material, {Out(adjust)}, [&](const MaterialSlot& slot) {
        adjust = {0, slot.cloth.weight.brightness, slot.cloth.weight.contrast};
        App().Weights().NoteAdjustRead({object, mesh, material});
    });
}

BF::Result SceneService::GetWeightImagePath(BF::CHandle* object, Id mesh, Id material, std::wstring& path)
{
    return ReadSlot("GetWeightImagePath", object, mesh, material, {Out(path)},
                    [&](const MaterialSlot& slot) { path = slot.cloth.weight.image.filePath.toStdWString(); });
}

BF::Result SceneService::GetWeightImageEditFile(BF::CHandle* object, Id mesh, Id material, std::wstring& path)
{
    return Record("GetWeightImageEditFile", {In(object), InId(mesh), InId(material), Out(path)}, [&] {
        const ClothAddress address{object, mesh, material};
        if (!CurrentScene().FindSlot(address)) {
            return BF::Results::InvalidArgument;
        }
        const QString file = App().Editor().FileForWeightImage(address);
        if (file.isEmpty()) {
            return BF::Results::Refused;
        }
        path = file.toStdWString();
        return BF::Results::Success;
    });
}

BF::Result SceneService::GetWeightImageState(BF::CHandle* object, Id mesh, Id material, MV::WeightImageState& state)
{
    return ReadSlot("GetWeightImageState", object, mesh, material, {Out(state)}, [&](const MaterialSlot& slot) {
        const Texture& image = slot.cloth.weight.image;
        state.hasFile = !image.filePath.isEmpty();
        state.embedded = !image.embedded.isEmpty();
        state.reload = IsPresent(image) && !App().Weights().IsCallersAdjust({object, mesh, material});
    });
}

} // namespace Host
