#pragma once

#include "host/scene/Scene.h"
#include "host/services/CallJournal.h"
#include "host/services/FaultPlan.h"
#include "host/services/JournalText.h"
#include "host/services/PreparedAnswers.h"
#include "plugin/services/MoviraInterface.h"

#include <MVPluginQt/Enumerations.h>
#include <MVPluginQt/EventSender.h>

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <memory>
#include <utility>
#include <vector>

namespace Host {

class AuxService;
class EditService;
class FileService;
class HotKeyService;
class ImageEditor;
class Pictures;
class SceneService;
class SoftClothService;
class UiService;
class WeightImages;

/// The stand-in host application: a scene, the services over it, the events, the call journal and the fault plan.
///
/// Whatever changes the scene or a mode goes through here, whether the plug-in asked for it or the user: the state is
/// stored first, then the event is sent; a change to the same value sends none. Whoever hears of an event, or of a
/// problem, may change anything at all and exchange the scene: after it everything is looked up again.
class HostApplication : public QObject, public MV::CMoviraInterface
{
    Q_OBJECT

public:
    explicit HostApplication(QObject* parent = nullptr);
    ~HostApplication() override;

    // The interface that plug-ins see.
    MV::CEventSender* GetEventSender() override;
    MV::CEditService* GetEditService() override;
    MV::CFileService* GetFileService() override;
    MV::CSceneService* GetSceneService() override;
    MV::CUiService* GetUiService() override;
    MV::CHotKeyService* GetHotKeyService() override;
    MV::CSoftClothService* GetSoftClothService() override;
    MV::CAuxService* GetAuxService() override;

    Scene& CurrentScene() const { return *m_scene; }
    CallJournal& Journal() { return m_journal; }
    FaultPlan& Faults() { return m_faults; }
    PreparedAnswers& Answers() { return m_answers; }

    // Images.
    Host::Pictures& Images() const { return *m_pictures; }
    Host::WeightImages& Weights() const { return *m_weightImages; }
    Host::ImageEditor& Editor() const { return *m_imageEditor; }
    /// Decodes the textures of an object in the background, with events at the beginning and at the end.
    void LoadImages(BF::CHandle* object);
    /// Tells the user about something that went wrong with a file, in a sentence.
    void TellProblem(const QString& sentence);

    /// The next message box of a plug-in also shows \p reason: the user gets one message instead of two. For what the
    /// plug-in answers with a box only.
    void ExplainNextBox(const QString& reason) { m_reason = reason; }
    /// What the next message box is to explain; a null string for nothing. It is explained once.
    QString TakeReason() { return std::exchange(m_reason, {}); }

    /// Parent of the plug-in's dialogs and of the host's own.
    void SetMainWindow(QWidget* window) { m_mainWindow = window; }
    QWidget* MainWindow() const { return m_mainWindow; }

    /// Folder of the host's data, without a separator at the end.
    void SetDataFolder(const QString& folder) { m_dataFolder = folder; }
    const QString& DataFolder() const { return m_dataFolder; }

    // The scene as a whole.

    /// Takes over a new scene in place of the current one.
    void ReplaceScene(std::unique_ptr<Scene> scene, MV::EFileType type);
    /// Adds a model as one undo step and selects it.
    /// \return the new object's handle; null, after a message, when the scene would become too large, and null when an
    ///         event opened another scene meanwhile
    BF::CHandle* AddModel(Object object);
    /// Deletes objects as one undo step; unknown handles are left out.
    void DeleteObjects(const QVector<BF::CHandle*>& objects);
    void Select(const QVector<BF::CHandle*>& objects);
    /// The user has selected what is selected already: sends the event once more, so that the panel begins anew with
    /// it.
    void SelectAgain();
    /// The user has clicked on material number \p index of an object that is selected now; -1 for none. Chooses the
    /// material while materials are being chosen, that is while the weight map dialog is open or one is being picked.
    /// Selects the object again unless the click has just selected it.
    void Click(BF::CHandle* object, int index, bool hasSelected);
    /// The user has chosen a material, number \p index of those of \p object.
    void PickMaterial(BF::CHandle* object, int index);
    /// Objects that come back by one of these are selected.
    void Undo();
    void Redo();
    /// Takes the last edit back for the one who made it; a run of edits can go on after that.
    void TakeBack();

    // Gates and modes.

    void SetPhysicsEngine(int engine);
    void SetPlaying(bool playing);
    void SetDialogMode(MV::EDialogMode mode);
    void SetPickMode(MV::EPickMode mode);
    /// Everything that the host reports of an object other than its values. Sends an object-data event on a change.
    void SetTraits(BF::CHandle* object, const ObjectTraits& traits);
    /// Puts an object into conversion state \p state; one that is not converting yet is announced.
    void SetConvertState(BF::CHandle* object, int state);
    void RenameMaterial(Id material, const QString& name);

    // Edits that more than one caller makes.

    /// Pushes an edit of one object; when it changes something, says which of the object's data changed.
    void PushObjectEdit(BF::CHandle* object, SceneEdit edit,
                        MV::EObjectChangedDataType changedData = MV::EObjectChangedDataType::Topology);
    /// Switches soft cloth physics of an object. Switched on, the materials that may take part become soft cloth
    /// unless some already are. \return false for an unknown object
    bool SetSoftClothActive(BF::CHandle* object, bool active);
    /// Makes an object soft cloth at the user's command to the host, outside the panel. Where several materials become
    /// soft cloth at once, its event is sent.
    void ConvertToSoftCloth(BF::CHandle* object);
    /// Takes all materials of an object out of the soft cloth and switches its physics off.
    /// \return false for an unknown object
    bool CancelSoftCloth(BF::CHandle* object);

    /// How the journal shows values.
    JournalText Text() const;

    /// Sends an event and records it in the journal. The modes above send theirs; the host controls send any.
    template <class... Parameters, class... Arguments>
    void Send(const char* name, void (MV::CEventSender::*eventSignal)(Parameters...), const Arguments&... arguments)
    {
        [[maybe_unused]] const JournalText text = Text();
        JournalEntry entry;
        entry.kind = JournalEntry::Kind::Event;
        entry.service = QStringLiteral("Event");
        entry.operation = QLatin1String(name);
        entry.arguments = QStringList{text(arguments)...};
        const QStringList texts = entry.arguments;
        const qint64 number = m_journal.Begin(std::move(entry));
        Q_EMIT(m_eventSender.*eventSignal)(arguments...);
        m_journal.End(number, texts, {});
    }

Q_SIGNALS:
    /// The scene was exchanged for another one; whoever listened to the old one connects again.
    void SceneReplaced();
    /// Engine, playing, dialog mode, pick mode or traits changed.
    void StateChanged();
    /// Something went wrong with a file; \p sentence is for the user.
    void ProblemTold(const QString& sentence);
    /// The plug-in asked the host to draw the scene again.
    void SceneRefreshRequested();
    /// The plug-in read the values of one material: these are what the user sees.
    void ClothRead(const Host::ClothAddress& address);
    /// The plug-in asked for a page of the host's panels.
    void PanelPageRequested(int page, int order, int flags);

private:
    void StepUndoStack(bool forward);
    void SelectNewObjects(const std::vector<Object*>& existedBefore);
    int ActiveSlotCount(const Object& object) const;

    std::unique_ptr<Scene> m_scene;
    MV::CEventSender m_eventSender;
    CallJournal m_journal;
    FaultPlan m_faults;
    PreparedAnswers m_answers;
    QPointer<QWidget> m_mainWindow;
    QString m_dataFolder;
    QString m_reason;
    std::unique_ptr<Host::Pictures> m_pictures;
    std::unique_ptr<Host::WeightImages> m_weightImages;
    std::unique_ptr<Host::ImageEditor> m_imageEditor;

    std::unique_ptr<SceneService> m_sceneService;
    std::unique_ptr<EditService> m_editService;
    std::unique_ptr<FileService> m_fileService;
    std::unique_ptr<UiService> m_uiService;
    std::unique_ptr<HotKeyService> m_hotKeyService;
    std::unique_ptr<SoftClothService> m_softClothService;
    std::unique_ptr<AuxService> m_auxService;
};

} // namespace Host
