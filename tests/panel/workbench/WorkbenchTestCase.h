#pragma once

#include "host/workbench/MainWindow.h"
#include "tests/support/Children.h"
#include "tests/support/SampleModels.h"
#include "tests/support/TestCase.h"

#include <QTemporaryDir>
#include <QTreeWidget>

#include <memory>

/// Base of tests of the workbench's window with the real plug-in in it and settings of its own.
class WorkbenchTestCase : public TestCase
{
    Q_OBJECT

protected:
    void SetUp() override;
    void TearDown() override;

    /// A new window with the same settings, with somebody to click, shown and active.
    void OpenWindow();

    /// Ends the window, whatever it has open.
    void EndWindow() { m_window.reset(); }
    bool HasWindow() const { return m_window != nullptr; }

    Host::MainWindow& Window() const { return *m_window; }
    Host::HostApplication& App() const { return m_window->Application(); }
    Host::Scene& CurrentScene() const { return App().CurrentScene(); }
    QTreeWidget& Tree() const { return *Child<QTreeWidget>(m_window.get(), "sceneTree"); }

    /// Adds \p object as soft cloth with all its materials, which is no step to undo.
    Host::Object& AddCloth(Host::Object object);
    /// The cloth of \p object's slot number \p index, over all its meshes.
    Host::ClothState& Cloth(const Host::Object& object, std::size_t index = 0) const;

    /// Drops \p files on \p target. \return whether it takes them
    static bool Drop(QWidget& target, const QStringList& files);

    void Trigger(const char* action) const;
    void ClickRow(QTreeWidgetItem* row) const;
    /// The plug-in's weight map dialog, opened.
    QWidget& OpenDialog() const;
    /// The names of the events in the journal since it was emptied.
    QStringList Events() const;

private:
    std::unique_ptr<QTemporaryDir> m_settings;
    std::unique_ptr<Host::MainWindow> m_window;
};
