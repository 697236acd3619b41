#include "host/workbench/ModifyPanel.h"

#include <MVPluginQt/SectionInterface.h>

#include <QVBoxLayout>

namespace Host {

ModifyPanel::ModifyPanel(QWidget* parent)
    : SidePanel(parent)
    , m_content(new QWidget(this))
    , m_layout(new QVBoxLayout(m_content))
{
    m_layout->setContentsMargins(4, 4, 4, 4);
    m_layout->setSpacing(4);
    m_layout->addStretch(1);
    setWidget(m_content);
}

void ModifyPanel::SetSections(const QVector<MV::CSectionInterface*>& sections)
{
    int place = 0;
    for (MV::CSectionInterface* section : sections) {
        if (section && section->AbleToShowSection()) {
            m_layout->insertWidget(place++, section->GetSectionWidget());
        }
    }
}

} // namespace Host
