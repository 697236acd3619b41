#include "tests/unit/sections/SectionFixture.h"

#include "host/scene/Handles.h"
#include "tests/support/SampleModels.h"

#include <BFQtCustomWidgetPluginU/QComboDoubleSpinBox.h>
#include <BFQtCustomWidgetPluginU/QComboSpinBox.h>
#include <BFQtCustomWidgetPluginU/QDoubleSpinBoxEx.h>
#include <BFQtCustomWidgetPluginU/QSpinBoxEx.h>

#include <QFile>
#include <QTest>
#include <QTextStream>
#include <QVBoxLayout>

namespace {

template <class Box, class... Signals>
void CountSignals(const QWidget& section, const QObject& context, int& count, Signals... boxSignals)
{
    const auto boxes = section.findChildren<Box*>();
    for (Box* box : boxes) {
        (QObject::connect(box, boxSignals, &context, [&count] { ++count; }), ...);
    }
}

} // namespace

SectionFixture::SectionFixture(Resources resources)
{
    Host::Object hero = SampleModels::Hero();
    hero.state.softCloth = true;
    for (Host::Mesh& mesh : hero.meshes) {
        for (Host::MaterialSlot& slot : mesh.materialSlots) {
            slot.cloth.active = true;
        }
    }
    object = &host.CurrentScene().AddObject(std::move(hero));
    // An application that the panel does not know: the plug-in registers its resources and makes no parts.
    plugin.SetCurrentApp(MV::ECompatibleApp::None);
    if (resources == Resources::Panel) {
        plugin.Initialize(QStringLiteral(SOFTCLOTH_PLUGIN_FILE), QString(), &host);
    }
    Select(0);
    plugin.Selection().softClothActive = true;
    host.Journal().Clear();
}

SectionFixture::~SectionFixture() = default;

Host::ClothAddress SectionFixture::Address(int material) const
{
    return Host::Scene::SlotsOf(*object).at(std::size_t(material));
}

void SectionFixture::Select(int material)
{
    const Host::ClothAddress address = Address(material);
    plugin.Selection().object = address.object;
    plugin.Selection().mesh = address.mesh;
    plugin.Selection().material = address.material;
}

Host::ClothState& SectionFixture::Cloth(int material) const
{
    return host.CurrentScene().FindSlot(Address(material))->cloth;
}

bool SectionFixture::Show(QWidget& section)
{
    auto* layout = new QVBoxLayout(&plugin);
    layout->addWidget(&section);
    section.show();
    plugin.resize(300, 500);
    plugin.show();
    plugin.activateWindow();
    return QTest::qWaitForWindowActive(&plugin);
}

QStringList SectionFixture::TakeCalls()
{
    QStringList calls;
    for (const Host::JournalEntry& entry : host.Journal().Entries()) {
        calls.append(entry.service + QLatin1Char('.') + entry.ToString());
    }
    host.Journal().Clear();
    return calls;
}

QString SectionFixture::Call(const char* operation, const QStringList& arguments, const char* result) const
{
    return CallText(host, plugin.Selection(), operation, arguments, result);
}

std::unique_ptr<QSettings> SectionFixture::Profile(const char* group, const QStringList& lines)
{
    const QString path = m_folder.filePath(QStringLiteral("profile%1.ini").arg(++m_files));
    if (!lines.isEmpty()) {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Text)) {
            qFatal("%s: %s", qPrintable(path), qPrintable(file.errorString()));
        }
        QTextStream(&file) << '[' << group << "]\n" << lines.join(QLatin1Char('\n')) << '\n';
    }
    auto profile = std::make_unique<QSettings>(path, QSettings::IniFormat);
    profile->setIniCodec("UTF-8");
    profile->beginGroup(QLatin1String(group));
    return profile;
}

MV::CIniGroup SectionFixture::Read(QSettings& profile)
{
    profile.sync();
    // Without a key there is no file.
    const auto file = MV::CIniFile::Read(profile.fileName());
    return file ? file->Group(profile.group()) : MV::CIniGroup();
}

QStringList SectionFixture::Lines(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        qFatal("%s: %s", qPrintable(path), qPrintable(file.errorString()));
    }
    return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

QStringList SavedAs(const char* group, QStringList lines)
{
#ifndef Q_OS_WIN
    lines.sort();
#endif
    lines.prepend(QLatin1Char('[') + QLatin1String(group) + QLatin1Char(']'));
    return lines;
}

QVariant Shown(const QWidget* box)
{
    // The user property of a spin box and of a combo spin box is its value.
    return box->property(box->metaObject()->userProperty().name());
}

BoxSignals::BoxSignals(const QWidget& section)
{
    CountSignals<QSpinBoxEx>(section, m_context, m_count, qOverload<int>(&QSpinBoxEx::valueChanged),
                             &QSpinBoxEx::RecordEditingValue);
    CountSignals<QDoubleSpinBoxEx>(section, m_context, m_count, qOverload<double>(&QDoubleSpinBoxEx::valueChanged),
                                   &QDoubleSpinBoxEx::RecordEditingValue);
    CountSignals<QComboSpinBox>(section, m_context, m_count, &QComboSpinBox::ValueChanged,
                                &QComboSpinBox::EditFinished);
    CountSignals<QComboDoubleSpinBox>(section, m_context, m_count, &QComboDoubleSpinBox::ValueChanged,
                                      &QComboDoubleSpinBox::EditFinished);
}
