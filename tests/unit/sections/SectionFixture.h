#pragma once

#include "host/services/HostApplication.h"
#include "plugin/PhysicsSoftClothPlugin.h"
#include "tests/support/HostCalls.h"
#include "tests/support/Typing.h"
#include "ui/IniFile.h"

#include <QByteArray>
#include <QSettings>
#include <QStringList>
#include <QTemporaryDir>
#include <QVariant>

#include <memory>

/// A plug-in object without parts in a stand-in host with an object of three soft cloth materials: "Skin" and "Hair"
/// on "Body", "Skirt" on "Clothes". The plug-in's selection names the first of them, as the material dialog would.
class SectionFixture
{
public:
    /// Whether the panel's resource file is registered.
    enum class Resources
    {
        Panel,
        None
    };

    explicit SectionFixture(Resources resources = Resources::Panel);
    ~SectionFixture();
    Q_DISABLE_COPY_MOVE(SectionFixture)

    /// Lets the selection name the material of that number.
    void Select(int material);
    Host::ClothState& Cloth(int material = 0) const;

    /// Makes a section, initialises it and clears the journal. It belongs to the plug-in.
    template <class Section>
    Section& Make()
    {
        auto* section = new Section(&plugin);
        initialised = section->Init(QString(), QString(), &host);
        host.Journal().Clear();
        return *section;
    }
    /// Shows \p section in the plug-in's window and waits until that is the active one.
    bool Show(QWidget& section);

    /// The host calls since the last time, and everything else that the journal recorded.
    QStringList TakeCalls();
    /// A call as TakeCalls() returns it: \p arguments follow those that name the selected material.
    QString Call(const char* operation, const QStringList& arguments, const char* result = "0") const;
    /// How the journal shows a record.
    template <class Record>
    QString Text(const Record& record) const
    {
        return Host::JournalText(host.CurrentScene())(record);
    }

    /// A profile that holds \p lines, each "key=value", in \p group; opened and positioned there.
    std::unique_ptr<QSettings> Profile(const char* group, const QStringList& lines);
    /// What is in the group of \p profile that it is positioned in, read from its file.
    static MV::CIniGroup Read(QSettings& profile);
    /// What \p section saves into \p group: the lines of the file.
    template <class Section>
    QStringList Saved(const Section& section, const char* group)
    {
        const std::unique_ptr<QSettings> profile = Profile(group, {});
        section.SaveProfile(*profile);
        profile->sync();
        return Lines(profile->fileName());
    }
    /// Lets \p section load the given lines.
    template <class Section>
    void Load(Section& section, const char* group, const QStringList& lines)
    {
        section.LoadProfile(Read(*Profile(group, lines)));
    }

    Host::HostApplication host;
    MV::CPhysicsSoftClothPlugin plugin;
    Host::Object* object = nullptr;
    BF::Result initialised;

private:
    Host::ClothAddress Address(int material) const;
    static QStringList Lines(const QString& path);

    QTemporaryDir m_folder;
    int m_files = 0;
};

/// A file with these lines in \p group as the settings store writes it: sorted, but on Windows, where the keys stay as
/// they were written.
QStringList SavedAs(const char* group, QStringList lines);

/// What a box shows, whatever its class; an int or a double. Invalid for another widget.
QVariant Shown(const QWidget* box);

/// Counts every change and every commit that the boxes inside a section report, while it exists.
class BoxSignals
{
public:
    explicit BoxSignals(const QWidget& section);
    int Count() const { return m_count; }

private:
    QObject m_context;
    int m_count = 0;
};

/// Whether two records, which must have no gaps, hold the same bits.
template <class Record>
bool SameBits(const Record& a, const Record& b)
{
    const auto bits = [](const Record& record) {
        return QByteArray::fromRawData(reinterpret_cast<const char*>(&record), sizeof(Record));
    };
    return bits(a) == bits(b);
}

/// Compares a section's host record with the expected one; shows both where they differ.
#define COMPARE_RECORDS(fixture, actual, expected)                                                                     \
    QCOMPARE((fixture).Text(actual), (fixture).Text(expected));                                                        \
    QVERIFY(SameBits(actual, expected))
