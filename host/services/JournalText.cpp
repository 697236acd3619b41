#include "host/services/JournalText.h"

#include "host/scene/Handles.h"
#include "host/scene/Scene.h"
#include "host/services/ImageHandles.h"

#include <QAction>
#include <QWidget>

namespace Host {

namespace {

QString Number(float value)
{
    return QString::number(double(value), 'g', 7);
}

QString Field(const char* name, const QString& text)
{
    return QLatin1String(name) + QLatin1Char('=') + text;
}

QString Record(const QStringList& fields)
{
    return QLatin1Char('{') + fields.join(QLatin1String(", ")) + QLatin1Char('}');
}

template <std::size_t n>
QString Numbers(const std::array<float, n>& values)
{
    QStringList texts;
    for (const float value : values) {
        texts.append(Number(value));
    }
    return QLatin1Char('(') + texts.join(QLatin1String(", ")) + QLatin1Char(')');
}

QString ObjectText(const QObject* object)
{
    if (!object) {
        return QStringLiteral("null");
    }
    return object->objectName().isEmpty() ? QString::fromLatin1(object->metaObject()->className())
                                          : object->objectName();
}

} // namespace

QString JournalText::operator()(bool value) const
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

QString JournalText::operator()(const QString& value) const
{
    return QLatin1Char('"') + value + QLatin1Char('"');
}

QString JournalText::operator()(const BF::CHandle* handleOrId) const
{
    if (!handleOrId) {
        return QStringLiteral("null");
    }
    const QString name = m_scene.NameOf(handleOrId);
    if (!name.isNull()) {
        return (*this)(name);
    }
    const QString image = m_images ? m_images->NameOf(handleOrId, m_scene) : QString();
    return image.isNull() ? QStringLiteral("unknown 0x%1").arg(ToId(handleOrId), 0, 16) : image;
}

QString JournalText::operator()(BF::Result value) const
{
    return value.IsFailure() ? QStringLiteral("0x%1").arg(quint32(value.Code()), 8, 16, QLatin1Char('0'))
                             : QString::number(value.Code());
}

QString JournalText::operator()(const QAction* value) const
{
    return ObjectText(value);
}

QString JournalText::operator()(const QWidget* value) const
{
    return ObjectText(value);
}

QString JournalText::operator()(const MV::SoftClothPropertyData& value) const
{
    return Record(
        {Field("mass", QString::number(value.mass)), Field("solverFrequency", QString::number(value.solverFrequency)),
         Field("tetherStiffness", Number(value.tetherStiffness)), Field("tetherLimit", Number(value.tetherLimit)),
         Field("friction", Number(value.friction)), Field("damping", Number(value.damping)),
         Field("drag", Number(value.drag)), Field("stiffness", Number(value.stiffness)),
         Field("stiffnessFrequency", Number(value.stiffnessFrequency)), Field("bending", Number(value.bending)),
         Field("linearInertiaScale", Number(value.linearInertiaScale)),
         Field("angularInertiaScale", Number(value.angularInertiaScale)),
         Field("centrifugalInertiaScale", Number(value.centrifugalInertiaScale)),
         Field("collisionMassScale", Number(value.collisionMassScale)),
         Field("sleepLinearVelocity", Number(value.sleepLinearVelocity)),
         Field("wakeCounterValue", Number(value.wakeCounterValue))});
}

QString JournalText::operator()(const MV::SoftClothCollisionData& value) const
{
    return Record({Field("collideWithRigid", (*this)(value.collideWithRigid)),
                   Field("selfCollision", (*this)(value.selfCollision)),
                   Field("rigidMargin", Number(value.rigidMargin)), Field("selfMargin", Number(value.selfMargin))});
}

QString JournalText::operator()(const MV::SoftClothWindData& value) const
{
    return Record({Field("externalAcceleration", Numbers(value.externalAcceleration)),
                   Field("randomAcceleration", Numbers(value.randomAcceleration)),
                   Field("frequency", Number(value.frequency)), Field("randomFactor", Numbers(value.randomFactor))});
}

QString JournalText::operator()(const MV::WeightImageAdjust& value) const
{
    return Record(
        {Field("brightness", QString::number(value.brightness)), Field("contrast", QString::number(value.contrast))});
}

QString JournalText::operator()(const MV::WeightImageState& value) const
{
    return Record({Field("hasFile", (*this)(value.hasFile)), Field("embedded", (*this)(value.embedded)),
                   Field("reload", (*this)(value.reload))});
}

QString JournalText::operator()(const std::map<std::wstring, BF::CArrayList<std::wstring>>& value) const
{
    QStringList texts;
    for (const auto& [name, list] : value) {
        texts.append((*this)(name) + QLatin1String(": ") + (*this)(list));
    }
    return QLatin1Char('{') + texts.join(QLatin1String(", ")) + QLatin1Char('}');
}

} // namespace Host
