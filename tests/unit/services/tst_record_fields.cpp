#include "host/scene/RecordFields.h"
#include "host/scene/Scene.h"
#include "host/services/JournalText.h"
#include "tests/support/PropertyRows.h"
#include "tests/support/TestCase.h"

#include <array>
#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <set>

using Collision = MV::SoftClothCollisionData;
using Property = MV::SoftClothPropertyData;
using Wind = MV::SoftClothWindData;

/// The host's records: the journal shows all of each, and a write changes no field but the one that it names.
class TestRecordFields : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void journalShowsEveryBit();
    void journalTellsNumbersApart_data();
    void journalTellsNumbersApart();
    void journalNamesFields();
    void writeTakesItsFieldOnly_data();
    void writeTakesItsFieldOnly();
    void otherWritesTakeNothing();
    void testsKnowEveryProperty();
};

namespace {

template <class Record>
QString Text(const Record& record)
{
    return Host::JournalText(Host::Scene())(record);
}

template <class Record>
using Bytes = std::array<unsigned char, sizeof(Record)>;

template <class Record>
Bytes<Record> BytesOf(const Record& record)
{
    Bytes<Record> bytes{};
    std::memcpy(bytes.data(), &record, sizeof(record));
    return bytes;
}

/// Where the member that \p field names lies in a record.
template <class Record, class Field>
std::size_t OffsetOf(const Record& record, const Field& field)
{
    const auto* member = reinterpret_cast<const unsigned char*>(&(record.*field.member));
    return std::size_t(member - reinterpret_cast<const unsigned char*>(&record));
}

/// Turns each bit of each field over, by itself. \return how many bytes the fields have in all
template <class Record>
std::size_t TurnBits(const Record& before, const std::function<void(const Record&, const char* field, int bit)>& check)
{
    std::size_t count = 0;
    Host::ForEachField(before, [&](const auto& field) {
        using Value = std::decay_t<decltype(before.*field.member)>;
        // The other bits of a truth value are never set.
        const int bits = std::is_same_v<Value, bool> ? 1 : int(8 * sizeof(Value));
        for (int bit = 0; bit < bits; ++bit) {
            Bytes<Record> bytes = BytesOf(before);
            bytes[OffsetOf(before, field) + std::size_t(bit / 8)] ^= static_cast<unsigned char>(1U << (bit % 8));
            Record turned;
            std::memcpy(&turned, bytes.data(), sizeof(turned));
            check(turned, field.name, bit);
        }
        count += sizeof(Value);
    });
    return count;
}

template <class Record>
void CheckEveryBit(std::size_t byteCount)
{
    const Record before;
    const QString text = Text(before);
    const std::size_t seen = TurnBits<Record>(before, [&](const Record& turned, const char* field, int bit) {
        QVERIFY2(Text(turned) != text, qPrintable(QStringLiteral("%1, bit %2").arg(QLatin1String(field)).arg(bit)));
    });
    QCOMPARE(seen, byteCount);
}

/// The names of the fields that a write with \p selector takes from a record that differs in all bytes.
template <class Record, class Selector>
QStringList Taken(Selector selector)
{
    const Record before;
    Bytes<Record> bytes = BytesOf(before);
    for (unsigned char& byte : bytes) {
        byte ^= 1U;
    }
    Record other;
    std::memcpy(&other, bytes.data(), sizeof(other));
    Record after = before;
    const bool isTaken = Host::TakeField(after, other, selector);

    QStringList names;
    Host::ForEachField(before, [&](const auto& field) {
        const std::size_t offset = OffsetOf(before, field);
        const std::size_t size = sizeof(before.*field.member);
        const auto same = [&](const Record& record) {
            return std::memcmp(BytesOf(after).data() + offset, BytesOf(record).data() + offset, size) == 0;
        };
        if (same(other)) {
            names.append(QLatin1String(field.name));
        } else if (!same(before)) {
            names.append(QLatin1String(field.name) + QStringLiteral(" in part"));
        }
    });
    return isTaken == names.isEmpty() ? QStringList(QStringLiteral("wrong answer")) : names;
}

/// The name of the field that \p row is about; a null string when the host does not list it.
QString FieldName(const PropertyRow& row)
{
    QString name;
    Host::ForEachField(Property(), [&](const auto& field) {
        using Member = std::decay_t<decltype(field.member)>;
        if constexpr (!std::is_same_v<Member, decltype(&Property::reserved)>) {
            if (const auto* member = std::get_if<Member>(&row.field); member && *member == field.member) {
                name = QLatin1String(field.name);
            }
        }
    });
    return name;
}

/// The names of the property's fields that a write with \p selector takes, as the tests know them.
QStringList FieldNames(int selector)
{
    QStringList names;
    Host::ForEachField(Property(), [&](const auto& field) { names.append(QLatin1String(field.name)); });
    if (selector != int(MV::ESoftClothPropertyType::All)) {
        QStringList taken;
        for (const PropertyRow& row : PropertyRows::All()) {
            if (row.selector == selector) {
                taken.append(FieldName(row));
            }
        }
        names = taken;
    }
    return names;
}

float FromBits(quint32 bits)
{
    float value = 0;
    std::memcpy(&value, &bits, sizeof(value));
    return value;
}

} // namespace

void TestRecordFields::journalShowsEveryBit()
{
    CheckEveryBit<Property>(sizeof(Property));
    CheckEveryBit<Collision>(sizeof(Collision) - 2); // The margins begin at a multiple of four.
    CheckEveryBit<Wind>(sizeof(Wind));
    CheckEveryBit<MV::WeightImageAdjust>(sizeof(MV::WeightImageAdjust));
    CheckEveryBit<MV::WeightImageState>(sizeof(MV::WeightImageState));
}

void TestRecordFields::journalTellsNumbersApart_data()
{
    QTest::addColumn<float>("number");
    QTest::addColumn<QString>("text");
    const auto row = [](float number, const char* text) { QTest::newRow(text) << number << QString::fromLatin1(text); };
    row(0.0F, "0");
    row(-0.0F, "-0");
    row(0.1F, "0.1");
    row(std::nextafter(0.1F, 1.0F), "0.10000001");
    row(20.0F, "20");
    row(16777216.0F, "16777216");
    row(1.0F / 3.0F, "0.33333334");
    row(std::numeric_limits<float>::denorm_min(), "1e-45");
    row(std::numeric_limits<float>::infinity(), "inf");
    row(-std::numeric_limits<float>::infinity(), "-inf");
    row(FromBits(0x7fc00000), "nan 0x7fc00000");
    row(FromBits(0xffc00001), "nan 0xffc00001");
}

void TestRecordFields::journalTellsNumbersApart()
{
    QFETCH(float, number);
    QFETCH(QString, text);
    Collision record;
    record.selfMargin = number;
    const QString shown = Text(record);
    QVERIFY2(shown.endsWith(QStringLiteral(", selfMargin=%1}").arg(text)), qPrintable(shown));
}

void TestRecordFields::journalNamesFields()
{
    Property property;
    property.reserved[1] = 0xAB;
    const QString text = Text(property);
    QVERIFY2(text.startsWith(QStringLiteral("{mass=1, solverFrequency=240, tetherStiffness=1,")), qPrintable(text));
    const QString zeros = QString(int(property.reserved.size() - 2) * 2, u'0');
    QVERIFY2(text.endsWith(QStringLiteral(", reserved=00ab%1}").arg(zeros)), qPrintable(text));
    property.reserved = {};
    QVERIFY(Text(property).endsWith(QStringLiteral(", reserved=0}")));
    QCOMPARE(Text(Collision()),
             QStringLiteral("{collideWithRigid=true, selfCollision=false, rigidMargin=0, selfMargin=0}"));
    QCOMPARE(Text(Wind()), QStringLiteral("{externalAcceleration=(0, 0, 0), randomAcceleration=(0, 0, 0), frequency=1, "
                                          "randomFactor=(1, 2)}"));
    QCOMPARE(Text(MV::WeightImageAdjust()), QStringLiteral("{zero=0, brightness=0, contrast=0}"));
    QCOMPARE(Text(MV::WeightImageState()), QStringLiteral("{hasFile=false, embedded=false, reload=false}"));
}

void TestRecordFields::writeTakesItsFieldOnly_data()
{
    QTest::addColumn<QString>("taken");
    QTest::addColumn<QString>("names");
    const auto row = [](auto selector, auto record, const char* names) {
        using Record = decltype(record);
        QTest::newRow(names) << Taken<Record>(selector).join(u' ') << QString::fromLatin1(names);
    };
    for (const PropertyRow& known : PropertyRows::All()) {
        const QStringList names = FieldNames(known.selector);
        QTest::newRow(known.name) << Taken<Property>(MV::ESoftClothPropertyType(known.selector)).join(u' ')
                                  << names.join(u' ');
    }
    row(MV::ESoftClothCollisionType::CollideWithRigid, Collision(), "collideWithRigid");
    row(MV::ESoftClothCollisionType::SelfCollision, Collision(), "selfCollision");
    row(MV::ESoftClothCollisionType::RigidMargin, Collision(), "rigidMargin");
    row(MV::ESoftClothCollisionType::SelfMargin, Collision(), "selfMargin");
    row(MV::ESoftClothCollisionType::All, Collision(), "collideWithRigid selfCollision rigidMargin selfMargin");
    row(MV::ESoftClothWindType::ExternalAcceleration, Wind(), "externalAcceleration");
    row(MV::ESoftClothWindType::RandomAcceleration, Wind(), "randomAcceleration");
    row(MV::ESoftClothWindType::Frequency, Wind(), "frequency");
    row(MV::ESoftClothWindType::RandomFactor, Wind(), "randomFactor");
    row(MV::ESoftClothWindType::All, Wind(), "externalAcceleration randomAcceleration frequency randomFactor");
}

void TestRecordFields::writeTakesItsFieldOnly()
{
    QFETCH(QString, taken);
    QFETCH(QString, names);
    QCOMPARE(taken, names);
}

void TestRecordFields::otherWritesTakeNothing()
{
    std::set<int> known;
    for (const PropertyRow& row : PropertyRows::All()) {
        known.insert(row.selector);
    }
    for (int number = -1; number <= 20; ++number) {
        if (known.count(number) == 0) {
            QCOMPARE(Taken<Property>(MV::ESoftClothPropertyType(number)), QStringList());
        }
    }
    for (const int number : {-1, 5, 19}) {
        QCOMPARE(Taken<Collision>(MV::ESoftClothCollisionType(number)), QStringList());
        QCOMPARE(Taken<Wind>(MV::ESoftClothWindType(number)), QStringList());
    }
}

void TestRecordFields::testsKnowEveryProperty()
{
    QStringList known{QStringLiteral("reserved")};
    for (const PropertyRow& row : PropertyRows::All()) {
        known.append(FieldName(row));
    }
    known.sort();
    QStringList listed = FieldNames(int(MV::ESoftClothPropertyType::All));
    listed.sort();
    QCOMPARE(known, listed);
}

SOFTCLOTH_TEST(TestRecordFields)
#include "tst_record_fields.moc"
