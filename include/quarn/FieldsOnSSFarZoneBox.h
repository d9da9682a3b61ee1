#pragma once

#include <QString>
#include <array>
#include <complex>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "quarn/Export.h"
#include "quarn/FarZoneBox.h"

namespace quarn {

class DataFileReader;
class Grid;

/// The tangential fields of a steady state on the six faces of a far-zone box, with the place and the size of each
/// cell, as PostProcessSSFarZoneFields needs them. Positions and sizes are in metres.
///
/// The fields of a cell belong to its middle. A component of a face is a list with the lower of the two in-plane axes
/// running faster: index k * getNumberInY() + j on the faces across x, k * getNumberInX() + i on those across y,
/// j * getNumberInX() + i on those across z.
class QUARN_EXPORT FieldsOnSSFarZoneBox {
public:
    using Samples = std::vector<std::complex<float>>;

    /// The cells along one axis, from the lower face of the box to the upper one. The functions of the fields that name
    /// an axis return the same: distances from the centre to the middles of the cells and to the upper face, and from
    /// the lower face to the centre.
    struct Axis {
        std::vector<float> deltas;
        std::vector<double> toMiddles;
        double toLowerFace = 0.0;
        double toUpperFace = 0.0;

        float delta(int cell) const {
            const auto index = static_cast<std::size_t>(cell);
            return index < deltas.size() ? deltas[index] : 0.0F;
        }
    };

    /// Loads the box field file at `path`, which has a FileHeader of type 8 and version 0 and, in the order of the
    /// faces x lower, x upper, y lower, ..., z upper, a FieldsOnSteadyStateFarZoneBoxFile record for each of their
    /// cells. Anything after them is ignored.
    ///
    /// Sets `errorMessage` on failure, else leaves it alone: when the box does not lie in the grid or the grid has no
    /// nodes, when there is not enough memory for the fields, when the file cannot be opened, is of another type or
    /// ends too early. The lists of fields then hold what was read and may be shorter than their face. Memory is used
    /// for no more than the file holds. An invalid box has no cells.
    FieldsOnSSFarZoneBox(const Grid& grid, const QString& path, const FarZoneBox& box, QString& errorMessage);

    FieldsOnSSFarZoneBox(const FieldsOnSSFarZoneBox& other) = default;
    FieldsOnSSFarZoneBox& operator=(const FieldsOnSSFarZoneBox& other) = default;

    /// A moved-from object holds an invalid box, no cells and no fields, and is not complete.
    FieldsOnSSFarZoneBox(FieldsOnSSFarZoneBox&& other) noexcept;
    FieldsOnSSFarZoneBox& operator=(FieldsOnSSFarZoneBox&& other) noexcept;

    /// Call this before computing the far fields of a box that touches a perfectly conducting plane. The image needs no
    /// lists of its own: the fields of the box are summed a second time with the signs of the image. This function
    /// checks that they can be.
    ///
    /// False when not all fields were loaded or when the position of the plane differs from that in the grid. True for
    /// an invalid box and for one without an image, where there is nothing to check.
    bool setupImageFields(const Grid& grid) const;

    /// Whether the fields of all cells were loaded.
    bool isComplete() const { return m_isComplete; }

    const FarZoneBox& getFarZoneBox() const { return m_box; }
    std::uint32_t getNumberInX() const { return m_box.getNumberInX(); }
    std::uint32_t getNumberInY() const { return m_box.getNumberInY(); }
    std::uint32_t getNumberInZ() const { return m_box.getNumberInZ(); }

    /// The axes x, y and z have the numbers 0, 1 and 2.
    const Axis& axis(std::size_t n) const { return m_axes[n]; }

    /// The sizes of the cells, from the lower face to the upper one; 0 where there is no cell of that index.
    const std::vector<float>& getXDeltas() const { return m_axes[0].deltas; }
    const std::vector<float>& getYDeltas() const { return m_axes[1].deltas; }
    const std::vector<float>& getZDeltas() const { return m_axes[2].deltas; }
    float getXDelta(int i) const { return m_axes[0].delta(i); }
    float getYDelta(int j) const { return m_axes[1].delta(j); }
    float getZDelta(int k) const { return m_axes[2].delta(k); }

    /// From the box's lower face to its centre, and from the centre to its upper face. They differ on a graded grid.
    double getXDistanceToX() const { return m_axes[0].toLowerFace; }
    double getYDistanceToY() const { return m_axes[1].toLowerFace; }
    double getZDistanceToZ() const { return m_axes[2].toLowerFace; }
    double getXDistanceToXUpper() const { return m_axes[0].toUpperFace; }
    double getYDistanceToYUpper() const { return m_axes[1].toUpperFace; }
    double getZDistanceToZUpper() const { return m_axes[2].toUpperFace; }

    /// @name From the box's centre to the middles of the cells on a face, by axis and face
    /// @{
    const std::vector<double>& getYDistanceToX() const { return m_axes[1].toMiddles; }
    const std::vector<double>& getZDistanceToX() const { return m_axes[2].toMiddles; }
    const std::vector<double>& getXDistanceToY() const { return m_axes[0].toMiddles; }
    const std::vector<double>& getZDistanceToY() const { return m_axes[2].toMiddles; }
    const std::vector<double>& getXDistanceToZ() const { return m_axes[0].toMiddles; }
    const std::vector<double>& getYDistanceToZ() const { return m_axes[1].toMiddles; }
    /// @}

    /// @name Electric (V/m) and magnetic (A/m) fields
    /// @{
    const Samples& getEy_onXLower() const { return m_faces[FarZoneBox::XLower][0]; }
    const Samples& getEz_onXLower() const { return m_faces[FarZoneBox::XLower][1]; }
    const Samples& getHy_onXLower() const { return m_faces[FarZoneBox::XLower][2]; }
    const Samples& getHz_onXLower() const { return m_faces[FarZoneBox::XLower][3]; }
    const Samples& getEy_onXUpper() const { return m_faces[FarZoneBox::XUpper][0]; }
    const Samples& getEz_onXUpper() const { return m_faces[FarZoneBox::XUpper][1]; }
    const Samples& getHy_onXUpper() const { return m_faces[FarZoneBox::XUpper][2]; }
    const Samples& getHz_onXUpper() const { return m_faces[FarZoneBox::XUpper][3]; }
    const Samples& getEx_onYLower() const { return m_faces[FarZoneBox::YLower][0]; }
    const Samples& getEz_onYLower() const { return m_faces[FarZoneBox::YLower][1]; }
    const Samples& getHx_onYLower() const { return m_faces[FarZoneBox::YLower][2]; }
    const Samples& getHz_onYLower() const { return m_faces[FarZoneBox::YLower][3]; }
    const Samples& getEx_onYUpper() const { return m_faces[FarZoneBox::YUpper][0]; }
    const Samples& getEz_onYUpper() const { return m_faces[FarZoneBox::YUpper][1]; }
    const Samples& getHx_onYUpper() const { return m_faces[FarZoneBox::YUpper][2]; }
    const Samples& getHz_onYUpper() const { return m_faces[FarZoneBox::YUpper][3]; }
    const Samples& getEx_onZLower() const { return m_faces[FarZoneBox::ZLower][0]; }
    const Samples& getEy_onZLower() const { return m_faces[FarZoneBox::ZLower][1]; }
    const Samples& getHx_onZLower() const { return m_faces[FarZoneBox::ZLower][2]; }
    const Samples& getHy_onZLower() const { return m_faces[FarZoneBox::ZLower][3]; }
    const Samples& getEx_onZUpper() const { return m_faces[FarZoneBox::ZUpper][0]; }
    const Samples& getEy_onZUpper() const { return m_faces[FarZoneBox::ZUpper][1]; }
    const Samples& getHx_onZUpper() const { return m_faces[FarZoneBox::ZUpper][2]; }
    const Samples& getHy_onZUpper() const { return m_faces[FarZoneBox::ZUpper][3]; }
    /// @}

    /// The four components of a face in the order of the file, for loops over faces.
    const std::array<Samples, 4>& getFields(FarZoneBox::Face face) const { return m_faces[face]; }

private:
    QString build(const Grid& grid, const QString& path);
    bool isIn(const Grid& grid) const;
    void allocate();
    void placeCells(const Grid& grid);
    QString load(const QString& path);
    bool readFace(DataFileReader& reader, FarZoneBox::Face face);

    FarZoneBox m_box;
    std::array<Axis, 3> m_axes;
    std::array<std::array<Samples, 4>, 6> m_faces;  ///< by FarZoneBox::Face
    bool m_isComplete = false;
};

}  // namespace quarn
