#include "host/simulation/PreviewPlayer.h"

#include "tests/support/TestCase.h"
#include "tests/unit/simulation/PreviewSamples.h"

#include <QElapsedTimer>
#include <QSignalSpy>

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
    return QTest::qWaitFor([&] { return player.TakeFrame(frame) && isWanted(frame); });
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
    QVERIFY(ready.wait());
    QVERIFY(player.TakeFrame(frame));
    QCOMPARE(frame.time, 0.0);
    QCOMPARE(frame.meshes[0].positions.size(), std::size_t{121});
    QVERIFY(!player.TakeFrame(frame));
    QTRY_COMPARE(changed.count(), 1);
    QVERIFY(player.State().hasCloth);
    QVERIFY(!player.State().playing);
}

void TestPreviewPlayer::stepMakesOneFrame()
{
    PreviewPlayer player;
    player.SetModel(Curtain());
    player.Step();
    player.Step();
    QTRY_VERIFY(player.State().time > 0.03);
    QTest::qWait(100);
    QCOMPARE(player.State().time, 2.0 / 60.0);
    QVERIFY(!player.State().playing);
}

void TestPreviewPlayer::playsInRealTimeAtMost()
{
    PreviewPlayer player;
    player.SetModel(Curtain());
    player.Play();
    QTRY_VERIFY(player.State().playing);
    QElapsedTimer timer;
    timer.start();
    const double before = player.State().time;
    QTest::qWait(1500);
    const double passed = double(timer.elapsed()) / 1000.0;
    const double played = player.State().time - before;
    // A machine with other work may be slower, never faster; at most two frames are made up for.
    QVERIFY2(played < passed + 4.0 / 60.0, qPrintable(QStringLiteral("%1 in %2").arg(played).arg(passed)));
    QVERIFY2(played > 0.2 * passed, qPrintable(QStringLiteral("%1 in %2").arg(played).arg(passed)));
    QVERIFY(player.State().speed > 0.2);
    QVERIFY(player.State().speed < 1.1);
}

void TestPreviewPlayer::pauseStops()
{
    PreviewPlayer player;
    player.SetModel(Curtain());
    player.Play();
    QTRY_VERIFY(player.State().time > 0.1);
    player.Pause();
    QTRY_VERIFY(!player.State().playing);
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
    QTRY_VERIFY(player.State().time > 0.5);
    player.Reset();
    QTRY_VERIFY(player.State().time < 0.3);
    QVERIFY(player.State().playing);
    player.Pause();
    player.Reset();
    QTRY_COMPARE(player.State().time, 0.0);
    PreviewFrame frame;
    QVERIFY(WaitForFrame(player, frame, [](const PreviewFrame& f) { return f.time == 0.0; }));
    QVERIFY(!player.State().playing);
    QVERIFY(frame.meshes[0].positions == Curtain().meshes[0].positions);
}

void TestPreviewPlayer::callsReturnAtOnce()
{
    // A frame of so much cloth takes long; the calls do not wait for it.
    PreviewPlayer player;
    player.SetModel(Curtain(16, 150));
    player.Play();
    QTRY_VERIFY_WITH_TIMEOUT(player.State().time > 0.0, 60000);
    QElapsedTimer timer;
    PreviewFrame frame;
    qint64 longest = 0;
    for (int i = 0; i < 200; ++i) {
        timer.start();
        player.TakeFrame(frame);
        player.State();
        player.SetMotion({Host::MotionKind::Sway, 0, true});
        longest = std::max(longest, timer.nsecsElapsed());
        QTest::qWait(1);
    }
    QVERIFY2(longest < 50'000'000, qPrintable(QString::number(longest)));
}

void TestPreviewPlayer::clearLeavesNoFrame()
{
    PreviewPlayer player;
    player.SetModel(Curtain());
    player.Play();
    QTRY_VERIFY(player.State().time > 0.1);
    player.Clear();
    PreviewFrame frame;
    QVERIFY(!player.TakeFrame(frame));
    QTRY_VERIFY(!player.State().hasCloth);
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
    QTRY_VERIFY(player.State().time > 0.3);
    player.SetModel(Curtain(32, 5));
    PreviewFrame frame;
    QVERIFY(WaitForFrame(player, frame));
    // Whatever comes from now on is of the new object.
    QCOMPARE(frame.meshes[0].positions.size(), std::size_t{36});
    QVERIFY(frame.time < 0.3);
}

void TestPreviewPlayer::editsArriveWhilePlaying()
{
    PreviewPlayer player;
    PreviewModel model = Curtain();
    player.SetModel(model);
    player.Play();
    QTRY_VERIFY(player.State().time > 0.3);
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
    QTRY_VERIFY(!player.State().problem.isEmpty());
    player.Play();
    QTRY_VERIFY(!player.State().playing);
    player.Reset();
    QTRY_VERIFY(player.State().problem.isEmpty());
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
