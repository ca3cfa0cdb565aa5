#include "assets/wallpapers/terrain.h"

#include <cmath>

namespace zdt::assets {

namespace {

/// What one column of pixels shows of the land.
class Column {
public:
    explicit Column(int height)
        : _tints(static_cast<std::size_t>(height))
        , _covers(static_cast<std::size_t>(height)) {}

    /// Adds land between two rows, counted in fractions from the top. It covers `share` of the column's width.
    void add(float upper, float lower, const Tint& upperTint, const Tint& lowerTint, float share) {
        const int end = std::min(static_cast<int>(std::ceil(lower)), static_cast<int>(_tints.size()));
        for (int y = std::max(static_cast<int>(std::floor(upper)), 0); y < end; ++y) {
            const float from = std::max(upper, static_cast<float>(y));
            const float to = std::min(lower, static_cast<float>(y + 1));
            const float cover = (to - from) * share;
            const auto index = static_cast<std::size_t>(y);
            _tints[index] += mix(upperTint, lowerTint, ((from + to) / 2 - upper) / (lower - upper)) * cover;
            _covers[index] += cover;
        }
    }

    /// Draws it over a column of the image, and is empty again.
    void flush(DeepImage& image, int x) {
        for (int y = 0; y < image.height(); ++y) {
            const auto index = static_cast<std::size_t>(y);
            image.at(x, y) = image.at(x, y) * (1 - _covers[index]) + _tints[index];
        }
        std::ranges::fill(_tints, Tint{});
        std::ranges::fill(_covers, 0.F);
    }

private:
    std::vector<Tint> _tints;
    std::vector<float> _covers;
};

/// The distances that are looked at: one for each row that even ground would take, and closer ones far away.
std::vector<float> distances(const Camera& camera, int rows) {
    const float finest = 0.9F / (camera.focus * std::max(camera.height, 1e-3F) * static_cast<float>(rows));
    std::vector<float> result;
    float z = camera.nearest;
    while (z < camera.farthest) {
        result.push_back(z);
        z += z * std::min(z * finest, camera.step);
    }
    return result;
}

class TerrainPainter {
public:
    TerrainPainter(DeepImage& image, const Camera& camera, const HeightOf& height, const ShadeOf& shade)
        : _image(image)
        , _camera(camera)
        , _height(height)
        , _shade(shade)
        , _distances(distances(camera, image.height()))
        , _column(image.height()) {}

    void draw() {
        _here = heightsAt(-1);
        _right = heightsAt(0);
        for (int x = 0; x < _image.width(); ++x) {
            for (int part = x * parts; part < (x + 1) * parts; ++part) {
                _left = std::exchange(_here, std::exchange(_right, heightsAt(part + 1)));
                drawPart(directionOf(part));
            }
            _column.flush(_image, x);
        }
    }

private:
    static constexpr int parts = 2; ///< Of a column of pixels, so that steep slopes have no jags.

    [[nodiscard]] float directionOf(int part) const {
        const float middle = static_cast<float>(_image.width()) / 2;
        return ((static_cast<float>(part) + 0.5F) / parts - middle) / static_cast<float>(_image.height()) /
               _camera.focus;
    }

    /// From part to part, at a distance of 1.
    [[nodiscard]] float spacing() const { return directionOf(1) - directionOf(0); }

    [[nodiscard]] std::vector<float> heightsAt(int part) const {
        std::vector<float> heights(_distances.size());
        std::ranges::transform(_distances, heights.begin(), [&](float z) {
            return _height({directionOf(part) * z, z});
        });
        return heights;
    }

    [[nodiscard]] float rowAt(std::size_t step) const {
        return _camera.screenY(_distances[step], _here[step]) * static_cast<float>(_image.height());
    }

    /// The highest row around a step that is higher than both its neighbours: a crest between them may be sharp.
    [[nodiscard]] float crestRow(std::size_t step, float direction) const {
        const auto rowOf = [&](float z) {
            return _camera.screenY(z, _height({direction * z, z})) * static_cast<float>(_image.height());
        };
        float nearer = _distances[step - 1];
        float farther = _distances[step + 1];
        for (int round = 0; round < 12; ++round) {
            const float third = (farther - nearer) / 3;
            if (rowOf(nearer + third) < rowOf(farther - third))
                farther -= third;
            else
                nearer += third;
        }
        return rowOf((nearer + farther) / 2);
    }

    /// The nearest and the farthest point are there for the slopes of the others.
    void drawPart(float direction) {
        auto top = static_cast<float>(_image.height());
        Tint last;
        bool wasSeen = false;
        for (std::size_t step = 1; step + 1 < _distances.size(); ++step) {
            float row = rowAt(step);
            const bool isSeen = row < top;
            if (isSeen) {
                if (rowAt(step + 1) > row)
                    row = std::min(row, crestRow(step, direction));
                const Tint tint = wasSeen && isCrest(step) ? last : _shade(surfaceAt(step, direction));
                _column.add(row, top, tint, wasSeen ? last : tint, 1.F / parts);
                last = tint;
                top = row;
            }
            wasSeen = isSeen;
        }
    }

    /// Whether the land bends down sharply: then it has no slope here that its neighbours could tell.
    [[nodiscard]] bool isCrest(std::size_t step) const {
        constexpr float sharpest = 0.12F;
        const float before = (_here[step] - _here[step - 1]) / (_distances[step] - _distances[step - 1]);
        const float after = (_here[step + 1] - _here[step]) / (_distances[step + 1] - _distances[step]);
        const float across = (_left[step] + _right[step] - 2 * _here[step]) / (spacing() * _distances[step]);
        return before - after > sharpest || -across > sharpest;
    }

    [[nodiscard]] Surface surfaceAt(std::size_t step, float direction) const {
        const float z = _distances[step];
        const float slopeX = (_right[step] - _left[step]) / (2 * spacing() * z);
        const float alongRay = (_here[step + 1] - _here[step - 1]) / (_distances[step + 1] - _distances[step - 1]);
        const float slopeZ = alongRay - direction * slopeX;
        const float length = std::sqrt(1 + slopeX * slopeX + slopeZ * slopeZ);
        return {{direction * z, z}, _here[step], -slopeX / length, 1 / length, -slopeZ / length};
    }

    DeepImage& _image;
    const Camera& _camera;
    const HeightOf& _height;
    const ShadeOf& _shade;
    std::vector<float> _distances;
    std::vector<float> _left;  ///< Heights at these distances: in the part to the left,
    std::vector<float> _here;  ///< in this one,
    std::vector<float> _right; ///< and in the next one.
    Column _column;
};

} // namespace

void drawTerrain(DeepImage& image, const Camera& camera, const HeightOf& height, const ShadeOf& shade) {
    TerrainPainter(image, camera, height, shade).draw();
}

} // namespace zdt::assets
