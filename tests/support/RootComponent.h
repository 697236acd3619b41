#pragma once

#include "ui/QtUiLoader.h"
#include "ui/UiComponent.h"

#include <QWidget>

/// A component that takes nothing of a form but its roots.
class RootComponent : public CUiComponent
{
public:
    void SetupUi(CQtUiLoader& loader) override
    {
        ++m_setUps;
        m_root = loader.Root();
        m_secondRoot = loader.SecondRoot();
    }
    QWidget* GetRootWidget() override { return m_root; }

    QWidget* SecondRoot() const { return m_secondRoot; }
    /// How often SetupUi() was called.
    int SetUps() const { return m_setUps; }

private:
    QWidget* m_root = nullptr;
    QWidget* m_secondRoot = nullptr;
    int m_setUps = 0;
};
