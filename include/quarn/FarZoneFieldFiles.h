#pragma once

#include <complex>
#include <tuple>

#include "quarn/Export.h"
#include "quarn/RecordCodec.h"

namespace quarn {

/// The far field of a steady state in one direction.
struct QUARN_EXPORT FarZoneSSFieldFileRecord {
    float theta = 0.0F;  ///< polar angle in radians
    float phi = 0.0F;    ///< azimuth in radians
    /// Distance times field, in volts.
    std::complex<float> eTheta;
    std::complex<float> ePhi;

    /// offset  type
    ///      0  float    theta
    ///      4  float    phi
    ///      8  complex  eTheta
    ///     16  complex  ePhi
    template <class Self>
    static auto fields(Self& r) {
        return std::tie(r.theta, r.phi, r.eTheta, r.ePhi);
    }
};
extern template class QUARN_EXPORT RecordCodec<FarZoneSSFieldFileRecord>;

/// Far fields in the directions of a request.
class QUARN_EXPORT FarZoneSSFieldFile : public RecordCodec<FarZoneSSFieldFileRecord> {};

/// The steady-state fields in one cell of a face of the far-zone box, tangential to the face. The components are y and
/// z on the faces across x, x and z on those across y, x and y on those across z.
struct QUARN_EXPORT FieldsOnSteadyStateFarZoneBoxFileRecord {
    std::complex<float> e1;  ///< V/m
    std::complex<float> e2;
    std::complex<float> h1;  ///< A/m
    std::complex<float> h2;

    /// offset  type
    ///      0  complex  e1
    ///      8  complex  e2
    ///     16  complex  h1
    ///     24  complex  h2
    template <class Self>
    static auto fields(Self& r) {
        return std::tie(r.e1, r.e2, r.h1, r.h2);
    }
};
extern template class QUARN_EXPORT RecordCodec<FieldsOnSteadyStateFarZoneBoxFileRecord>;

/// Fields on the six faces of the far-zone box. The file begins with a FileHeader of type farZoneBoxFields.
class QUARN_EXPORT FieldsOnSteadyStateFarZoneBoxFile : public RecordCodec<FieldsOnSteadyStateFarZoneBoxFileRecord> {};

}  // namespace quarn
