#include "host/simulation/PreviewPlayer.h"

#include "tests/support/TestCase.h"
#include "tests/unit/simulation/PreviewSamples.h"

#include <QElapsedTimer>
#include <QSignalSpy>

#include <algorithm>
#include <functional>
#include <memory>
#include <random>

using Host::PreviewFrame;
using Host::PreviewModel;
using Host::PreviewPlayer;

class TestPreviewPlayer : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void givesTheFirstFrameWithoutPlaying();
    void stepMakesOneFrame();
    void playsInRealTimeAtMost();
    void pauseStops();
    void resetGoesBackAndPlaysOn();
    void callsReturnAtOnce();
    void clearLeavesNoFrame();
    void anotherObjectTakesOver();
    void editsArriveWhilePlaying();
    void problemPausesAndIsReported();
    void canBeDestroyedAtAnyTime();
    void survivesRandomCalls();
};

namespace {

constexpr int patience = 60000; ///< ms: other work may take the machine for long.

PreviewModel Curtain(std::uintptr_t object = 16, int squares = 10)
{
    PreviewModel model = PreviewSamples::Of(ClothSamples::HangingSheet(squares, squares, 3.0F));
    model.object = reinterpret_cast<BF::CHandle*>(object);
    return model;
}

/// Takes frames until one is as wanted.
bool WaitForFrame(
    PreviewPlayer& player, PreviewFrame& frame,
    const std::function<bool(const PreviewFrame&)>& isWanted = [](const PreviewFrame&) { return true; })
{
    return QTest::qWaitFor([&] { return player.TakeFrame(frame) && isWanted(frame); }, patience);
}

/// The highest time that a player can show which began at 0 when \p timer did: it plays in real time at most, and makes
/// up for two frames.
double MostSince(const QElapsedTimer& timer)
{
    return double(timer.nsecsElapsed()) * 1e-9 + 4.0 / 60.0;
}

} // namespace

void TestPreviewPlayer::givesTheFirstFrameWithoutPlaying()
{
    PreviewPlayer player;
    PreviewFrame frame;
    QVERIFY(!player.TakeFrame(frame));
    QVERIFY(!player.State().hasCloth);
    QSignalSpy ready(&player, &PreviewPlayer::FrameReady);
    QSignalSpy changed(&player, &PreviewPlayer::StateChanged);
    player.SetModel(Curtain());
    QVERIFY(ready.wait(patience));
    QVERIFY(player.TakeFrame(frame));
    QCOMPARE(frame.time, 0.0);
    QCOMPARE(frame.meshes[0].positions.size(), std::size_t{121});
    QVERIFY(!player.TakeFrame(frame));
    QTRY_COMPARE_WITH_TIMEOUT(changed.count(), 1, patience);
    QVERIFY(player.State().hasCloth);
    QVERIFY(!player.State().playing);
}

void TestPreviewPlayer::stepMakesOneFrame()
{
    PreviewPlayer player;
    player.SetModel(Curtain());
    player.Step();
    player.Step();
    QTRY_VERIFY_WITH_TIMEOUT(player.State().time > 0.03, patience);
    QTest::qWait(100);
    QCOMPARE(player.State().time, 2.0 / 60.0);
    QVERIFY(!player.State().playing);
}

/// A machine with other work may be slower, so nothing says how slow; never faster.
void TestPreviewPlayer::playsInRealTimeAtMost()
{
    PreviewPlayer player;
    player.SetModel(Curtain());
    QElapsedTimer timer;
    timer.start();
    player.Play();
    const auto hasPlayed = [&](double time) {
        const double played = player.State().time;
        const double most = MostSince(timer); // read after the other, so that no pause in between matters
        if (played > most) {
            qWarning("%f s in %f s", played, most);
        }
        return played >= time;
    };
    QTRY_VERIFY_WITH_TIMEOUT(hasPlayed(1.5), patience);
    QVERIFY(player.State().playing);
    QVERIFY(player.State().speed > 0.0);
    // As many frames as there are in the second that it is measured over, and two that were owed.
    QVERIFY2(player.State().speed < 1.1, qPrintable(QString::number(player.State().speed)));
}

void TestPreviewPlayer::pauseStops()
{
    PreviewPlayer player;
    player.SetModel(Curtain());
    player.Play();
    QTRY_VERIFY_WITH_TIMEOUT(player.State().time > 0.1, patience);
    player.Pause();
    QTRY_VERIFY_WITH_TIMEOUT(!player.State().playing, patience);
    const double time = player.State().time;
    QTest::qWait(100);
    QCOMPARE(player.State().time, time);
    QCOMPARE(player.State().speed, 0.0);
}

void TestPreviewPlayer::resetGoesBackAndPlaysOn()
{
    PreviewPlayer player;
    player.SetModel(Curtain());
    player.Play();
    QTRY_VERIFY_WITH_TIMEOUT(player.State().time > 0.5, patience);
    QElapsedTimer timer;
    timer.start();
    player.Reset();
    // It may have played on for long until this thread looks again, but not for longer than that.
    const auto hasGoneBack = [&] {
        const double time = player.State().time;
        return time <= MostSince(timer);
    };
    QTRY_VERIFY_WITH_TIMEOUT(hasGoneBack(), patience);
    QVERIFY(player.State().playing);
    player.Pause();
    QTRY_VERIFY_WITH_TIMEOUT(!player.State().playing, patience);
    player.Reset();
    QTRY_COMPARE_WITH_TIMEOUT(player.State().time, 0.0, patience);
    QVERIFY(!player.State().playing);
    PreviewFrame frame;
    QVERIFY(WaitForFrame(player, frame, [](const PreviewFrame& f) { return f.time == 0.0; }));
    QVERIFY(frame.meshes[0].positions == Curtain().meshes[0].positions);
}

/// A frame of so much cloth takes long; the calls do not wait for it. Most of them, that is: any single one may meet a
/// moment in which other work has the processor.
void TestPreviewPlayer::callsReturnAtOnce()
{
    const PreviewModel model = Curtain(16, 80);
    Host::ClothPreview alone(model);
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 3; ++i) {
        alone.Step();
    }
    const qint64 frameTime = timer.nsecsElapsed() / 3;
    PreviewPlayer player;
    player.SetModel(model);
    player.Play();
    QTRY_VERIFY_WITH_TIMEOUT(player.State().time > 0.0, patience);
    PreviewFrame frame;
    std::vector<qint64> times;
    for (int i = 0; i < 101; ++i) {
        timer.start();
        player.TakeFrame(frame);
        player.State();
        player.SetMotion({Host::MotionKind::Sway, 0, true});
        times.push_back(timer.nsecsElapsed());
        QTest::qWait(1);
    }
    std::sort(times.begin(), times.end());
    const qint64 usual = times[times.size() / 2];
    QVERIFY2(usual * 10 < frameTime, qPrintable(QStringLiteral("%1 of %2 ns").arg(usual).arg(frameTime)));
}

void TestPreviewPlayer::clearLeavesNoFrame()
{
    PreviewPlayer player;
    player.SetModel(Curtain());
    player.Play();
    QTRY_VERIFY_WITH_TIMEOUT(player.State().time > 0.1, patience);
    player.Clear();
    PreviewFrame frame;
    QVERIFY(!player.TakeFrame(frame));
    QTRY_VERIFY_WITH_TIMEOUT(!player.State().hasCloth, patience);
    QVERIFY(!player.TakeFrame(frame));
    QVERIFY(!player.State().playing);
    player.Play();
    player.Step();
    player.Reset();
    QTest::qWait(50);
    QVERIFY(!player.TakeFrame(frame));
    QVERIFY(!player.State().playing);
}

void TestPreviewPlayer::anotherObjectTakesOver()
{
    PreviewPlayer player;
    player.SetModel(Curtain(16, 10));
    player.Play();
    QTRY_VERIFY_WITH_TIMEOUT(player.State().time > 0.3, patience);
    QElapsedTimer timer;
    timer.start();
    player.SetModel(Curtain(32, 5));
    PreviewFrame frame;
    QVERIFY(WaitForFrame(player, frame));
    // Whatever comes from now on is of the new object, which begins at 0.
    QCOMPARE(frame.meshes[0].positions.size(), std::size_t{36});
    QVERIFY(frame.time <= MostSince(timer));
}

void TestPreviewPlayer::editsArriveWhilePlaying()
{
    PreviewPlayer player;
    PreviewModel model = Curtain();
    player.SetModel(model);
    player.Play();
    QTRY_VERIFY_WITH_TIMEOUT(player.State().time > 0.3, patience);
    model.meshes[0].materialSlots[0].values.wind.externalAcceleration[2] = 2000.0F;
    player.SetModel(model);
    PreviewFrame frame;
    QVERIFY(WaitForFrame(player, frame, [](const PreviewFrame& f) { return f.meshes[0].positions.back().z() > 5.0F; }));
    QVERIFY(frame.time > 0.3);
}

void TestPreviewPlayer::problemPausesAndIsReported()
{
    PreviewPlayer player;
    PreviewModel model = PreviewSamples::Of(ClothSamples::Sheet(4, 4, 3.0F), PreviewSamples::Plain());
    model.meshes[0].materialSlots[0].values.wind.externalAcceleration[0] = 1e6F;
    player.SetModel(model);
    for (int i = 0; i < 120; ++i) {
        player.Step();
    }
    QTRY_VERIFY_WITH_TIMEOUT(!player.State().problem.isEmpty(), patience);
    player.Play();
    QTRY_VERIFY_WITH_TIMEOUT(!player.State().playing, patience);
    player.Reset();
    QTRY_VERIFY_WITH_TIMEOUT(player.State().problem.isEmpty(), patience);
}

void TestPreviewPlayer::canBeDestroyedAtAnyTime()
{
    for (int wait = 0; wait < 20; ++wait) {
        auto player = std::make_unique<PreviewPlayer>();
        player->SetModel(Curtain(16, 30));
        player->Play();
        QTest::qWait(wait);
        player.reset();
    }
}

void TestPreviewPlayer::survivesRandomCalls()
{
    std::mt19937 random(5);
    PreviewPlayer player;
    PreviewFrame frame;
    for (int i = 0; i < 2000; ++i) {
        switch (random() % 10) {
        case 0:
            player.SetModel(Curtain(16 * (1 + random() % 3), int(2 + random() % 20)));
            break;
        case 1:
            player.Clear();
            break;
        case 2:
            player.Play();
            break;
        case 3:
            player.Pause();
            break;
        case 4:
            player.Step();
            break;
        case 5:
            player.Reset();
            break;
        case 6:
            player.SetMotion({Host::MotionKind(random() % 6), 0, random() % 2 == 0});
            break;
        case 7:
            player.TakeFrame(frame);
            break;
        case 8:
            player.State();
            break;
        default:
            QTest::qWait(int(random() % 3));
            break;
        }
    }
    player.SetMotion({});
    player.SetModel(Curtain(16, 30));
    player.Play();
    QVERIFY(WaitForFrame(player, frame, [](const PreviewFrame& f) { return f.time > 0.2; }));
}

SOFTCLOTH_TEST_WITH(TestPreviewPlayer, QCoreApplication)

#include "tst_preview_player.moc"
