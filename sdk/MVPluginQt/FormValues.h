#pragma once

#include <QDir>
#include <QString>
#include <QVariant>

class QDomElement;

namespace MV::Internal {

/// Turns the values of a form into Qt's.
class CFormValues
{
public:
    /// \param folder   where relative file names start from
    /// \param context  the form's class, in whose name its texts are translated
    CFormValues(const QDir& folder, const QString& context)
        : m_folder(folder)
        , m_context(context)
    {
    }

    /// The value of a property or an attribute; enumerations and flags as their keys, as QObject::setProperty() takes
    /// them. Invalid, after a warning, when the value is of a kind that is not known here.
    QVariant Of(const QDomElement& property) const;

private:
    QDir m_folder;
    QString m_context;
};

} // namespace MV::Internal
