#pragma once

#include "MVPluginQt/SectionInterface.h"

#include <QMetaObject>
#include <QPointer>

class QGroupBox;
class QPushButton;

namespace MV {

/// Base of every section: expand state and enabling, which work on the section's expand button and group box.
class MVPLUGINQT_EXPORT CAbstractSection : public CSectionInterface
{
public:
    CAbstractSection();
    ~CAbstractSection() override;
    Q_DISABLE_COPY_MOVE(CAbstractSection)

    /// Whether the group box is unfolded. Sections start expanded; the state is kept while there are no widgets.
    bool GetSectionExpandState() override;
    void SetSectionExpandState(bool expanded) override;
    /// True once the section has its group box.
    bool AbleToShowSection() override;

    /// Enables or disables the section group box.
    void EnableSection(bool enable);

protected:
    /// Hands over the two widgets that the base works on; either may be null.
    void SetSectionWidgets(QPushButton* expandButton, QGroupBox* groupBox);

private:
    void ShowExpandState();

    QPointer<QPushButton> m_expandButton;
    QPointer<QGroupBox> m_groupBox;
    QMetaObject::Connection m_clicked;
    bool m_expanded = true;
};

} // namespace MV
