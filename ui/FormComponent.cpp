#include "ui/FormComponent.h"

void CFormComponent::SetupUi(CQtUiLoader& loader)
{
    for (const Member& member : m_members) {
        member.lookUp(loader, QLatin1String(member.name), member.member);
    }
}

void CFormComponent::Add(const char* name, void* member, LookUp lookUp)
{
    m_members.push_back({name, member, lookUp});
}
