#include "assets/wallpapers/motifs.h"
#include "assets/wallpapers/noise.h"
#include "assets/wallpapers/paperSheet.h"
#include "assets/wallpapers/ramp.h"

#include <array>
#include <cmath>
#include <map>
#include <utility>

namespace zdt::assets {

namespace {

/// In heights of the picture from its upper left corner; z towards the eye.
struct Corner {
    float x;
    float y;
    float z;
};

struct Facet {
    std::array<std::size_t, 3> corners; ///< In one sense of turning.
    std::array<float, 3> folds{};       ///< How sharply the edge after each corner is folded: up above 0, down below.
    float light = 0;                    ///< -1 to 1.
};

/// Paper folded along the lines of a grid that is shaken.
class FoldedPaper {
public:
    explicit FoldedPaper(float width) {
        constexpr float cell = 0.215F;
        const auto columns = static_cast<std::size_t>(width / cell) + 4;
        const auto lines = static_cast<std::size_t>(1 / cell) + 4;
        for (std::size_t line = 0; line < lines; ++line) {
            for (std::size_t column = 0; column < columns; ++column)
                _corners.push_back(cornerAt(column, line, cell));
        }
        for (std::size_t line = 0; line + 1 < lines; ++line) {
            for (std::size_t column = 0; column + 1 < columns; ++column)
                addCell(line * columns + column, columns);
        }
        fold();
    }

    [[nodiscard]] const std::vector<Facet>& facets() const { return _facets; }
    [[nodiscard]] const Corner& corner(const Facet& facet, std::size_t index) const {
        return _corners[facet.corners[index % 3]];
    }

private:
    static Corner cornerAt(std::size_t column, std::size_t line, float cell) {
        const auto x = static_cast<std::uint32_t>(column);
        const auto y = static_cast<std::uint32_t>(line);
        constexpr float shake = 0.62F;
        return {(static_cast<float>(column) - 1.5F + shake * (chance(x, y, 301) - 0.5F)) * cell,
                (static_cast<float>(line) - 1.3F + shake * (chance(x, y, 302) - 0.5F)) * cell,
                0.34F * cell * (chance(x, y, 303) - 0.5F)};
    }

    /// Cuts a cell of the grid along its shorter diagonal: the other one could make a splinter.
    void addCell(std::size_t first, std::size_t columns) {
        const std::size_t right = first + 1;
        const std::size_t below = first + columns;
        const std::size_t across = below + 1;
        if (distance(first, across) < distance(right, below)) {
            addFacet({first, right, across});
            addFacet({first, across, below});
        } else {
            addFacet({first, right, below});
            addFacet({right, across, below});
        }
    }

    [[nodiscard]] float distance(std::size_t one, std::size_t other) const {
        return std::hypot(_corners[one].x - _corners[other].x, _corners[one].y - _corners[other].y);
    }

    void addFacet(const std::array<std::size_t, 3>& corners) {
        const Corner& a = _corners[corners[0]];
        const Corner& b = _corners[corners[1]];
        const Corner& c = _corners[corners[2]];
        const Corner one{b.x - a.x, b.y - a.y, b.z - a.z};
        const Corner two{c.x - a.x, c.y - a.y, c.z - a.z};
        const float x = one.y * two.z - one.z * two.y;
        const float y = one.z * two.x - one.x * two.z;
        const float z = one.x * two.y - one.y * two.x;
        // From the upper left.
        _facets.push_back({corners, {}, (-0.75F * x - 0.66F * y) / std::sqrt(x * x + y * y + z * z)});
    }

    /// Tells each edge how the facets on both sides stand to each other.
    void fold() {
        std::map<std::pair<std::size_t, std::size_t>, std::size_t> owners;
        for (std::size_t index = 0; index < _facets.size(); ++index) {
            for (std::size_t edge = 0; edge < 3; ++edge) {
                const std::size_t from = _facets[index].corners[edge];
                const std::size_t to = _facets[index].corners[(edge + 1) % 3];
                owners[{from, to}] = index;
            }
        }
        for (Facet& facet : _facets) {
            for (std::size_t edge = 0; edge < 3; ++edge) {
                const auto other = owners.find({facet.corners[(edge + 1) % 3], facet.corners[edge]});
                if (other != owners.end())
                    facet.folds[edge] = foldOf(facet, edge, _facets[other->second]);
            }
        }
    }

    /// How far the other facet's far corner lies below the plane of this one.
    [[nodiscard]] float foldOf(const Facet& facet, std::size_t edge, const Facet& other) const {
        const Corner& a = corner(facet, edge);
        const Corner& b = corner(facet, edge + 1);
        const Corner& c = corner(facet, edge + 2);
        Corner far{};
        for (std::size_t index = 0; index < 3; ++index) {
            if (other.corners[index] != facet.corners[edge] && other.corners[index] != facet.corners[(edge + 1) % 3])
                far = corner(other, index);
        }
        const float area = (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
        const float byB = ((far.x - a.x) * (c.y - a.y) - (far.y - a.y) * (c.x - a.x)) / area;
        const float byC = ((b.x - a.x) * (far.y - a.y) - (b.y - a.y) * (far.x - a.x)) / area;
        return (a.z + byB * (b.z - a.z) + byC * (c.z - a.z) - far.z) / 0.1F;
    }

    std::vector<Corner> _corners;
    std::vector<Facet> _facets;
};

/// The line through an edge: how far a place lies to its inner side.
struct Edge {
    float x;
    float y;
    float away;
    float fold;

    [[nodiscard]] float inside(float placeX, float placeY) const { return x * placeX + y * placeY + away; }
};

using Edges = std::array<Edge, 3>;

Edges edgesOf(const FoldedPaper& paper, const Facet& facet) {
    Edges edges{};
    for (std::size_t index = 0; index < edges.size(); ++index) {
        const Corner& from = paper.corner(facet, index);
        const Corner& to = paper.corner(facet, index + 1);
        const float length = std::hypot(to.x - from.x, to.y - from.y);
        const float x = (from.y - to.y) / length;
        const float y = (to.x - from.x) / length;
        edges[index] = {x, y, -(x * from.x + y * from.y), facet.folds[index]};
    }
    return edges;
}

/// The light that a fold up catches along its edge, and the shade in the corner of a fold down.
float foldLight(const Edges& edges, float x, float y) {
    float light = 0;
    for (const Edge& edge : edges) {
        const float reach = edge.fold > 0 ? 0.004F : 0.03F;
        light += edge.fold * std::exp(-std::max(edge.inside(x, y), 0.F) / reach);
    }
    return std::clamp(light, -1.F, 1.F);
}

/// Draws facets one by one. Where they meet each covers a part of the pixels, and all parts together make a whole.
class FacetPainter {
public:
    explicit FacetPainter(QSize size)
        : _tints(size)
        , _covers(size)
        , _side(static_cast<float>(size.height()))
        , _width(static_cast<float>(size.width()) / _side) {}

    void draw(const FoldedPaper& paper, const Facet& facet) {
        const Edges edges = edgesOf(paper, facet);
        const auto [left, right] =
            std::minmax({paper.corner(facet, 0).x, paper.corner(facet, 1).x, paper.corner(facet, 2).x});
        const auto [top, bottom] =
            std::minmax({paper.corner(facet, 0).y, paper.corner(facet, 1).y, paper.corner(facet, 2).y});
        const int endX = std::min(_covers.width(), static_cast<int>(right * _side) + 2);
        const int endY = std::min(_covers.height(), static_cast<int>(bottom * _side) + 2);
        for (int y = std::max(0, static_cast<int>(top * _side) - 1); y < endY; ++y) {
            for (int x = std::max(0, static_cast<int>(left * _side) - 1); x < endX; ++x)
                drawPixel(x, y, edges, facet.light);
        }
    }

    [[nodiscard]] DeepImage finish() && {
        for (int y = 0; y < _tints.height(); ++y) {
            for (int x = 0; x < _tints.width(); ++x)
                _tints.at(x, y) *= 1 / _covers.at(x, y);
        }
        return std::move(_tints);
    }

private:
    void drawPixel(int x, int y, const Edges& edges, float light) {
        const float across = (static_cast<float>(x) + 0.5F) / _side;
        const float down = (static_cast<float>(y) + 0.5F) / _side;
        float cover = 1;
        for (const Edge& edge : edges)
            cover *= std::clamp(edge.inside(across, down) * _side + 0.5F, 0.F, 1.F);
        if (cover <= 0)
            return;
        const float bright =
            1 + 0.62F * light + 0.10F * foldLight(edges, across, down) + 0.014F * paperFibres(across, down, 311);
        _tints.at(x, y) += _colours.at(0.62F * down + 0.38F * across / _width) * (bright * cover);
        _covers.at(x, y) += cover;
    }

    Ramp _colours{{0, 0xff3a9588}, {0.35F, 0xff2b8079}, {0.7F, 0xff1a6062}, {1, 0xff10474c}};
    DeepImage _tints;
    Mask _covers;
    float _side;
    float _width; ///< Of the picture, in its heights.
};

} // namespace

DeepImage paperHome(QSize size) {
    const FoldedPaper paper(static_cast<float>(size.width()) / static_cast<float>(size.height()));
    FacetPainter painter(size);
    for (const Facet& facet : paper.facets())
        painter.draw(paper, facet);
    return std::move(painter).finish();
}

} // namespace zdt::assets
