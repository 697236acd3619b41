#include "host/services/ImageEditor.h"

#include "host/images/ImageStore.h"
#include "host/services/Pictures.h"
#include "plugin/services/EditService.h"
#include "plugin/services/SceneService.h"
#include "plugin/services/UiService.h"
#include "tests/support/FullDisk.h"
#include "tests/support/SampleImages.h"
#include "tests/support/SampleModels.h"
#include "tests/unit/services/ImageTestCase.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QSignalSpy>
#include <QUrl>

using MV::ETextureChannel;

/// The external image editor, and what happens when a file that was opened in it is saved.
class TestImageEditor : public ImageTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void programGetsTheFiles_data();
    void programGetsTheFiles();
    void everyNameArrivesAsOneArgument_data();
    void everyNameArrivesAsOneArgument();
    void desktopOpensFilesWithoutAProgram();
    void noFilesOpenNothing();
    void launchFails_data();
    void launchFails();
    void onlyImagesWithAbsolutePathsAreOpened_data();
    void onlyImagesWithAbsolutePathsAreOpened();

    void linkedImageIsItsOwnEditFile();
    void embeddedImageIsCopiedForTheEditor_data();
    void embeddedImageIsCopiedForTheEditor();
    void unchangedCopyIsUsedAgain();
#ifdef Q_OS_UNIX // Elsewhere no limit makes a disk look full.
    void noCopyIsMadeOnAFullDisk();
#endif

    void savedTextureIsReadAnew_data();
    void savedTextureIsReadAnew();
    void everySaveIsHeard();
    void savedLinkedWeightImageIsReadAnew();
    void savedCopyBecomesTheEmbeddedImage();
    void blackCopyIsNotTaken();
    void damagedCopyIsNotTaken();
    void copyOfADeletedImageIsNotTaken();
    void halfWrittenFileIsWaitedFor();
    void untouchedContentIsNoChange();
    void fileThatNothingShowsIsNoChange();
    void allObjectsThatShowTheFileAreNamed();
    void fileThatWasNotLaunchedIsNotWatched();
    void filesOfAnotherSceneAreNotWatchedAnyMore();

public Q_SLOTS:
    void TakeUrl(const QUrl& url)
    {
        m_opened.append(url);
    }

protected:
    void SetUp() override;
    void TearDown() override;

private:
    BF::Result Launch(const QStringList& files) const;
    QStringList ArgumentsOfLaunch(const QStringList& files) const;
    QString EditFile() const;
    Host::Texture& Diffuse(Host::Object& object) const
    {
        return object.materials.at(0).textures[ETextureChannel::Diffuse];
    }
    /// Launches the diffuse texture, which is red, and starts to listen.
    QString LaunchTexture();
    QString LaunchEmbeddedWeightImage();
    QVector<BF::CHandle*> WaitForChange();
    /// Waits longer than a change takes to be heard.
    void WaitInVain()
    {
        QTest::qWait(600);
    }

    /// The colour that the diffuse texture has now.
    QColor TextureColor() const
    {
        return m_host->Images().Store().Get(Diffuse(*m_hero))->image.pixelColor(0, 0);
    }

    QList<QUrl> m_opened;
    QVector<QVector<BF::CHandle*>> m_changes;
};

namespace {

enum class Way
{
    InPlace,
    ByReplacement,
    DeletedAndMadeAnew,
    InPieces,
};

void Save(const QString& path, const QByteArray& bytes, Way way)
{
    if (way == Way::ByReplacement) {
        QSaveFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), qint64(bytes.size()));
        QVERIFY(file.commit());
        return;
    }
    if (way == Way::DeletedAndMadeAnew) {
        QVERIFY(QFile::remove(path));
        QTest::qWait(20);
    }
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    const int pieces = way == Way::InPieces ? 4 : 1;
    for (int i = 0; i < pieces; ++i) {
        const int from = bytes.size() * i / pieces;
        file.write(bytes.mid(from, bytes.size() * (i + 1) / pieces - from));
        QVERIFY(file.flush());
        if (pieces > 1) {
            QTest::qWait(30);
        }
    }
}

QByteArray Png(const QColor& color)
{
    return SampleImages::Encoded(QStringLiteral("png"), SampleImages::Filled({64, 64}, color));
}

} // namespace

Q_DECLARE_METATYPE(Way)

void TestImageEditor::SetUp()
{
    ImageTestCase::SetUp();
    m_opened.clear();
    m_changes.clear();
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "TakeUrl");
    connect(m_host->GetEventSender(), &MV::CEventSender::LaunchedImageChanged, this,
            [this](const BF::CArrayList<BF::CHandle*>& objects) {
                m_changes.append(QVector<BF::CHandle*>(objects.begin(), objects.end()));
            });
}

void TestImageEditor::TearDown()
{
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    ImageTestCase::TearDown();
}

BF::Result TestImageEditor::Launch(const QStringList& files) const
{
    BF::CArrayList<std::wstring> list;
    for (const QString& file : files) {
        list.Add(file.toStdWString());
    }
    return m_host->GetUiService()->LaunchImageEditor(list);
}

/// What the stand-in for an editor was started with.
QStringList TestImageEditor::ArgumentsOfLaunch(const QStringList& files) const
{
    const QString told = PathOf(QStringLiteral("told.txt"));
    qputenv("SOFTCLOTH_EDITOR_NOTES", told.toUtf8());
    QFile file(told);
    if (!Launch(files).IsSuccess() || !QTest::qWaitFor([&] { return file.open(QIODevice::ReadOnly); })) {
        return {QStringLiteral("nothing was started")};
    }
    return QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
}

QString TestImageEditor::EditFile() const
{
    std::wstring path;
    Queries().GetWeightImageEditFile(m_address.object, m_address.mesh, m_address.material, path);
    return QString::fromStdWString(path);
}

QString TestImageEditor::LaunchTexture()
{
    Diffuse(*m_hero).filePath = SampleImages::WriteFile(PathOf(QStringLiteral("skin.png")), Png(Qt::red));
    Launch({Diffuse(*m_hero).filePath});
    m_changes.clear();
    return Diffuse(*m_hero).filePath;
}

QString TestImageEditor::LaunchEmbeddedWeightImage()
{
    Load(SampleImages::WriteFile(PathOf(QStringLiteral("map.png")), Png(Qt::gray)));
    Embed();
    const QString copy = EditFile();
    Launch({copy});
    m_changes.clear();
    return copy;
}

QVector<BF::CHandle*> TestImageEditor::WaitForChange()
{
    const int before = m_changes.size();
    return QTest::qWaitFor([&] { return m_changes.size() > before; }) ? m_changes.last() : QVector<BF::CHandle*>();
}

void TestImageEditor::programGetsTheFiles_data()
{
    QTest::addColumn<QString>("programName"); // %1 is the suffix that programs have here
    QTest::addColumn<QString>("command");     // %1 is the program
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("program") << QStringLiteral("editor.%1") << QStringLiteral("%1") << QStringList();
    QTest::newRow("program in a folder with spaces")
        << QStringLiteral("my editor.%1") << QStringLiteral("%1") << QStringList();
    QTest::newRow("with arguments") << QStringLiteral("editor.%1") << QStringLiteral("%1 --new \"two words\"")
                                    << QStringList{QStringLiteral("--new"), QStringLiteral("two words")};
    QTest::newRow("in quotes, with an argument")
        << QStringLiteral("my editor.%1") << QStringLiteral("\"%1\" -n") << QStringList{QStringLiteral("-n")};
}

void TestImageEditor::programGetsTheFiles()
{
    QFETCH(QString, programName);
    QFETCH(QString, command);
    QFETCH(QStringList, arguments);
    const QFileInfo standIn(QStringLiteral(SOFTCLOTH_STAND_IN_EDITOR));
    const QString program = PathOf(programName.arg(standIn.suffix()));
    QVERIFY(QFile::copy(standIn.filePath(), program));
    m_host->Editor().SetProgram(command.arg(program));
    const QStringList files{SampleImages::WriteFile(PathOf(QStringLiteral("a b.png")), Png(Qt::red)),
                            SampleImages::WriteFile(PathOf(QStringLiteral("東京 $x.png")), Png(Qt::red))};
    QCOMPARE(ArgumentsOfLaunch(files), arguments + files);
    QVERIFY(m_opened.isEmpty());
}

void TestImageEditor::everyNameArrivesAsOneArgument_data()
{
    QTest::addColumn<QString>("name");
    const char* const names[] = {
        "two  blanks .png",
        " blank in front.png",
        "-rf.png",
        "--version",
        "it's.png",
        "$(touch x).png",
        "`touch x`;touch y|z.png",
        "100%n &amp; #1.png",
        "größe 東京.png",
        "\U0001F9E5.png",
        "tab\there",
        "~/.png",
    };
    for (const char* name : names) {
        QTest::newRow(name) << QString::fromUtf8(name).replace(u'/', u'_');
    }
#ifdef Q_OS_UNIX // Elsewhere no file can be called so.
    QTest::newRow("quotes") << QStringLiteral("a \"b\" 'c'.png");
    QTest::newRow("wild cards") << QStringLiteral("*?[a]<>.png");
    QTest::newRow("backslashes") << QStringLiteral("a\\ b\\\\.png");
#endif
}

void TestImageEditor::everyNameArrivesAsOneArgument()
{
    QFETCH(QString, name);
    m_host->Editor().SetProgram(QStringLiteral(SOFTCLOTH_STAND_IN_EDITOR));
    const QStringList files{SampleImages::WriteFile(PathOf(name), Png(Qt::red))};
    QCOMPARE(ArgumentsOfLaunch(files), files);
}

void TestImageEditor::desktopOpensFilesWithoutAProgram()
{
    const QString a = SampleImages::WriteFile(PathOf(QStringLiteral("a.png")), Png(Qt::red));
    const QString b = SampleImages::WriteFile(PathOf(QStringLiteral("b #1.png")), Png(Qt::red));
    QCOMPARE(Launch({a, b}), BF::Results::Success);
    QCOMPARE(m_opened, (QList<QUrl>{QUrl::fromLocalFile(a), QUrl::fromLocalFile(b)}));
}

void TestImageEditor::noFilesOpenNothing()
{
    m_host->Editor().SetProgram(QStringLiteral("/no/such/program"));
    QCOMPARE(Launch({}), BF::Results::NothingDone);
    QVERIFY(m_opened.isEmpty());
}

void TestImageEditor::launchFails_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QStringList>("files");
    const QStringList good{QStringLiteral("a.png")};
    QTest::newRow("empty path") << QString() << QStringList{QString()};
    QTest::newRow("missing file") << QString() << QStringList{QStringLiteral("missing.png")};
    QTest::newRow("one of them missing") << QString() << good + QStringList{QStringLiteral("missing.png")};
    QTest::newRow("folder") << QString() << QStringList{QStringLiteral(".")};
    QTest::newRow("missing program") << QStringLiteral("/no/such/program") << good;
    QTest::newRow("program that cannot be run") << QStringLiteral("a.png") << good;
    QTest::newRow("blank program") << QStringLiteral("  ") << good;
}

void TestImageEditor::launchFails()
{
    QFETCH(QString, program);
    QFETCH(QStringList, files);
    SampleImages::WriteFile(PathOf(QStringLiteral("a.png")), Png(Qt::red));
    for (QString& file : files) {
        file = file.isEmpty() ? file : PathOf(file);
    }
    m_host->Editor().SetProgram(program == QLatin1String("a.png") ? PathOf(program) : program);
    QCOMPARE(Launch(files), BF::Results::Refused);
    QVERIFY(m_opened.isEmpty());
}

void TestImageEditor::onlyImagesWithAbsolutePathsAreOpened_data()
{
    QTest::addColumn<QString>("name"); // relative to the folder that is current
    QTest::addColumn<bool>("isAbsolute");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("desktopOpensIt");
    QTest::addColumn<bool>("programOpensIt");
    const auto row = [](const char* title, const char* name, bool isAbsolute, const QByteArray& content, bool byDesktop,
                        bool byProgram) {
        QTest::newRow(title) << QString::fromLatin1(name) << isAbsolute << content << byDesktop << byProgram;
    };
    const QByteArray script = "#!/bin/sh\ntouch here\n";
    row("image", "a.png", true, Png(Qt::red), true, true);
    row("image with another image's name", "a.JPG", true, Png(Qt::red), true, true);
    row("image without a suffix", "a", true, Png(Qt::red), true, true);
    row("truncated image", "a.png", true, Png(Qt::red).left(30), true, true);
    row("relative path", "a.png", false, Png(Qt::red), false, false);
    row("option", "--version", false, Png(Qt::red), false, false);
    row("script", "a.sh", true, script, false, false);
    row("script with an image's name", "a.png", true, script, false, false);
    row("program", "a.png", true,
        QByteArray("\x7f"
                   "ELF\2\1\1\0",
                   8),
        false, false);
    row("shortcut", "a.desktop", true, "[Desktop Entry]\nExec=touch here\n", false, false);
    row("empty", "a.png", true, QByteArray(), false, false);
    // The desktop goes by the name: what begins like an image may be something else to it.
    row("image's beginning under a script's name", "a.sh", true, "GIF89a=1\n" + script, false, true);
}

void TestImageEditor::onlyImagesWithAbsolutePathsAreOpened()
{
    QFETCH(QString, name);
    QFETCH(bool, isAbsolute);
    QFETCH(QByteArray, content);
    QFETCH(bool, desktopOpensIt);
    QFETCH(bool, programOpensIt);
    const QString former = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_folder->path()));
    SampleImages::WriteFile(PathOf(name), content);
    const QString file = isAbsolute ? PathOf(name) : name;
    QCOMPARE(Launch({file}), desktopOpensIt ? BF::Results::Success : BF::Results::Refused);
    QCOMPARE(m_opened.size(), int(desktopOpensIt));
    m_host->Editor().SetProgram(QStringLiteral(SOFTCLOTH_STAND_IN_EDITOR));
    qputenv("SOFTCLOTH_EDITOR_NOTES", PathOf(QStringLiteral("told.txt")).toUtf8());
    QCOMPARE(Launch({file}), programOpensIt ? BF::Results::Success : BF::Results::Refused);
    QDir::setCurrent(former);
}

void TestImageEditor::linkedImageIsItsOwnEditFile()
{
    const QString path = SampleImages::WriteFile(PathOf(QStringLiteral("map.png")), Png(Qt::gray));
    Load(path);
    QCOMPARE(EditFile(), path);
}

void TestImageEditor::embeddedImageIsCopiedForTheEditor_data()
{
    QTest::addColumn<QString>("suffix");
    for (const char* suffix : {"jpg", "bmp", "gif", "png", "tga"}) {
        QTest::newRow(suffix) << QString::fromLatin1(suffix);
    }
}

void TestImageEditor::embeddedImageIsCopiedForTheEditor()
{
    QFETCH(QString, suffix);
    const QImage image = SampleImages::HalfBlack({16, 16});
    const QString path = ImageFile(QStringLiteral("map.") + suffix, image);
    Load(path);
    Embed();
    Adjust(5, 5); // an editor works on the image as it is
    const QString copy = EditFile();
    QVERIFY(copy != path);
    QCOMPARE(QFileInfo(copy).suffix(), suffix);
    QVERIFY(QFileInfo(copy).fileName().startsWith(QStringLiteral("Body-Skin-weights")));
    QFile file(copy);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), SampleImages::Encoded(suffix, image));
}

void TestImageEditor::unchangedCopyIsUsedAgain()
{
    const QString copy = LaunchEmbeddedWeightImage();
    QCOMPARE(EditFile(), copy);
    m_address = Host::Scene::SlotsOf(*m_hero).at(1);
    QVERIFY(LaunchEmbeddedWeightImage() != copy); // of another material
}

#ifdef Q_OS_UNIX
void TestImageEditor::noCopyIsMadeOnAFullDisk()
{
    Load(SampleImages::WriteFile(PathOf(QStringLiteral("map.png")), Png(Qt::gray)));
    Embed();
    {
        const FullDisk full{rlim_t(Weight().image.embedded.size() - 1)};
        QCOMPARE(EditFile(), QString());
        ShowBox();
        QCOMPARE(m_problems.size(), 1);
    }
    QVERIFY(QFile::exists(EditFile()));
}
#endif

void TestImageEditor::savedTextureIsReadAnew_data()
{
    QTest::addColumn<Way>("way");
    QTest::newRow("written in place") << Way::InPlace;
    QTest::newRow("replaced by another file") << Way::ByReplacement;
    QTest::newRow("deleted and made anew") << Way::DeletedAndMadeAnew;
    QTest::newRow("in pieces") << Way::InPieces;
}

void TestImageEditor::savedTextureIsReadAnew()
{
    QFETCH(Way, way);
    const QString path = LaunchTexture();
    QCOMPARE(TextureColor(), QColor(Qt::red));
    Save(path, Png(Qt::blue), way);
    QCOMPARE(WaitForChange(), QVector<BF::CHandle*>{m_hero->handle});
    QCOMPARE(TextureColor(), QColor(Qt::blue));
    QCOMPARE(m_changes.size(), 1);
    const Host::JournalEntry& event = m_host->Journal().Entries().constLast();
    QCOMPARE(event.ToString(), QStringLiteral("LaunchedImageChanged([\"Hero\"])"));
}

void TestImageEditor::everySaveIsHeard()
{
    const QString path = LaunchTexture();
    const QColor colors[] = {Qt::green, Qt::blue, Qt::white, Qt::yellow, Qt::red};
    const Way ways[] = {Way::ByReplacement, Way::InPlace, Way::ByReplacement, Way::DeletedAndMadeAnew, Way::InPlace};
    for (std::size_t i = 0; i < std::size(colors); ++i) {
        Save(path, Png(colors[i]), ways[i]);
        QCOMPARE(WaitForChange(), QVector<BF::CHandle*>{m_hero->handle});
        QCOMPARE(TextureColor(), colors[i]);
    }
}

void TestImageEditor::savedLinkedWeightImageIsReadAnew()
{
    const QString path = SampleImages::WriteFile(PathOf(QStringLiteral("map.png")), Png(Qt::white));
    Load(path);
    Launch({EditFile()});
    m_changes.clear();
    const int steps = CurrentScene().UndoStack().count();
    Save(path, Png(QColor(60, 60, 60)), Way::ByReplacement);
    QCOMPARE(WaitForChange(), QVector<BF::CHandle*>{m_hero->handle});
    QCOMPARE(qGray(Render(WeightTexture(), {20, 20}).pixel(10, 10)), 60);
    QCOMPARE(CurrentScene().UndoStack().count(), steps); // the link is as it was
}

void TestImageEditor::savedCopyBecomesTheEmbeddedImage()
{
    const QString copy = LaunchEmbeddedWeightImage();
    Adjust(10, 0);
    const Host::ClothState before = CurrentScene().FindSlot(m_address)->cloth;
    Save(copy, Png(Qt::white), Way::ByReplacement);
    QCOMPARE(WaitForChange(), QVector<BF::CHandle*>{m_hero->handle});
    QCOMPARE(Weight().image.embedded, Png(Qt::white));
    QCOMPARE(Weight().brightness, 10);
    m_host->Undo();
    QVERIFY(CurrentScene().FindSlot(m_address)->cloth == before);
    m_host->Redo();
    QCOMPARE(Weight().image.embedded, Png(Qt::white));
}

void TestImageEditor::blackCopyIsNotTaken()
{
    const QString copy = LaunchEmbeddedWeightImage();
    Save(copy, Png(Qt::black), Way::InPlace);
    QTRY_COMPARE(m_problems.size(), 1);
    QVERIFY(m_problems.first().contains(QStringLiteral("black")));
    QCOMPARE(Weight().image.embedded, Png(Qt::gray));
    QVERIFY(m_changes.isEmpty());
    Save(copy, Png(Qt::white), Way::InPlace);
    WaitForChange();
    QCOMPARE(Weight().image.embedded, Png(Qt::white));
}

void TestImageEditor::damagedCopyIsNotTaken()
{
    const QString copy = LaunchEmbeddedWeightImage();
    const QByteArray packed = SampleImages::Encoded(QStringLiteral("tga"), SampleImages::HalfBlack({50, 50}));
    Save(copy, packed.left(packed.size() / 4), Way::InPlace); // only decoding shows that it is not whole
    QTRY_COMPARE(m_problems.size(), 1);
    QCOMPARE(Weight().image.embedded, Png(Qt::gray));
    QVERIFY(m_changes.isEmpty());
}

void TestImageEditor::copyOfADeletedImageIsNotTaken()
{
    const QString copy = LaunchEmbeddedWeightImage();
    Delete();
    m_changes.clear();
    Save(copy, Png(Qt::white), Way::InPlace);
    WaitInVain();
    QVERIFY(m_changes.isEmpty());
    QVERIFY(Weight().IsNone());
}

void TestImageEditor::halfWrittenFileIsWaitedFor()
{
    const QString path = LaunchTexture();
    TextureColor();
    const QByteArray whole = Png(Qt::blue);
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(whole.left(whole.size() / 2));
    QVERIFY(file.flush());
    WaitInVain();
    QVERIFY(m_changes.isEmpty());
    file.write(whole.mid(whole.size() / 2));
    QVERIFY(file.flush());
    QCOMPARE(WaitForChange(), QVector<BF::CHandle*>{m_hero->handle});
    QCOMPARE(TextureColor(), QColor(Qt::blue));
}

void TestImageEditor::untouchedContentIsNoChange()
{
    const QString path = LaunchTexture();
    Save(path, Png(Qt::red), Way::ByReplacement);
    WaitInVain();
    QVERIFY(m_changes.isEmpty());
}

void TestImageEditor::fileThatNothingShowsIsNoChange()
{
    const QString path = SampleImages::WriteFile(PathOf(QStringLiteral("notes.png")), Png(Qt::red));
    Launch({path});
    Save(path, Png(Qt::blue), Way::InPlace);
    WaitInVain();
    QVERIFY(m_changes.isEmpty());
}

void TestImageEditor::allObjectsThatShowTheFileAreNamed()
{
    Host::Object& second = CurrentScene().AddObject(SampleModels::Flag());
    CurrentScene().AddObject(SampleModels::Flag());
    const QString path = LaunchTexture();
    second.meshes[0].materialSlots[0].cloth.weight.image.filePath = path;
    Save(path, Png(Qt::blue), Way::InPlace);
    QCOMPARE(WaitForChange(), (QVector<BF::CHandle*>{m_hero->handle, second.handle}));
}

void TestImageEditor::fileThatWasNotLaunchedIsNotWatched()
{
    const QString path = SampleImages::WriteFile(PathOf(QStringLiteral("other.png")), Png(Qt::red));
    m_hero->materials.at(1).textures[ETextureChannel::Diffuse].filePath = path;
    LaunchTexture(); // in the same folder
    Save(path, Png(Qt::blue), Way::ByReplacement);
    WaitInVain();
    QVERIFY(m_changes.isEmpty());
}

void TestImageEditor::filesOfAnotherSceneAreNotWatchedAnyMore()
{
    const QString path = LaunchTexture();
    const QString copy = LaunchEmbeddedWeightImage();
    m_host->ReplaceScene(std::make_unique<Host::Scene>(), MV::EFileType::Scene);
    Host::Object& flag = CurrentScene().AddObject(SampleModels::Flag());
    Diffuse(flag).filePath = path;
    m_changes.clear();
    Save(path, Png(Qt::blue), Way::InPlace);
    Save(copy, Png(Qt::white), Way::InPlace);
    WaitInVain();
    QVERIFY(m_changes.isEmpty());
}

SOFTCLOTH_TEST(TestImageEditor)

#include "tst_image_editor.moc"
