#include "tests/support/TestCase.h"
#include "tests/unit/material/DialogFixture.h"

#include <BFQtCustomWidgetPluginU/QItemLabel.h>

using MV::ETextureChannel;

/// What the image editor is given: the current texture, or the UV layout over the diffuse texture.
class TestTextureEditing : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void editorGetsTheCurrentTexture_data();
    void editorGetsTheCurrentTexture();
    void editorThatDoesNotStartIsToldToTheUser_data();
    void editorThatDoesNotStartIsToldToTheUser();
    void uvReferenceNeedsAHandle_data();
    void uvReferenceNeedsAHandle();
    void uvReferenceWithoutADiffuseTexture();
    void uvReferenceThatFailsIsToldToTheUser_data();
    void uvReferenceThatFailsIsToldToTheUser();
};

namespace {

void ClickLabel(const DialogFixture& fixture, const QString& label)
{
    QTest::mouseClick(fixture.Find<QItemLabel>(label.toLatin1().constData()), Qt::LeftButton);
}

} // namespace

void TestTextureEditing::editorGetsTheCurrentTexture_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QStringList>("calls");
    const QString index = QStringLiteral(R"(GetMaterialIndex("Hero", "Skin", 0) -> 0)");
    const QString path = QStringLiteral(R"(GetTexturePath("Hero", 0, %1, "%2") -> 0)");
    const QString launch = QStringLiteral("LaunchImageEditor([\"%1\"]) -> 0");
    QTest::newRow("diffuse") << QStringLiteral("qtDiffuseItemLabel")
                             << QStringList{index, path.arg(0).arg(QStringLiteral("/d.png")),
                                            launch.arg(QStringLiteral("/d.png"))};
    QTest::newRow("opacity") << QStringLiteral("qtOpacityItemLabel")
                             << QStringList{index, path.arg(1).arg(QStringLiteral("/o.png")),
                                            launch.arg(QStringLiteral("/o.png"))};
    QTest::newRow("weighting") << QStringLiteral("qtWeightingItemLabel")
                               << QStringList{QStringLiteral(
                                                  R"(GetWeightImageEditFile("Hero", "Body", "Skin", "/w.png") -> 0)"),
                                              launch.arg(QStringLiteral("/w.png"))};
    QTest::newRow("none yet") << QString()
                              << QStringList{index, path.arg(-1).arg(QStringLiteral("/n.png")),
                                             launch.arg(QStringLiteral("/n.png"))};
}

void TestTextureEditing::editorGetsTheCurrentTexture()
{
    QFETCH(const QString, label);
    QFETCH(const QStringList, calls);
    DialogFixture fixture;
    fixture.Open();
    ImagePlan& plan = fixture.host.plan;
    plan.textures[ETextureChannel::Diffuse] = {true, true, false, QStringLiteral("/d.png")};
    plan.textures[ETextureChannel::Opacity] = {true, true, false, QStringLiteral("/o.png")};
    plan.textures[ETextureChannel::Weight] = {true, true, false, QStringLiteral("/n.png")};
    plan.hasWeightTexture = true;
    plan.weightEditFile = QStringLiteral("/w.png");
    if (!label.isEmpty()) {
        ClickLabel(fixture, label);
    }
    fixture.Take();
    fixture.Click("qtLaunchPushButton");
    QCOMPARE(fixture.Take(), calls);
}

void TestTextureEditing::editorThatDoesNotStartIsToldToTheUser_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("operation");
    const QString weighting = QStringLiteral("qtWeightingItemLabel");
    const QString diffuse = QStringLiteral("qtDiffuseItemLabel");
    QTest::newRow("weighting, editor") << weighting << QStringLiteral("LaunchImageEditor");
    QTest::newRow("weighting, file") << weighting << QStringLiteral("GetWeightImageEditFile");
    QTest::newRow("diffuse, editor") << diffuse << QStringLiteral("LaunchImageEditor");
    QTest::newRow("diffuse, index") << diffuse << QStringLiteral("GetMaterialIndex");
    QTest::newRow("diffuse, path") << diffuse << QStringLiteral("GetTexturePath");
}

void TestTextureEditing::editorThatDoesNotStartIsToldToTheUser()
{
    QFETCH(const QString, label);
    QFETCH(const QString, operation);
    DialogFixture fixture;
    fixture.Open();
    fixture.host.plan.textures[ETextureChannel::Diffuse] = {true, true, false, {}};
    fixture.host.plan.hasWeightTexture = true;
    ClickLabel(fixture, label);
    fixture.host.Faults().FailOperation(operation, BF::Results::Refused);
    fixture.Take();
    fixture.Click("qtLaunchPushButton");
    const QStringList calls = fixture.Take();
    QVERIFY(calls.at(calls.size() - 2).startsWith(operation));
    QCOMPARE(calls.last(), Journal::Message(QStringLiteral("Failed to launch image editor.")));
}

void TestTextureEditing::uvReferenceNeedsAHandle_data()
{
    QTest::addColumn<quint32>("type");
    QTest::addColumn<bool>("isMesh");
    for (const quint32 type : {1U, 2U, 3U}) {
        QTest::addRow("type %u", type) << type << true;
    }
    for (const quint32 type : {0U, 4U, 5U, 30U, 53U}) {
        QTest::addRow("type %u", type) << type << false;
    }
}

void TestTextureEditing::uvReferenceNeedsAHandle()
{
    QFETCH(const quint32, type);
    QFETCH(const bool, isMesh);
    DialogFixture fixture;
    fixture.Open();
    fixture.Selection().objectType = type;
    fixture.Selection().mesh = fixture.MeshId(1);
    fixture.Selection().material = fixture.MaterialId(2);
    fixture.host.plan.textures[ETextureChannel::Diffuse].hasTexture = true;
    fixture.host.plan.uvFiles = QStringList{QStringLiteral("/uv1.png"), QStringLiteral("/uv2.png")};
    fixture.Click("qtUvRefPushButton");
    QStringList calls = fixture.Take();
    if (isMesh) {
        QCOMPARE(calls.takeFirst(), QStringLiteral(R"(GetMeshHandle("Clothes", "Clothes") -> 0)"));
    }
    const QString handle = isMesh ? QStringLiteral("Clothes") : QStringLiteral("Hero");
    QCOMPARE(calls,
             (QStringList{QStringLiteral(R"(GetMaterialIndex("%1", "Skirt", 2) -> 0)").arg(handle),
                          QStringLiteral(R"(GetMaterialTextureState("Skirt", 0, true, false, false, false) -> 0)"),
                          QStringLiteral(R"(ExportUvTexture("%1", 2, 0, ["/uv1.png", "/uv2.png"]) -> 0)").arg(handle),
                          QStringLiteral(R"(LaunchImageEditor(["/uv1.png", "/uv2.png"]) -> 0)")}));
}

void TestTextureEditing::uvReferenceWithoutADiffuseTexture()
{
    DialogFixture fixture;
    fixture.Open();
    fixture.Click("qtUvRefPushButton");
    QCOMPARE(fixture.Take(),
             (QStringList{QStringLiteral(R"(GetMeshHandle("Body", "Body") -> 0)"),
                          QStringLiteral(R"(GetMaterialIndex("Body", "Skin", 0) -> 0)"),
                          QStringLiteral(R"(GetMaterialTextureState("Skin", 0, false, false, false, false) -> 0)"),
                          Journal::Message(QStringLiteral("Diffuse Uv Texture does not exist."))}));
}

void TestTextureEditing::uvReferenceThatFailsIsToldToTheUser_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QString>("text");
    const QString notLaunched = QStringLiteral("Failed to launch image editor.");
    for (const char* operation : {"GetMeshHandle", "GetMaterialIndex", "ExportUvTexture", "LaunchImageEditor"}) {
        QTest::newRow(operation) << QString::fromLatin1(operation) << notLaunched;
    }
    QTest::newRow("state") << QStringLiteral("GetMaterialTextureState")
                           << QStringLiteral("Diffuse Uv Texture does not exist.");
}

void TestTextureEditing::uvReferenceThatFailsIsToldToTheUser()
{
    QFETCH(const QString, operation);
    QFETCH(const QString, text);
    DialogFixture fixture;
    fixture.Open();
    fixture.host.plan.textures[ETextureChannel::Diffuse].hasTexture = true;
    fixture.host.Faults().FailOperation(operation, BF::Results::Refused);
    fixture.Click("qtUvRefPushButton");
    const QStringList calls = fixture.Take();
    QVERIFY(calls.at(calls.size() - 2).startsWith(operation));
    QCOMPARE(calls.last(), Journal::Message(text));
}

SOFTCLOTH_TEST(TestTextureEditing)
#include "tst_texture_editing.moc"
