#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "quarn/Export.h"

namespace quarn {

/// The rectilinear grid of a run. For each axis it holds the electric nodes, the magnetic nodes half-way between them,
/// and the sizes of the electric cells (between electric nodes) and of the magnetic cells (between magnetic nodes).
/// Lengths are in metres. An axis of n cells has n nodes of each kind: the far side of its last cell is not a node.
///
/// Indices are not checked. A grid that was never initialised has no cells, and its bounds are 0.
class QUARN_EXPORT Grid {
public:
    /// Where a run of cells of one size begins, and that size. A run ends where the next begins.
    using Runs = std::vector<std::pair<std::int32_t, float>>;

    /// The maximum number of cells on an axis: up to this number a float distinguishes adjacent cells of a run.
    static constexpr std::uint32_t maximumCells = 1U << 24;

    Grid();
    Grid(const Grid& other);
    Grid& operator=(const Grid& other);
    virtual ~Grid();

    /// Lays out the three axes. Returns false, with the grid as it was, when an axis has more than maximumCells or when
    /// there is not enough memory.
    ///
    /// Runs are expected in ascending order. Cells that no run covers have the size zero. A run that does not ascend
    /// replaces the earlier ones from its beginning on; one that begins below 0 begins at 0, and runs beyond the last
    /// cell are ignored. Without nodes, only the origins and the sizes of the electric cells are kept. An axis without
    /// cells still has its origin.
    virtual bool initialize(std::uint32_t cellsInX, std::uint32_t cellsInY, std::uint32_t cellsInZ, float originX,
                            float originY, float originZ, const Runs& runsInX, const Runs& runsInY, const Runs& runsInZ,
                            bool withNodes);

    /// False for a grid that has cells and was laid out without nodes: it has no electric nodes but the origins, no
    /// magnetic nodes and no sizes of magnetic cells.
    bool hasNodes() const { return m_x.hasNodes() && m_y.hasNodes() && m_z.hasNodes(); }

    std::uint32_t getNumberOfUserCellsInX() const { return m_x.cells; }
    std::uint32_t getNumberOfUserCellsInY() const { return m_y.cells; }
    std::uint32_t getNumberOfUserCellsInZ() const { return m_z.cells; }

    double getUserXElectricNodeLocation(std::uint32_t i) const { return m_x.electricNodes[i]; }
    double getUserYElectricNodeLocation(std::uint32_t i) const { return m_y.electricNodes[i]; }
    double getUserZElectricNodeLocation(std::uint32_t i) const { return m_z.electricNodes[i]; }
    double getUserXMagneticNodeLocation(std::uint32_t i) const { return m_x.magneticNodes[i]; }
    double getUserYMagneticNodeLocation(std::uint32_t i) const { return m_y.magneticNodes[i]; }
    double getUserZMagneticNodeLocation(std::uint32_t i) const { return m_z.magneticNodes[i]; }

    float getUserXElectricDelta(std::uint32_t i) const { return m_x.electricDeltas[i]; }
    float getUserYElectricDelta(std::uint32_t i) const { return m_y.electricDeltas[i]; }
    float getUserZElectricDelta(std::uint32_t i) const { return m_z.electricDeltas[i]; }
    float getUserXMagneticDelta(std::uint32_t i) const { return m_x.magneticDeltas[i]; }
    float getUserYMagneticDelta(std::uint32_t i) const { return m_y.magneticDeltas[i]; }
    float getUserZMagneticDelta(std::uint32_t i) const { return m_z.magneticDeltas[i]; }

    double getUserXOrigin() const { return m_x.origin(); }
    double getUserYOrigin() const { return m_y.origin(); }
    double getUserZOrigin() const { return m_z.origin(); }

    /// The last electric node, which is the near side of the last cell; without nodes, the origin.
    double getUserXUpperBound() const { return m_x.upperBound(); }
    double getUserYUpperBound() const { return m_y.upperBound(); }
    double getUserZUpperBound() const { return m_z.upperBound(); }
    /// Origins and upper bounds.
    void getUserBoundingBox(double& xMin, double& xMax, double& yMin, double& yMax, double& zMin, double& zMax) const;

private:
    struct Axis {
        std::uint32_t cells = 0;
        std::vector<double> electricNodes;
        std::vector<double> magneticNodes;
        std::vector<float> electricDeltas;
        std::vector<float> magneticDeltas;

        Axis() = default;
        Axis(std::uint32_t cells, float origin, const Runs& runs, bool withNodes);
        void placeElectricNodes(std::uint32_t begin, std::uint32_t end, float size);
        void placeMagneticNodes();

        bool hasNodes() const { return magneticNodes.size() == cells; }
        double origin() const { return electricNodes.empty() ? 0.0 : electricNodes.front(); }
        double upperBound() const { return electricNodes.empty() ? 0.0 : electricNodes.back(); }
    };

    Axis m_x;
    Axis m_y;
    Axis m_z;
};

}  // namespace quarn
