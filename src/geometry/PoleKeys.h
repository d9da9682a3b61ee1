#pragma once

#include "blocktext/BlockWalker.h"

/// The numbered keys of materials with several poles.
namespace quarn::poleKey {

using blocktext::operator""_key;

constexpr QLatin1String staticRelativePermittivities[] = {"staticRelativePermittivity1"_key,
                                                          "staticRelativePermittivity2"_key,
                                                          "staticRelativePermittivity3"_key,
                                                          "staticRelativePermittivity4"_key,
                                                          "staticRelativePermittivity5"_key,
                                                          "staticRelativePermittivity6"_key,
                                                          "staticRelativePermittivity7"_key};

constexpr QLatin1String staticRelativePermeabilities[] = {"staticRelativePermeability1"_key,
                                                          "staticRelativePermeability2"_key,
                                                          "staticRelativePermeability3"_key,
                                                          "staticRelativePermeability4"_key,
                                                          "staticRelativePermeability5"_key,
                                                          "staticRelativePermeability6"_key,
                                                          "staticRelativePermeability7"_key};

constexpr QLatin1String relaxationTimes[] = {"relaxationTime1"_key,
                                             "relaxationTime2"_key,
                                             "relaxationTime3"_key,
                                             "relaxationTime4"_key,
                                             "relaxationTime5"_key,
                                             "relaxationTime6"_key,
                                             "relaxationTime7"_key};

}  // namespace quarn::poleKey
