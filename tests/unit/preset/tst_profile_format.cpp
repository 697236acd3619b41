#include "tests/support/PropertyRows.h"
#include "tests/support/TestCase.h"
#include "tests/support/UserDialogs.h"
#include "tests/unit/preset/PresetFixture.h"

#include <algorithm>

/// What the documentation says about the profile's format.
class TestProfileFormat : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void completeExampleIsWhatASaveWrites();
    void shortExampleChangesTheWindOnly();
    void keyTablesNameEverySavedKey();
    void textsCountAsValues_data();
    void textsCountAsValues();
};

namespace {

struct FormatFixture : PresetFixture
{
    FormatFixture() { hero = &AddCloth(); }

    BF::Result Load(const QByteArray& content)
    {
        return section->LoadProfileFile(Files::Write(Path(QStringLiteral("profile.ini")), content));
    }
    QByteArray Save()
    {
        const QString path = Path(QStringLiteral("saved.ini"));
        UserDialogs::ChooseFile([&] { Click("qtSaveFilePushButton"); }, path);
        return Files::ReadText(path);
    }

    Host::Object* hero = nullptr;
};

QByteArray Document()
{
    return Files::Read(QStringLiteral(SOFTCLOTH_PROFILE_DOCUMENT));
}

/// The text of the document's example number \p index.
QByteArray Example(int index)
{
    const QByteArray opening = "```ini\n";
    const QByteArray document = Document();
    int start = -1;
    for (int i = 0; i <= index; ++i) {
        start = document.indexOf(opening, start + 1);
    }
    start += opening.size();
    return document.mid(start, document.indexOf("```", start) - start);
}

/// \p profile with its groups, and the keys of each, in alphabetical order.
QByteArray InOrder(const QByteArray& profile)
{
    QStringList groups = QString::fromUtf8(profile).trimmed().split(QStringLiteral("\n\n"));
    for (QString& group : groups) {
        QStringList lines = group.split(u'\n');
        std::sort(lines.begin() + 1, lines.end());
        group = lines.join(u'\n');
    }
    groups.sort();
    return groups.join(QStringLiteral("\n\n")).toUtf8() + '\n';
}

/// A value of the host.
using Value = double (*)(const Host::ClothState& cloth);

} // namespace

Q_DECLARE_METATYPE(Value)

void TestProfileFormat::completeExampleIsWhatASaveWrites()
{
    FormatFixture fixture;
#ifdef Q_OS_WIN
    // There the store keeps the order in which the panel writes.
    QCOMPARE(InOrder(fixture.Save()), Example(0));
#else
    QCOMPARE(fixture.Save(), Example(0));
#endif
    QCOMPARE(InOrder(Example(0)), Example(0));
}

void TestProfileFormat::shortExampleChangesTheWindOnly()
{
    FormatFixture fixture;
    Host::ClothState expected = fixture.Cloth(*fixture.hero);
    QCOMPARE(fixture.Load(Example(1)), BF::Results::Success);
    expected.wind.externalAcceleration = {100, 0, 20};
    expected.wind.randomAcceleration = {5, 5, 5};
    expected.wind.frequency = 2.5F;
    expected.wind.randomFactor = {1, 4};
    QVERIFY(fixture.Cloth(*fixture.hero) == expected);
}

void TestProfileFormat::keyTablesNameEverySavedKey()
{
    FormatFixture fixture;
    const QByteArray document = Document();
    const QList<QByteArray> lines = fixture.Save().split('\n');
    int keys = 0;
    for (const QByteArray& line : lines) {
        if (line.contains('=')) {
            const QByteArray row = "\n| `" + line.left(line.indexOf('=')) + "` |";
            QVERIFY2(document.contains(row), row.constData());
            ++keys;
        }
    }
    QCOMPARE(keys, 1 + int(PropertyRows::All().size()) + 4 + 4);
}

void TestProfileFormat::textsCountAsValues_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<Value>("value");
    QTest::addColumn<double>("expected");
    const auto row = [](const char* name, const char* content, Value value, double expected) {
        QTest::newRow(name) << QByteArray(content) << value << expected;
    };
    const Value mass = [](const Host::ClothState& cloth) { return double(cloth.property.mass); };
    const Value friction = [](const Host::ClothState& cloth) { return double(cloth.property.friction); };
    const Value stiffness = [](const Host::ClothState& cloth) { return double(cloth.property.stiffness); };
    const Value bending = [](const Host::ClothState& cloth) { return double(cloth.property.bending); };
    const Value tether = [](const Host::ClothState& cloth) { return double(cloth.property.tetherStiffness); };
    const Value linear = [](const Host::ClothState& cloth) { return double(cloth.property.linearInertiaScale); };
    const Value angular = [](const Host::ClothState& cloth) { return double(cloth.property.angularInertiaScale); };
    const Value external = [](const Host::ClothState& cloth) { return double(cloth.wind.externalAcceleration[1]); };
    const Value last = [](const Host::ClothState& cloth) { return double(cloth.wind.randomAcceleration[2]); };
    const Value margin = [](const Host::ClothState& cloth) { return double(cloth.collision.rigidMargin); };

    row("number", "[Property]\nMass=12\n", mass, 12);
    row("beyond the box", "[Property]\nMass=20000\n", mass, 20000);
    row("not negative", "[Property]\nMass=-1\n", mass, 0);
    row("no number", "[Property]\nMass=heavy\n", mass, 0);
    row("whole number with decimals", "[Property]\nMass=2.5\n", mass, 0);
    row("key twice", "[Property]\nMass=1\nMass=2\n", mass, 2);
    row("quotes", "[Property]\nMass=\"3\"\n", mass, 3);
    row("blanks", "[Property]\n  Mass = 4  \n", mass, 4);
#ifdef Q_OS_WIN
    row("key in lower case", "[Property]\nmass=4\n", mass, 4);
#else
    row("key in lower case", "[Property]\nmass=4\n", mass, 0);
#endif
    row("decimals", "[Property]\nFriction=0.25\n", friction, 0.25);
    row("beyond the box's decimals", "[Property]\nFriction=0.00390625\n", friction, 0.00390625);
    row("exponent", "[Property]\nFriction=25e-2\n", friction, 0.25);
    row("decimal comma", "[Property]\nFriction=0,25\n", friction, 0);
    row("percent", "[Property]\nStiffness=75\n", stiffness, 0.25);
    row("percent with decimals", "[Property]\nStiffness=10.5\n", stiffness, 1);
    row("missing percent", "[Property]\nMass=1\n", bending, 1);
    row("percent from one", "[Property]\nTether_Stiffness=101\n", tether, 0);
    row("missing percent from one", "[Property]\nMass=1\n", tether, double(1.01F));
    row("tenths", "[Property]\nLinear_Inertia_Scale=15\n", linear, 1.5);
    row("linear tenths with decimals", "[Property]\nLinear_Inertia_Scale=12.5\n", linear, 0);
    row("angular tenths with decimals", "[Property]\nAngular_Inertia_Scale=12.5\n", angular, 1.25);
    row("list", "[Wind_Setting]\nExternal_Acceleration=1, -2, 3\n", external, -2);
    row("list without blanks", "[Wind_Setting]\nExternal_Acceleration=1,-2,3\n", external, -2);
    row("list element with decimals", "[Wind_Setting]\nExternal_Acceleration=1, 2.5, 3\n", external, 2.5);
    row("list too short", "[Wind_Setting]\nRandom_Acceleration=1, 2\n", last, 0);
    row("list too long", "[Wind_Setting]\nRandom_Acceleration=1, 2, 3, 4\n", last, 3);
    row("margin", "[Collision]\nSoft_Vs_Rigid_Collision_Margin=2000\n", margin, 2000);
}

void TestProfileFormat::textsCountAsValues()
{
    QFETCH(const QByteArray, content);
    QFETCH(const Value, value);
    QFETCH(const double, expected);
    FormatFixture fixture;
    QCOMPARE(fixture.Load(content), BF::Results::Success);
    QCOMPARE(value(fixture.Cloth(*fixture.hero)), expected);
}

SOFTCLOTH_TEST(TestProfileFormat)
#include "tst_profile_format.moc"
