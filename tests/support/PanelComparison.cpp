#include "tests/support/PanelComparison.h"

#include "tests/support/PanelExpectation.h"
#include "tests/support/PropertyRows.h"

#include "host/services/HostApplication.h"

#include <QApplication>
#include <QCheckBox>
#include <QDebug>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableWidget>
#include <QWidget>

#include <cmath>
#include <initializer_list>

namespace PanelComparison {

namespace {

/// The form's root called \p name; null when it was destroyed or never made.
QWidget* Form(const char* name)
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget* widget : widgets) {
        if (widget->objectName() == QLatin1String(name)) {
            return widget;
        }
    }
    return nullptr;
}

/// Compares widgets of one form and notes what differs.
class FormComparison
{
public:
    FormComparison(const char* form, QStringList& differences)
        : m_name(form)
        , m_form(Form(form))
        , m_differences(differences)
    {
    }

    explicit operator bool() const { return m_form != nullptr; }
    QWidget* Root() const { return m_form; }

    template <class T>
    T* Find(const char* name) const
    {
        return m_form->findChild<T*>(QLatin1String(name));
    }

    template <class Value>
    void Same(const char* widget, const char* what, const Value& shown, const Value& held)
    {
        if (!(shown == held)) {
            QString text;
            QDebug(&text).nospace() << m_name << '.' << widget << ' ' << what << " is " << shown << ", not " << held;
            m_differences.append(text);
        }
    }

    /// The widget's own state, whatever its parents' are.
    void Enabled(std::initializer_list<const char*> widgets, bool enabled)
    {
        for (const char* name : widgets) {
            if (const auto* widget = Find<QWidget>(name)) {
                Same(name, "enabled", widget->isEnabledTo(widget->parentWidget()), enabled);
            }
        }
    }
    void Visible(bool visible) { Same("", "visible", m_form->isVisibleTo(m_form->window()), visible); }
    void Checked(const char* name, bool checked)
    {
        Same(name, "checked", Find<QAbstractButton>(name)->isChecked(), checked);
    }
    /// The box, or the one inside a combo box.
    void Whole(const char* name, int value)
    {
        auto* box = Find<QSpinBox>(name);
        box = box ? box : Find<QWidget>(name)->findChild<QSpinBox*>();
        Same(name, "value", box->value(), qBound(box->minimum(), value, box->maximum()));
    }
    void Decimal(const char* name, double value)
    {
        auto* box = Find<QDoubleSpinBox>(name);
        box = box ? box : Find<QWidget>(name)->findChild<QDoubleSpinBox*>();
        const double unit = std::pow(10.0, -box->decimals());
        const double held = qBound(box->minimum(), value, box->maximum());
        if (!(std::abs(box->value() - held) <= unit * 0.5001)) {
            Same(name, "value", box->value(), held);
        }
    }
    void Text(const char* name, const QString& text) { Same(name, "text", Find<QLabel>(name)->text(), text); }

private:
    const char* m_name;
    QWidget* m_form;
    QStringList& m_differences;
};

void CompareProperty(FormComparison form, const Expectation& held)
{
    for (const PropertyRow& row : PropertyRows::WithBox()) {
        const double shown = row.box.shown(row.Get(held.cloth->property));
        if (QByteArray(row.box.className).contains("Double")) {
            form.Decimal(row.box.name, shown);
        } else {
            form.Whole(row.box.name, int(qint64(shown)));
        }
    }
}

void CompareCollision(FormComparison form, const Expectation& held)
{
    const MV::SoftClothCollisionData& data = held.cloth->collision;
    form.Checked("qtCollideWithRigidCheckBox", data.collideWithRigid);
    form.Checked("qtSelfCollisionCheckBox", data.selfCollision);
    form.Decimal("qtCollideWithRigidMarginDoubleEXSpinBox", double(data.rigidMargin));
    form.Decimal("qtSelfCollisionMarginDoubleEXSpinBox", double(data.selfMargin));
    form.Enabled({"qtCollideWithRigidMarginDoubleEXSpinBox", "qtSoftRigidCollisionMarginLabel"}, data.collideWithRigid);
    form.Enabled({"qtSelfCollisionMarginDoubleEXSpinBox", "qtSelfCollisionMarginLabel"}, data.selfCollision);
}

void CompareWind(FormComparison form, const Expectation& held)
{
    const MV::SoftClothWindData& data = held.cloth->wind;
    form.Whole("qtExternalXEXSpinBox", int(data.externalAcceleration[0]));
    form.Whole("qtExternalYEXSpinBox", int(data.externalAcceleration[1]));
    form.Whole("qtExternalZEXSpinBox", int(data.externalAcceleration[2]));
    form.Whole("qtRandomXEXSpinBox", int(data.randomAcceleration[0]));
    form.Whole("qtRandomYEXSpinBox", int(data.randomAcceleration[1]));
    form.Whole("qtRandomZEXSpinBox", int(data.randomAcceleration[2]));
    form.Decimal("qtFrequencyCombodoublespinbox", double(data.frequency));
    const int first = qBound(0, int(data.randomFactor[0]), 10);
    const int second = qBound(0, int(data.randomFactor[1]), 10);
    form.Text("label_12", QStringLiteral("from %1").arg(qMin(first, second)));
    form.Text("label_13", QStringLiteral("to %1").arg(qMax(first, second)));
}

void ComparePreset(FormComparison form, const Expectation& held, MV::ECompatibleApp app)
{
    form.Enabled({"qtSectionGroupBox", "qtActivePhysicsCheckBox"}, true);
    form.Checked("qtActivePhysicsCheckBox", held.softCloth);
    form.Checked("qtSoftClothRadioButton", true);
    form.Enabled({"qtOpenFilePushButton", "qtSaveFilePushButton", "qtUseWorldGravityCheckBox", "qtSoftPresetGroupBox",
                  "qtPaintPushButton"},
                 held.isActive);
    form.Enabled({"qtAffectAllMaterialsCheckBox"}, held.isActive && held.listed.size() >= 2);
    if (HasAnyBit(app, MV::ECompatibleApp::FamilyA)) {
        form.Enabled({"qtRigidBodyRadioButton", "qtSoftClothRadioButton"}, held.isActive && held.isConvertible);
    } else {
        form.Same("qtRigidBodyRadioButton", "hidden", form.Find<QWidget>("qtRigidBodyRadioButton")->isHidden(), true);
    }
    if (held.isActive) {
        form.Checked("qtUseWorldGravityCheckBox", held.cloth->useGlobalGravity);
        form.Same("qtPresetTabWidget", "page", form.Find<QTabWidget>("qtPresetTabWidget")->currentIndex(), 0);
    }
}

void CompareList(FormComparison& form, const Expectation& held)
{
    const auto* list = form.Find<QListWidget>("qtMaterialListWidget");
    QStringList rows;
    for (int row = 0; row < list->count(); ++row) {
        rows.append(list->item(row)->text());
    }
    form.Same("qtMaterialListWidget", "rows", rows, held.ListedNames());
    form.Same("qtMaterialListWidget", "current row", list->currentRow(), held.currentRow);
}

void CompareWeightImage(FormComparison& form, const Expectation& held)
{
    const Host::WeightImage& weight = held.cloth->weight;
    const bool present = !weight.IsNone();
    const bool linked = present && !weight.image.filePath.isEmpty();
    form.Enabled({"qtOpenFilePushButton", "qtUvRefPushButton", "qtTextureEditButtonWidget", "qtTextureSettingWidget"},
                 true);
    form.Enabled({"qtLaunchPushButton", "qtBrightnessCombospinbox", "qtContrastCombospinbox"}, present && !linked);
    form.Enabled({"qtEmbedTexturePushButton"}, linked && weight.image.embedded.isEmpty());
    form.Enabled({"qtDeleteFilePushButton", "qtSaveFilePushButton"}, present);
    form.Enabled({"qtOpenPathPushButton", "qtBitmapLabel", "qtBitmapPathLineEdit"}, linked);
    form.Same("qtBitmapPathLineEdit", "text", form.Find<QLineEdit>("qtBitmapPathLineEdit")->text(),
              linked ? weight.image.filePath : QString());
    if (present) {
        form.Whole("qtBrightnessCombospinbox", weight.brightness);
        form.Whole("qtContrastCombospinbox", weight.contrast);
    }
}

void ComparePictures(FormComparison& form, const Expectation& held, Host::HostApplication& host)
{
    for (const auto& [name, channel] : {std::make_pair("qtDiffuseItemLabel", MV::ETextureChannel::Diffuse),
                                        std::make_pair("qtOpacityItemLabel", MV::ETextureChannel::Opacity),
                                        std::make_pair("qtWeightingItemLabel", MV::ETextureChannel::Weight)}) {
        const auto* label = form.Find<QLabel>(name);
        const QImage shown = label->pixmap(Qt::ReturnByValue).toImage().convertToFormat(QImage::Format_ARGB32);
        const QImage drawn = PictureOf(host, held.address, channel, label->size() * label->devicePixelRatioF());
        if (shown != drawn.convertToFormat(QImage::Format_ARGB32)) {
            form.Same(name, "picture", QStringLiteral("another one"), QStringLiteral("the host's"));
        }
    }
}

void CompareDialog(FormComparison form, const Expectation& held, Host::HostApplication& host)
{
    CompareList(form, held);
    form.Same("", "visible", form.Root()->window()->isVisible(), held.isShown);
    if (!held.isShown) {
        return;
    }
    form.Enabled({"qtWeightingItemLabel", "qtDiffuseItemLabel", "qtOpacityItemLabel", "qtPickMaterialPushButton",
                  "ListBorderWidget", "label", "label_2"},
                 held.cloth != nullptr);
    form.Same("qtWeightingItemLabel", "selected",
              form.Find<QWidget>("qtWeightingItemLabel")->property("selected").toBool(), true);
    if (held.cloth) {
        CompareWeightImage(form, held);
        ComparePictures(form, held, host);
    }
}

void CompareTable(FormComparison form, const Expectation& held)
{
    const auto* table = form.Find<QTableWidget>("qtMaterialTableWidget");
    QStringList rows;
    for (int row = 0; row < table->rowCount(); ++row) {
        const QWidget* holder = table->cellWidget(row, 0);
        const auto* box = holder ? holder->findChild<QCheckBox*>() : nullptr;
        rows.append(QString::number(box && box->isChecked() ? 1 : 0) + QLatin1Char(' ') + table->item(row, 1)->text() +
                    QLatin1Char(' ') + table->item(row, 2)->text());
    }
    form.Same("qtMaterialTableWidget", "rows", rows, held.TableRows());
}

} // namespace

void Settle(Host::HostApplication& host)
{
    using MV::CEventSender;
    host.Faults().Clear();
    host.SetPlaying(false);
    host.SetPickMode(MV::EPickMode::Material);
    host.SetPickMode(MV::EPickMode::None);
    host.SetDialogMode(MV::EDialogMode::None);
    host.Send("ImageAsyncLoadAllDone", &CEventSender::ImageAsyncLoadAllDone);
    host.Send("Stopped", &CEventSender::Stopped);
    host.Send("ObjectSelectionChanged", &CEventSender::ObjectSelectionChanged);
    host.SetDialogMode(MV::EDialogMode::WeightMap);
}

QStringList Differences(Host::HostApplication& host, MV::ECompatibleApp app)
{
    const Expectation held = Expect(host.CurrentScene(), app);
    QStringList differences;
    const auto section = [&](const char* name, bool hasValues, auto compare) {
        FormComparison form(name, differences);
        if (!form) {
            return;
        }
        form.Visible(held.isShown);
        if (held.isShown) {
            form.Enabled({"qtSectionGroupBox"}, hasValues);
            if (hasValues) {
                compare(form);
            }
        }
    };
    section("SoftClothPreset", true, [&](const FormComparison& form) { ComparePreset(form, held, app); });
    section("SoftClothProperty", held.isActive, [&](const FormComparison& form) { CompareProperty(form, held); });
    section("SoftClothCollision", held.isActive, [&](const FormComparison& form) { CompareCollision(form, held); });
    section("SoftClothWindSetting", held.isActive, [&](const FormComparison& form) { CompareWind(form, held); });
    if (const FormComparison form("SoftClothMaterialDlg", differences); form && held.isShown) {
        CompareDialog(form, held, host);
    }
    if (const FormComparison form("SoftClothMaterialTable", differences); form && held.isShown) {
        CompareTable(form, held);
    }
    return differences;
}

} // namespace PanelComparison
