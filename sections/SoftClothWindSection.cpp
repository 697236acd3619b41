#include "sections/SoftClothWindSection.h"

#include "panel/PanelForm.h"
#include "plugin/PhysicsSoftClothPlugin.h"
#include "sections/MultiLevelSlider.h"
#include "sections/ProfileNumbers.h"
#include "sections/SectionRecord.h"
#include "sections/SliderKeys.h"
#include "sections/SoftClothConversions.h"
#include "ui/IniFile.h"
#include "ui/WidgetAccess.h"

#include <BFQtCustomWidgetPluginU/QComboDoubleSpinBox.h>
#include <BFQtCustomWidgetPluginU/QSpinBoxEx.h>

#include <QBoxLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLayout>
#include <QPixmap>
#include <QPushButton>
#include <QSettings>

#include <new>

namespace MV {

namespace {

using Record = SoftClothWindData;
using Type = ESoftClothWindType;
using Axes = std::array<QSpinBoxEx*, 3>;

const QString externalKey = QStringLiteral("External_Acceleration");
const QString randomKey = QStringLiteral("Random_Acceleration");
const QString frequencyKey = QStringLiteral("Wind_Frequency");
const QString factorKey = QStringLiteral("Wind_Random_Factor");

// The resource system takes the doubled slashes for single ones.
const std::array<QString, 4> diamondPaths{
    QStringLiteral(":/plugin/MVPhysicsSoftClothSection/icon/BTN_Diamond_unselect.png"),
    QStringLiteral(":/plugin//MVPhysicsSoftClothSection/icon/BTN_Diamond_select.png"),
    QStringLiteral(":/plugin//MVPhysicsSoftClothSection/icon/BTN_Diamond_hover.png"),
    QStringLiteral(":/plugin//MVPhysicsSoftClothSection/icon/BTN_Diamond_disable.png"),
};

constexpr int lowestFactor = 0;
constexpr int highestFactor = 10;
constexpr int factorPageStep = 2;
constexpr std::size_t factorLevels = 2;
constexpr int sliderSize = 30;
const QColor lineColor(200, 200, 200, 255);

/// The image, or where a screen has more pixels than that its variant of twice the resolution; null when missing.
QSharedPointer<const QPixmap> LoadImage(const QString& path)
{
    auto image = QSharedPointer<const QPixmap>::create(path);
    if (!image->isNull() && qGuiApp->devicePixelRatio() > 1.0) {
        // The reader takes the pixmap's device pixel ratio from the name.
        const QPixmap fine(QString(path).replace(QLatin1String(".png"), QLatin1String("@2x.png")));
        if (!fine.isNull()) {
            image = QSharedPointer<const QPixmap>::create(fine);
        }
    }
    return image->isNull() ? nullptr : image;
}

std::array<float, 3> AccelerationOf(const Axes& boxes)
{
    std::array<float, 3> acceleration{};
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        acceleration[i] = WholeFloat::ToHost(ValueOf(boxes[i]));
    }
    return acceleration;
}

void ShowAcceleration(const Axes& boxes, const std::array<float, 3>& acceleration)
{
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        ShowValue(boxes[i], WholeFloat::ToBox(acceleration[i]));
    }
}

/// A profile holds a single element without a list around it.
QVariantList ReadList(const CIniGroup& profile, const QString& key)
{
    const QVariant value = profile.Value(key);
    const QVariantList list = value.toList();
    return list.isEmpty() && value.isValid() ? QVariantList{value} : list;
}

/// The numbers of a list as the host is to get them; a missing one is 0.
template <std::size_t size>
std::array<float, size> ToFloats(const QVariantList& list)
{
    std::array<float, size> numbers{};
    for (std::size_t i = 0; i < size; ++i) {
        numbers[i] = ProfileNumber<float>(list.value(int(i)));
    }
    return numbers;
}

/// Shows the elements of a list as whole numbers, a missing one as 0. \return them as the host is to get them
std::array<float, 3> LoadAcceleration(const QVariantList& list, const Axes& boxes)
{
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        ShowValue(boxes[i], list.value(int(i)).toInt());
    }
    return ToFloats<3>(list);
}

QVariantList SaveAcceleration(const Axes& boxes)
{
    return {ValueOf(boxes[0]), ValueOf(boxes[1]), ValueOf(boxes[2])};
}

} // namespace

CSoftClothWindSection::CSoftClothWindSection(CPhysicsSoftClothPlugin* plugin)
    : QWidget(plugin)
    , m_plugin(plugin)
{
    hide();
}

CSoftClothWindSection::~CSoftClothWindSection() = default;

BF::Result CSoftClothWindSection::Init(const QString& /*pluginPath*/, const QString& resourceBase,
                                       CMoviraInterface* host)
{
    if (!host) {
        return BF::Results::InvalidArgument;
    }
    m_host = host;
    const BF::Result built = BuildPanelForm(QStringLiteral("SoftClothWindSetting"), this, m_ui, resourceBase, host);
    if (built.IsFailure()) {
        return built;
    }
    SetSectionWidgets(m_ui.expandButton, m_ui.sectionGroupBox);
    ConnectWidgets();
    return CreateSlider();
}

Axes CSoftClothWindSection::ExternalBoxes() const
{
    return {m_ui.externalXSpinBox, m_ui.externalYSpinBox, m_ui.externalZSpinBox};
}

Axes CSoftClothWindSection::RandomBoxes() const
{
    return {m_ui.randomXSpinBox, m_ui.randomYSpinBox, m_ui.randomZSpinBox};
}

void CSoftClothWindSection::ConnectWidgets()
{
    for (QSpinBoxEx* box : ExternalBoxes()) {
        ConnectEdited(box, this, [this](int /*value*/) { OnChangeExternalAcceleration(); });
    }
    for (QSpinBoxEx* box : RandomBoxes()) {
        ConnectEdited(box, this, [this](int /*value*/) { OnChangeRandomAcceleration(); });
    }
    ConnectEdited(m_ui.frequencySpinBox, this, [this](double value) { OnChangeFrequency(value); });
}

BF::Result CSoftClothWindSection::CreateSlider()
{
    if (m_ui.randomFactorWidget) {
        m_slider = new (std::nothrow) CMultiLevelSlider(m_ui.randomFactorWidget);
    }
    if (!m_slider) {
        return BF::Results::ResourceFailure;
    }
    const BF::Result loaded = LoadDiamonds();
    if (loaded.IsFailure()) {
        return loaded;
    }
    const auto& [unselected, selected, hover, disabled] = m_diamonds;
    std::vector<SliderLevel> levels(factorLevels);
    levels[0].value = lowestFactor;
    levels[1].value = highestFactor;
    const BF::Result initialised = m_slider->InitSlider(lowestFactor, highestFactor, false, levels, unselected,
                                                        disabled, true, selected, hover, lineColor);
    if (initialised.IsFailure()) {
        return initialised;
    }
    FitSlider();
    m_slider->valueChanging = [this](std::size_t /*index*/) { ShowFactorTexts(); };
    m_slider->valueChanged = [this](std::size_t /*index*/) { OnChangeRandomFactor(); };
    m_sliderKeys = new CSliderKeys(m_slider, {factorLevels, lowestFactor, highestFactor, factorPageStep,
                                              [this] { ShowFactorTexts(); }, [this] { OnChangeRandomFactor(); }});
    ShowFactorTexts();
    return BF::Results::Success;
}

BF::Result CSoftClothWindSection::LoadDiamonds()
{
    for (std::size_t i = 0; i < diamondPaths.size(); ++i) {
        m_diamonds[i] = LoadImage(diamondPaths[i]);
        if (!m_diamonds[i]) {
            return BF::Results::ResourceFailure;
        }
    }
    return BF::Results::Success;
}

void CSoftClothWindSection::FitSlider()
{
    m_slider->setEnabled(true);
    m_slider->show();
    m_slider->setMinimumSize(sliderSize, sliderSize);
    m_slider->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    m_slider->SetSelectedIndex(1);
    m_slider->setAccessibleName(m_ui.randomFactorWidget->accessibleName());
    if (QLayout* layout = m_ui.randomFactorWidget->layout()) {
        layout->addWidget(m_slider);
    }
    m_ui.randomFactorWidget->setFocusProxy(m_slider);
    m_ui.randomFactorWidget->adjustSize();
    // The slider runs from left to right in languages that are written the other way, too, and so do its ends.
    auto* ends = findChild<QBoxLayout*>(QStringLiteral("qtRandomFactorEndsLayout"));
    if (ends && isRightToLeft()) {
        ends->setDirection(QBoxLayout::RightToLeft);
    }
}

BF::Result CSoftClothWindSection::UpdateUi()
{
    Record record;
    const BF::Result read =
        ReadShownRecord(m_plugin->Selection(), m_host, m_ui.sectionGroupBox, &CSceneService::GetSoftClothWind, record);
    if (!read.IsSuccess()) {
        return read;
    }
    ShowAcceleration(ExternalBoxes(), record.externalAcceleration);
    ShowAcceleration(RandomBoxes(), record.randomAcceleration);
    ShowValue(m_ui.frequencySpinBox, Decimal::ToBox(record.frequency));
    ShowRandomFactor(WholeFloat::ToBox(record.randomFactor[0]), WholeFloat::ToBox(record.randomFactor[1]));
    return BF::Results::Success;
}

std::array<int, 2> CSoftClothWindSection::RandomFactor() const
{
    return m_slider ? std::array<int, 2>{m_slider->LevelValue(0), m_slider->LevelValue(1)} : std::array<int, 2>{};
}

void CSoftClothWindSection::DropEdit()
{
    if (m_sliderKeys) {
        m_sliderKeys->Drop();
    }
    if (m_slider) {
        m_slider->DropDrag();
    }
}

void CSoftClothWindSection::ShowRandomFactor(int first, int second)
{
    DropEdit();
    if (m_slider) {
        m_slider->SetLevelValue(0, first);
        m_slider->SetLevelValue(1, second);
    }
    ShowFactorTexts();
}

/// The labels show where the handles are; values of the host may reverse their order.
void CSoftClothWindSection::ShowFactorTexts()
{
    const auto [first, second] = RandomFactor();
    SetText(m_ui.label_12, tr("from %1").arg(qMin(first, second)));
    SetText(m_ui.label_13, tr("to %1").arg(qMax(first, second)));
}

void CSoftClothWindSection::OnChangeExternalAcceleration()
{
    Record record;
    record.externalAcceleration = AccelerationOf(ExternalBoxes());
    Write(Type::ExternalAcceleration, record);
}

void CSoftClothWindSection::OnChangeRandomAcceleration()
{
    Record record;
    record.randomAcceleration = AccelerationOf(RandomBoxes());
    Write(Type::RandomAcceleration, record);
}

void CSoftClothWindSection::OnChangeFrequency(double fValue)
{
    Record record;
    record.frequency = Decimal::ToHost(fValue);
    Write(Type::Frequency, record);
}

void CSoftClothWindSection::OnChangeRandomFactor()
{
    const auto [first, second] = RandomFactor();
    Record record;
    record.randomFactor = {WholeFloat::ToHost(first), WholeFloat::ToHost(second)};
    Write(Type::RandomFactor, record);
}

void CSoftClothWindSection::Write(Type type, const Record& record)
{
    WriteRecord(m_plugin->Selection(), m_host, &CEditService::SetSoftClothWind, type, record);
}

void CSoftClothWindSection::LoadProfile(const CIniGroup& profile)
{
    Record record;
    record.externalAcceleration = LoadAcceleration(ReadList(profile, externalKey), ExternalBoxes());
    record.randomAcceleration = LoadAcceleration(ReadList(profile, randomKey), RandomBoxes());
    record.frequency = ProfileNumber<float>(profile.Value(frequencyKey));
    ShowValue(m_ui.frequencySpinBox, Decimal::ToBox(record.frequency));
    const QVariantList factor = ReadList(profile, factorKey);
    record.randomFactor = ToFloats<2>(factor);
    ShowRandomFactor(factor.value(0).toInt(), factor.value(1).toInt());
    Write(Type::All, record);
}

void CSoftClothWindSection::SaveProfile(QSettings& profile) const
{
    profile.setValue(externalKey, SaveAcceleration(ExternalBoxes()));
    profile.setValue(randomKey, SaveAcceleration(RandomBoxes()));
    profile.setValue(frequencyKey, ValueOf(m_ui.frequencySpinBox));
    const auto [first, second] = RandomFactor();
    profile.setValue(factorKey, QVariantList{first, second});
}

} // namespace MV
