#pragma once

#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>

/// Finds the objects of a loaded form by name and type.
///
/// The search starts at a root, the form's top widget, and may go on in a second root, usually the widget that the
/// form was built into. Names that were not found are collected, never reported.
class CQtUiLoader
{
public:
    CQtUiLoader();
    /// A loader that knows its roots. A null \p root is the same as none.
    explicit CQtUiLoader(QWidget* root, QWidget* secondRoot = nullptr);

    /// Sets the roots of all later look-ups; a null \p root clears both.
    void SetRoot(QWidget* root, QWidget* secondRoot = nullptr);

    bool HasRoot() const { return m_hasRoot; }
    QWidget* Root() const { return m_root; }
    QWidget* SecondRoot() const { return m_secondRoot; }

    /// The names that no look-up could find, in the order of the look-ups; a name looked up twice is listed twice.
    const QStringList& UnresolvedNames() const { return m_unresolvedNames; }

    /// The object of type \p T called \p name: the root itself, else a descendant of the root, else one of the
    /// second root. Null when there is none, which records the name, and null when the root has the name but is of
    /// another type, which records nothing.
    template <class T>
    T* Find(const QString& name)
    {
        if (!m_hasRoot || !m_root) {
            m_unresolvedNames.append(name);
            return nullptr;
        }
        if (m_root->objectName() == name) {
            return qobject_cast<T*>(m_root.data());
        }
        T* found = m_root->findChild<T*>(name);
        if (!found && m_secondRoot) {
            found = m_secondRoot->findChild<T*>(name);
        }
        if (!found) {
            m_unresolvedNames.append(name);
        }
        return found;
    }

    /// A widget of a library that is found as a plain QWidget first and cast afterwards: the name is recorded only
    /// when no widget has it, the result is null as well when the widget is of another class.
    template <class T>
    T* FindCustom(const QString& name)
    {
        return qobject_cast<T*>(Find<QWidget>(name));
    }

private:
    bool m_hasRoot = false;
    QStringList m_unresolvedNames;
    QPointer<QWidget> m_root;
    QPointer<QWidget> m_secondRoot;
};
