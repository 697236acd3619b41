#pragma once

#include "plugin/services/SoftClothRecords.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <variant>
#include <vector>

/// What the tests know of one field of the host's property record. Everything that a test does with each of them takes
/// it from here, so that a new property is one row more.
struct PropertyRow
{
    using Record = MV::SoftClothPropertyData;

    /// The box in the form; no name when there is none.
    struct Box
    {
        const char* name = "";
        const char* className = "";
        double minimum = 0;
        double maximum = 0;
        double step = 0;
        const char* suffix = "";
        /// What it shows of what the host holds.
        double (*shown)(double held) = [](double held) { return held; };
    };

    const char* name; ///< In the tags of data rows.
    std::variant<qint64 Record::*, float Record::*> field;
    double fresh;    ///< What the host's default is.
    int selector;    ///< The number of a write that takes this field; 19 when only the whole record does.
    const char* key; ///< In a profile.
    double sample;   ///< Another value than the default, in the scale of profile and box.
    double held;     ///< What the host holds when they have that.
    double empty;    ///< What it holds when a profile has the group without this key.
    Box box{};

    bool HasBox() const { return *box.name != '\0'; }
    double Get(const Record& record) const;
    void Set(Record& record, double value) const;
    /// The sample as a line of a profile.
    QString Line() const;
};

namespace PropertyRows {

/// In the order of the boxes, from top to bottom, and then those without one.
const std::vector<PropertyRow>& All();
/// Those with a box.
std::vector<PropertyRow> WithBox();
/// The names of all boxes of a class, in alphabetical order; of all classes, from top to bottom, for none.
QStringList BoxNames(const char* className = nullptr);

/// Each field has its sample, which differs from its default.
MV::SoftClothPropertyData Samples();
/// What a profile means that has the group without any key of it.
MV::SoftClothPropertyData Empty();
/// Each field differs from its default, from its sample and from all others.
MV::SoftClothPropertyData AllDifferent();

/// All fields that a write with \p selector takes get what \p from has; of 19, all.
void Take(MV::SoftClothPropertyData& to, const MV::SoftClothPropertyData& from, int selector);

} // namespace PropertyRows
