#pragma once

#include <array>
#include <cstddef>
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

    /// The nodes and cells along one axis. The functions of the grid that name an axis return the same.
    class Axis {
    public:
        Axis() = default;

        std::uint32_t cells() const { return m_cells; }
        double electricNode(std::uint32_t i) const { return m_electricNodes[i]; }
        double magneticNode(std::uint32_t i) const { return m_magneticNodes[i]; }
        float electricDelta(std::uint32_t i) const { return m_electricDeltas[i]; }
        float magneticDelta(std::uint32_t i) const { return m_magneticDeltas[i]; }
        double origin() const { return m_electricNodes.empty() ? 0.0 : m_electricNodes.front(); }
        double upperBound() const { return m_electricNodes.empty() ? 0.0 : m_electricNodes.back(); }
        bool hasNodes() const { return m_magneticNodes.size() == m_cells; }

    private:
        friend class Grid;

        Axis(std::uint32_t cells, float origin, const Runs& runs, bool withNodes);
        void placeElectricNodes(std::uint32_t begin, std::uint32_t end, float size);
        void placeMagneticNodes();

        std::uint32_t m_cells = 0;
        std::vector<double> m_electricNodes;
        std::vector<double> m_magneticNodes;
        std::vector<float> m_electricDeltas;
        std::vector<float> m_magneticDeltas;
    };

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
    bool hasNodes() const { return axis(0).hasNodes() && axis(1).hasNodes() && axis(2).hasNodes(); }

    /// The axes x, y and z have the numbers 0, 1 and 2. The reference is valid as long as the grid.
    const Axis& axis(std::size_t n) const { return m_axes[n]; }

    std::uint32_t getNumberOfUserCellsInX() const { return axis(0).cells(); }
    std::uint32_t getNumberOfUserCellsInY() const { return axis(1).cells(); }
    std::uint32_t getNumberOfUserCellsInZ() const { return axis(2).cells(); }

    double getUserXElectricNodeLocation(std::uint32_t i) const { return axis(0).electricNode(i); }
    double getUserYElectricNodeLocation(std::uint32_t i) const { return axis(1).electricNode(i); }
    double getUserZElectricNodeLocation(std::uint32_t i) const { return axis(2).electricNode(i); }
    double getUserXMagneticNodeLocation(std::uint32_t i) const { return axis(0).magneticNode(i); }
    double getUserYMagneticNodeLocation(std::uint32_t i) const { return axis(1).magneticNode(i); }
    double getUserZMagneticNodeLocation(std::uint32_t i) const { return axis(2).magneticNode(i); }

    float getUserXElectricDelta(std::uint32_t i) const { return axis(0).electricDelta(i); }
    float getUserYElectricDelta(std::uint32_t i) const { return axis(1).electricDelta(i); }
    float getUserZElectricDelta(std::uint32_t i) const { return axis(2).electricDelta(i); }
    float getUserXMagneticDelta(std::uint32_t i) const { return axis(0).magneticDelta(i); }
    float getUserYMagneticDelta(std::uint32_t i) const { return axis(1).magneticDelta(i); }
    float getUserZMagneticDelta(std::uint32_t i) const { return axis(2).magneticDelta(i); }

    double getUserXOrigin() const { return axis(0).origin(); }
    double getUserYOrigin() const { return axis(1).origin(); }
    double getUserZOrigin() const { return axis(2).origin(); }

    /// The last electric node, which is the near side of the last cell; without nodes, the origin.
    double getUserXUpperBound() const { return axis(0).upperBound(); }
    double getUserYUpperBound() const { return axis(1).upperBound(); }
    double getUserZUpperBound() const { return axis(2).upperBound(); }
    /// Origins and upper bounds.
    void getUserBoundingBox(double& xMin, double& xMax, double& yMin, double& yMax, double& zMin, double& zMax) const;

private:
    std::array<Axis, 3> m_axes;
};

}  // namespace quarn
