#include "host/scene/Handles.h"
#include "host/services/ImageEditor.h"
#include "plugin/services/SceneService.h"
#include "plugin/services/UiService.h"
#include "tests/support/FullDisk.h"
#include "tests/support/SampleImages.h"
#include "tests/support/SampleModels.h"
#include "tests/support/UserDialogs.h"
#include "tests/unit/services/ImageTestCase.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QSignalSpy>
#include <QWidget>

using MV::ETextureChannel;

/// The UV layout that the user paints over: where it lies, and that what is painted becomes the weight image.
class TestPaintedLayout : public ImageTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void layoutLiesWhereTheUserWantsIt_data();
    void layoutLiesWhereTheUserWantsIt();
    void paintedLayoutOutlivesTheSession();
    void placeIsAskedOnce();
    void layoutThatIsGoneIsAskedForAgain();
    void cancelledLayoutOpensNothing();
    void freePlaceInTheLastFolderIsProposed();
    void keptLayoutIsPaintedOnInALaterSession();
    void layoutThatCannotBeWrittenIsTold_data();
    void layoutThatCannotBeWrittenIsTold();

    void savedLayoutBecomesTheWeightImage();
    void laterSavesAreNoFurtherSteps();
    void saveAfterAnUndoIsTakenAgain();
    void blackLayoutIsNotTaken();
    void meshWithoutUvsIsNamed();
    void layoutOfAnObjectIsTakenByAllItsMeshes();
    void unpaintedLayoutIsNotTaken();
    void layoutOfAnotherSceneIsNotTaken();

protected:
    void SetUp() override;

private:
    /// What the panel does for its button. \return the file, or a null string
    QString OpenLayout(BF::CHandle* objectOrMesh, BF::Result expected = BF::Results::Success, std::size_t material = 0);
    /// The layout of "Skin" at \p path, which the user has chosen.
    QString LayoutAt(const QString& path)
    {
        m_host->Answers().AddFile(path);
        return OpenLayout(Host::ToHandle(m_address.mesh));
    }
    /// What the image editor does when the user saves.
    static void Paint(const QString& file, const QColor& color)
    {
        QVERIFY(SampleImages::Filled({64, 64}, color).save(file, "PNG"));
    }
    bool WaitForChange() { return m_changes->wait() && m_changes->takeFirst().size() == 1; }
    int Steps() const { return CurrentScene().UndoStack().index(); }

    std::unique_ptr<QSignalSpy> m_changes;
};

void TestPaintedLayout::SetUp()
{
    ImageTestCase::SetUp();
    qRegisterMetaType<BF::CArrayList<BF::CHandle*>>();
    m_changes = std::make_unique<QSignalSpy>(m_host->GetEventSender(), &MV::CEventSender::LaunchedImageChanged);
    m_host->Editor().SetProgram(QStringLiteral("true"));
    for (Host::Material& material : m_hero->materials) {
        material.textures[ETextureChannel::Diffuse].embedded =
            SampleImages::Encoded(QStringLiteral("png"), SampleImages::Filled({64, 64}, Qt::red));
    }
}

QString TestPaintedLayout::OpenLayout(BF::CHandle* objectOrMesh, BF::Result expected, std::size_t material)
{
    BF::CArrayList<std::wstring> files{L"former"};
    const BF::Result exported = Queries().ExportUvTexture(objectOrMesh, material, ETextureChannel::Diffuse, files);
    [](BF::Result actual, BF::Result wanted) { QCOMPARE(actual, wanted); }(exported, expected);
    if (exported.IsFailure()) {
        return {};
    }
    const BF::Result launched = m_host->GetUiService()->LaunchImageEditor(files);
    [](BF::Result actual, BF::Result wanted) { QCOMPARE(actual, wanted); }(launched, expected);
    return files.IsEmpty() ? QString() : QString::fromStdWString(files[0]);
}

void TestPaintedLayout::layoutLiesWhereTheUserWantsIt_data()
{
    QTest::addColumn<QByteArray>("suffix");
    for (const char* suffix : {"png", "jpg", "jpeg", "bmp", "PNG"}) {
        QTest::newRow(suffix) << QByteArray(suffix);
    }
}

void TestPaintedLayout::layoutLiesWhereTheUserWantsIt()
{
    QFETCH(const QByteArray, suffix);
    const QString path = PathOf(QStringLiteral("my skin.") + QString::fromLatin1(suffix));
    QCOMPARE(LayoutAt(path), path);
    QCOMPARE(QImage(path).size(), QSize(1024, 1024));
    QCOMPARE(QImageReader::imageFormat(path).replace("jpg", "jpeg"),
             suffix.toLower() == "jpg" ? QByteArray("jpeg") : suffix.toLower());
}

void TestPaintedLayout::paintedLayoutOutlivesTheSession()
{
    const QString file = LayoutAt(PathOf(QStringLiteral("skin.png")));
    Paint(file, Qt::white);
    m_changes.reset();
    m_host.reset();
    QCOMPARE(QImage(file).pixelColor(5, 5), QColor(Qt::white));
}

void TestPaintedLayout::placeIsAskedOnce()
{
    const QString file = LayoutAt(PathOf(QStringLiteral("skin.png")));
    Paint(file, Qt::white);
    m_host->Answers().AddFile(PathOf(QStringLiteral("hair.png")));
    QCOMPARE(OpenLayout(Host::ToHandle(m_address.mesh)), file);
    QCOMPARE(QImage(file).pixelColor(5, 5), QColor(Qt::white)); // as it was painted
    QVERIFY(!m_host->Answers().IsEmpty());
    // Another material has a layout of its own.
    QCOMPARE(OpenLayout(Host::ToHandle(m_address.mesh), BF::Results::Success, 1), PathOf(QStringLiteral("hair.png")));
    QVERIFY(m_host->Answers().IsEmpty());
}

void TestPaintedLayout::layoutThatIsGoneIsAskedForAgain()
{
    const QString file = LayoutAt(PathOf(QStringLiteral("skin.png")));
    QVERIFY(QFile::remove(file));
    const QString other = PathOf(QStringLiteral("other.png"));
    QCOMPARE(LayoutAt(other), other);
}

void TestPaintedLayout::cancelledLayoutOpensNothing()
{
    m_host->Answers().AddFile({});
    m_host->Editor().SetProgram(QStringLiteral("/no/such/program"));
    QCOMPARE(OpenLayout(Host::ToHandle(m_address.mesh), BF::Results::NothingDone), QString());
    QVERIFY(m_problems.isEmpty());
}

void TestPaintedLayout::freePlaceInTheLastFolderIsProposed()
{
    m_host->Answers().unattended = false;
    QWidget window;
    m_host->SetMainWindow(&window);
    Paint(PathOf(QStringLiteral("Hero-Skin-uv.png")), Qt::white);
    Host::UvLayoutFiles& layouts = m_host->Editor().Layouts();
    const QString last = PathOf(QStringLiteral("last.png"));
    layouts.SetKept({last});
    QSignalSpy kept(&layouts, &Host::UvLayoutFiles::KeptChanged);
    UserDialogs::WithFileDialog([this] { OpenLayout(Host::ToHandle(m_address.mesh)); },
                                [this](QFileDialog& dialog) {
                                    QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptSave);
                                    QCOMPARE(dialog.selectedFiles(),
                                             QStringList{PathOf(QStringLiteral("Hero-Skin-uv-2.png"))});
                                    static_cast<QDialog&>(dialog).done(QDialog::Accepted);
                                });
    const QString file = PathOf(QStringLiteral("Hero-Skin-uv-2.png"));
    QVERIFY(QFile::exists(file));
    QCOMPARE(kept.size(), 1);
    QCOMPARE(layouts.Kept(), (QStringList{file, last}));
}

void TestPaintedLayout::keptLayoutIsPaintedOnInALaterSession()
{
    const QString file = PathOf(QStringLiteral("skin.png"));
    Paint(file, Qt::white);
    Load(file);
    m_host->Editor().Layouts().SetKept({file});
    QCOMPARE(OpenLayout(Host::ToHandle(m_address.mesh)), file);
    m_changes->clear();
    Paint(file, QColor(60, 60, 60));
    QVERIFY(WaitForChange());
    QCOMPARE(qGray(Render(WeightTexture(), {20, 20}).pixel(10, 10)), 60);
    // Any other weight image is no layout.
    const QString other = PathOf(QStringLiteral("other.png"));
    Paint(other, Qt::white);
    m_address = Host::Scene::SlotsOf(*m_hero).at(1);
    Load(other);
    const QString hair = PathOf(QStringLiteral("hair.png"));
    m_host->Answers().AddFile(hair);
    QCOMPARE(OpenLayout(Host::ToHandle(m_address.mesh), BF::Results::Success, 1), hair);
}

void TestPaintedLayout::layoutThatCannotBeWrittenIsTold_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("no such folder") << QStringLiteral("missing/skin.png");
    QTest::newRow("format that cannot be written") << QStringLiteral("skin.gif");
    QTest::newRow("no format") << QStringLiteral("skin");
}

void TestPaintedLayout::layoutThatCannotBeWrittenIsTold()
{
    QFETCH(const QString, name);
    m_host->Answers().AddFile(PathOf(name));
    QCOMPARE(OpenLayout(Host::ToHandle(m_address.mesh), BF::Results::ResourceFailure), QString());
    ShowBox();
    QCOMPARE(m_problems.size(), 1);
    QVERIFY2(m_problems.first().contains(QDir::toNativeSeparators(PathOf(name))), qPrintable(m_problems.first()));
    // The place is asked for again.
    QCOMPARE(LayoutAt(PathOf(QStringLiteral("skin.png"))), PathOf(QStringLiteral("skin.png")));
}

void TestPaintedLayout::savedLayoutBecomesTheWeightImage()
{
    const QString file = LayoutAt(PathOf(QStringLiteral("skin.png")));
    const Host::ClothState before = CurrentScene().FindSlot(m_address)->cloth;
    QVERIFY(!before.active);
    const int steps = Steps();
    Paint(file, Qt::white);
    QVERIFY(WaitForChange());
    QCOMPARE(Weight().image.filePath, file);
    QVERIFY(CurrentScene().FindSlot(m_address)->cloth.active);
    QVERIFY(m_hero->state.softCloth);
    QCOMPARE(Steps(), steps + 1);
    QVERIFY(CurrentScene().UndoStack().undoText().contains(QStringLiteral("skin.png")));
    QVERIFY(m_problems.isEmpty());
    // Only of the material that was painted.
    QVERIFY(CurrentScene().FindSlot(Host::Scene::SlotsOf(*m_hero).at(1))->cloth.weight.IsNone());
    m_host->Undo();
    QVERIFY(CurrentScene().FindSlot(m_address)->cloth == before);
    QVERIFY(!m_hero->state.softCloth);
}

void TestPaintedLayout::laterSavesAreNoFurtherSteps()
{
    const QString file = LayoutAt(PathOf(QStringLiteral("skin.png")));
    Paint(file, Qt::white);
    QVERIFY(WaitForChange());
    const int steps = Steps();
    Paint(file, QColor(60, 60, 60));
    QVERIFY(WaitForChange());
    QCOMPARE(qGray(Render(WeightTexture(), {20, 20}).pixel(10, 10)), 60);
    QCOMPARE(Steps(), steps);
}

void TestPaintedLayout::saveAfterAnUndoIsTakenAgain()
{
    const QString file = LayoutAt(PathOf(QStringLiteral("skin.png")));
    Paint(file, Qt::white);
    QVERIFY(WaitForChange());
    m_host->Undo();
    QVERIFY(Weight().IsNone());
    m_changes->clear();
    Paint(file, Qt::lightGray);
    QVERIFY(WaitForChange());
    QCOMPARE(Weight().image.filePath, file);
}

void TestPaintedLayout::blackLayoutIsNotTaken()
{
    const QString file = LayoutAt(PathOf(QStringLiteral("skin.png")));
    const int steps = Steps();
    Paint(file, Qt::black);
    QTRY_COMPARE(m_problems.size(), 1);
    QVERIFY(m_problems.first().contains(QStringLiteral("black")));
    QVERIFY(Weight().IsNone());
    QCOMPARE(Steps(), steps);
    QVERIFY(m_changes->isEmpty());
    Paint(file, Qt::white);
    QVERIFY(WaitForChange());
    QCOMPARE(Weight().image.filePath, file);
}

void TestPaintedLayout::meshWithoutUvsIsNamed()
{
    m_hero->meshes.at(0).uvs.clear();
    const QString file = LayoutAt(PathOf(QStringLiteral("skin.png")));
    Paint(file, Qt::black);
    QTRY_COMPARE(m_problems.size(), 1);
    QVERIFY(m_problems.first().contains(QStringLiteral("\"Body\" has no texture coordinates")));
    QVERIFY(Weight().IsNone());
}

void TestPaintedLayout::layoutOfAnObjectIsTakenByAllItsMeshes()
{
    Host::Object twins =
        SampleModels::Make(QStringLiteral("Twins"), {{QStringLiteral("Left"), {QStringLiteral("Silk")}},
                                                     {QStringLiteral("Right"), {QStringLiteral("Silk")}}});
    twins.materials.at(0).textures = m_hero->materials.at(0).textures;
    const Host::Object& object = CurrentScene().AddObject(std::move(twins));
    m_host->Answers().AddFile(PathOf(QStringLiteral("silk.png")));
    const QString file = OpenLayout(object.handle);
    const int steps = Steps();
    Paint(file, Qt::white);
    QVERIFY(WaitForChange());
    for (const Host::Mesh& mesh : object.meshes) {
        QCOMPARE(mesh.materialSlots.at(0).cloth.weight.image.filePath, file);
    }
    QCOMPARE(Steps(), steps + 1);
}

void TestPaintedLayout::unpaintedLayoutIsNotTaken()
{
    // A layout in the place of another one that is watched is no save of the editor.
    const QString file = LayoutAt(PathOf(QStringLiteral("skin.png")));
    m_host->Answers().AddFile(file);
    OpenLayout(Host::ToHandle(m_hero->meshes.at(1).id), BF::Results::Success, 2);
    QTest::qWait(600); // longer than a change takes to be heard
    QVERIFY(m_changes->isEmpty());
    QVERIFY(Weight().IsNone());
}

void TestPaintedLayout::layoutOfAnotherSceneIsNotTaken()
{
    const QString file = LayoutAt(PathOf(QStringLiteral("skin.png")));
    m_host->ReplaceScene(std::make_unique<Host::Scene>(), MV::EFileType::Scene);
    CurrentScene().AddObject(SampleModels::Hero());
    m_changes->clear();
    Paint(file, Qt::white);
    QTest::qWait(600);
    QVERIFY(m_changes->isEmpty());
    for (const Host::ClothAddress& address : Host::Scene::SlotsOf(*CurrentScene().Objects().front())) {
        QVERIFY(CurrentScene().FindSlot(address)->cloth.weight.IsNone());
    }
}

SOFTCLOTH_TEST(TestPaintedLayout)

#include "tst_painted_layout.moc"
