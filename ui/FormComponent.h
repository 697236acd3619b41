#pragma once

#include "ui/QtUiLoader.h"
#include "ui/UiComponent.h"

#include <vector>

/// A component whose members carry the object names that they are looked up by, so that each name is written once.
///
/// A derived class declares a Found or FoundCustom member for each object, and nothing else.
class CFormComponent : public CUiComponent
{
public:
    /// Looks up every member, in the order of declaration.
    void SetupUi(CQtUiLoader& loader) override;

    /// Looks up an object called \p name and stores it in \p member.
    using LookUp = void (*)(CQtUiLoader& loader, const QString& name, void* member);
    /// Called by each member once, with itself.
    void Add(const char* name, void* member, LookUp lookUp);

protected:
    CFormComponent() = default;
    Q_DISABLE_COPY_MOVE(CFormComponent)

private:
    struct Member
    {
        const char* name = nullptr;
        void* member = nullptr;
        LookUp lookUp = nullptr;
    };
    std::vector<Member> m_members;
};

/// A pointer to an object of the form. Null until the component is set up, and when the form lacks the object. A copy
/// is a plain pointer: it does not follow a later look-up.
template <class T>
class FoundPointer
{
public:
    operator T*() const { return m_object; }
    T* operator->() const { return m_object; }

protected:
    FoundPointer() = default;

    T* m_object = nullptr;
};

/// A widget, layout or action of Qt's own, looked up by name and class.
template <class T>
class Found : public FoundPointer<T>
{
public:
    Found(CFormComponent& component, const char* name)
    {
        component.Add(name, this, [](CQtUiLoader& loader, const QString& wanted, void* member) {
            static_cast<Found*>(member)->m_object = loader.Find<T>(wanted);
        });
    }
};

/// A widget of a custom widget library, looked up by name as a plain widget and cast.
template <class T>
class FoundCustom : public FoundPointer<T>
{
public:
    FoundCustom(CFormComponent& component, const char* name)
    {
        component.Add(name, this, [](CQtUiLoader& loader, const QString& wanted, void* member) {
            static_cast<FoundCustom*>(member)->m_object = loader.FindCustom<T>(wanted);
        });
    }
};
