#pragma once

#include "host/simulation/ClothPreview.h"

#include <QObject>

#include <memory>

namespace Host {

/// Where the player stands.
struct PlayerState
{
    bool hasCloth = false; ///< There is something to play.
    bool playing = false;  ///< Frames are coming.
    double time = 0.0;     ///< Model time in seconds.
    double speed = 0.0;    ///< Model time per real time over the last second of playing; 1 is real time.
    QString problem;       ///< Why the preview stopped, as a sentence for the user; empty while all is well.
};

/// Plays a ClothPreview on a thread of its own, 60 frames a second of model time. When the machine is too slow the
/// motion becomes slower; at most two frames are made up for, none is skipped.
///
/// All functions are for the thread of the user interface and return at once. Whatever is going on in the scene, the
/// player works on its own copy: call SetModel() with a new one whenever the object or its values have changed, and
/// Clear() when the object is gone.
class PreviewPlayer : public QObject
{
    Q_OBJECT

public:
    explicit PreviewPlayer(QObject* parent = nullptr);
    /// Waits for the frame in the making, no longer.
    ~PreviewPlayer() override;

    /// Takes over an object, or new values of the one being played; see ClothPreview::SetModel().
    void SetModel(PreviewModel model);
    /// Stops and forgets the object. There is no frame afterwards.
    void Clear();

    void Play();
    void Pause();
    /// One frame, then pause.
    void Step();
    /// Back to the beginning; goes on playing if it played.
    void Reset();
    void SetMotion(const MotionChoice& motion);

    PlayerState State() const;

    /// Exchanges \p frame with the latest one, and gives its memory back to the player.
    /// \return false when nothing has come since the last call; \p frame is unchanged then
    bool TakeFrame(PreviewFrame& frame);

Q_SIGNALS:
    /// There is a new frame to take. Sent on the thread of the user interface; frames that came meanwhile send it once.
    void FrameReady();
    /// Something other than the time and the speed has changed in State(). Sent on the thread of the user interface.
    void StateChanged();

private:
    class Worker;
    std::unique_ptr<Worker> m_worker;
};

} // namespace Host
