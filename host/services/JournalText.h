#pragma once

#include "plugin/services/SoftClothRecords.h"

#include <MVPluginQt/ArrayList.h>
#include <MVPluginQt/Enumerations.h>
#include <MVPluginQt/Result.h>

#include <QString>
#include <QStringList>

#include <functional>
#include <map>
#include <string>
#include <type_traits>

class QAction;
class QWidget;

namespace Host {

class ImageHandles;
class Scene;

/// How the call journal shows values. Handles and ids are shown by name, which takes the scene.
class JournalText
{
public:
    /// \param images  by which image handles are named; null for unnamed ones
    explicit JournalText(const Scene& scene, const ImageHandles* images = nullptr)
        : m_scene(scene)
        , m_images(images)
    {
    }

    QString operator()(bool value) const;
    QString operator()(int value) const { return QString::number(value); }
    QString operator()(quint32 value) const { return QString::number(value); }
    QString operator()(unsigned long value) const { return QString::number(value); }
    QString operator()(quint64 value) const { return QString::number(value); }
    QString operator()(const QString& value) const;
    QString operator()(const std::wstring& value) const { return (*this)(QString::fromStdWString(value)); }
    QString operator()(const BF::CHandle* handleOrId) const;
    QString operator()(BF::Result value) const;
    QString operator()(const QAction* value) const;
    QString operator()(const QWidget* value) const;
    QString operator()(const MV::SoftClothPropertyData& value) const;
    QString operator()(const MV::SoftClothCollisionData& value) const;
    QString operator()(const MV::SoftClothWindData& value) const;
    QString operator()(const MV::WeightImageAdjust& value) const;
    QString operator()(const MV::WeightImageState& value) const;
    QString operator()(const std::map<std::wstring, BF::CArrayList<std::wstring>>& value) const;

    /// Enumerations by number, as in the interface.
    template <class T, std::enable_if_t<std::is_enum_v<T>, int> = 0>
    QString operator()(T value) const
    {
        return QString::number(static_cast<std::underlying_type_t<T>>(value));
    }

    template <class T>
    QString operator()(const BF::CArrayList<T>& values) const
    {
        QStringList texts;
        for (const T& value : values) {
            texts.append((*this)(value));
        }
        return QLatin1Char('[') + texts.join(QLatin1String(", ")) + QLatin1Char(']');
    }

private:
    const Scene& m_scene;
    const ImageHandles* m_images;
};

} // namespace Host
