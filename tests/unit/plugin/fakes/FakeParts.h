#pragma once

#include "host/services/CallJournal.h"

#include <MVPluginQt/AbstractSection.h>
#include <MVPluginQt/CoreBase.h>
#include <MVPluginQt/Enumerations.h>
#include <MVPluginQt/Handle.h>
#include <MVPluginQt/Result.h>

#include <QHash>
#include <QVector>
#include <QWeakPointer>
#include <QWidget>

#include <cstddef>
#include <limits>
#include <new>

namespace MV {
class CMoviraInterface;
class CPhysicsSoftClothPlugin;
} // namespace MV

/// Stand-ins for the six parts of the panel: each call is written into the host's call journal, between the host
/// calls of the plug-in object, and returns what the test has planned.
struct FakeParts
{
    /// What a part was initialised with.
    struct Initialised
    {
        QString part;
        QString pluginPath;
        QString resourceBase;
        MV::CMoviraInterface* host;
    };

    static inline Host::CallJournal* journal = nullptr;
    static inline QHash<QString, BF::Result> results; ///< By call, for example "Property.UpdateUi"; 0 for the others.
    static inline bool pickChangesMaterial = false;
    static inline int partsWithMemory = 0; ///< How many more parts find memory.
    static inline QVector<Initialised> initialised;

    /// As it is at the start of a test.
    static void Reset(Host::CallJournal* callJournal)
    {
        journal = callJournal;
        results.clear();
        pickChangesMaterial = false;
        partsWithMemory = std::numeric_limits<int>::max();
        initialised.clear();
    }

    static BF::Result Log(const QString& call, const QString& argument = {})
    {
        const BF::Result result = results.value(call);
        if (journal) {
            Host::JournalEntry entry;
            entry.service = QStringLiteral("Part");
            entry.operation = call;
            const QStringList arguments = argument.isNull() ? QStringList() : QStringList{argument};
            journal->End(journal->Begin(entry), arguments, {});
        }
        return result;
    }

    static QString Text(bool value) { return value ? QStringLiteral("true") : QStringLiteral("false"); }
};

namespace MV {

/// What all six have in common.
class FakePart : public QWidget
{
public:
    FakePart(const char* name, QWidget* parent, CPhysicsSoftClothPlugin* givenPlugin)
        : QWidget(parent)
        , plugin(givenPlugin)
        , m_name(QLatin1String(name))
    {
        QWidget::setVisible(false);
        Log("create");
    }
    ~FakePart() override { Log("destroy"); }

    static void* operator new(std::size_t size, const std::nothrow_t& tag) noexcept
    {
        if (FakeParts::partsWithMemory == 0) {
            return nullptr;
        }
        --FakeParts::partsWithMemory;
        return ::operator new(size, tag);
    }

    BF::Result Init(const QString& pluginPath, const QString& resourceBase, CMoviraInterface* host)
    {
        FakeParts::initialised.append({m_name, pluginPath, resourceBase, host});
        return Log("Init");
    }

    CPhysicsSoftClothPlugin* const plugin;

protected:
    BF::Result Log(const char* call, const QString& argument = {}) const
    {
        return FakeParts::Log(m_name + QLatin1Char('.') + QLatin1String(call), argument);
    }

private:
    QString m_name;
};

class FakeSection : public FakePart, public CCoreBase, public CAbstractSection
{
public:
    FakeSection(const char* name, CPhysicsSoftClothPlugin* givenPlugin);

    void setVisible(bool visible) override { Log(visible ? "show" : "hide"); }
    void EnableSection(bool enable) { Log("EnableSection", FakeParts::Text(enable)); }

    int GetSectionPage() override { return 4; }
    int GetSectionOrder() override { return 0; }
    int GetSectionApplications() override { return 7; }
    QWidget* GetSectionWidget() override { return this; }
};

/// The Property, Collision and Wind sections refresh alike.
class FakePlainSection : public FakeSection
{
public:
    using FakeSection::FakeSection;
    BF::Result UpdateUi() { return Log("UpdateUi"); }
};

class CSoftClothPropertySection : public FakePlainSection
{
public:
    explicit CSoftClothPropertySection(CPhysicsSoftClothPlugin* givenPlugin)
        : FakePlainSection("Property", givenPlugin)
    {
    }
};

class CSoftClothCollisionSection : public FakePlainSection
{
public:
    explicit CSoftClothCollisionSection(CPhysicsSoftClothPlugin* givenPlugin)
        : FakePlainSection("Collision", givenPlugin)
    {
    }
};

class CSoftClothWindSection : public FakePlainSection
{
public:
    explicit CSoftClothWindSection(CPhysicsSoftClothPlugin* givenPlugin)
        : FakePlainSection("Wind", givenPlugin)
    {
    }
};

class CSoftClothPresetSection : public FakeSection
{
public:
    explicit CSoftClothPresetSection(CPhysicsSoftClothPlugin* givenPlugin)
        : FakeSection("Preset", givenPlugin)
    {
    }
    BF::Result UpdateUi(bool sameObject) { return Log("UpdateUi", FakeParts::Text(sameObject)); }
    void EnableUi(bool enable) { Log("EnableUi", FakeParts::Text(enable)); }
};

class CSoftClothMaterialTable : public FakePart
{
public:
    CSoftClothMaterialTable(QWidget* parent, CPhysicsSoftClothPlugin* givenPlugin)
        : FakePart("Table", parent, givenPlugin)
    {
    }
};

class CSoftClothMaterialDlg : public FakePart
{
public:
    CSoftClothMaterialDlg(QWidget* parent, CPhysicsSoftClothPlugin* givenPlugin)
        : FakePart("Dialog", parent, givenPlugin)
    {
    }
    BF::Result ReloadMaterials(BF::CHandle* object, bool reset)
    {
        reloadedObject = object;
        return Log("ReloadMaterials", FakeParts::Text(reset));
    }
    void SetMaterialTable(const QWeakPointer<CSoftClothMaterialTable>& table) { materialTable = table; }
    void SelectWeightingLabel() { Log("SelectWeightingLabel"); }
    BF::Result RefreshMaterialStates() { return Log("RefreshMaterialStates"); }
    BF::Result UpdateUi() { return Log("UpdateUi"); }
    BF::Result OnPickModeChanged(EPickMode mode) { return Log("OnPickModeChanged", QString::number(int(mode))); }
    bool PickMaterial(std::size_t index)
    {
        Log("PickMaterial", QString::number(index));
        return FakeParts::pickChangesMaterial;
    }

    QWeakPointer<CSoftClothMaterialTable> materialTable;
    BF::CHandle* reloadedObject = nullptr; ///< Whose materials were reloaded last.
};

} // namespace MV
