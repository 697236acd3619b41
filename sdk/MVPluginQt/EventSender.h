#pragma once

#include "MVPluginQt/ArrayList.h"
#include "MVPluginQt/Enumerations.h"
#include "MVPluginQt/Export.h"
#include "MVPluginQt/Handle.h"

#include <QObject>

namespace MV {

/// Source of all host events. The host emits an event after the state that it reports is in place.
class MVPLUGINQT_EXPORT CEventSender : public QObject
{
    Q_OBJECT

public:
    explicit CEventSender(QObject* parent = nullptr);

Q_SIGNALS:
    void AboutToConvertPhysicsObjectType();
    void AfterFileLoaded(MV::EFileType type);
    void DialogModeChanged(MV::EDialogMode mode);
    void FileLoaded(MV::EFileType type);
    void HierarchyChanged();
    void ImageAsyncLoadAllDone();
    void ImageAsyncLoadStart();
    void LaunchedImageChanged(const BF::CArrayList<BF::CHandle*>& objects);
    void ObjectDataChanged(const BF::CArrayList<BF::CHandle*>& objects, MV::EObjectChangedDataType changed);
    void ObjectDeleted(BF::CArrayList<BF::CHandle*> objects);
    void ObjectSelectionChanged();
    void PhysicsEngineChanged(MV::EPhysicsEngineType engine);
    void PhysicsSoftClothMultiMaterialsDetected(BF::CHandle* object);
    void PickedMaterialIndexChanged(BF::CHandle* object, unsigned long long materialIndex);
    void PickedMaterialTextureChanged(BF::CHandle* object, const BF::CArrayList<unsigned long long>& materialIndices,
                                      MV::ETextureChannel channel);
    /// \p mode is the new mode, \p oldMode the one before.
    void PickedModeChanged(MV::EPickMode mode, MV::EPickMode oldMode);
    void Played();
    void Stopped();
    void UndoRedoDone();
};

} // namespace MV
