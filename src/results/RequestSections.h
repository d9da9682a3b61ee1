#pragma once

#include <QLatin1String>
#include <memory>
#include <vector>

#include "blocktext/NameTable.h"

/// The sections of the project file that carry output requests: for each a writer of the whole block and a reader of
/// what follows the block's open line. Both return whether the stream is in order, readers also whether the section
/// held what it should; a request whose reader returns false is not to be used.
namespace quarn {

namespace blocktext {
class FormatBuilder;
}
class DelimManager;
class FarZoneRequest;
class HACRequest;
class MultiPointFieldRequest;
class NearZoneMultiFieldIndexedPoint;
class NearZoneMultiFieldInterpolatedPoint;
class SARPlane;

/// The names of the blocks.
namespace sectionName {
using blocktext::operator""_key;
inline constexpr auto indexedPoint = "MultiFieldIndexedPoint"_key;
inline constexpr auto interpolatedPoint = "MultiFieldInterpolatedPoint"_key;
inline constexpr auto multiPointField = "MultiPointFieldRequest"_key;
inline constexpr auto rawSARPlanes = "RawSARPlanes"_key;
inline constexpr auto temperatureRise = "TemperatureRiseRequest"_key;
inline constexpr auto sarAveraging = "SARAveraging"_key;
inline constexpr auto farZone = "FarZoneRequests"_key;
inline constexpr auto hac = "HACRequest"_key;
}  // namespace sectionName

/// Add the blocks to the reference of the format.
void describeIndexedPoint(blocktext::FormatBuilder& builder);
void describeInterpolatedPoint(blocktext::FormatBuilder& builder);
void describeMultiPointField(blocktext::FormatBuilder& builder);
void describeRawSARPlanes(blocktext::FormatBuilder& builder);
void describeTemperatureRise(blocktext::FormatBuilder& builder);
void describeSARAveraging(blocktext::FormatBuilder& builder);
void describeFarZoneRequests(blocktext::FormatBuilder& builder);
void describeHACRequest(blocktext::FormatBuilder& builder);

bool writeIndexedPoint(DelimManager& delim, const NearZoneMultiFieldIndexedPoint& point);
bool readIndexedPoint(DelimManager& delim, NearZoneMultiFieldIndexedPoint& point);

bool writeInterpolatedPoint(DelimManager& delim, const NearZoneMultiFieldInterpolatedPoint& point);
bool readInterpolatedPoint(DelimManager& delim, NearZoneMultiFieldInterpolatedPoint& point);

bool writeMultiPointFieldRequest(DelimManager& delim, const MultiPointFieldRequest& request);
bool readMultiPointFieldRequest(DelimManager& delim, MultiPointFieldRequest& request);

/// Without planes nothing is written. The caller owns the planes that a reader appends; it stops at the first line that
/// is no plane and keeps those before.
bool writeRawSARPlanes(DelimManager& delim, const std::vector<SARPlane*>& list);
bool readRawSARPlanes(DelimManager& delim, std::vector<SARPlane*>& list);

/// Without requests nothing is written. The reader appends.
bool writeFarZoneRequests(DelimManager& delim, const std::vector<FarZoneRequest>& steadyState,
                          const std::vector<FarZoneRequest>& transient);
bool readFarZoneRequests(DelimManager& delim, std::vector<FarZoneRequest>& steadyState,
                         std::vector<FarZoneRequest>& transient);

bool writeHACRequest(DelimManager& delim, const HACRequest& request);
std::unique_ptr<const HACRequest> readHACRequest(DelimManager& delim);

}  // namespace quarn
