#pragma once

#include "host/workbench/SidePanel.h"

#include <QVector>

class QLabel;
class QVBoxLayout;

namespace MV {
class CSectionInterface;
} // namespace MV

namespace Host {

/// The host's Modify panel: the sections of a plug-in, one below the other, or what to do where there are none.
class ModifyPanel : public SidePanel
{
    Q_OBJECT

public:
    explicit ModifyPanel(QWidget* parent = nullptr);

    /// Embeds the sections in the given order; null entries and sections with nothing to show are left out. The
    /// widgets stay the plug-in's, which may destroy them at any time.
    void SetSections(const QVector<MV::CSectionInterface*>& sections);

    /// What the panel says while it shows no section.
    void SetHint(const QString& hint);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ShowHint();

    QWidget* m_content;
    QVBoxLayout* m_layout;
    QLabel* m_hint;
};

} // namespace Host
