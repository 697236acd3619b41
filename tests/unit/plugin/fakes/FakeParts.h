#pragma once

#include "host/services/CallJournal.h"

#include <MVPluginQt/AbstractSection.h>
#include <MVPluginQt/CoreBase.h>
#include <MVPluginQt/Enumerations.h>
#include <MVPluginQt/Handle.h>
#include <MVPluginQt/Result.h>

#include <QHash>
#include <QWeakPointer>
#include <QWidget>

/// Stand-ins for the six parts of the panel: each call is written into the host's call journal, between the host
/// calls of the plug-in object, and answers what the test has planned.
struct FakeParts
{
    static inline Host::CallJournal* journal = nullptr;
    static inline QHash<QString, BF::Result> results; ///< By call, for example "Property.UpdateUi"; 0 for the others.
    static inline bool pickChangesMaterial = false;

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

class CMoviraInterface;
class CPhysicsSoftClothPlugin;

/// What all six have in common.
class FakePart : public QWidget
{
public:
    FakePart(const char* name, QWidget* parent)
        : QWidget(parent)
        , m_name(QLatin1String(name))
    {
        QWidget::setVisible(false);
        Log("create");
    }
    ~FakePart() override { Log("destroy"); }

    BF::Result Init(const QString& /*pluginPath*/, const QString& /*resourceBase*/, CMoviraInterface* /*host*/)
    {
        return Log("Init");
    }

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
    FakeSection(const char* name, CPhysicsSoftClothPlugin* plugin);

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
    explicit CSoftClothPropertySection(CPhysicsSoftClothPlugin* plugin)
        : FakePlainSection("Property", plugin)
    {
    }
};

class CSoftClothCollisionSection : public FakePlainSection
{
public:
    explicit CSoftClothCollisionSection(CPhysicsSoftClothPlugin* plugin)
        : FakePlainSection("Collision", plugin)
    {
    }
};

class CSoftClothWindSection : public FakePlainSection
{
public:
    explicit CSoftClothWindSection(CPhysicsSoftClothPlugin* plugin)
        : FakePlainSection("Wind", plugin)
    {
    }
};

class CSoftClothPresetSection : public FakeSection
{
public:
    explicit CSoftClothPresetSection(CPhysicsSoftClothPlugin* plugin)
        : FakeSection("Preset", plugin)
    {
    }
    BF::Result UpdateUi(bool sameObject) { return Log("UpdateUi", FakeParts::Text(sameObject)); }
    void EnableUi(bool enable) { Log("EnableUi", FakeParts::Text(enable)); }
};

class CSoftClothMaterialTable : public FakePart
{
public:
    CSoftClothMaterialTable(QWidget* parent, CPhysicsSoftClothPlugin* /*plugin*/)
        : FakePart("Table", parent)
    {
    }
};

class CSoftClothMaterialDlg : public FakePart
{
public:
    CSoftClothMaterialDlg(QWidget* parent, CPhysicsSoftClothPlugin* /*plugin*/)
        : FakePart("Dialog", parent)
    {
    }
    BF::Result ReloadMaterials(BF::CHandle* /*object*/, bool reset)
    {
        return Log("ReloadMaterials", FakeParts::Text(reset));
    }
    void SetMaterialTable(const QWeakPointer<CSoftClothMaterialTable>& table) { hasTable = !table.isNull(); }
    void SelectWeightingLabel() { Log("SelectWeightingLabel"); }
    BF::Result RefreshMaterialStates() { return Log("RefreshMaterialStates"); }
    BF::Result UpdateUi() { return Log("UpdateUi"); }
    BF::Result OnPickModeChanged(EPickMode mode) { return Log("OnPickModeChanged", QString::number(int(mode))); }
    bool PickMaterial(std::size_t index)
    {
        Log("PickMaterial", QString::number(index));
        return FakeParts::pickChangesMaterial;
    }

    bool hasTable = false;
};

} // namespace MV
