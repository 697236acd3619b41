#include "tests/unit/scene/JsonEdit.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

namespace JsonEdit {

QJsonValue With(const QJsonValue& root, const QString& path, const QJsonValue& value)
{
    if (path.isEmpty()) {
        return value;
    }
    const QString step = path.section(QLatin1Char('.'), 0, 0);
    const QString rest = path.section(QLatin1Char('.'), 1);
    if (root.isArray()) {
        QJsonArray array = root.toArray();
        const int index = step.toInt();
        const QJsonValue changed = With(array.at(index), rest, value);
        if (changed.isUndefined()) {
            array.removeAt(index);
        } else if (index < array.size()) {
            array.replace(index, changed);
        } else {
            array.append(changed);
        }
        return array;
    }
    QJsonObject object = root.toObject();
    object.insert(step, With(object.value(step), rest, value)); // an undefined value removes the member
    return object;
}

QJsonValue At(const QJsonValue& root, const QString& path)
{
    QJsonValue value = root;
    const QStringList steps = path.split(QLatin1Char('.'), Qt::SkipEmptyParts);
    for (const QString& step : steps) {
        value = value.isArray() ? value.toArray().at(step.toInt()) : value.toObject().value(step);
    }
    return value;
}

} // namespace JsonEdit
