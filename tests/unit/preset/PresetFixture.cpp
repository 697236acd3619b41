#include "tests/unit/preset/PresetFixture.h"

#include "host/scene/Handles.h"
#include "plugin/services/EditService.h"

#include <QAbstractButton>
#include <QBuffer>
#include <QGroupBox>
#include <QImage>
#include <QMessageBox>
#include <QTabWidget>
#include <QTest>
#include <QVBoxLayout>

PresetFixture::PresetFixture(MV::ECompatibleApp app)
    : PresetFixture(app, [](const QString&) {})
{
}

PresetFixture::PresetFixture(MV::ECompatibleApp app, const std::function<void(const QString&)>& fillFolder)
    : plugin(std::make_unique<MV::CPhysicsSoftClothPlugin>())
{
    fillFolder(data.path());
    host.SetMainWindow(&mainWindow);
    host.SetDataFolder(data.path());
    host.Answers().unattended = true;
    plugin->SetCurrentApp(app);
    if (plugin->Initialize(QStringLiteral(SOFTCLOTH_PLUGIN_FILE), QString(), &host).IsFailure()) {
        qFatal("the plug-in object does not start");
    }
    section = plugin->findChild<MV::CSoftClothPresetSection*>();
    if (section) {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(section);
        window.show();
    }
}

PresetFixture::~PresetFixture() = default;

Host::Object& PresetFixture::Add(Host::Object model)
{
    Host::Object& added = host.CurrentScene().AddObject(std::move(model));
    host.Select({added.handle});
    host.Journal().Clear();
    return added;
}

Host::Object& PresetFixture::AddCloth(Host::Object model)
{
    Host::Object& added = Add(std::move(model));
    host.SetSoftClothActive(added.handle, true);
    host.Journal().Clear();
    return added;
}

Host::ClothState& PresetFixture::Cloth(const Host::Object& object, int slot) const
{
    return host.CurrentScene().FindSlot(Host::Scene::SlotsOf(object).at(std::size_t(slot)))->cloth;
}

void PresetFixture::DisableMaterial(const Host::Object& object, int material)
{
    host.GetEditService()->SetMaterialSoftClothEnabled(object.materials.at(std::size_t(material)).id, false);
    host.Journal().Clear();
}

QStringList PresetFixture::Take()
{
    return TakeCalls(host.Journal(), [](const Host::JournalEntry& entry) { return entry.depth == 0; });
}

QStringList PresetFixture::TakeActions()
{
    return TakeCalls(host.Journal(), [](const Host::JournalEntry& entry) {
        return entry.service != QLatin1String("Scene") && entry.service != QLatin1String("HotKey");
    });
}

QString PresetFixture::Triple() const
{
    return SelectionText(host, plugin->Selection());
}

QString PresetFixture::Call(const char* operation, const QStringList& arguments, const char* result) const
{
    return CallText(host, plugin->Selection(), operation, arguments, result);
}

void PresetFixture::Click(const char* button) const
{
    auto* widget = Find<QAbstractButton>(button);
    // A check box takes clicks on its indicator and text only, not on the empty rest of its row.
    QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, QPoint(8, widget->height() / 2));
}

bool PresetFixture::IsEnabled(const char* name) const
{
    const auto* widget = Find<QWidget>(name);
    return widget->isEnabledTo(widget->parentWidget());
}

bool PresetFixture::IsChecked(const char* name) const
{
    return Find<QAbstractButton>(name)->isChecked();
}

QListWidget& PresetFixture::List(int page) const
{
    return *Find<QTabWidget>("qtPresetTabWidget")->widget(page)->findChild<QListWidget*>();
}

void PresetFixture::Invoke(const char* slot) const
{
    if (!QMetaObject::invokeMethod(section, slot, Qt::DirectConnection)) {
        qFatal("there is no slot %s", slot);
    }
}

void PresetFixture::During(const char* operation, std::function<void()> action)
{
    ::During(host, operation, std::move(action));
}

bool IsBodyEnabled(const QWidget* section)
{
    return Child<QGroupBox>(section, "qtSectionGroupBox")->isEnabled();
}

QStringList OperationsOf(const QStringList& calls)
{
    QStringList names;
    for (const QString& call : calls) {
        names.append(call.section(QLatin1Char('('), 0, 0));
    }
    return names;
}

QStringList TranslatedTexts(const NotingTranslator& translator)
{
    QStringList texts;
    const auto requests = translator.TextsIn("MV::CSoftClothPresetSection");
    for (const auto& [text, note] : requests) {
        texts.append(QStringLiteral("%1 <%2>").arg(QString::fromUtf8(text), QString::fromUtf8(note)));
    }
    texts.sort();
    return texts;
}

QByteArray ImageBytes(const QSize& size, const char* format)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(qRgb(200, 40, 40));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, format)) {
        qFatal("no image of the format %s", format);
    }
    return bytes;
}

namespace Journal {

namespace {

QString Box(const QString& text, int buttons, int defaultButton, int answer)
{
    return QStringLiteral("ShowMessageBox(\"%1\", \"[Physics Soft Cloth Section] Movira 6\", "
                          "MV::CSoftClothPresetSection, 2, %2, %3) -> %4")
        .arg(text)
        .arg(buttons)
        .arg(defaultButton)
        .arg(answer);
}

} // namespace

QString GetDialogMode(int mode)
{
    return QStringLiteral("GetDialogMode() -> %1").arg(mode);
}

QString SetPhysicsActive(const char* object, bool active)
{
    return QStringLiteral("SetPhysicsActive(\"%1\", 3, %2, true, true) -> 0")
        .arg(QLatin1String(object), active ? QLatin1String("true") : QLatin1String("false"));
}

QString Message(const QString& text)
{
    return Box(text, 0x400, 0, QMessageBox::Ok);
}

QString Question(int answer)
{
    return Box(
        QStringLiteral("This object has multiple materials.\n Please select a material and load a gray map image."),
        0x400400, 0x400, answer);
}

} // namespace Journal
