#include "host/workbench/ModifyPanel.h"

#include <MVPluginQt/SectionInterface.h>

#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace Host {

ModifyPanel::ModifyPanel(QWidget* parent)
    : SidePanel(parent)
    , m_content(new QWidget(this))
    , m_layout(new QVBoxLayout(m_content))
    , m_hint(new QLabel(m_content))
{
    m_hint->setObjectName(QStringLiteral("panelHint"));
    m_hint->setWordWrap(true);
    m_hint->setMargin(12);
    m_layout->setContentsMargins(4, 4, 4, 4);
    m_layout->setSpacing(4);
    m_layout->addWidget(m_hint);
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
    ShowHint();
}

void ModifyPanel::SetHint(const QString& hint)
{
    m_hint->setText(hint);
}

bool ModifyPanel::eventFilter(QObject* watched, QEvent* event)
{
    const bool handled = SidePanel::eventFilter(watched, event);
    // Sent when a section is shown, hidden or destroyed.
    if (watched == m_content && event->type() == QEvent::LayoutRequest) {
        ShowHint();
    }
    return handled;
}

void ModifyPanel::ShowHint()
{
    bool isEmpty = true;
    for (int i = 0; i < m_layout->count(); ++i) {
        const QWidget* section = m_layout->itemAt(i)->widget();
        isEmpty = isEmpty && (!section || section == m_hint || section->isHidden());
    }
    m_hint->setVisible(isEmpty);
}

} // namespace Host
