#include "host/services/Pictures.h"
#include "host/services/WeightImages.h"
#include "plugin/services/EditService.h"
#include "plugin/services/FileService.h"
#include "plugin/services/SceneService.h"
#include "tests/support/FullDisk.h"
#include "tests/support/SampleImages.h"
#include "tests/unit/services/ImageTestCase.h"

#include <QDir>
#include <QFile>

#include <cstdlib>
#include <functional>

class TestWeightImageEdits;
using Edit = std::function<BF::Result(TestWeightImageEdits&)>;
Q_DECLARE_METATYPE(Edit)

/// Deleting, embedding, adjusting and saving weight images.
class TestWeightImageEdits : public ImageTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void materialWithoutImageTellsSo();
    void imageIsDeleted();
    void imageIsEmbedded();
    void embeddingAnUnreadableFileChangesNothing();
    void nothingToDoIsNoStep();
    void undoTakesBackExactly_data();
    void undoTakesBackExactly();

    void adjustmentIsStored();
    void adjustmentThatMovesNothingIsRefusedAndTakenBack();
    void adjustmentOutOfRangeIsInvalid_data();
    void adjustmentOutOfRangeIsInvalid();
    void adjustmentOfAnUnreadableImageIsNoStep();
    void adjustmentByPlanLeavesAStepToTakeBack();
    void dragIsOneStep();
    void dragsAreStepsOfTheirOwn();
    void dragBackToTheStartIsNoStep();
    void dragThroughBlackIsOneStep();
    void dragOfAnotherMaterialIsAnotherStep();
    void readingAnotherMaterialEndsADrag();
    void undoEndsADrag();
    void callersValuesAreNotReadBackWhileDragging();
    void thumbnailShowsTheAdjustment_data();
    void thumbnailShowsTheAdjustment();

    void savedImageIsAsItLooks_data();
    void savedImageIsAsItLooks();
    void untouchedImageIsSavedAsItCame_data();
    void untouchedImageIsSavedAsItCame();
    void savingChangesNothingInTheScene();
    void imageCannotBeSaved_data();
    void imageCannotBeSaved();
    void failedSaveLeavesTheOldFile();
#ifdef Q_OS_UNIX // Elsewhere no limit makes a disk look full.
    void fullDiskLeavesTheOldFile();
#endif
    void adjustedImageIsNotSavedOverItsOwnFile();
    void unknownPlaceIsInvalid();

private:
    BF::Result Save(const QString& path) const
    {
        return m_host->GetFileService()->SaveWeightImage(m_address.object, m_address.mesh, m_address.material,
                                                         path.toStdWString());
    }
    /// The weight image of the first material becomes an embedded one of gray 100 everywhere.
    void EmbedGray() const
    {
        Load(ImageFile(QStringLiteral("gray.png"), SampleImages::Filled({8, 8}, QColor(100, 100, 100))));
        Embed();
    }
    int Steps() const
    {
        return CurrentScene().UndoStack().count();
    }
};

void TestWeightImageEdits::materialWithoutImageTellsSo()
{
    BF::CHandle* texture = reinterpret_cast<BF::CHandle*>(0x20);
    QCOMPARE(Queries().GetWeightTexture(m_address.object, m_address.mesh, m_address.material, texture),
             BF::Results::Success);
    QVERIFY(!texture);
    QVERIFY(!State().hasFile);
    QVERIFY(!State().embedded);
    QVERIFY(!State().reload);
    std::wstring path = L"x";
    QCOMPARE(Queries().GetWeightImagePath(m_address.object, m_address.mesh, m_address.material, path),
             BF::Results::Success);
    QVERIFY(path.empty());
    QCOMPARE(Queries().GetWeightImageEditFile(m_address.object, m_address.mesh, m_address.material, path),
             BF::Results::Refused);
}

void TestWeightImageEdits::imageIsDeleted()
{
    EmbedGray();
    Adjust(10, 20);
    QCOMPARE(Delete(), BF::Results::Success);
    QVERIFY(!WeightTexture());
    QCOMPARE(Weight().brightness, 0);
    QCOMPARE(Weight().contrast, 0);
    QVERIFY(CurrentScene().FindSlot(m_address)->cloth.active);
}

void TestWeightImageEdits::imageIsEmbedded()
{
    const QImage image = SampleImages::HalfBlack({8, 8});
    const QString path = ImageFile(QStringLiteral("map.png"), image);
    Load(path);
    const BF::CHandle* linked = WeightTexture();
    QCOMPARE(Embed(), BF::Results::Success);
    QVERIFY(!State().hasFile);
    QVERIFY(State().embedded);
    QVERIFY(State().reload);
    QCOMPARE(WeightTexture(), linked);
    QCOMPARE(Weight().image.embedded, SampleImages::Encoded(QStringLiteral("png"), image));
    QVERIFY(QFile::remove(path));
    QCOMPARE(qGray(Render(WeightTexture(), {20, 20}).pixel(2, 10)), 0);
    QCOMPARE(qGray(Render(WeightTexture(), {20, 20}).pixel(17, 10)), 255);
}

void TestWeightImageEdits::embeddingAnUnreadableFileChangesNothing()
{
    const QString path = ImageFile(QStringLiteral("map.png"), SampleImages::HalfBlack({8, 8}));
    Load(path);
    QVERIFY(QFile::remove(path));
    QCOMPARE(Embed(), BF::Results::ResourceFailure);
    SampleImages::WriteFile(path, "damaged");
    QCOMPARE(Embed(), BF::Results::ResourceFailure);
    QCOMPARE(Steps(), 1);
    QVERIFY(State().hasFile);
    QCOMPARE(m_problems.size(), 2);
    QVERIFY(m_problems.first().contains(QDir::toNativeSeparators(path)));
}

void TestWeightImageEdits::nothingToDoIsNoStep()
{
    QCOMPARE(Delete(), BF::Results::NothingDone);
    QCOMPARE(Embed(), BF::Results::NothingDone);
    QCOMPARE(Adjust(1, 1), BF::Results::NothingDone);
    QCOMPARE(Steps(), 0);
    EmbedGray();
    QCOMPARE(Embed(), BF::Results::NothingDone);
    QCOMPARE(Adjust(0, 0), BF::Results::Success);
    QCOMPARE(Steps(), 2);
}

void TestWeightImageEdits::undoTakesBackExactly_data()
{
    QTest::addColumn<Edit>("edit");
    using Test = TestWeightImageEdits;
    QTest::newRow("load") << Edit([](Test& test) {
        return test.Load(test.ImageFile(QStringLiteral("b.bmp"), SampleImages::Filled({3, 3}, Qt::white)));
    });
    QTest::newRow("delete") << Edit([](Test& test) { return test.Delete(); });
    QTest::newRow("embed") << Edit([](Test& test) { return test.Embed(); });
    QTest::newRow("adjust") << Edit([](Test& test) { return test.Adjust(-7, 9); });
    QTest::newRow("edit outside") << Edit([](Test& test) {
        test.Embed();
        return test.m_host->Weights().ReplaceEmbedded(
            test.m_address, SampleImages::Encoded(QStringLiteral("png"), SampleImages::Filled({9, 9}, Qt::white)));
    });
}

void TestWeightImageEdits::undoTakesBackExactly()
{
    QFETCH(Edit, edit);
    Load(ImageFile(QStringLiteral("a.png"), SampleImages::HalfBlack({8, 8})));
    Adjust(3, 4);
    std::vector<Host::ClothState> before;
    for (const auto& address : Host::Scene::SlotsOf(*m_hero)) {
        before.push_back(CurrentScene().FindSlot(address)->cloth);
    }
    const Host::ObjectState object = m_hero->state;
    const int steps = Steps();
    QCOMPARE(edit(*this), BF::Results::Success);
    const Host::ClothState after = CurrentScene().FindSlot(m_address)->cloth;
    QVERIFY(!(after == before.front()));
    while (CurrentScene().UndoStack().index() > steps) {
        QCOMPARE(Edits().UndoLastEdit(), BF::Results::Success);
    }
    std::size_t slot = 0;
    for (const auto& address : Host::Scene::SlotsOf(*m_hero)) {
        QVERIFY(CurrentScene().FindSlot(address)->cloth == before.at(slot++));
    }
    QVERIFY(m_hero->state == object);
    CurrentScene().UndoStack().setIndex(Steps());
    QVERIFY(CurrentScene().FindSlot(m_address)->cloth == after);
}

void TestWeightImageEdits::adjustmentIsStored()
{
    EmbedGray();
    QCOMPARE(Adjust(-12, 34), BF::Results::Success);
    MV::WeightImageAdjust adjust{7, 7, 7};
    QCOMPARE(Queries().GetWeightImageAdjust(m_address.object, m_address.mesh, m_address.material, adjust),
             BF::Results::Success);
    QCOMPARE(adjust.zero, 0);
    QCOMPARE(adjust.brightness, -12);
    QCOMPARE(adjust.contrast, 34);
}

void TestWeightImageEdits::adjustmentThatMovesNothingIsRefusedAndTakenBack()
{
    EmbedGray();
    Adjust(5, 0);
    const Host::ClothState former = CurrentScene().FindSlot(m_address)->cloth;
    const int steps = Steps();
    QCOMPARE(Adjust(-100, 0), BF::Results::Refused);
    QCOMPARE(Weight().brightness, -100); // until it is taken back
    QCOMPARE(Edits().UndoLastEdit(), BF::Results::Success);
    QVERIFY(CurrentScene().FindSlot(m_address)->cloth == former);
    QCOMPARE(Steps(), steps);
    QCOMPARE(Adjust(0, 100), BF::Results::Refused); // gray 100 becomes black
    Edits().UndoLastEdit();
    QCOMPARE(Steps(), steps);
}

void TestWeightImageEdits::adjustmentOutOfRangeIsInvalid_data()
{
    QTest::addColumn<int>("brightness");
    QTest::addColumn<int>("contrast");
    QTest::addColumn<bool>("isValid");
    QTest::newRow("largest") << 100 << 0 << true;
    QTest::newRow("smallest contrast") << 0 << -100 << true;
    QTest::newRow("too bright") << 101 << 0 << false;
    QTest::newRow("too dark") << -101 << 0 << false;
    QTest::newRow("too much contrast") << 0 << 101 << false;
    QTest::newRow("too little contrast") << 0 << -101 << false;
    QTest::newRow("far out") << 0 << 2147483647 << false;
}

void TestWeightImageEdits::adjustmentOutOfRangeIsInvalid()
{
    QFETCH(int, brightness);
    QFETCH(int, contrast);
    QFETCH(bool, isValid);
    EmbedGray();
    QCOMPARE(Adjust(brightness, contrast), isValid ? BF::Results::Success : BF::Results::InvalidArgument);
    QCOMPARE(Weight().brightness, isValid ? brightness : 0);
    QCOMPARE(Weight().contrast, isValid ? contrast : 0);
}

void TestWeightImageEdits::adjustmentOfAnUnreadableImageIsNoStep()
{
    const QString path = ImageFile(QStringLiteral("map.png"), SampleImages::HalfBlack({8, 8}));
    Load(path);
    QVERIFY(QFile::remove(path));
    QCOMPARE(Adjust(1, 1), BF::Results::ResourceFailure);
    QCOMPARE(Steps(), 1);
    QCOMPARE(m_problems.size(), 1);
}

void TestWeightImageEdits::adjustmentByPlanLeavesAStepToTakeBack()
{
    EmbedGray();
    const Host::ClothState former = CurrentScene().FindSlot(m_address)->cloth;
    m_host->Faults().FailOperation(QStringLiteral("SetWeightImageAdjust"), BF::Results::Refused, 1);
    QCOMPARE(Adjust(1, 1), BF::Results::Refused);
    Edits().UndoLastEdit();
    QVERIFY(CurrentScene().FindSlot(m_address)->cloth == former);
    m_host->Faults().FailOperation(QStringLiteral("SetWeightImageAdjust"), BF::Results::ResourceFailure, 1);
    QCOMPARE(Adjust(1, 1), BF::Results::ResourceFailure); // this one nobody takes back
    QCOMPARE(Steps(), 2);
}

void TestWeightImageEdits::dragIsOneStep()
{
    EmbedGray();
    const Host::ClothState former = CurrentScene().FindSlot(m_address)->cloth;
    for (int brightness = 1; brightness <= 30; ++brightness) {
        QCOMPARE(Adjust(brightness, 0, false), BF::Results::Success);
        QCOMPARE(Weight().brightness, brightness);
    }
    QCOMPARE(Adjust(30, 0, true), BF::Results::Success);
    QCOMPARE(Steps(), 3);
    m_host->Undo();
    QVERIFY(CurrentScene().FindSlot(m_address)->cloth == former);
    m_host->Redo();
    QCOMPARE(Weight().brightness, 30);
}

void TestWeightImageEdits::dragsAreStepsOfTheirOwn()
{
    EmbedGray();
    for (const int start : {10, 20}) {
        Adjust(start, 0, false);
        Adjust(start + 5, 0, false);
        Adjust(start + 6, 0, true);
    }
    QCOMPARE(Steps(), 4);
    m_host->Undo();
    QCOMPARE(Weight().brightness, 16);
    m_host->Undo();
    QCOMPARE(Weight().brightness, 0);
}

void TestWeightImageEdits::dragBackToTheStartIsNoStep()
{
    EmbedGray();
    Adjust(10, 0, false);
    Adjust(0, 0, false);
    Adjust(0, 0, true);
    QCOMPARE(Steps(), 2);
    QCOMPARE(Weight().brightness, 0);
}

void TestWeightImageEdits::dragThroughBlackIsOneStep()
{
    EmbedGray();
    const Host::ClothState former = CurrentScene().FindSlot(m_address)->cloth;
    Adjust(-10, 0, false);
    Adjust(-20, 0, false);
    for (const int brightness : {-60, -70}) {
        QCOMPARE(Adjust(brightness, 0, false), BF::Results::Refused);
        Edits().UndoLastEdit();
        QCOMPARE(Weight().brightness, -20);
    }
    Adjust(-30, 0, false);
    Adjust(-31, 0, true);
    QCOMPARE(Steps(), 3);
    m_host->Undo();
    QVERIFY(CurrentScene().FindSlot(m_address)->cloth == former);
}

void TestWeightImageEdits::dragOfAnotherMaterialIsAnotherStep()
{
    EmbedGray();
    const Host::ClothAddress first = m_address;
    m_address = Host::Scene::SlotsOf(*m_hero).at(1);
    EmbedGray();
    const int steps = Steps();
    Adjust(10, 0, false);
    m_address = first;
    Adjust(20, 0, false);
    Adjust(30, 0, false);
    QCOMPARE(Steps(), steps + 2);
}

/// Without a final write: whoever goes on to another material shows its values then, and has to read these again.
void TestWeightImageEdits::readingAnotherMaterialEndsADrag()
{
    EmbedGray();
    const Host::ClothAddress first = m_address;
    const Host::ClothAddress second = Host::Scene::SlotsOf(*m_hero).at(1);
    const int steps = Steps();
    Adjust(10, 0, false);
    MV::WeightImageAdjust adjust;
    Queries().GetWeightImageAdjust(first.object, first.mesh, first.material, adjust);
    QVERIFY(!State().reload);
    Queries().GetWeightImageAdjust(second.object, second.mesh, second.material, adjust);
    QVERIFY(State().reload);
    Adjust(20, 0, false);
    QCOMPARE(Steps(), steps + 2);
}

void TestWeightImageEdits::undoEndsADrag()
{
    EmbedGray();
    Adjust(10, 0, false);
    m_host->Undo();
    QVERIFY(State().reload);
    Adjust(20, 0, false);
    QCOMPARE(Steps(), 3);
    Adjust(21, 0, false);
    QCOMPARE(Steps(), 3);
}

void TestWeightImageEdits::callersValuesAreNotReadBackWhileDragging()
{
    EmbedGray();
    QVERIFY(State().reload);
    Adjust(10, 0, false);
    QVERIFY(!State().reload);
    Adjust(-100, 0, false);
    Edits().UndoLastEdit();
    QVERIFY(State().reload); // the caller has to show the former value
    Adjust(11, 0, false);
    QVERIFY(!State().reload);
    Adjust(11, 0, true);
    QVERIFY(State().reload);
}

void TestWeightImageEdits::thumbnailShowsTheAdjustment_data()
{
    QTest::addColumn<int>("brightness");
    QTest::addColumn<int>("contrast");
    QTest::addColumn<int>("gray");
    QTest::newRow("none") << 0 << 0 << 100;
    QTest::newRow("brighter") << 20 << 0 << 151;
    QTest::newRow("darker") << -20 << 0 << 49;
    QTest::newRow("white") << 100 << 0 << 255;
    QTest::newRow("middle gray") << 0 << -100 << 128;
    QTest::newRow("both") << 10 << -100 << 153;
}

void TestWeightImageEdits::thumbnailShowsTheAdjustment()
{
    QFETCH(int, brightness);
    QFETCH(int, contrast);
    QFETCH(int, gray);
    EmbedGray();
    Adjust(brightness, contrast);
    BF::CHandle* source = nullptr;
    QVERIFY(Queries().GetThumbnailSourceImage(WeightTexture(), source));
    QCOMPARE(qGray(Render(WeightTexture(), {30, 30}).pixel(15, 15)), gray);
    QCOMPARE(qGray(Render(WeightTexture(), {30, 30}, source).pixel(15, 15)), gray);
}

void TestWeightImageEdits::savedImageIsAsItLooks_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("tolerance");
    QTest::newRow("png") << QStringLiteral("saved.png") << 0;
    QTest::newRow("capitals") << QStringLiteral("saved.PNG") << 0;
    QTest::newRow("bmp") << QStringLiteral("saved.bmp") << 0;
    QTest::newRow("jpg") << QStringLiteral("saved.jpg") << 3;
    QTest::newRow("jpeg") << QStringLiteral("saved.jpeg") << 3;
    QTest::newRow("no suffix") << QStringLiteral("saved") << 0;
}

void TestWeightImageEdits::savedImageIsAsItLooks()
{
    QFETCH(QString, name);
    QFETCH(int, tolerance);
    EmbedGray();
    Adjust(20, 0);
    QCOMPARE(Save(PathOf(name)), BF::Results::Success);
    const QImage saved(PathOf(name));
    QCOMPARE(saved.size(), QSize(8, 8));
    QVERIFY(std::abs(qGray(saved.pixel(4, 4)) - 151) <= tolerance);
    // What was saved can be loaded.
    QCOMPARE(Load(PathOf(name)), BF::Results::Success);
}

void TestWeightImageEdits::untouchedImageIsSavedAsItCame_data()
{
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QString>("savedSuffix");
    QTest::addColumn<bool>("isEmbedded");
    for (const char* suffix : {"png", "jpg", "bmp", "gif", "tga"}) {
        for (const bool isEmbedded : {false, true}) {
            const QString text = QString::fromLatin1(suffix);
            QTest::addRow("%s %s", isEmbedded ? "embedded" : "linked", suffix) << text << text << isEmbedded;
        }
    }
    QTest::newRow("jpg as jpeg") << QStringLiteral("jpg") << QStringLiteral("jpeg") << true;
}

void TestWeightImageEdits::untouchedImageIsSavedAsItCame()
{
    QFETCH(QString, suffix);
    QFETCH(QString, savedSuffix);
    QFETCH(bool, isEmbedded);
    const QImage image = SampleImages::HalfBlack({16, 16});
    Load(ImageFile(QStringLiteral("map.") + suffix, image));
    if (isEmbedded) {
        Embed();
    }
    const QString path = PathOf(QStringLiteral("saved.") + savedSuffix);
    QCOMPARE(Save(path), BF::Results::Success);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), SampleImages::Encoded(suffix, image));
}

void TestWeightImageEdits::savingChangesNothingInTheScene()
{
    EmbedGray();
    Adjust(20, 0);
    const Host::ClothState before = CurrentScene().FindSlot(m_address)->cloth;
    const int steps = Steps();
    Save(PathOf(QStringLiteral("saved.png")));
    QVERIFY(CurrentScene().FindSlot(m_address)->cloth == before);
    QCOMPARE(Steps(), steps);
}

void TestWeightImageEdits::imageCannotBeSaved_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("hasImage");
    QTest::addColumn<QString>("reason");
    QTest::newRow("as a GIF") << QStringLiteral("saved.gif") << true
                              << QStringLiteral("images of this format cannot be written");
    QTest::newRow("as a text") << QStringLiteral("saved.txt") << true
                               << QStringLiteral("images of this format cannot be written");
    QTest::newRow("as a folder") << QStringLiteral("folder.png") << true << QString();
    QTest::newRow("in a missing folder") << QStringLiteral("missing/saved.png") << true << QString();
    QTest::newRow("under a file") << QStringLiteral("gray.png/saved.png") << true << QString();
    QTest::newRow("none to save") << QStringLiteral("saved.png") << false << QStringLiteral("there is none");
}

void TestWeightImageEdits::imageCannotBeSaved()
{
    QFETCH(QString, name);
    QFETCH(bool, hasImage);
    QFETCH(QString, reason);
    QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("folder.png")));
    if (hasImage) {
        EmbedGray();
    }
    QCOMPARE(Save(PathOf(name)), BF::Results::Refused);
    QVERIFY(m_problems.isEmpty());
    ShowBox();
    QCOMPARE(m_problems.size(), 1);
    QVERIFY2(m_problems.first().contains(QDir::toNativeSeparators(PathOf(name))) && m_problems.first().contains(reason),
             qPrintable(m_problems.first()));
}

void TestWeightImageEdits::failedSaveLeavesTheOldFile()
{
    EmbedGray();
    const QString path = SampleImages::WriteFile(PathOf(QStringLiteral("old.gif")), "old");
    QCOMPARE(Save(path), BF::Results::Refused);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("old"));
}

#ifdef Q_OS_UNIX
void TestWeightImageEdits::fullDiskLeavesTheOldFile()
{
    EmbedGray();
    const QString path = SampleImages::WriteFile(PathOf(QStringLiteral("old.png")), "old");
    const int size = Weight().image.embedded.size();
    for (const int room : {0, 10, size - 1}) {
        m_problems.clear();
        const FullDisk full{rlim_t(room)};
        QCOMPARE(Save(path), BF::Results::Refused);
        ShowBox();
        QCOMPARE(m_problems.size(), 1);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("old"));
    }
    const FullDisk enough{rlim_t(size)};
    QCOMPARE(Save(path), BF::Results::Success);
}
#endif

void TestWeightImageEdits::adjustedImageIsNotSavedOverItsOwnFile()
{
    const QString path = ImageFile(QStringLiteral("map.png"), SampleImages::Filled({4, 4}, Qt::gray));
    Load(path);
    QCOMPARE(Save(path), BF::Results::Success);
    Adjust(10, 0);
    QCOMPARE(Save(path), BF::Results::Refused);
    QCOMPARE(QImage(path).pixelColor(1, 1), QColor(Qt::gray));
    ShowBox();
    QVERIFY(m_problems.first().contains(QStringLiteral("linked to this file")));
    Embed();
    QCOMPARE(Save(path), BF::Results::Success);
}

void TestWeightImageEdits::unknownPlaceIsInvalid()
{
    m_address.mesh = 4;
    BF::CHandle* texture = nullptr;
    MV::WeightImageAdjust adjust;
    MV::WeightImageState state;
    std::wstring path;
    for (const BF::Result result :
         {Delete(), Embed(), Adjust(1, 1), Save(PathOf(QStringLiteral("a.png"))),
          Queries().GetWeightTexture(m_address.object, m_address.mesh, m_address.material, texture),
          Queries().GetWeightImageAdjust(m_address.object, m_address.mesh, m_address.material, adjust),
          Queries().GetWeightImagePath(m_address.object, m_address.mesh, m_address.material, path),
          Queries().GetWeightImageEditFile(m_address.object, m_address.mesh, m_address.material, path),
          Queries().GetWeightImageState(m_address.object, m_address.mesh, m_address.material, state)}) {
        QCOMPARE(result, BF::Results::InvalidArgument);
    }
    QCOMPARE(Steps(), 0);
}

SOFTCLOTH_TEST(TestWeightImageEdits)

#include "tst_weight_image_edits.moc"
