#include "MVPluginQt/FormValues.h"

#include <QBrush>
#include <QColor>
#include <QCoreApplication>
#include <QDomElement>
#include <QIcon>
#include <QMetaEnum>
#include <QPalette>
#include <QPixmap>
#include <QRect>
#include <QSize>
#include <QSizePolicy>

namespace MV::Internal {

namespace {

int Number(const QDomElement& element, const QString& child)
{
    return element.firstChildElement(child).text().toInt();
}

/// The value of \p key; the value of the first key when there is none of that name.
template <class Enum>
Enum EnumValue(const QString& key)
{
    const QMetaEnum known = QMetaEnum::fromType<Enum>();
    bool isKnown = false;
    const int value = known.keyToValue(key.toLatin1().constData(), &isKnown);
    return Enum(isKnown ? value : known.value(0));
}

QSize Size(const QDomElement& size)
{
    return {Number(size, QStringLiteral("width")), Number(size, QStringLiteral("height"))};
}

QColor Color(const QDomElement& color)
{
    return {Number(color, QStringLiteral("red")), Number(color, QStringLiteral("green")),
            Number(color, QStringLiteral("blue")),
            color.attribute(QStringLiteral("alpha"), QStringLiteral("255")).toInt()};
}

QPalette Palette(const QDomElement& palette)
{
    QPalette result;
    for (const auto& [name, group] :
         {std::make_pair("active", QPalette::Active), std::make_pair("inactive", QPalette::Inactive),
          std::make_pair("disabled", QPalette::Disabled)}) {
        const QDomElement roles = palette.firstChildElement(QLatin1String(name));
        const QString tag = QStringLiteral("colorrole");
        for (QDomElement role = roles.firstChildElement(tag); !role.isNull(); role = role.nextSiblingElement(tag)) {
            const QDomElement brush = role.firstChildElement(QStringLiteral("brush"));
            const auto style = EnumValue<Qt::BrushStyle>(brush.attribute(QStringLiteral("brushstyle")));
            result.setBrush(group, EnumValue<QPalette::ColorRole>(role.attribute(QStringLiteral("role"))),
                            QBrush(Color(brush.firstChildElement(QStringLiteral("color"))), style));
        }
    }
    return result;
}

QSizePolicy SizePolicy(const QDomElement& policy)
{
    QSizePolicy result(EnumValue<QSizePolicy::Policy>(policy.attribute(QStringLiteral("hsizetype"))),
                       EnumValue<QSizePolicy::Policy>(policy.attribute(QStringLiteral("vsizetype"))));
    result.setHorizontalStretch(Number(policy, QStringLiteral("horstretch")));
    result.setVerticalStretch(Number(policy, QStringLiteral("verstretch")));
    return result;
}

QRect Rect(const QDomElement& rect)
{
    return {QPoint(Number(rect, QStringLiteral("x")), Number(rect, QStringLiteral("y"))), Size(rect)};
}

} // namespace

QVariant CFormValues::Of(const QDomElement& property) const
{
    const QDomElement value = property.firstChildElement();
    const QString kind = value.tagName();
    const QString text = value.text();
    if (kind == QLatin1String("string")) {
        const bool isForUsers = !text.isEmpty() && value.attribute(QStringLiteral("notr")) != QLatin1String("true");
        const QByteArray comment = value.attribute(QStringLiteral("comment")).toUtf8();
        return isForUsers ? QCoreApplication::translate(m_context.toUtf8().constData(), text.toUtf8().constData(),
                                                        comment.isEmpty() ? nullptr : comment.constData())
                          : text;
    }
    if (kind == QLatin1String("cstring") || kind == QLatin1String("enum") || kind == QLatin1String("set")) {
        return text;
    }
    if (kind == QLatin1String("number")) {
        return text.toInt();
    }
    if (kind == QLatin1String("double")) {
        return text.toDouble();
    }
    if (kind == QLatin1String("bool")) {
        return text == QLatin1String("true");
    }
    if (kind == QLatin1String("size")) {
        return Size(value);
    }
    if (kind == QLatin1String("rect")) {
        return Rect(value);
    }
    if (kind == QLatin1String("sizepolicy")) {
        return QVariant::fromValue(SizePolicy(value));
    }
    if (kind == QLatin1String("palette")) {
        return QVariant::fromValue(Palette(value));
    }
    if (kind == QLatin1String("pixmap")) {
        return QVariant::fromValue(QPixmap(m_folder.absoluteFilePath(text)));
    }
    if (kind == QLatin1String("iconset")) {
        const QString file = value.firstChildElement(QStringLiteral("normaloff")).text();
        return QVariant::fromValue(QIcon(m_folder.absoluteFilePath(file)));
    }
    qWarning("Form: property '%s' has a value of the unknown kind '%s'",
             qUtf8Printable(property.attribute(QStringLiteral("name"))), qUtf8Printable(kind));
    return {};
}

} // namespace MV::Internal
