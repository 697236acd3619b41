#include <MVPluginQt/EventSender.h>

#include "tests/support/TestCase.h"

#include <QMetaMethod>

#include <vector>

/// Plug-ins are connected to the signals of the vendor's library: names, arguments and order are its.
class TestEventSender : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void signalHasItsPlaceAndArguments_data();
    void signalHasItsPlaceAndArguments();
    void thereAreNoOtherSignals();
    void argumentsArriveUnchanged();
};

namespace {

using S = MV::CEventSender;
using Handles = BF::CArrayList<BF::CHandle*>;
using Indices = BF::CArrayList<unsigned long long>;

/// \p signal as the meta-object knows it. \p Signature is given by the caller, so that a signal with other arguments
/// does not compile.
template <class Signature>
QMetaMethod MethodOf(Signature S::*signal)
{
    return QMetaMethod::fromSignal(signal);
}

struct Event
{
    QMetaMethod method;
    const char* signature;
};

/// All events, in the order of the host's library.
std::vector<Event> Events()
{
    return {
        {MethodOf<void()>(&S::AboutToConvertPhysicsObjectType), "AboutToConvertPhysicsObjectType()"},
        {MethodOf<void(MV::EFileType)>(&S::AfterFileLoaded), "AfterFileLoaded(MV::EFileType)"},
        {MethodOf<void(MV::EDialogMode)>(&S::DialogModeChanged), "DialogModeChanged(MV::EDialogMode)"},
        {MethodOf<void(MV::EFileType)>(&S::FileLoaded), "FileLoaded(MV::EFileType)"},
        {MethodOf<void()>(&S::HierarchyChanged), "HierarchyChanged()"},
        {MethodOf<void()>(&S::ImageAsyncLoadAllDone), "ImageAsyncLoadAllDone()"},
        {MethodOf<void()>(&S::ImageAsyncLoadStart), "ImageAsyncLoadStart()"},
        {MethodOf<void(const Handles&)>(&S::LaunchedImageChanged),
         "LaunchedImageChanged(BF::CArrayList<BF::CHandle*>)"},
        {MethodOf<void(const Handles&, MV::EObjectChangedDataType)>(&S::ObjectDataChanged),
         "ObjectDataChanged(BF::CArrayList<BF::CHandle*>,MV::EObjectChangedDataType)"},
        {MethodOf<void(Handles)>(&S::ObjectDeleted), "ObjectDeleted(BF::CArrayList<BF::CHandle*>)"},
        {MethodOf<void()>(&S::ObjectSelectionChanged), "ObjectSelectionChanged()"},
        {MethodOf<void(MV::EPhysicsEngineType)>(&S::PhysicsEngineChanged),
         "PhysicsEngineChanged(MV::EPhysicsEngineType)"},
        {MethodOf<void(BF::CHandle*)>(&S::PhysicsSoftClothMultiMaterialsDetected),
         "PhysicsSoftClothMultiMaterialsDetected(BF::CHandle*)"},
        {MethodOf<void(BF::CHandle*, unsigned long long)>(&S::PickedMaterialIndexChanged),
         "PickedMaterialIndexChanged(BF::CHandle*,qulonglong)"},
        {MethodOf<void(BF::CHandle*, const Indices&, MV::ETextureChannel)>(&S::PickedMaterialTextureChanged),
         "PickedMaterialTextureChanged(BF::CHandle*,BF::CArrayList<unsigned long long>,MV::ETextureChannel)"},
        {MethodOf<void(MV::EPickMode, MV::EPickMode)>(&S::PickedModeChanged),
         "PickedModeChanged(MV::EPickMode,MV::EPickMode)"},
        {MethodOf<void()>(&S::Played), "Played()"},
        {MethodOf<void()>(&S::Stopped), "Stopped()"},
        {MethodOf<void()>(&S::UndoRedoDone), "UndoRedoDone()"},
    };
}

} // namespace

Q_DECLARE_METATYPE(QMetaMethod)

void TestEventSender::signalHasItsPlaceAndArguments_data()
{
    QTest::addColumn<QMetaMethod>("method");
    QTest::addColumn<QByteArray>("signature");
    QTest::addColumn<int>("place");
    int place = 0;
    for (const Event& event : Events()) {
        QTest::newRow(event.signature) << event.method << QByteArray(event.signature) << place++;
    }
}

void TestEventSender::signalHasItsPlaceAndArguments()
{
    QFETCH(QMetaMethod, method);
    QFETCH(QByteArray, signature);
    QFETCH(int, place);
    QCOMPARE(method.methodType(), QMetaMethod::Signal);
    QCOMPARE(method.methodSignature(), signature);
    QCOMPARE(method.methodIndex() - S::staticMetaObject.methodOffset(), place);
}

void TestEventSender::thereAreNoOtherSignals()
{
    QCOMPARE(S::staticMetaObject.methodCount() - S::staticMetaObject.methodOffset(), 19);
    QCOMPARE(S::staticMetaObject.className(), "MV::CEventSender");
    QCOMPARE(S::staticMetaObject.superClass()->className(), "QObject");
}

void TestEventSender::argumentsArriveUnchanged()
{
    S sender;
    int number = 0;
    auto* object = reinterpret_cast<BF::CHandle*>(&number);
    int received = 0;
    connect(&sender, &S::PickedMaterialTextureChanged, this,
            [&](BF::CHandle* gotObject, const Indices& indices, MV::ETextureChannel channel) {
                ++received;
                QCOMPARE(gotObject, object);
                QCOMPARE(indices, Indices({3, 1}));
                QCOMPARE(channel, MV::ETextureChannel::Weight);
            });
    connect(&sender, &S::PickedModeChanged, this, [&](MV::EPickMode mode, MV::EPickMode oldMode) {
        ++received;
        QCOMPARE(mode, MV::EPickMode::Material);
        QCOMPARE(oldMode, MV::EPickMode::None);
    });
    Q_EMIT sender.PickedMaterialTextureChanged(object, {3, 1}, MV::ETextureChannel::Weight);
    Q_EMIT sender.PickedModeChanged(MV::EPickMode::Material, MV::EPickMode::None);
    QCOMPARE(received, 2);
}

SOFTCLOTH_TEST(TestEventSender)

#include "tst_event_sender.moc"
