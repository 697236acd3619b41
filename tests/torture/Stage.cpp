#include "tests/torture/Stage.h"

#include "tests/support/SampleImages.h"
#include "tests/support/SampleModels.h"
#include "tests/support/UserDialogs.h"

#include "host/services/ImageEditor.h"
#include "plugin/services/EditService.h"

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QListWidget>
#include <QMimeData>
#include <QPushButton>
#include <QSlider>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>
#include <QTimer>
#include <QUrl>

namespace Torture {

namespace {

/// Values that differ from the defaults and from each other's.
void SetOddValues(Host::ClothState& cloth, int number)
{
    cloth.property.mass = 10 + number;
    cloth.property.friction = 0.125F * float(number % 7);
    cloth.property.stiffness = 0.5F + 0.0625F * float(number);
    cloth.property.tetherStiffness = 0.25F;
    cloth.property.linearInertiaScale = 0.3F + 0.1F * float(number);
    cloth.collision = {number % 2 == 0, number % 2 != 0, 1.5F + float(number), 0.25F * float(number)};
    cloth.wind.externalAcceleration = {float(number), -2.5F, 3};
    cloth.wind.randomAcceleration = {4, float(number) + 0.75F, 6};
    cloth.wind.frequency = 2.5F + float(number);
    cloth.wind.randomFactor = {float(number % 4), 5.0F + float(number % 4)};
}

} // namespace

Stage::Stage(MV::ECompatibleApp app, const QString& folder)
    : panel(app, QStringLiteral(SOFTCLOTH_DATA_FOLDER))
    , family(app)
    , m_folder(folder)
{
    using namespace SampleImages;
    WriteImage(File("white.png"), Filled({8, 8}, Qt::white));
    WriteImage(File("half.bmp"), HalfBlack({8, 8}));
    WriteImage(File("black.png"), Filled({8, 8}, Qt::black));
    WriteImage(File("diffuse.png"), Filled({16, 16}, Qt::darkRed));
    WriteFile(File("text.png"), "no image");
    QFile::copy(QStringLiteral(SOFTCLOTH_DATA_FOLDER "/PhysicsSoftPreset/0/3_Leather.ini"), File("profile.ini"));
    QFile profile(File("profile.ini"));
    if (!profile.open(QIODevice::Append) ||
        profile.write("\n[Preset]\nUse_Global_Gravity=false\n[Wind_Setting]\nWind_Frequency=3.5\n") < 0) {
        qFatal("no profile in %s", qPrintable(folder));
    }
    profile.close();
    App().Editor().SetProgram(QStringLiteral(SOFTCLOTH_STAND_IN_EDITOR));
    flag = panel.AddCloth(SampleModels::Flag()).handle;
    hero = panel.AddCloth(Textured(SampleModels::Hero())).handle;
    int number = 0;
    for (Host::Object* object : Scene().Objects()) {
        for (const Host::ClothAddress& address : Host::Scene::SlotsOf(*object)) {
            SetOddValues(Scene().FindSlot(address)->cloth, ++number);
        }
    }
    Send("ObjectSelectionChanged", &MV::CEventSender::ObjectSelectionChanged);
    App().Journal().Clear();
}

QString Stage::File(const char* name) const
{
    return m_folder + QLatin1Char('/') + QLatin1String(name);
}

Host::Object Stage::Textured(Host::Object object) const
{
    object.materials.front().textures[MV::ETextureChannel::Diffuse].filePath = File("diffuse.png");
    return object;
}

QWidget* Stage::Form(const char* name) const
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget* widget : widgets) {
        if (widget->objectName() == QLatin1String(name)) {
            return widget;
        }
    }
    return nullptr;
}

void Stage::SetType(quint32 type)
{
    Host::ObjectTraits traits = Scene().FindObject(hero)->traits;
    traits.type = type;
    App().SetTraits(hero, traits);
}

void Stage::MakePlain()
{
    App().CancelSoftCloth(App().CurrentScene().Selection().first());
}

void Stage::LinkWeight(const char* file)
{
    Scene().FindSlot(First())->cloth.weight = {{File(file), {}}, 0, 0};
    OpenDialog();
}

void Stage::EmbedWeight(const char* file)
{
    LinkWeight(file);
    const Host::ClothAddress at = First();
    App().GetEditService()->EmbedWeightImage(at.object, at.mesh, at.material);
    Send("ObjectSelectionChanged", &MV::CEventSender::ObjectSelectionChanged);
}

void Stage::IgnoreAll(BF::CHandle* object)
{
    Host::SceneEdit edit;
    for (const Host::Material& material : Scene().FindObject(object)->materials) {
        edit.materials.push_back({material.id, {}, Host::MaterialState{false}});
    }
    App().PushObjectEdit(object, std::move(edit), MV::EObjectChangedDataType::MaterialList);
}

void Stage::Inside(const char* what)
{
    Host::JournalEntry entry;
    entry.service = QStringLiteral("Panel");
    entry.operation = QLatin1String(what);
    const qint64 number = App().Journal().Begin(entry);
    const auto atEnd = App().Faults().Enter(QLatin1String(what));
    if (atEnd) {
        atEnd();
    }
    App().Journal().End(number, {}, {});
}

void Stage::Click(const char* form, const char* name)
{
    const QPointer<QAbstractButton> button = Find<QAbstractButton>(form, name);
    if (!button) {
        return;
    }
    const QPoint at(8, button->height() / 2);
    QTest::mousePress(button, Qt::LeftButton, {}, at);
    if (button) {
        QTest::mouseRelease(button, Qt::LeftButton, {}, at);
    }
}

void Stage::Type(const char* form, const char* name, const char* text)
{
    QPointer<QAbstractSpinBox> box = Find<QAbstractSpinBox>(form, name);
    if (const QWidget* combo = box ? nullptr : Find<QWidget>(form, name)) {
        box = combo->findChild<QAbstractSpinBox*>();
    }
    if (!box) {
        return;
    }
    box->setFocus();
    box->selectAll();
    for (const char* letter = text; *letter && box; ++letter) {
        QTest::keyClick(box, *letter);
    }
    if (box) {
        QTest::keyClick(box, Qt::Key_Return);
    }
}

void Stage::Key(const char* form, const char* name, Qt::Key key, int times)
{
    const QPointer<QWidget> widget = Find<QWidget>(form, name);
    for (; widget && times > 0; --times) {
        QTest::keyClick(widget, key);
    }
}

void Stage::Slide(const char* form, const char* name, Qt::Key key)
{
    const QWidget* combo = Find<QWidget>(form, name);
    const QPointer<QSlider> slider = combo ? combo->findChild<QSlider*>() : nullptr;
    if (slider) {
        QTest::keyClick(slider, key);
    }
}

void Stage::ClickRow(int row)
{
    const QPointer<QListWidget> list = Find<QListWidget>("SoftClothMaterialDlg", "qtMaterialListWidget");
    if (!list || !list->item(row)) {
        return;
    }
    const QPoint at = list->visualItemRect(list->item(row)).center();
    QTest::mousePress(list->viewport(), Qt::LeftButton, {}, at);
    if (list) {
        QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, at);
    }
}

void Stage::DoubleClickPreset(const char* name, int row)
{
    const QPointer<QListWidget> list = Find<QListWidget>("SoftClothPreset", name);
    auto* tabs = Find<QTabWidget>("SoftClothPreset", "qtPresetTabWidget");
    if (!list || !tabs) {
        return;
    }
    tabs->setCurrentWidget(list->parentWidget());
    list->scrollToItem(list->item(row));
    const QPoint at = list->visualItemRect(list->item(row)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, at);
    if (list) {
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, at);
    }
}

void Stage::DragRandomFactor(int from, int to)
{
    const QWidget* holder = Find<QWidget>("SoftClothWindSetting", "qtRandomFactorWidget");
    const QPointer<QWidget> slider = holder ? holder->findChild<QWidget*>() : nullptr;
    if (!slider) {
        return;
    }
    // A value's place on the track, whose ends are half a handle away from the edges.
    const auto place = [&slider](int value) { return QPoint(8 + (slider->width() - 16) * value / 10, 15); };
    QTest::mousePress(slider, Qt::LeftButton, {}, place(from));
    for (const int value : {from + (to - from) / 2, to}) {
        if (slider) {
            QMouseEvent move(QEvent::MouseMove, place(value), slider->mapToGlobal(place(value)), Qt::LeftButton,
                             Qt::LeftButton, {});
            QApplication::sendEvent(slider, &move);
        }
    }
    if (slider) {
        QTest::mouseRelease(slider, Qt::LeftButton, {}, place(to));
    }
}

void Stage::Drop(const char* label, const QString& file)
{
    if (const QPointer<QWidget> widget = Find<QWidget>("SoftClothMaterialDlg", label)) {
        QMimeData mime;
        mime.setUrls({QUrl::fromLocalFile(file)});
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &mime, Qt::LeftButton, {});
        QApplication::sendEvent(widget, &enter);
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &mime, Qt::LeftButton, {});
        QApplication::sendEvent(widget, &drop);
    }
}

void Stage::DoubleClickLabel(const char* label)
{
    if (auto* widget = Find<QWidget>("SoftClothMaterialDlg", label)) {
        QTest::mouseDClick(widget, Qt::LeftButton);
    }
}

void Stage::ClickLabel(const char* label)
{
    if (auto* widget = Find<QWidget>("SoftClothMaterialDlg", label)) {
        QTest::mousePress(widget, Qt::LeftButton);
    }
}

void Stage::WithFileDialog(const std::function<void()>& trigger, const QString& path)
{
    UserDialogs::ChooseFile(trigger, path, [this] { Inside("FileDialog"); });
}

void Stage::UseTable(const char* button)
{
    QTimer::singleShot(0, qApp, [this, button] {
        Inside("MaterialTable");
        const auto* table = Find<QTableWidget>("SoftClothMaterialTable", "qtMaterialTableWidget");
        for (int row = 0; table && row < table->rowCount(); ++row) {
            auto* box = table->cellWidget(row, 0)->findChild<QCheckBox*>();
            if (box->isChecked() != (row == 0)) {
                box->click();
            }
        }
        if (auto* pushButton = Find<QPushButton>("SoftClothMaterialTable", button)) {
            QTest::mousePress(pushButton, Qt::LeftButton);
        }
    });
    Click("SoftClothMaterialDlg", "qtShowMaterialTableButton");
}

void Stage::SendChanged(quint32 bits, bool shown)
{
    Send("ObjectDataChanged", &MV::CEventSender::ObjectDataChanged, BF::CArrayList<BF::CHandle*>{shown ? hero : flag},
         MV::EObjectChangedDataType(bits));
}

void Stage::LoadOtherScene()
{
    auto scene = std::make_unique<Host::Scene>();
    Host::Object model = Textured(SampleModels::Make(
        QStringLiteral("Other"), {{QStringLiteral("Coat"), {QStringLiteral("Wool"), QStringLiteral("Lining")}}}));
    model.state.softCloth = true;
    Host::Object& object = scene->AddObject(std::move(model));
    int number = 11;
    for (Host::MaterialSlot& slot : object.meshes.front().materialSlots) {
        slot.cloth.active = true;
        SetOddValues(slot.cloth, number++);
    }
    scene->SetSelection({object.handle});
    hero = object.handle;
    flag = scene->AddObject(SampleModels::Flag()).handle;
    App().ReplaceScene(std::move(scene), MV::EFileType::Scene);
}

} // namespace Torture
