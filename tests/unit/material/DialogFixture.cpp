#include "tests/unit/material/DialogFixture.h"

#include <QPushButton>

DialogFixture::DialogFixture(MV::ECompatibleApp app)
{
    host.SetMainWindow(&window);
    host.Answers().unattended = true;
    // For an application of neither family the plug-in object registers its resources and makes no parts.
    plugin.SetCurrentApp(MV::ECompatibleApp::None);
    if (plugin.Initialize(QStringLiteral(SOFTCLOTH_PLUGIN_FILE), QString(), &host).IsFailure()) {
        qFatal("the plug-in object does not start");
    }
    plugin.SetCurrentApp(app);
    table.reset(new MV::CSoftClothMaterialTable(&window, &plugin));
    dialog = new MV::CSoftClothMaterialDlg(&window, &plugin);
    dialog->SetMaterialTable(table);
    if (table->Init({}, {}, &host).IsFailure() || dialog->Init({}, {}, &host).IsFailure()) {
        qFatal("the dialogs do not start");
    }
    host.Journal().Clear();
}

Host::Object& DialogFixture::Add(Host::Object model)
{
    object = &host.CurrentScene().AddObject(std::move(model));
    host.CurrentScene().SetSelection({object->handle});
    Selection().object = object->handle;
    Selection().objectType = object->traits.type;
    return *object;
}

void DialogFixture::List()
{
    dialog->ReloadMaterials(object->handle, true);
    host.Journal().Clear();
}

void DialogFixture::Show()
{
    host.SetDialogMode(MV::EDialogMode::WeightMap);
    if (!QTest::qWaitForWindowExposed(dialog)) {
        qFatal("the dialog does not show");
    }
    QApplication::setActiveWindow(dialog);
    // The first painting fetches the large preview.
    QApplication::processEvents();
    host.Journal().Clear();
}

void DialogFixture::Open(Host::Object model)
{
    Add(std::move(model));
    List();
    Show();
}

QStringList DialogFixture::Take()
{
    return TakeCalls(host.Journal());
}

QStringList DialogFixture::TakeOperations()
{
    return ::TakeOperations(host.Journal());
}

void DialogFixture::During(const char* operation, std::function<void()> action)
{
    ::During(host, operation, std::move(action));
}

void DialogFixture::Click(const char* buttonName) const
{
    QTest::mouseClick(Find<QPushButton>(buttonName), Qt::LeftButton);
}

bool DialogFixture::IsEnabled(const QString& name) const
{
    const auto* widget = Child<QWidget>(dialog, name.toLatin1().constData());
    return widget->isEnabledTo(widget->parentWidget());
}

QStringList DialogFixture::EnabledOf(const QStringList& names) const
{
    QStringList enabled;
    for (const QString& name : names) {
        if (IsEnabled(name)) {
            enabled.append(name);
        }
    }
    return enabled;
}

QStringList EditWidgets()
{
    return {QStringLiteral("qtWeightingItemLabel"),
            QStringLiteral("label"),
            QStringLiteral("label_2"),
            QStringLiteral("label_3"),
            QStringLiteral("label_4"),
            QStringLiteral("qtOpenFilePushButton"),
            QStringLiteral("qtSaveFilePushButton"),
            QStringLiteral("qtDeleteFilePushButton"),
            QStringLiteral("qtLaunchPushButton"),
            QStringLiteral("qtUvRefPushButton"),
            QStringLiteral("qtEmbedTexturePushButton"),
            QStringLiteral("qtOpenPathPushButton"),
            QStringLiteral("qtPickMaterialPushButton"),
            QStringLiteral("qtBitmapLabel"),
            QStringLiteral("qtBitmapPathLineEdit"),
            QStringLiteral("ListBorderWidget"),
            QStringLiteral("qtBrightnessCombospinbox"),
            QStringLiteral("qtContrastCombospinbox"),
            QStringLiteral("qtDiffuseItemLabel"),
            QStringLiteral("qtOpacityItemLabel")};
}

namespace Journal {

QString Message(const QString& text)
{
    return QStringLiteral("ShowMessageBox(\"%1\", \"[Physics Soft Cloth Section] Movira 6\", "
                          "MV::CSoftClothMaterialDlg, 2, 1024, 0) -> 1024")
        .arg(text);
}

QString Refresh()
{
    return QStringLiteral("IsPhysicsActive(\"Hero\", 3, false) -> 0");
}

QString RefreshScene()
{
    return QStringLiteral("RefreshScene(0) -> 0");
}

QString Draw(const QString& thumbnail, const QString& source)
{
    const int pixels = qRound(88 * qApp->devicePixelRatio());
    return QStringLiteral("RenderThumbnail(%1, %1, %2, %3) -> 0").arg(pixels).arg(thumbnail, source);
}

QStringList DialogRefresh()
{
    return {QStringLiteral("GetMaterialTextureState"), QStringLiteral("GetDefaultThumbnail"),
            QStringLiteral("RenderThumbnail"),         QStringLiteral("GetMaterialTextureState"),
            QStringLiteral("GetDefaultThumbnail"),     QStringLiteral("RenderThumbnail"),
            QStringLiteral("GetWeightTexture"),        QStringLiteral("GetDefaultThumbnail"),
            QStringLiteral("GetThumbnailSourceImage"), QStringLiteral("RenderThumbnail")};
}

} // namespace Journal
