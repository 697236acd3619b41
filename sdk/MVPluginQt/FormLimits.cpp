#include "MVPluginQt/FormLimits.h"

#include <QIODevice>
#include <QXmlStreamReader>

namespace MV::Internal {

namespace {

/// Looks through the elements of a form once. What is no sound XML is left to those who read it.
class CFormCheck
{
public:
    explicit CFormCheck(const QByteArray& form)
        : m_xml(form)
    {
    }

    /// What is too much, with its line; a null string when nothing is.
    QString Run()
    {
        while (!m_xml.atEnd()) {
            const QString fault = FaultOf(m_xml.readNext());
            if (!fault.isNull()) {
                return QStringLiteral("line %1: %2").arg(m_xml.lineNumber()).arg(fault);
            }
        }
        return {};
    }

private:
    QString FaultOf(QXmlStreamReader::TokenType token)
    {
        switch (token) {
        case QXmlStreamReader::DTD:
            return m_xml.entityDeclarations().isEmpty() ? QString() : QStringLiteral("a form declares no entities");
        case QXmlStreamReader::StartElement:
            return FaultOfElement();
        case QXmlStreamReader::Characters:
            return m_isCount && Number(m_xml.text()) > FormLimits::cells ? TooManyCells() : QString();
        case QXmlStreamReader::EndElement:
            --m_depth;
            m_isCount = m_isCount && m_xml.name() != QLatin1String("property");
            return {};
        default:
            return {};
        }
    }

    QString FaultOfElement()
    {
        if (++m_depth > FormLimits::depth) {
            return QStringLiteral("there are more than %1 elements in each other").arg(FormLimits::depth);
        }
        if (++m_elements > FormLimits::elements) {
            return QStringLiteral("there are more than %1 elements").arg(FormLimits::elements);
        }
        const QXmlStreamAttributes attributes = m_xml.attributes();
        const struct
        {
            const char* name;
            int least;
        } cells[] = {{"row", 0}, {"column", 0}, {"rowspan", 1}, {"colspan", 1}};
        for (const auto& cell : cells) {
            const QLatin1String name(cell.name);
            if (attributes.hasAttribute(name)) {
                const qint64 number = Number(attributes.value(name));
                if (number < cell.least || number > FormLimits::cells) {
                    return TooManyCells();
                }
            }
        }
        if (m_xml.name() == QLatin1String("property")) {
            const auto name = attributes.value(QLatin1String("name"));
            m_isCount = name == QLatin1String("rowCount") || name == QLatin1String("columnCount");
        }
        return {};
    }

    /// What is no number counts as 0, as it does when the form is built.
    static qint64 Number(const QStringRef& text) { return text.trimmed().toLongLong(); }

    static QString TooManyCells()
    {
        return QStringLiteral("rows and columns are numbers up to %1").arg(FormLimits::cells);
    }

    QXmlStreamReader m_xml;
    int m_depth = 0;
    int m_elements = 0;
    bool m_isCount = false; ///< Within the number of rows or columns of a table.
};

} // namespace

bool TakeForm(QIODevice& device, QBuffer& form, QString& error)
{
    form.setData(device.read(FormLimits::size + 1));
    if (form.size() > FormLimits::size) {
        error = QStringLiteral("a form has %1 bytes at most").arg(FormLimits::size);
        return false;
    }
    error = CFormCheck(form.data()).Run();
    return error.isNull() && form.open(QIODevice::ReadOnly);
}

} // namespace MV::Internal
