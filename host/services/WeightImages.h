#pragma once

#include "host/scene/SceneEdit.h"
#include "plugin/services/SoftClothRecords.h"

#include <MVPluginQt/Result.h>

#include <QString>

#include <optional>
#include <vector>

namespace Host {

class HostApplication;

/// The edits of weight images. Each that succeeds is one undo step; 1 means that nothing had to be done.
///
/// What is refused for its content is stored all the same, as a step marked as refused: whoever asked for it informs
/// the user and then takes it back.
class WeightImages
{
public:
    /// More moving vertices than this are too many for a smooth simulation.
    static constexpr int mostMovingVertices = 20000;

    explicit WeightImages(HostApplication& host)
        : m_host(host)
    {
    }

    /// Links the image file \p path without brightness or contrast, and makes the material soft cloth and the object
    /// one with soft cloth physics.
    /// \return 0; 1 when more than mostMovingVertices move, which is for the user to decide; 0x80000006 when none
    /// moves;
    ///         another failure when the file cannot be read or the mesh has no texture coordinates, and the reason is
    ///         in the box that the caller shows then. After all but 0 there is one step to take back.
    BF::Result Load(const ClothAddress& address, const QString& path);
    BF::Result Delete(const ClothAddress& address);
    /// Puts the linked file's content into the material and forgets the file.
    BF::Result Embed(const ClothAddress& address);

    /// Sets brightness and contrast, from -100 to 100 each. Writes that are not final become one step together with
    /// the next final one.
    /// \return 0; 0x80000006 when no vertex moves any more, and there is one step to take back; another failure when
    ///         there is no image that can be read, and nothing was done
    BF::Result Adjust(const ClothAddress& address, const MV::WeightImageAdjust& adjust, bool isFinal);

    /// Links the image file \p path, in which the user has painted, to all of \p addresses that are not linked to it,
    /// as Load() does. What is refused leaves no step: the user hears of it here.
    /// \return 0; 1 when all are linked to it; a failure, after a message, when it cannot be read or no vertex moves
    BF::Result TakePainted(const std::vector<ClothAddress>& addresses, const QString& path);

    /// Puts \p bytes in place of an embedded image, unless they are no image or leave no vertex moving.
    BF::Result ReplaceEmbedded(const ClothAddress& address, const QByteArray& bytes);

    /// Writes the image: as it came when nothing is adjusted and the suffix fits, else as it looks, in gray, in the
    /// format of the suffix (PNG without one). The scene does not change.
    /// \return 0, or 0x80000006 when it cannot be written, and the reason is in the box that the caller shows then
    BF::Result Save(const ClothAddress& address, const QString& path);

    /// How many vertices move under the weight image of a material; none for an unknown one and without an image that
    /// can be read.
    std::optional<int> MovingVertices(const ClothAddress& address);

    /// True while brightness and contrast are what the caller last set: between a write that is not final and the
    /// next final one, unless something was refused or undone, or the caller has gone on to another material.
    bool IsCallersAdjust(const ClothAddress& address) const;
    /// The next write begins a step of its own.
    void EndAdjusting() { m_adjusting = {}; }
    /// The caller has read brightness and contrast of a material, and shows them from now on. It gives up an adjustment
    /// of another one: no final write comes.
    void NoteAdjustRead(const ClothAddress& address);

    /// Leaves a step that changes nothing, for a refusal of which there is nothing else to take back.
    void PushRefusal(const QString& text);

private:
    struct Adjusting
    {
        ClothAddress address;
        int run = SceneEdit::noRun;
        bool wasRefused = false;
    };

    BF::Result RefuseLoad(const QString& text, const QString& reason);
    int CountMoving(const ClothAddress& address, const WeightImage& weight, QString& error);
    BF::Result TellRefused(const WeightImage& weight, const Mesh& mesh, const QString& error);
    void MakeSoftCloth(SceneEdit& edit) const;
    BF::Result Push(const ClothAddress& address, const ClothState& cloth, const QString& text);
    QByteArray EncodeForSaving(const WeightImage& weight, const QString& path, QString& error);

    HostApplication& m_host;
    Adjusting m_adjusting;
    int m_lastRun = SceneEdit::noRun;
};

} // namespace Host
