#include "preset/PresetGallery.h"
#include "tests/support/Files.h"
#include "tests/support/TestCase.h"
#include "tests/unit/preset/PresetFixture.h"

#include <QDir>
#include <QFileInfo>
#include <QListWidget>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QVBoxLayout>

Q_DECLARE_METATYPE(QSize)

/// Which files decorate which items of a gallery.
class TestPresetGallery : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void thumbnailNamesItsItem_data();
    void thumbnailNamesItsItem();
    void folderNamesItsPage_data();
    void folderNamesItsPage();
    void imageKindsAreTaken_data();
    void imageKindsAreTaken();
    void listIsFoundWhateverItsNameAndDepth();
    void pageWithoutListIsSkipped();
    void filesInTheRootAndDeeperFoldersAreSkipped();
    void onlyTheNamedItemIsDecorated();
    void oneOfTwoThumbnailsForAnItemWins();
    void profileNeedNotExist();
    void emptyRootIsRefused();
    void missingRootIsAnEmptyGallery();
    void firstPageBecomesCurrentSilently();
    void blockedSignalsStayBlocked();
    void noPagesAreFine();
    void iconsAreDecodedAtDisplaySize_data();
    void iconsAreDecodedAtDisplaySize();
    void listWithoutIconSizeGetsTheWholeImage();
    void profileOfNothingIsEmpty();

protected:
    void SetUp() override;
    void TearDown() override { m_tabs.reset(); }

private:
    QString Root() const { return m_folder->path(); }
    QListWidget& List(int page) const { return *m_tabs->widget(page)->findChild<QListWidget*>(); }
    void Put(const QString& relativePath, QSize size = {8, 8}, const char* format = nullptr) const;
    BF::Result Fill() const { return MV::FillPresetGallery(Root(), *m_tabs); }
    /// "page:item" of every item that has an icon or a profile.
    QStringList Decorated() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QTabWidget> m_tabs;
};

namespace {

constexpr int items = 4;

} // namespace

void TestPresetGallery::SetUp()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_tabs = std::make_unique<QTabWidget>();
    for (int page = 0; page < 3; ++page) {
        auto* content = new QWidget;
        auto* list = new QListWidget(new QWidget(content));
        list->setObjectName(QStringLiteral("list%1").arg(page));
        list->setIconSize({48, 48});
        for (int i = 0; i < items; ++i) {
            list->addItem(QStringLiteral("item"));
        }
        m_tabs->addTab(content, QString());
    }
}

void TestPresetGallery::Put(const QString& relativePath, QSize size, const char* format) const
{
    const QString path = Root() + QLatin1Char('/') + relativePath;
    Files::Write(path, ImageBytes(size, format ? format : "PNG"));
}

QStringList TestPresetGallery::Decorated() const
{
    QStringList decorated;
    for (int page = 0; page < m_tabs->count(); ++page) {
        for (int i = 0; i < List(page).count(); ++i) {
            const QListWidgetItem* item = List(page).item(i);
            const bool hasIcon = !item->icon().isNull();
            if (hasIcon != item->data(Qt::UserRole).isValid()) {
                decorated.append(QStringLiteral("half of %1:%2").arg(page).arg(i));
            } else if (hasIcon) {
                decorated.append(QStringLiteral("%1:%2").arg(page).arg(i));
            }
        }
    }
    return decorated;
}

void TestPresetGallery::thumbnailNamesItsItem_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("item");
    const auto row = [](const char* file, int item) { QTest::newRow(file) << QString::fromLatin1(file) << item; };
    constexpr int none = -1;
    row("1_Cotton.png", 0);
    row("3_Silk.png", 2);
    row("4_Last.png", 3);
    row("5_Beyond.png", none);
    row("0_Zero.png", none);
    row("-1_Negative.png", none);
    row("Cotton_1.png", none);
    row("2.5_x.png", none);
    row("2_x.5.png", 1);
    row("2.png", 1);
    row("2_.png", 1);
    row("2_a_b_c.png", 1);
    row("_2.png", none);
    row("002_Padded.png", 1);
    row("+2_Plus.png", 1);
    row(" 2_Blank.png", 1);
    row("2 _Blank.png", 1);
    row("2x_Letter.png", none);
    row("0x2_Hexadecimal.png", none);
    row("99999999999_Huge.png", none);
    row("2147483647_Largest.png", none);
    row("-2147483648_Smallest.png", none);
    row("2-Dash.png", none);
}

void TestPresetGallery::thumbnailNamesItsItem()
{
    QFETCH(const QString, file);
    QFETCH(const int, item);
    Put(QStringLiteral("0/") + file);
    QCOMPARE(Fill(), BF::Results::Success);
    if (item < 0) {
        QCOMPARE(Decorated(), QStringList());
        return;
    }
    QCOMPARE(Decorated(), QStringList{QStringLiteral("0:%1").arg(item)});
    const QString profile =
        Root() + QLatin1String("/0") + QDir::separator() + file.left(file.size() - 4) + QLatin1String(".ini");
    QCOMPARE(List(0).item(item)->data(256), QVariant(profile));
    QCOMPARE(MV::ProfileOf(List(0).item(item)), profile);
}

void TestPresetGallery::folderNamesItsPage_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<int>("page");
    const auto row = [](const char* folder, int page) { QTest::newRow(folder) << QString::fromLatin1(folder) << page; };
    constexpr int none = -1;
    row("0", 0);
    row("1", 1);
    row("2", 2);
    row("3", none);
    row("-1", none);
    row("0.old", 0);
    row("1.2", 1);
    row("+2", 2);
    row("2 ", 2);
    row("00", 0);
    row("cloth", none);
    row("0x1", none);
    row("1st", none);
    row(".1", none);
    row("9999999999", none);
}

void TestPresetGallery::folderNamesItsPage()
{
    QFETCH(const QString, folder);
    QFETCH(const int, page);
    Put(folder + QStringLiteral("/1_x.png"));
    QCOMPARE(Fill(), BF::Results::Success);
    QCOMPARE(Decorated(), page < 0 ? QStringList() : QStringList{QStringLiteral("%1:0").arg(page)});
}

void TestPresetGallery::imageKindsAreTaken_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("taken");
    const QByteArray png = ImageBytes({8, 8}, "PNG");
    const QByteArray bmp = ImageBytes({8, 8}, "BMP");
    const QByteArray jpg = ImageBytes({8, 8}, "JPG");
    const auto row = [](const char* file, const QByteArray& content, bool taken) {
        QTest::newRow(file) << QString::fromLatin1(file) << content << taken;
    };
    row("1_x.png", png, true);
    row("1_x.bmp", bmp, true);
    row("1_x.jpg", jpg, true);
    row("1_x.PNG", png, true);
    row("1_x.Jpg", jpg, true);
    row("1_x.jpeg", jpg, false);
    row("1_x.gif", png, false);
    row("1_x.png.txt", png, false);
    row("1_x", png, false);
    row("1_other_content.png", jpg, true);
    row("1_empty.png", {}, false);
    row("1_noise.png", QByteArray(300, '\x7F'), false);
    row("1_text.bmp", "no image", false);
}

void TestPresetGallery::imageKindsAreTaken()
{
    QFETCH(const QString, file);
    QFETCH(const QByteArray, content);
    QFETCH(const bool, taken);
    Files::Write(Root() + QLatin1String("/0/") + file, content);
    QCOMPARE(Fill(), BF::Results::Success);
    QCOMPARE(Decorated(), taken ? QStringList{QStringLiteral("0:0")} : QStringList());
}

void TestPresetGallery::listIsFoundWhateverItsNameAndDepth()
{
    Put(QStringLiteral("1/2_x.png"));
    List(1).setObjectName({});
    auto* deeper = new QWidget(m_tabs->widget(1));
    List(1).setParent(new QWidget(new QWidget(deeper)));
    QCOMPARE(Fill(), BF::Results::Success);
    QCOMPARE(Decorated(), QStringList{QStringLiteral("1:1")});
}

void TestPresetGallery::pageWithoutListIsSkipped()
{
    Put(QStringLiteral("0/1_x.png"));
    Put(QStringLiteral("1/1_x.png"));
    m_tabs->insertTab(0, new QWidget, QString());
    QCOMPARE(Fill(), BF::Results::Success);
    const auto* second = m_tabs->widget(1)->findChild<QListWidget*>();
    QVERIFY(!second->item(0)->icon().isNull());
}

void TestPresetGallery::filesInTheRootAndDeeperFoldersAreSkipped()
{
    Put(QStringLiteral("1_x.png"));
    Put(QStringLiteral("0/deeper/2_x.png"));
    Put(QStringLiteral("0/0/3_x.png"));
    QVERIFY(QDir(Root()).mkpath(QStringLiteral("0/4_folder.png")));
    Files::Write(Root() + QLatin1String("/1"), "a file in a folder's place");
    QCOMPARE(Fill(), BF::Results::Success);
    QCOMPARE(Decorated(), QStringList());
}

void TestPresetGallery::onlyTheNamedItemIsDecorated()
{
    Put(QStringLiteral("0/2_x.png"));
    Put(QStringLiteral("2/4_y.jpg"), {8, 8}, "JPG");
    QCOMPARE(Fill(), BF::Results::Success);
    QCOMPARE(Decorated(), (QStringList{QStringLiteral("0:1"), QStringLiteral("2:3")}));
    QCOMPARE(List(0).item(1)->text(), QStringLiteral("item"));
}

void TestPresetGallery::oneOfTwoThumbnailsForAnItemWins()
{
    Put(QStringLiteral("0/1_a.png"));
    Put(QStringLiteral("0/1_b.png"));
    Put(QStringLiteral("0.old/1_c.png"));
    QCOMPARE(Fill(), BF::Results::Success);
    QCOMPARE(Decorated(), QStringList{QStringLiteral("0:0")});
    const QString profile = MV::ProfileOf(List(0).item(0));
    const QStringList possible{QStringLiteral("1_a.ini"), QStringLiteral("1_b.ini"), QStringLiteral("1_c.ini")};
    QVERIFY2(possible.contains(QFileInfo(profile).fileName()), qPrintable(profile));
}

void TestPresetGallery::profileNeedNotExist()
{
    Put(QStringLiteral("0/1_x.png"));
    QCOMPARE(Fill(), BF::Results::Success);
    QVERIFY(!QFileInfo::exists(MV::ProfileOf(List(0).item(0))));
}

void TestPresetGallery::emptyRootIsRefused()
{
    m_tabs->setCurrentIndex(2);
    QCOMPARE(MV::FillPresetGallery({}, *m_tabs), BF::Results::InvalidArgument);
    QCOMPARE(m_tabs->currentIndex(), 2);
    QCOMPARE(Decorated(), QStringList());
}

void TestPresetGallery::missingRootIsAnEmptyGallery()
{
    m_tabs->setCurrentIndex(2);
    QCOMPARE(MV::FillPresetGallery(Root() + QLatin1String("/nowhere"), *m_tabs), BF::Results::Success);
    QCOMPARE(m_tabs->currentIndex(), 0);
    QCOMPARE(Decorated(), QStringList());
}

void TestPresetGallery::firstPageBecomesCurrentSilently()
{
    m_tabs->setCurrentIndex(1);
    const QSignalSpy changed(m_tabs.get(), &QTabWidget::currentChanged);
    QCOMPARE(Fill(), BF::Results::Success);
    QCOMPARE(m_tabs->currentIndex(), 0);
    QCOMPARE(changed.count(), 0);
    QVERIFY(!m_tabs->signalsBlocked());
}

void TestPresetGallery::blockedSignalsStayBlocked()
{
    m_tabs->blockSignals(true);
    QCOMPARE(Fill(), BF::Results::Success);
    QVERIFY(m_tabs->signalsBlocked());
}

void TestPresetGallery::noPagesAreFine()
{
    Put(QStringLiteral("0/1_x.png"));
    QTabWidget empty;
    QCOMPARE(MV::FillPresetGallery(Root(), empty), BF::Results::Success);
    QCOMPARE(empty.currentIndex(), -1);
}

void TestPresetGallery::iconsAreDecodedAtDisplaySize_data()
{
    QTest::addColumn<QSize>("stored");
    QTest::addColumn<QSize>("shown");
    QTest::addColumn<QSize>("shownAtTwo"); // on a screen with two pixels for one
    QTest::newRow("larger") << QSize(512, 512) << QSize(48, 48) << QSize(96, 96);
    QTest::newRow("wide") << QSize(480, 240) << QSize(48, 24) << QSize(96, 48);
    QTest::newRow("tall") << QSize(96, 192) << QSize(24, 48) << QSize(48, 96);
    QTest::newRow("very wide") << QSize(960, 2) << QSize(48, 1) << QSize(96, 1);
    QTest::newRow("fitting") << QSize(48, 48) << QSize(48, 48) << QSize(48, 48);
    QTest::newRow("smaller is not enlarged") << QSize(16, 16) << QSize(16, 16) << QSize(16, 16);
}

void TestPresetGallery::iconsAreDecodedAtDisplaySize()
{
    QFETCH(const QSize, stored);
    QFETCH(const QSize, shown);
    QFETCH(const QSize, shownAtTwo);
    Put(QStringLiteral("0/1_x.png"), stored);
    QCOMPARE(Fill(), BF::Results::Success);
    const QList<QSize> sizes = List(0).item(0)->icon().availableSizes();
    QCOMPARE(sizes, QList<QSize>{qFuzzyCompare(qApp->devicePixelRatio(), 2) ? shownAtTwo : shown});
}

void TestPresetGallery::listWithoutIconSizeGetsTheWholeImage()
{
    List(0).setIconSize({});
    Put(QStringLiteral("0/1_x.png"), {300, 200});
    QCOMPARE(Fill(), BF::Results::Success);
    QCOMPARE(List(0).item(0)->icon().availableSizes(), QList<QSize>{QSize(300, 200)});
}

void TestPresetGallery::profileOfNothingIsEmpty()
{
    QCOMPARE(MV::ProfileOf(nullptr), QString());
    QCOMPARE(MV::ProfileOf(List(0).item(0)), QString());
}

SOFTCLOTH_TEST(TestPresetGallery)
#include "tst_preset_gallery.moc"
