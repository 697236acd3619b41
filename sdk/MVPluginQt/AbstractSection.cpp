#include "MVPluginQt/AbstractSection.h"

#include <QGroupBox>
#include <QPushButton>

namespace MV {

CSectionInterface::~CSectionInterface() = default;

CAbstractSection::CAbstractSection() = default;

CAbstractSection::~CAbstractSection()
{
    QObject::disconnect(m_clicked);
}

bool CAbstractSection::GetSectionExpandState()
{
    return m_expanded;
}

void CAbstractSection::SetSectionExpandState(bool expanded)
{
    m_expanded = expanded;
    ShowExpandState();
}

bool CAbstractSection::AbleToShowSection()
{
    return m_groupBox != nullptr;
}

void CAbstractSection::EnableSection(bool enable)
{
    if (m_groupBox) {
        m_groupBox->setEnabled(enable);
    }
}

void CAbstractSection::SetSectionWidgets(QPushButton* expandButton, QGroupBox* groupBox)
{
    QObject::disconnect(m_clicked);
    m_expandButton = expandButton;
    m_groupBox = groupBox;
    if (expandButton) {
        expandButton->setCheckable(true);
        m_clicked = QObject::connect(expandButton, &QPushButton::clicked,
                                     [this](bool checked) { SetSectionExpandState(checked); });
    }
    ShowExpandState();
}

void CAbstractSection::ShowExpandState()
{
    if (m_expandButton) {
        m_expandButton->setChecked(m_expanded);
    }
    if (m_groupBox) {
        m_groupBox->setVisible(m_expanded);
    }
}

} // namespace MV
