#pragma once

#include <array>
#include <cstddef>

namespace quarn {

/// The three components of a field that are recorded together in the near zone, in the order of the result files. J is
/// the current density.
enum class FieldGroup { ScatteredE, TotalE, ScatteredH, TotalH, ScatteredB, TotalB, J };

/// What people and files call a group, and its bits in result files.
struct FieldGroupInfo {
    FieldGroup group;
    const char* name;  ///< "total E"
    const char* key;   ///< in the text of requests: "TotalE", behind "Transient" or "Steady" in multi-point requests
    char field;        ///< in the names of the files of a multi-point result: 'E'
    const char* kind;  ///< there too: "total_", or nothing
    const char* unit;  ///< SI, in UTF-8
    int nearZoneBit;   ///< in the header of a near-zone point result
    int transientBit;  ///< in the info file of a multi-point result
    int steadyBit;     ///< there too; -1 for scattered fields, which are not recorded in a steady state
};

/// In the order of FieldGroup. The bits of the steady states of B and J are not in this order.
inline constexpr std::array<FieldGroupInfo, 7> fieldGroups{{
    {FieldGroup::ScatteredE, "scattered E", "ScatteredE", 'E', "scattered_", "V/m", 15, 31, -1},
    {FieldGroup::TotalE, "total E", "TotalE", 'E', "total_", "V/m", 14, 30, 24},
    {FieldGroup::ScatteredH, "scattered H", "ScatteredH", 'H', "scattered_", "A/m", 13, 29, -1},
    {FieldGroup::TotalH, "total H", "TotalH", 'H', "total_", "A/m", 12, 28, 23},
    {FieldGroup::ScatteredB, "scattered B", "ScatteredB", 'B', "scattered_", "T", 11, 27, -1},
    {FieldGroup::TotalB, "total B", "TotalB", 'B', "total_", "T", 10, 26, 21},
    {FieldGroup::J, "J", "J", 'J', "", "A/m²", 9, 25, 22},
}};

constexpr const FieldGroupInfo& infoOf(FieldGroup group) { return fieldGroups[static_cast<std::size_t>(group)]; }

}  // namespace quarn
