#include "host/services/WeightImages.h"

#include "host/images/ImageDecode.h"
#include "host/images/ImageFormat.h"
#include "host/images/WeightAdjust.h"
#include "host/images/WeightSampling.h"
#include "host/scene/SaveFile.h"
#include "host/services/HostApplication.h"
#include "host/services/Pictures.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QImageWriter>

#include <cstdlib>

namespace Host {

namespace {

constexpr int mostAdjust = 100;

bool IsSame(const ClothAddress& a, const ClothAddress& b)
{
    return a.object == b.object && a.mesh == b.mesh && a.material == b.material;
}

/// How the user is to call an image: by its file, or by what it is when it has none.
QString NameOf(const WeightImage& weight)
{
    return weight.image.filePath.isEmpty() ? HostApplication::tr("embedded weight image") : weight.image.filePath;
}

QString NoUvsText(const Mesh& mesh)
{
    return HostApplication::tr(
               "The mesh \"%1\" has no texture coordinates, which would say where the image lies on it.")
        .arg(mesh.name);
}

QByteArray FormatOfSuffix(const QString& path)
{
    const QByteArray suffix = QFileInfo(path).suffix().toLower().toLatin1();
    if (suffix.isEmpty()) {
        return SuffixOf(ImageFormat::Png);
    }
    return suffix == "jpeg" ? SuffixOf(ImageFormat::Jpeg) : suffix;
}

} // namespace

BF::Result WeightImages::Load(const ClothAddress& address, const QString& path)
{
    const QString text = HostApplication::tr("Load weight image %1").arg(QFileInfo(path).fileName());
    const MaterialSlot* slot = m_host.CurrentScene().FindSlot(address);
    if (!slot || path.isEmpty()) {
        PushRefusal(text);
        return BF::Results::InvalidArgument;
    }
    SceneEdit edit;
    edit.text = text;
    edit.cloths.push_back({address, {}, slot->cloth});
    ClothState& cloth = edit.cloths.back().after;
    cloth.weight = {{QFileInfo(path).absoluteFilePath(), {}}, 0, 0};
    QString error;
    const int moving = CountMoving(address, cloth.weight, error);
    if (!error.isEmpty()) {
        return RefuseLoad(text, UnreadableImageText(path, error));
    }
    const Mesh& mesh = *m_host.CurrentScene().FindMesh(address.mesh);
    if (moving == 0 && mesh.uvs.empty()) {
        return RefuseLoad(text, NoUvsText(mesh));
    }
    if (moving == 0) {
        edit.refused = true;
        m_host.CurrentScene().Push(std::move(edit));
        return BF::Results::Refused;
    }
    MakeSoftCloth(edit);
    edit.isStepAnyway = moving > mostMovingVertices;
    m_host.CurrentScene().Push(std::move(edit));
    return moving > mostMovingVertices ? BF::Results::NothingDone : BF::Results::Success;
}

BF::Result WeightImages::Delete(const ClothAddress& address)
{
    const MaterialSlot* slot = m_host.CurrentScene().FindSlot(address);
    if (!slot) {
        return BF::Results::InvalidArgument;
    }
    ClothState cloth = slot->cloth;
    cloth.weight = {};
    return Push(address, cloth, HostApplication::tr("Delete weight image"));
}

BF::Result WeightImages::Embed(const ClothAddress& address)
{
    const MaterialSlot* slot = m_host.CurrentScene().FindSlot(address);
    if (!slot) {
        return BF::Results::InvalidArgument;
    }
    const QString path = slot->cloth.weight.image.filePath;
    if (path.isEmpty()) {
        return BF::Results::NothingDone;
    }
    QString error;
    ClothState cloth = slot->cloth;
    cloth.weight.image = {{}, m_host.Images().Store().ReadForEmbedding(path, error)};
    CountMoving(address, cloth.weight, error);
    if (!error.isEmpty()) {
        m_host.TellProblem(UnreadableImageText(path, error));
        return BF::Results::ResourceFailure;
    }
    return Push(address, cloth, HostApplication::tr("Embed weight image"));
}

BF::Result WeightImages::Adjust(const ClothAddress& address, const MV::WeightImageAdjust& adjust, bool isFinal)
{
    const MaterialSlot* slot = m_host.CurrentScene().FindSlot(address);
    if (!slot || std::abs(adjust.brightness) > mostAdjust || std::abs(adjust.contrast) > mostAdjust) {
        return BF::Results::InvalidArgument;
    }
    if (slot->cloth.weight.IsNone()) {
        return BF::Results::NothingDone;
    }
    SceneEdit edit;
    edit.text = HostApplication::tr("Adjust weight image");
    edit.cloths.push_back({address, {}, slot->cloth});
    WeightImage& weight = edit.cloths.back().after.weight;
    weight.brightness = adjust.brightness;
    weight.contrast = adjust.contrast;
    QString error;
    edit.refused = CountMoving(address, weight, error) == 0;
    if (!error.isEmpty()) {
        m_host.TellProblem(UnreadableImageText(NameOf(weight), error));
        return BF::Results::ResourceFailure;
    }
    if (m_adjusting.run == SceneEdit::noRun || !IsSame(m_adjusting.address, address)) {
        m_adjusting = {address, ++m_lastRun, false};
    }
    // What is refused is taken back by itself, and what came before it stays.
    edit.run = edit.refused ? SceneEdit::noRun : m_adjusting.run;
    const bool isRefused = edit.refused;
    m_adjusting.wasRefused = isRefused;
    if (isFinal) {
        EndAdjusting();
    }
    m_host.CurrentScene().Push(std::move(edit));
    return isRefused ? BF::Results::Refused : BF::Results::Success;
}

BF::Result WeightImages::ReplaceEmbedded(const ClothAddress& address, const QByteArray& bytes)
{
    const MaterialSlot* slot = m_host.CurrentScene().FindSlot(address);
    if (!slot || slot->cloth.weight.image.embedded.isEmpty()) {
        return BF::Results::InvalidArgument;
    }
    ClothState cloth = slot->cloth;
    cloth.weight.image = {{}, bytes};
    QString error;
    if (CountMoving(address, cloth.weight, error) == 0) {
        return TellRefused(cloth.weight, *m_host.CurrentScene().FindMesh(address.mesh), error);
    }
    return Push(address, cloth, HostApplication::tr("Edit weight image"));
}

BF::Result WeightImages::TakePainted(const std::vector<ClothAddress>& addresses, const QString& path)
{
    SceneEdit edit;
    edit.text = HostApplication::tr("Load weight image %1").arg(QFileInfo(path).fileName());
    QString error;
    int moving = 0;
    for (const ClothAddress& address : addresses) {
        const MaterialSlot* slot = m_host.CurrentScene().FindSlot(address);
        if (slot && slot->cloth.weight.image.filePath != path) {
            edit.cloths.push_back({address, {}, slot->cloth});
            WeightImage& weight = edit.cloths.back().after.weight;
            weight = {{path, {}}, 0, 0};
            moving += CountMoving(address, weight, error);
        }
    }
    if (edit.cloths.empty()) {
        return BF::Results::NothingDone;
    }
    if (moving == 0) {
        const SceneEdit::ClothChange& first = edit.cloths.front();
        return TellRefused(first.after.weight, *m_host.CurrentScene().FindMesh(first.address.mesh), error);
    }
    MakeSoftCloth(edit);
    m_host.CurrentScene().Push(std::move(edit));
    return BF::Results::Success;
}

BF::Result WeightImages::Save(const ClothAddress& address, const QString& path)
{
    const WeightImage* weight = m_host.Images().WeightOf(address);
    if (!weight || path.isEmpty()) {
        return BF::Results::InvalidArgument;
    }
    QString error;
    const QByteArray bytes = EncodeForSaving(*weight, path, error);
    if (error.isEmpty()) {
        error = SaveFile(path, bytes);
    }
    if (!error.isEmpty()) {
        m_host.ExplainNextBox(HostApplication::tr("The weight image could not be saved as \"%1\": %2.")
                                  .arg(QDir::toNativeSeparators(path), error));
        return BF::Results::Refused;
    }
    return BF::Results::Success;
}

std::optional<int> WeightImages::MovingVertices(const ClothAddress& address)
{
    const WeightImage* weight = m_host.Images().WeightOf(address);
    if (!weight || weight->IsNone()) {
        return std::nullopt;
    }
    QString error;
    const int moving = CountMoving(address, *weight, error);
    return error.isEmpty() ? std::make_optional(moving) : std::nullopt;
}

bool WeightImages::IsCallersAdjust(const ClothAddress& address) const
{
    return m_adjusting.run != SceneEdit::noRun && !m_adjusting.wasRefused && IsSame(m_adjusting.address, address);
}

void WeightImages::NoteAdjustRead(const ClothAddress& address)
{
    if (!IsSame(m_adjusting.address, address)) {
        EndAdjusting();
    }
}

/// The caller shows a box that says nothing of its own, and takes the step back.
BF::Result WeightImages::RefuseLoad(const QString& text, const QString& reason)
{
    m_host.ExplainNextBox(reason);
    PushRefusal(text);
    return BF::Results::ResourceFailure;
}

/// An image that was edited outside is not taken, \p error being why it cannot be read, if that is so.
BF::Result WeightImages::TellRefused(const WeightImage& weight, const Mesh& mesh, const QString& error)
{
    if (!error.isEmpty()) {
        m_host.TellProblem(UnreadableImageText(NameOf(weight), error));
        return BF::Results::ResourceFailure;
    }
    m_host.TellProblem(mesh.uvs.empty()
                           ? NoUvsText(mesh)
                           : HostApplication::tr("The edited weight image is black wherever the material has vertices; "
                                                 "the former one is kept."));
    return BF::Results::Refused;
}

/// Makes the materials whose weight image \p edit changes soft cloth, and their object one with soft cloth physics.
void WeightImages::MakeSoftCloth(SceneEdit& edit) const
{
    for (SceneEdit::ClothChange& change : edit.cloths) {
        change.after.active = true;
    }
    BF::CHandle* const object = edit.cloths.front().address.object;
    ObjectState state = m_host.CurrentScene().FindObject(object)->state;
    state.softCloth = true;
    state.rigidBody = false;
    edit.objects.push_back({object, {}, state});
}

void WeightImages::PushRefusal(const QString& text)
{
    SceneEdit edit;
    edit.text = text;
    edit.refused = true;
    m_host.CurrentScene().Push(std::move(edit));
}

/// How many vertices move under \p weight at an address that exists.
/// \param error  why the image cannot be read; then the result is 0
int WeightImages::CountMoving(const ClothAddress& address, const WeightImage& weight, QString& error)
{
    if (!error.isEmpty()) {
        return 0;
    }
    const ImageStore::Image stored = m_host.Images().Store().Get(weight.image);
    error = stored->error;
    const Scene& scene = m_host.CurrentScene();
    return CountMovingVertices(*scene.FindMesh(address.mesh), *scene.FindSlot(address), stored->image,
                               AdjustTable(weight.brightness, weight.contrast));
}

BF::Result WeightImages::Push(const ClothAddress& address, const ClothState& cloth, const QString& text)
{
    SceneEdit edit;
    edit.text = text;
    edit.cloths.push_back({address, {}, cloth});
    return m_host.CurrentScene().Push(std::move(edit)) ? BF::Results::Success : BF::Results::NothingDone;
}

/// \param error  empty, or why the image cannot be written there
QByteArray WeightImages::EncodeForSaving(const WeightImage& weight, const QString& path, QString& error)
{
    if (weight.IsNone()) {
        error = HostApplication::tr("there is none");
        return {};
    }
    const QByteArray format = FormatOfSuffix(path);
    const bool isAdjusted = weight.brightness != 0 || weight.contrast != 0;
    const bool isLinked = !weight.image.filePath.isEmpty();
    if (isAdjusted && isLinked && QFileInfo(path) == QFileInfo(weight.image.filePath)) {
        error = HostApplication::tr("the material is linked to this file, whose image would be adjusted again");
        return {};
    }
    const QByteArray original = isLinked ? ReadImageFile(weight.image.filePath, error) : weight.image.embedded;
    if (!error.isEmpty() || (!isAdjusted && SuffixOf(ReadImageHeader(original).format) == format)) {
        return original;
    }
    const ImageStore::Image stored = m_host.Images().Store().Get(weight.image);
    if (!stored->error.isEmpty()) {
        error = stored->error;
        return {};
    }
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    if (!writer.write(AdjustedGray(stored->image, AdjustTable(weight.brightness, weight.contrast)))) {
        error = HostApplication::tr("images of this format cannot be written");
    }
    return buffer.data();
}

} // namespace Host
