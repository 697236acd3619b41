#include "tests/support/Files.h"
#include "tests/support/TestCase.h"
#include "tests/unit/plugin/PluginFixture.h"
#include "tests/unit/plugin/fakes/FakeParts.h"

#include <MVPluginQt/EventSender.h>

#include <QMetaMethod>
#include <QRegularExpression>

#include <array>

using MV::ECompatibleApp;

/// Which of the host's events the plug-in object follows, and that it follows each of them once.
class TestEventConnections : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyEventIsInTheTable();
    void everyEventIsDocumented();
    void eventIsFollowedAsTheTableSays_data();
    void eventIsFollowedAsTheTableSays();
    void nothingIsFollowedAfterAFailedPart_data();
    void nothingIsFollowedAfterAFailedPart();
    void dialogModeChangeIsFollowedInFamilyBOnly_data();
    void dialogModeChangeIsFollowedInFamilyBOnly();
};

namespace {

struct EventRow
{
    const char* eventSignal;
    int inFamilyA;
    int inFamilyB;
    int inNeither;
};

const std::array<EventRow, 19> events{{
    {SIGNAL(AboutToConvertPhysicsObjectType()), 1, 1, 1},
    {SIGNAL(AfterFileLoaded(MV::EFileType)), 1, 1, 1},
    {SIGNAL(DialogModeChanged(MV::EDialogMode)), 0, 1, 0},
    {SIGNAL(FileLoaded(MV::EFileType)), 0, 0, 0},
    {SIGNAL(HierarchyChanged()), 1, 1, 1},
    {SIGNAL(ImageAsyncLoadAllDone()), 0, 0, 0},
    {SIGNAL(ImageAsyncLoadStart()), 0, 0, 0},
    {SIGNAL(LaunchedImageChanged(BF::CArrayList<BF::CHandle*>)), 1, 1, 1},
    {SIGNAL(ObjectDataChanged(BF::CArrayList<BF::CHandle*>, MV::EObjectChangedDataType)), 1, 1, 1},
    {SIGNAL(ObjectDeleted(BF::CArrayList<BF::CHandle*>)), 1, 1, 1},
    {SIGNAL(ObjectSelectionChanged()), 1, 1, 1},
    {SIGNAL(PhysicsEngineChanged(MV::EPhysicsEngineType)), 1, 1, 1},
    {SIGNAL(PhysicsSoftClothMultiMaterialsDetected(BF::CHandle*)), 0, 0, 0},
    {SIGNAL(PickedMaterialIndexChanged(BF::CHandle*, qulonglong)), 1, 1, 1},
    {SIGNAL(PickedMaterialTextureChanged(BF::CHandle*, BF::CArrayList<unsigned long long>, MV::ETextureChannel)), 0, 0,
     0},
    {SIGNAL(PickedModeChanged(MV::EPickMode, MV::EPickMode)), 1, 1, 1},
    {SIGNAL(Played()), 1, 1, 1},
    {SIGNAL(Stopped()), 1, 1, 1},
    {SIGNAL(UndoRedoDone()), 1, 1, 1},
}};

/// The signature without the mark that SIGNAL() puts before it.
QByteArray Signature(const EventRow& row)
{
    return QMetaObject::normalizedSignature(row.eventSignal + 1);
}

QByteArray EventName(const EventRow& row)
{
    const QByteArray signature = Signature(row);
    return signature.left(signature.indexOf('('));
}

} // namespace

void TestEventConnections::everyEventIsInTheTable()
{
    const QMetaObject& sender = MV::CEventSender::staticMetaObject;
    QList<QByteArray> sent;
    for (int i = sender.methodOffset(); i < sender.methodCount(); ++i) {
        sent.append(sender.method(i).methodSignature());
    }
    QList<QByteArray> listed;
    for (const EventRow& row : events) {
        listed.append(Signature(row));
    }
    QCOMPARE(listed, sent);
}

void TestEventConnections::everyEventIsDocumented()
{
    const QString document = QString::fromUtf8(Files::ReadText(QStringLiteral(SOFTCLOTH_HOST_DOCUMENT)));
    const QString table = document.section(QLatin1String("\n## Events\n"), 1).section(QLatin1String("\n## "), 0, 0);
    QStringList documented;
    auto rows = QRegularExpression(QStringLiteral("^\\| `(\\w+)` \\| \\S"), QRegularExpression::MultilineOption)
                    .globalMatch(table);
    while (rows.hasNext()) {
        documented.append(rows.next().captured(1));
    }
    documented.sort();
    QStringList sent;
    for (const EventRow& row : events) {
        sent.append(QString::fromLatin1(EventName(row)));
    }
    QCOMPARE(documented, sent);
}

void TestEventConnections::eventIsFollowedAsTheTableSays_data()
{
    QTest::addColumn<ECompatibleApp>("app");
    QTest::addColumn<QByteArray>("eventSignal");
    QTest::addColumn<int>("connections");
    for (const EventRow& row : events) {
        const QByteArray name = EventName(row);
        QTest::newRow(name + " in family A") << ECompatibleApp::FamilyA << QByteArray(row.eventSignal) << row.inFamilyA;
        QTest::newRow(name + " in family B") << ECompatibleApp::FamilyB << QByteArray(row.eventSignal) << row.inFamilyB;
        QTest::newRow(name + " in neither") << ECompatibleApp(0x8) << QByteArray(row.eventSignal) << row.inNeither;
    }
}

void TestEventConnections::eventIsFollowedAsTheTableSays()
{
    QFETCH(const ECompatibleApp, app);
    QFETCH(const QByteArray, eventSignal);
    QFETCH(const int, connections);
    PluginFixture fixture(app);
    QCOMPARE(fixture.ConnectionCount(eventSignal), 0);
    QCOMPARE(fixture.Initialize(), BF::Results::Success);
    QCOMPARE(fixture.ConnectionCount(eventSignal), connections);
}

void TestEventConnections::nothingIsFollowedAfterAFailedPart_data()
{
    QTest::addColumn<QString>("part");
    for (const char* part : {"Table", "Dialog", "Preset", "Property", "Collision", "Wind"}) {
        QTest::newRow(part) << QString::fromLatin1(part);
    }
}

void TestEventConnections::nothingIsFollowedAfterAFailedPart()
{
    QFETCH(const QString, part);
    PluginFixture fixture(ECompatibleApp::Both);
    FakeParts::results.insert(part + QLatin1String(".Init"), BF::Results::Refused);
    QCOMPARE(fixture.Initialize(), BF::Results::Refused);
    for (const EventRow& row : events) {
        QVERIFY2(fixture.ConnectionCount(row.eventSignal) == 0, row.eventSignal);
    }
}

void TestEventConnections::dialogModeChangeIsFollowedInFamilyBOnly_data()
{
    QTest::addColumn<ECompatibleApp>("app");
    QTest::addColumn<int>("connections");
    QTest::newRow("family A") << ECompatibleApp::FamilyA << 0;
    QTest::newRow("family B") << ECompatibleApp::FamilyB << 1;
    QTest::newRow("one bit of family B") << ECompatibleApp(0x800000) << 1;
    QTest::newRow("other bit of family B") << ECompatibleApp(0x1000000) << 1;
    QTest::newRow("both") << ECompatibleApp::Both << 1;
    QTest::newRow("neither") << ECompatibleApp(0x8) << 0;
}

void TestEventConnections::dialogModeChangeIsFollowedInFamilyBOnly()
{
    QFETCH(const ECompatibleApp, app);
    QFETCH(const int, connections);
    PluginFixture fixture(app);
    QCOMPARE(fixture.Initialize(), BF::Results::Success);
    QCOMPARE(fixture.ConnectionCount(SIGNAL(DialogModeChanged(MV::EDialogMode))), connections);
    QCOMPARE(fixture.ConnectionCount(SIGNAL(ObjectSelectionChanged())), 1);
}

SOFTCLOTH_TEST(TestEventConnections)
#include "tst_event_connections.moc"
