#include "tests/support/PropertyRows.h"

#include <algorithm>

using Record = MV::SoftClothPropertyData;

namespace {

constexpr int wholeRecord = 19;

/// Percent of what is taken away from 1, half a percent rounded away from zero.
double PercentTaken(double held)
{
    const float percent = (1.0F - float(held)) * 100.0F;
    return int(percent > 0.0F ? percent + 0.5F : percent - 0.5F);
}

double PercentTakenFromOne(double held)
{
    return PercentTaken(held) + 1;
}

double Tenths(double held)
{
    return int(float(held) * 10.0F);
}

} // namespace

double PropertyRow::Get(const Record& record) const
{
    return std::visit([&](auto member) { return double(record.*member); }, field);
}

void PropertyRow::Set(Record& record, double value) const
{
    std::visit([&](auto member) { record.*member = static_cast<std::decay_t<decltype(record.*member)>>(value); },
               field);
}

QString PropertyRow::Line() const
{
    return QStringLiteral("%1=%2").arg(QLatin1String(key)).arg(sample);
}

const std::vector<PropertyRow>& PropertyRows::All()
{
    static const std::vector<PropertyRow> rows{
        {"mass",
         &Record::mass,
         1,
         0,
         "Mass",
         16,
         16,
         0, //
         {"qtMassEXSpinBox", "QSpinBoxEx", 0, 10000, 1, " kg"}},
        {"solver frequency",
         &Record::solverFrequency,
         240,
         1,
         "Solver_Frequency",
         120,
         120,
         0,
         {"qtSolverFrequencyEXSpinBox", "QSpinBoxEx", 1, 1000, 10, " Hz"}},
        {"friction",
         &Record::friction,
         0.5,
         4,
         "Friction",
         0.1,
         0.1,
         0,
         {"qtFricionDoubleEXSpinBox", "QDoubleSpinBoxEx", 0, 1, 0.05}},
        {"damping",
         &Record::damping,
         0.5,
         5,
         "Damping",
         0.2,
         0.2,
         0,
         {"qtDampingDoubleEXSpinBox", "QDoubleSpinBoxEx", 0, 1, 0.05}},
        {"drag",
         &Record::drag,
         0,
         6,
         "Drag",
         0.3,
         0.3,
         0, //
         {"qtDragDoubleEXSpinBox", "QDoubleSpinBoxEx", 0, 1, 0.05}},
        {"tether limit",
         &Record::tetherLimit,
         1,
         3,
         "Tether_Limit",
         1.25,
         1.25,
         0,
         {"qtTetherLimitDoubleEXSpinBox", "QDoubleSpinBoxEx", 0, 10, 0.05}},
        {"tether stiffness",
         &Record::tetherStiffness,
         1,
         2,
         "Tether_Stiffness",
         51,
         0.5,
         1.01,
         {"qtTetherStiffnessCombospinbox", "QComboSpinBox", 1, 101, 1, "", PercentTakenFromOne}},
        {"stiffness",
         &Record::stiffness,
         1,
         7,
         "Stiffness",
         75,
         0.25,
         1,
         {"qtStiffnessCombospinbox", "QComboSpinBox", -100, 100, 1, " %", PercentTaken}},
        {"bending",
         &Record::bending,
         1,
         9,
         "Bending",
         100,
         0,
         1,
         {"qtBendingCombospinbox", "QComboSpinBox", -100, 100, 1, " %", PercentTaken}},
        {"linear inertia",
         &Record::linearInertiaScale,
         1,
         13,
         "Linear_Inertia_Scale",
         7,
         0.7,
         0,
         {"qtInertiaScaleCombospinbox", "QComboSpinBox", 0, 20, 1, "", Tenths}},
        {"angular inertia", &Record::angularInertiaScale, 1, 13, "Angular_Inertia_Scale", 15, 1.5, 0},
        {"centrifugal inertia", &Record::centrifugalInertiaScale, 1, 13, "Centrifugal_Inertia_Scale", 9, 0.9, 0},
        {"stiffness frequency", &Record::stiffnessFrequency, 10, wholeRecord, "Stiffness_Frequency", 12.5, 12.5, 0},
        {"collision mass scale", &Record::collisionMassScale, 20, wholeRecord, "Collision_Mass_Scale", 19.5, 19.5, 0},
        {"sleep velocity", &Record::sleepLinearVelocity, 0.05, wholeRecord, "Sleep_Linear_Velocity", 0.0625, 0.0625, 0},
        {"wake counter", &Record::wakeCounterValue, 0.4, wholeRecord, "Wake_Counter_Value", 0.75, 0.75, 0},
    };
    return rows;
}

std::vector<PropertyRow> PropertyRows::WithBox()
{
    std::vector<PropertyRow> rows;
    std::copy_if(All().begin(), All().end(), std::back_inserter(rows),
                 [](const PropertyRow& row) { return row.HasBox(); });
    return rows;
}

QStringList PropertyRows::BoxNames(const char* className)
{
    QStringList names;
    for (const PropertyRow& row : WithBox()) {
        if (!className || qstrcmp(row.box.className, className) == 0) {
            names.append(QLatin1String(row.box.name));
        }
    }
    if (className) {
        names.sort();
    }
    return names;
}

Record PropertyRows::Samples()
{
    Record record;
    for (const PropertyRow& row : All()) {
        row.Set(record, row.held);
    }
    return record;
}

Record PropertyRows::Empty()
{
    Record record;
    for (const PropertyRow& row : All()) {
        row.Set(record, row.empty);
    }
    return record;
}

Record PropertyRows::AllDifferent()
{
    Record record;
    double value = 2;
    for (const PropertyRow& row : All()) {
        row.Set(record, value + 0.375);
        value += 1;
    }
    return record;
}

void PropertyRows::Take(Record& to, const Record& from, int selector)
{
    for (const PropertyRow& row : All()) {
        if (selector == wholeRecord || row.selector == selector) {
            row.Set(to, row.Get(from));
        }
    }
}
