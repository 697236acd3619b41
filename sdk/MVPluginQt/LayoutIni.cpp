#include "MVPluginQt/LayoutIni.h"

#include <QFileInfo>
#include <QLoggingCategory>
#include <QMetaEnum>
#include <QMetaProperty>
#include <QSet>
#include <QSettings>
#include <QSize>
#include <QWidget>

#include <optional>
#include <vector>

namespace MV::Internal {

namespace {

Q_LOGGING_CATEGORY(lcLayout, "movira.sdk.layout")

void ReportOnce(const QString& message)
{
    static QSet<QString> reported;
    if (!reported.contains(message)) {
        reported.insert(message);
        qCWarning(lcLayout, "%s", qUtf8Printable(message));
    }
}

std::optional<int> EnumValue(const QMetaEnum& keys, const QString& text)
{
    bool known = false;
    const QByteArray name = text.toLatin1();
    const int value =
        keys.isFlag() ? keys.keysToValue(name.constData(), &known) : keys.keyToValue(name.constData(), &known);
    return known ? std::optional<int>(value) : std::nullopt;
}

/// The \p count whole numbers of \p text; nothing when there are more, fewer, or something else.
std::optional<std::vector<int>> Numbers(const QString& text, std::size_t count)
{
    std::vector<int> numbers;
    const QStringList parts = text.simplified().split(QLatin1Char(' '));
    for (const QString& part : parts) {
        bool isNumber = false;
        numbers.push_back(part.toInt(&isNumber));
        if (!isNumber) {
            return std::nullopt;
        }
    }
    return numbers.size() == count ? std::make_optional(numbers) : std::nullopt;
}

/// \p value as something that \p property takes; invalid when it cannot be read so.
QVariant ValueFor(const QMetaProperty& property, const QVariant& value)
{
    const int type = property.userType();
    if (property.isEnumType()) {
        const auto number = EnumValue(property.enumerator(), value.toString());
        return number ? QVariant(*number) : QVariant();
    }
    if (value.userType() == type) {
        return value;
    }
    if (type == QMetaType::QSize) {
        const auto numbers = Numbers(value.toString(), 2);
        return numbers ? QVariant(QSize(numbers->at(0), numbers->at(1))) : QVariant();
    }
    if (type == QMetaType::Bool) {
        // QVariant takes any text for true.
        const QString text = value.toString().toLower();
        const bool isTrue = text == QLatin1String("true") || text == QLatin1String("1");
        const bool isFalse = text == QLatin1String("false") || text == QLatin1String("0");
        return isTrue || isFalse ? QVariant(isTrue) : QVariant();
    }
    QVariant converted = value;
    return converted.convert(type) ? converted : QVariant();
}

/// Sets one property; an empty result is success, otherwise it says what is wrong.
QString ApplyEntry(QWidget* form, const QString& objectName, const QString& propertyName, const QVariant& value)
{
    QObject* object = form->objectName() == objectName ? form : form->findChild<QObject*>(objectName);
    if (!object) {
        return QStringLiteral("unknown object");
    }
    const QMetaObject* meta = object->metaObject();
    const int index = meta->indexOfProperty(propertyName.toLatin1().constData());
    if (index < 0) {
        return QStringLiteral("unknown property");
    }
    const QMetaProperty property = meta->property(index);
    const QVariant converted = ValueFor(property, value);
    if (!converted.isValid() || !property.write(object, converted)) {
        return QStringLiteral("value \"%1\" not understood").arg(value.toString());
    }
    return {};
}

} // namespace

void ApplyLayoutIni(const QString& iniPath, QWidget* form)
{
    if (iniPath.isEmpty()) {
        return;
    }
    if (!QFileInfo(iniPath).isFile()) {
        ReportOnce(QStringLiteral("Layout file %1 is missing").arg(iniPath));
        return;
    }
    QSettings ini(iniPath, QSettings::IniFormat);
    ini.setIniCodec("UTF-8");
    ini.beginGroup(form->objectName());
    const QStringList keys = ini.allKeys();
    for (const QString& key : keys) {
        const QString objectName = key.section(QLatin1Char('/'), 0, 0);
        const QString propertyName = key.section(QLatin1Char('/'), 1);
        const QString problem = ApplyEntry(form, objectName, propertyName, ini.value(key));
        if (!problem.isEmpty()) {
            ReportOnce(QStringLiteral("Layout file %1, [%2] %3: %4").arg(iniPath, form->objectName(), key, problem));
        }
    }
}

} // namespace MV::Internal
