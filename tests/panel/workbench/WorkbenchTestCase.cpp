#include "tests/panel/workbench/WorkbenchTestCase.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDropEvent>
#include <QMimeData>
#include <QSettings>
#include <QUrl>

void WorkbenchTestCase::SetUp()
{
    m_settings = std::make_unique<QTemporaryDir>();
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings->path());
    QCoreApplication::setOrganizationName(QStringLiteral("SoftClothPanel"));
    QCoreApplication::setApplicationName(QStringLiteral("workbench-test"));
    QSettings().clear();
    OpenWindow();
}

void WorkbenchTestCase::TearDown()
{
    m_window.reset();
    m_settings.reset();
}

void WorkbenchTestCase::OpenWindow()
{
    m_window.reset();
    m_window = std::make_unique<Host::MainWindow>();
    m_window->RestoreSettings();
    m_window->Application().SetDataFolder(QStringLiteral(SOFTCLOTH_DATA_FOLDER));
    m_window->show();
    QVERIFY(m_window->StartPlugin(QStringLiteral(SOFTCLOTH_PLUGIN_FILE), MV::ECompatibleApp::FamilyA));
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

Host::Object& WorkbenchTestCase::AddCloth(Host::Object object)
{
    object.state.softCloth = true;
    for (Host::Mesh& mesh : object.meshes) {
        for (Host::MaterialSlot& slot : mesh.materialSlots) {
            slot.cloth.active = true;
        }
    }
    BF::CHandle* handle = App().AddModel(std::move(object));
    CurrentScene().UndoStack().setClean();
    QCoreApplication::processEvents();
    App().Journal().Clear();
    return *CurrentScene().FindObject(handle);
}

Host::ClothState& WorkbenchTestCase::Cloth(const Host::Object& object, std::size_t index) const
{
    return CurrentScene().FindSlot(Host::Scene::SlotsOf(object).at(index))->cloth;
}

bool WorkbenchTestCase::Drop(QWidget& target, const QStringList& files)
{
    QMimeData data;
    QList<QUrl> urls;
    for (const QString& file : files) {
        urls.append(QUrl::fromLocalFile(file));
    }
    data.setUrls(urls);
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(&target, &enter);
    if (!enter.isAccepted()) {
        return false;
    }
    QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&target, &drop);
    return drop.isAccepted();
}

void WorkbenchTestCase::Trigger(const char* action) const
{
    Child<QAction>(m_window.get(), action)->trigger();
}

void WorkbenchTestCase::ClickRow(QTreeWidgetItem* row) const
{
    for (QTreeWidgetItem* parent = row->parent(); parent; parent = parent->parent()) {
        parent->setExpanded(true);
    }
    QTest::mouseClick(Tree().viewport(), Qt::LeftButton, {}, Tree().visualItemRect(row).center());
}

QWidget& WorkbenchTestCase::OpenDialog() const
{
    App().SetDialogMode(MV::EDialogMode::WeightMap);
    QWidget* dialog = Child<QWidget>(m_window.get(), "qtMaterialListWidget")->window();
    dialog->activateWindow();
    [](QWidget* window) { QVERIFY(QTest::qWaitForWindowActive(window)); }(dialog);
    return *dialog;
}

QStringList WorkbenchTestCase::Events() const
{
    QStringList names;
    for (const Host::JournalEntry& entry : App().Journal().Entries()) {
        if (entry.kind == Host::JournalEntry::Kind::Event) {
            names.append(entry.operation);
        }
    }
    return names;
}
