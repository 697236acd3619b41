#include "host/simulation/PreviewPlayer.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>

namespace Host {

namespace {

using Clock = std::chrono::steady_clock;
using Seconds = std::chrono::duration<double>;

constexpr double mostOwed = 2.0;  // frames
constexpr double speedOver = 1.0; // s
constexpr auto frameTime = Seconds(ClothPreview::frameDuration);

} // namespace

/// The thread and what both sides share. Orders travel one way and the latest frame the other, both under one lock that
/// nobody holds for longer than an exchange takes.
class PreviewPlayer::Worker
{
public:
    explicit Worker(PreviewPlayer& player)
        : m_player(player)
        , m_thread([this] { Run(); })
    {
    }

    ~Worker()
    {
        {
            const std::lock_guard lock(m_mutex);
            m_isEnding = true;
        }
        m_wake.notify_one();
        m_thread.join();
    }

    using Order = std::function<void(Worker&)>;

    /// Has \p order carried out on the thread, before the next frame.
    void Give(Order order)
    {
        {
            const std::lock_guard lock(m_mutex);
            m_orders.push_back(std::move(order));
        }
        m_wake.notify_one();
    }

    /// As Give(), for an order after which frames of another object than \p object would be out of place.
    void GiveFor(const BF::CHandle* object, Order order)
    {
        {
            const std::lock_guard lock(m_mutex);
            if (object != m_object) {
                m_object = object;
                m_isNew = false;
            }
        }
        Give(std::move(order));
    }

    PlayerState State() const
    {
        const std::lock_guard lock(m_mutex);
        return m_state;
    }

    bool TakeFrame(PreviewFrame& frame)
    {
        const std::lock_guard lock(m_mutex);
        m_isAnnounced = false;
        if (!m_isNew) {
            return false;
        }
        m_isNew = false;
        std::swap(frame, m_latest);
        return true;
    }

    // --- what orders do, on the thread ---

    void SetModel(PreviewModel model)
    {
        if (!m_preview || m_preview->Model().object != model.object) {
            m_isPlaying = m_isPlaying && m_preview;
            m_preview.emplace(std::move(model));
            m_preview->SetMotion(m_motion);
        } else {
            m_preview->SetModel(std::move(model));
        }
        Publish();
    }

    void Clear()
    {
        m_preview.reset();
        m_isPlaying = false;
    }

    void Play(bool on)
    {
        if (on && !m_isPlaying) {
            m_next = Clock::now();
            m_speedSince = m_next;
            m_speedFrames = 0;
        }
        m_isPlaying = on && m_preview;
    }

    void Step()
    {
        m_isPlaying = false;
        MakeFrame();
    }

    void Reset()
    {
        if (m_preview) {
            m_preview->Reset();
            Publish();
        }
    }

    void SetMotion(const MotionChoice& motion)
    {
        m_motion = motion;
        if (m_preview) {
            m_preview->SetMotion(motion);
        }
    }

private:
    void Run()
    {
        for (;;) {
            std::vector<Order> orders;
            {
                std::unique_lock lock(m_mutex);
                const auto isCalled = [this] { return m_isEnding || !m_orders.empty(); };
                if (m_isPlaying) {
                    m_wake.wait_until(lock, m_next, isCalled);
                } else {
                    m_wake.wait(lock, isCalled);
                }
                if (m_isEnding) {
                    return;
                }
                orders.swap(m_orders);
            }
            for (const Order& order : orders) {
                order(*this);
            }
            if (!orders.empty()) {
                PublishState();
            }
            if (m_isPlaying && Clock::now() >= m_next) {
                PlayFrame();
            }
        }
    }

    void PlayFrame()
    {
        MakeFrame();
        const auto now = Clock::now();
        m_next = std::max(m_next + std::chrono::duration_cast<Clock::duration>(frameTime),
                          now - std::chrono::duration_cast<Clock::duration>(mostOwed * frameTime));
        ++m_speedFrames;
        const double passed = Seconds(now - m_speedSince).count();
        if (passed >= speedOver) {
            m_speed = m_speedFrames * ClothPreview::frameDuration / passed;
            m_speedSince = now;
            m_speedFrames = 0;
        }
    }

    void MakeFrame()
    {
        if (!m_preview) {
            return;
        }
        m_preview->Step();
        if (!m_preview->Problem().isEmpty()) {
            m_isPlaying = false;
        }
        Publish();
        PublishState();
    }

    void Publish()
    {
        m_preview->Read(m_working);
        {
            const std::lock_guard lock(m_mutex);
            if (m_preview->Model().object != m_object) {
                return; // another object is on its way
            }
            std::swap(m_working, m_latest);
            m_isNew = true;
            if (m_isAnnounced) {
                return;
            }
            m_isAnnounced = true;
        }
        QMetaObject::invokeMethod(&m_player, &PreviewPlayer::FrameReady, Qt::QueuedConnection);
    }

    void PublishState()
    {
        PlayerState state;
        state.hasCloth = m_preview && m_preview->Model().HasCloth();
        state.playing = m_isPlaying;
        state.time = m_preview ? m_preview->Time() : 0.0;
        state.speed = m_isPlaying ? m_speed : 0.0;
        state.problem = m_preview ? m_preview->Problem() : QString();
        bool hasChanged = false;
        {
            const std::lock_guard lock(m_mutex);
            hasChanged = state.hasCloth != m_state.hasCloth || state.playing != m_state.playing ||
                         state.problem != m_state.problem;
            m_state = state;
        }
        if (hasChanged) {
            QMetaObject::invokeMethod(&m_player, &PreviewPlayer::StateChanged, Qt::QueuedConnection);
        }
    }

    PreviewPlayer& m_player;

    // The thread's own.
    std::optional<ClothPreview> m_preview;
    MotionChoice m_motion;
    PreviewFrame m_working;
    bool m_isPlaying = false;
    Clock::time_point m_next;
    Clock::time_point m_speedSince;
    int m_speedFrames = 0;
    double m_speed = 1.0;

    // Guarded.
    mutable std::mutex m_mutex;
    std::condition_variable m_wake;
    std::vector<Order> m_orders;
    PlayerState m_state;
    const BF::CHandle* m_object = nullptr; ///< That frames are wanted of.
    PreviewFrame m_latest;
    bool m_isNew = false;
    bool m_isAnnounced = false; ///< FrameReady() is on its way.
    bool m_isEnding = false;

    std::thread m_thread; ///< The last, so that all of the above is there when it starts.
};

PreviewPlayer::PreviewPlayer(QObject* parent)
    : QObject(parent)
    , m_worker(std::make_unique<Worker>(*this))
{
}

PreviewPlayer::~PreviewPlayer() = default;

void PreviewPlayer::SetModel(PreviewModel model)
{
    // Functions are copied, models are not.
    const BF::CHandle* const object = model.object;
    const auto shared = std::make_shared<PreviewModel>(std::move(model));
    m_worker->GiveFor(object, [shared](Worker& worker) { worker.SetModel(std::move(*shared)); });
}

void PreviewPlayer::Clear()
{
    m_worker->GiveFor(nullptr, [](Worker& worker) { worker.Clear(); });
}

void PreviewPlayer::Play()
{
    m_worker->Give([](Worker& worker) { worker.Play(true); });
}

void PreviewPlayer::Pause()
{
    m_worker->Give([](Worker& worker) { worker.Play(false); });
}

void PreviewPlayer::Step()
{
    m_worker->Give([](Worker& worker) { worker.Step(); });
}

void PreviewPlayer::Reset()
{
    m_worker->Give([](Worker& worker) { worker.Reset(); });
}

void PreviewPlayer::SetMotion(const MotionChoice& motion)
{
    m_worker->Give([motion](Worker& worker) { worker.SetMotion(motion); });
}

PlayerState PreviewPlayer::State() const
{
    return m_worker->State();
}

bool PreviewPlayer::TakeFrame(PreviewFrame& frame)
{
    return m_worker->TakeFrame(frame);
}

} // namespace Host
