#include <BFQtCustomWidgetPluginU/QItemLabel.h>

#include "tests/support/TestCase.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QImage>
#include <QMimeData>
#include <QPixmap>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QUrl>

#include <memory>
#include <type_traits>

Q_DECLARE_METATYPE(Qt::MouseButton)

static_assert(std::is_base_of_v<QLabel, QItemLabel>);
static_assert(std::is_same_v<decltype(&QItemLabel::SelectedChanged), void (QItemLabel::*)()>);
static_assert(std::is_same_v<decltype(&QItemLabel::PreImageLoaded), void (QItemLabel::*)(QString)>);

/// A label of 60 x 40 pixels that takes "png" and "jpg" files, beside a button that has the focus.
class TestItemLabel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void clickSelectsOnce_data();
    void clickSelectsOnce();
    void disabledLabelIsNotSelected();
    void keySelects_data();
    void keySelects();
    void labelIsReachedWithTheTabKey();

    void setSelectedEmitsNothing();
    void selectedLabelHasAFrame();
    void focusedLabelHasAFrameOfItsOwn();

    void droppedFileIsTaken_data();
    void droppedFileIsTaken();
    void otherDropsAreRefused_data();
    void otherDropsAreRefused();
    void emptyFilterTakesEveryFile_data();
    void emptyFilterTakesEveryFile();

    void doubleClickTakesTheAnswer_data();
    void doubleClickTakesTheAnswer();
    void doubleClickWithoutFunctorDoesNothing();
    void doubleClickOfAnotherButtonAsksForNothing();
    void functorMayDestroyTheLabel();
    void functorMayExchangeItself();
    void receiverMayDestroyTheLabel_data();
    void receiverMayDestroyTheLabel();
    void propertiesAreThoseOfADesigner();

protected:
    void SetUp() override;
    void TearDown() override;

private:
    /// How the label reacts to a drag and, when it takes that, to the drop.
    bool Drop(const QList<QUrl>& urls);
    QImage Grab() { return m_label->grab().toImage(); }

    std::unique_ptr<QWidget> m_window;
    QPushButton* m_other = nullptr;
    QPointer<QItemLabel> m_label;
    std::unique_ptr<QSignalSpy> m_selected;
    std::unique_ptr<QSignalSpy> m_loaded;
};

void TestItemLabel::SetUp()
{
    m_window = std::make_unique<QWidget>();
    m_other = new QPushButton(m_window.get());
    m_label = new QItemLabel(m_window.get());
    m_label->setGeometry(120, 0, 60, 40);
    m_label->SetFileFilter(QStringLiteral("png jpg"));
    m_selected = std::make_unique<QSignalSpy>(m_label.data(), &QItemLabel::SelectedChanged);
    m_loaded = std::make_unique<QSignalSpy>(m_label.data(), &QItemLabel::PreImageLoaded);
    m_window->resize(200, 60);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    m_other->setFocus();
}

void TestItemLabel::TearDown()
{
    m_selected.reset();
    m_loaded.reset();
    m_window.reset();
}

bool TestItemLabel::Drop(const QList<QUrl>& urls)
{
    QMimeData mime;
    mime.setUrls(urls);
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(m_label, &enter);

    QDropEvent drop(QPoint(5, 5), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    drop.ignore();
    QApplication::sendEvent(m_label, &drop);
    if (enter.isAccepted() != drop.isAccepted()) {
        QTest::qFail("drag and drop are answered differently", __FILE__, __LINE__);
    }
    return drop.isAccepted();
}

void TestItemLabel::clickSelectsOnce_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<int>("times");
    QTest::newRow("left") << Qt::LeftButton << 1;
    QTest::newRow("right") << Qt::RightButton << 0;
    QTest::newRow("middle") << Qt::MiddleButton << 0;
}

void TestItemLabel::clickSelectsOnce()
{
    QFETCH(Qt::MouseButton, button);
    QFETCH(int, times);
    QTest::mouseClick(m_label, button);
    QCOMPARE(m_selected->size(), times);
    QVERIFY(!m_label->IsSelected());
}

void TestItemLabel::disabledLabelIsNotSelected()
{
    m_label->setEnabled(false);
    QTest::mouseClick(m_label, Qt::LeftButton);
    QCOMPARE(m_selected->size(), 0);
}

void TestItemLabel::keySelects_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<int>("times");
    QTest::newRow("Space") << Qt::Key_Space << 1;
    QTest::newRow("Return") << Qt::Key_Return << 1;
    QTest::newRow("Enter") << Qt::Key_Enter << 1;
    QTest::newRow("A") << Qt::Key_A << 0;
    QTest::newRow("Escape") << Qt::Key_Escape << 0;
}

void TestItemLabel::keySelects()
{
    QFETCH(Qt::Key, key);
    QFETCH(int, times);
    m_label->setFocus();
    QTest::keyClick(m_label, key);
    QCOMPARE(m_selected->size(), times);
}

void TestItemLabel::labelIsReachedWithTheTabKey()
{
    QTest::keyClick(m_other, Qt::Key_Tab);
    QVERIFY(m_label->hasFocus());
}

void TestItemLabel::setSelectedEmitsNothing()
{
    m_label->SetSelected(true);
    QVERIFY(m_label->IsSelected());
    m_label->SetSelected(false);
    QVERIFY(!m_label->IsSelected());
    QCOMPARE(m_selected->size(), 0);
    QCOMPARE(m_loaded->size(), 0);
}

void TestItemLabel::selectedLabelHasAFrame()
{
    QPixmap picture(60, 40);
    picture.fill(Qt::white);
    m_label->setPixmap(picture);
    const QImage plain = Grab();
    QCOMPARE(plain.pixelColor(0, 20), QColor(Qt::white));

    m_label->SetSelected(true);
    const QImage framed = Grab();
    const QColor frame = m_label->palette().color(QPalette::Highlight);
    for (const QPoint& onFrame : {QPoint(0, 0), QPoint(30, 0), QPoint(0, 20), QPoint(59, 20), QPoint(30, 39),
                                  QPoint(59, 39), QPoint(1, 1), QPoint(58, 38)}) {
        QCOMPARE(framed.pixelColor(onFrame), frame);
    }
    const QRect picturePart = m_label->rect().adjusted(2, 2, -2, -2);
    QCOMPARE(framed.copy(picturePart), plain.copy(picturePart));

    m_label->SetSelected(false);
    QCOMPARE(Grab(), plain);
}

void TestItemLabel::focusedLabelHasAFrameOfItsOwn()
{
    const QImage plain = Grab();
    m_label->setFocus();
    const QImage focused = Grab();
    QVERIFY(focused != plain);
    m_label->SetSelected(true);
    QVERIFY(Grab() != focused);
}

void TestItemLabel::droppedFileIsTaken_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("first suffix") << QStringLiteral("/images/weight.png");
    QTest::newRow("second suffix") << QStringLiteral("/images/weight.jpg");
    QTest::newRow("upper case") << QStringLiteral("/images/WEIGHT.PNG");
    QTest::newRow("several points") << QStringLiteral("/images/robe.v2.png");
    QTest::newRow("blanks and umlauts") << QString::fromUtf8("/images/mein gr\303\274ner Umhang.png");
}

void TestItemLabel::droppedFileIsTaken()
{
    QFETCH(QString, path);
    QVERIFY(Drop({QUrl::fromLocalFile(path)}));
    QCOMPARE(m_loaded->size(), 1);
    QCOMPARE(m_loaded->first().first().toString(), path);
    QCOMPARE(m_selected->size(), 0);
}

void TestItemLabel::otherDropsAreRefused_data()
{
    QTest::addColumn<QList<QUrl>>("urls");
    const QUrl image = QUrl::fromLocalFile(QStringLiteral("/images/weight.png"));
    QTest::newRow("nothing") << QList<QUrl>();
    QTest::newRow("two files") << QList<QUrl>({image, image});
    QTest::newRow("remote file") << QList<QUrl>({QUrl(QStringLiteral("https://example.org/weight.png"))});
    QTest::newRow("other suffix") << QList<QUrl>({QUrl::fromLocalFile(QStringLiteral("/images/weight.bmp"))});
    QTest::newRow("longer suffix") << QList<QUrl>({QUrl::fromLocalFile(QStringLiteral("/images/weight.pngx"))});
    QTest::newRow("no suffix") << QList<QUrl>({QUrl::fromLocalFile(QStringLiteral("/images/png"))});
}

void TestItemLabel::otherDropsAreRefused()
{
    QFETCH(QList<QUrl>, urls);
    QVERIFY(!Drop(urls));
    QCOMPARE(m_loaded->size(), 0);
}

void TestItemLabel::emptyFilterTakesEveryFile_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("any suffix") << QStringLiteral("/images/weight.bmp");
    QTest::newRow("no suffix") << QStringLiteral("/images/weight");
}

void TestItemLabel::emptyFilterTakesEveryFile()
{
    QFETCH(QString, path);
    m_label->SetFileFilter(QString());
    QVERIFY(Drop({QUrl::fromLocalFile(path)}));
    QCOMPARE(m_loaded->first().first().toString(), path);
}

void TestItemLabel::doubleClickTakesTheAnswer_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<bool>("taken");
    QTest::newRow("file that passes") << QStringLiteral("/images/weight.png") << true;
    QTest::newRow("file of another kind") << QStringLiteral("/images/weight.bmp") << false;
    QTest::newRow("cancelled") << QString() << false;
}

void TestItemLabel::doubleClickTakesTheAnswer()
{
    QFETCH(QString, answer);
    QFETCH(bool, taken);
    int asked = 0;
    m_label->SetGetOpenFileNameFunctor([&] {
        ++asked;
        return answer;
    });
    QTest::mouseClick(m_label, Qt::LeftButton);
    QCOMPARE(asked, 0);
    QTest::mouseDClick(m_label, Qt::LeftButton);
    QCOMPARE(asked, 1);
    QCOMPARE(m_loaded->size(), taken ? 1 : 0);
    if (taken) {
        QCOMPARE(m_loaded->first().first().toString(), answer);
    }
}

void TestItemLabel::doubleClickWithoutFunctorDoesNothing()
{
    QMouseEvent doubleClick(QEvent::MouseButtonDblClick, QPointF(5, 5), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_label, &doubleClick);
    QCOMPARE(m_selected->size(), 0);
    QCOMPARE(m_loaded->size(), 0);
}

void TestItemLabel::doubleClickOfAnotherButtonAsksForNothing()
{
    int asked = 0;
    m_label->SetGetOpenFileNameFunctor([&] {
        ++asked;
        return QStringLiteral("/images/weight.png");
    });
    QTest::mouseDClick(m_label, Qt::RightButton);
    QCOMPARE(asked, 0);
    QCOMPARE(m_loaded->size(), 0);
}

void TestItemLabel::functorMayDestroyTheLabel()
{
    m_label->SetGetOpenFileNameFunctor([this] {
        delete m_label;
        return QStringLiteral("/images/weight.png");
    });
    QTest::mouseDClick(m_label, Qt::LeftButton);
    QVERIFY(!m_label);
    QCOMPARE(m_loaded->size(), 0);
}

void TestItemLabel::functorMayExchangeItself()
{
    const QString answer = QStringLiteral("/images/weight.png");
    m_label->SetGetOpenFileNameFunctor([this, answer] {
        m_label->SetGetOpenFileNameFunctor({});
        return answer;
    });
    QTest::mouseDClick(m_label, Qt::LeftButton);
    QCOMPARE(m_loaded->size(), 1);
    QCOMPARE(m_loaded->first().first().toString(), answer);
}

void TestItemLabel::receiverMayDestroyTheLabel_data()
{
    QTest::addColumn<QString>("action");
    for (const char* action : {"click", "key", "drop", "double click"}) {
        QTest::newRow(action) << QString::fromLatin1(action);
    }
}

void TestItemLabel::receiverMayDestroyTheLabel()
{
    QFETCH(QString, action);
    const auto destroy = [this] { delete m_label; };
    if (action == QLatin1String("click") || action == QLatin1String("key")) {
        connect(m_label, &QItemLabel::SelectedChanged, this, destroy);
    } else {
        connect(m_label, &QItemLabel::PreImageLoaded, this, destroy);
    }
    m_label->SetGetOpenFileNameFunctor([] { return QStringLiteral("/images/weight.png"); });

    if (action == QLatin1String("click")) {
        QTest::mousePress(m_label, Qt::LeftButton);
    } else if (action == QLatin1String("key")) {
        QTest::keyPress(m_label, Qt::Key_Space);
    } else if (action == QLatin1String("drop")) {
        QVERIFY(Drop({QUrl::fromLocalFile(QStringLiteral("/images/weight.png"))}));
    } else {
        QTest::mouseDClick(m_label, Qt::LeftButton);
    }
    QVERIFY(!m_label);
}

void TestItemLabel::propertiesAreThoseOfADesigner()
{
    QVERIFY(m_label->setProperty("selected", true));
    QVERIFY(m_label->IsSelected());
    QVERIFY(m_label->setProperty("fileFilter", QStringLiteral("tga")));
    QCOMPARE(m_label->FileFilter(), QStringLiteral("tga"));
}

SOFTCLOTH_TEST(TestItemLabel)

#include "tst_item_label.moc"
