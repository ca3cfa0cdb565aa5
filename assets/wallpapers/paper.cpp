#include "assets/art/shapes.h"
#include "assets/wallpapers/motifs.h"
#include "assets/wallpapers/noise.h"
#include "assets/wallpapers/paperSheet.h"
#include "assets/wallpapers/shapeMask.h"

#include <array>
#include <cmath>
#include <span>

// All places are in heights of the picture: x from its middle, y from its top.
namespace zdt::assets {

namespace {

struct Bump {
    float x;
    float tall; ///< Above the base of its row.
    float width;
};

struct Tree {
    float x;
    float tall;
};

/// A row of hills in one sheet, and the trees that stand behind it.
struct Hills {
    bool isSharp; ///< Mountains.
    float base;
    std::span<const Bump> bumps;
    std::span<const Tree> trees;
    Sheet sheet;
};

constexpr std::array<Bump, 4> farMountains{
    {{-0.30F, 0.070F, 0.10F}, {-0.17F, 0.120F, 0.16F}, {0.02F, 0.055F, 0.12F}, {0.27F, 0.105F, 0.17F}}};
constexpr std::array<Bump, 4> nearMountains{
    {{-0.26F, 0.085F, 0.17F}, {-0.02F, 0.075F, 0.17F}, {0.17F, 0.050F, 0.13F}, {0.33F, 0.090F, 0.16F}}};
constexpr std::array<Bump, 3> farHills{{{-0.20F, 0.050F, 0.15F}, {0.05F, 0.028F, 0.12F}, {0.24F, 0.062F, 0.13F}}};
constexpr std::array<Bump, 3> middleHills{{{-0.28F, 0.030F, 0.12F}, {-0.04F, 0.056F, 0.15F}, {0.20F, 0.030F, 0.10F}}};
constexpr std::array<Bump, 3> nearHills{{{-0.22F, 0.062F, 0.15F}, {0.05F, 0.020F, 0.10F}, {0.27F, 0.060F, 0.14F}}};
constexpr std::array<Bump, 2> foreground{{{-0.14F, 0.030F, 0.14F}, {0.16F, 0.045F, 0.17F}}};

constexpr std::array<Tree, 5> farTrees{
    {{-0.235F, 0.034F}, {-0.205F, 0.044F}, {-0.178F, 0.030F}, {0.205F, 0.036F}, {0.235F, 0.046F}}};
constexpr std::array<Tree, 5> middleTrees{
    {{-0.060F, 0.046F}, {-0.025F, 0.060F}, {0.012F, 0.042F}, {0.120F, 0.050F}, {0.150F, 0.036F}}};
constexpr std::array<Tree, 7> nearTrees{{{-0.255F, 0.066F},
                                         {-0.212F, 0.082F},
                                         {-0.165F, 0.056F},
                                         {0.060F, 0.040F},
                                         {0.185F, 0.060F},
                                         {0.225F, 0.084F},
                                         {0.262F, 0.064F}}};

constexpr std::array<Hills, 6> rows{{
    {true, 0.640F, farMountains, {}, {0xffaee2d3, 0xff98d5c6, 0.52F, 0.68F, 0.005F, 201}},
    {true, 0.690F, nearMountains, {}, {0xff82cbbb, 0xff6dbcae, 0.60F, 0.76F, 0.006F, 203}},
    {false, 0.750F, farHills, {}, {0xff54ab9d, 0xff429a8f, 0.69F, 0.84F, 0.007F, 205}},
    {false, 0.820F, middleHills, farTrees, {0xff318a81, 0xff277c76, 0.76F, 0.90F, 0.008F, 207}},
    {false, 0.890F, nearHills, middleTrees, {0xff1e6c68, 0xff175e5d, 0.83F, 0.96F, 0.009F, 209}},
    {false, 0.965F, foreground, nearTrees, {0xff125052, 0xff0d4346, 0.92F, 1.00F, 0.010F, 211}},
}};

/// Straight cuts between random heights of -0.5 to 0.5, one a unit.
float zigzag(float x, std::uint32_t seed) {
    const float left = std::floor(x);
    const auto cut = static_cast<std::uint32_t>(static_cast<std::int32_t>(left));
    return mix(chance(cut, 0, seed), chance(cut + 1, 0, seed), x - left) - 0.5F;
}

float topOf(const Hills& row, float x) {
    float top = 0;
    for (const Bump& bump : row.bumps) {
        const float off = (x - bump.x) / bump.width;
        top = std::max(top, bump.tall * (row.isSharp ? 1 - std::abs(off) : std::exp(-off * off)));
    }
    const std::uint32_t seed = row.sheet.seed;
    return row.base - top + (row.isSharp ? 0.011F * zigzag(x * 38, seed) : 0.004F * noise(x * 5, 0.5F, seed));
}

QPainterPath outlineOf(const Hills& row, float half) {
    QPolygonF outline{{-half - 0.05, 1.1}};
    constexpr int steps = 640;
    for (int step = 0; step <= steps; ++step) {
        const float x = mix(-half - 0.05F, half + 0.05F, static_cast<float>(step) / steps);
        outline << QPointF(x, topOf(row, x));
    }
    QPainterPath path;
    path.addPolygon(outline << QPointF(half + 0.05, 1.1));
    path.closeSubpath();
    return path;
}

/// Where a mountain's right side meets the next one's left side.
QPointF valleyAfter(const Hills& row, std::size_t index) {
    const Bump& left = row.bumps[index];
    const float slope = left.tall / left.width;
    if (index + 1 == row.bumps.size())
        return {left.x + left.width, row.base};
    const Bump& right = row.bumps[index + 1];
    const float rise = right.tall / right.width;
    const float x = (left.tall - right.tall + slope * left.x + rise * right.x) / (slope + rise);
    return {x, row.base - left.tall + slope * (x - left.x)};
}

/// Mountains are folded down from their tops: what lies to the right is in shade.
QPainterPath foldsOf(const Hills& row) {
    constexpr std::array<QPointF, 5> fold{{{0.02, 2}, {0.14, 0.72}, {0.01, 0.52}, {0.10, 0.30}, {-0.02, 0.14}}};
    QPainterPath folds;
    for (std::size_t index = 0; index < row.bumps.size(); ++index) {
        const Bump& bump = row.bumps[index];
        const QPointF valley = valleyAfter(row, index);
        QPolygonF shaded{{bump.x, row.base - bump.tall - 0.02}, valley - QPointF(0, 0.02), valley + QPointF(0, 0.2)};
        for (const QPointF& point : fold)
            shaded << QPointF(bump.x + point.x() * bump.width, row.base + (point.y() - 1) * bump.tall);
        folds.addPolygon(shaded);
        folds.closeSubpath();
    }
    return folds;
}

/// A fir of folded paper, or its right half alone.
QPolygonF fir(QPointF foot, double tall, bool isWhole) {
    constexpr std::array<QPointF, 6> edge{
        {{0, -1}, {0.17, -0.62}, {0.10, -0.62}, {0.24, -0.27}, {0.15, -0.27}, {0.32, 0.12}}};
    QPolygonF outline;
    for (const QPointF& point : edge)
        outline << foot + point * tall;
    for (auto point = edge.rbegin(); point != edge.rend(); ++point)
        outline << foot + QPointF(isWhole ? -point->x() : 0, point->y()) * tall;
    return outline;
}

void plantTrees(DeepImage& image, const Hills& row) {
    if (row.trees.empty())
        return;
    QPainterPath trees;
    QPainterPath shaded;
    for (const Tree& tree : row.trees) {
        const QPointF foot(tree.x, topOf(row, tree.x) + 0.004);
        trees.addPolygon(fir(foot, tree.tall, true));
        shaded.addPolygon(fir(foot, tree.tall, false));
    }
    const QRgb lit = QColor::fromRgb(row.sheet.upper).lighter(122).rgb();
    lay(image, trees, {lit, lit, 0, 1, 0.004F, 231});
    fill(image, maskOf(image.size(), shaded), tintOf(row.sheet.lower) * 0.9F);
}

/// The folds grow faint towards the foot.
void shadeFolds(DeepImage& image, const Hills& row, const QPainterPath& outline) {
    Mask folds = maskOf(image.size(), foldsOf(row).intersected(outline));
    for (int y = 0; y < folds.height(); ++y) {
        const float down = static_cast<float>(y) / static_cast<float>(folds.height());
        const float rest = smoothStep(row.base + 0.035F, row.base - 0.06F, down);
        std::for_each_n(folds.row(y), folds.width(), [&](float& cover) { cover *= rest; });
    }
    shade(image, folds, tintOf(row.sheet.lower), 0.24F);
}

void layHills(DeepImage& image, const Hills& row) {
    plantTrees(image, row);
    const float half = static_cast<float>(image.width()) / 2 / static_cast<float>(image.height());
    const QPainterPath outline = outlineOf(row, half);
    lay(image, outline, row.sheet);
    if (row.isSharp)
        shadeFolds(image, row, outline);
}

QPainterPath cloud(QPointF middle, double width) {
    struct Puff {
        QPointF middle;
        double radius;
    };
    constexpr std::array<Puff, 4> puffs{
        {{{-0.30, -0.16}, 0.16}, {{-0.05, -0.24}, 0.24}, {{0.24, -0.17}, 0.17}, {{0.42, -0.10}, 0.10}}};
    QPainterPath path;
    path.addRoundedRect(QRectF(middle + QPointF(-0.56, -0.14) * width, QSizeF(1.16, 0.14) * width), 0.07 * width,
                        0.07 * width);
    for (const Puff& puff : puffs)
        path.addEllipse(middle + puff.middle * width, puff.radius * width, puff.radius * width);
    return path;
}

QPainterPath disc(double radius) {
    return discOutline({0.09, 0.50}, radius);
}

} // namespace

DeepImage paperLock(QSize size) {
    DeepImage image(size);
    QPainterPath sky;
    sky.addRect(-2, -1, 4, 3);
    lay(image, sky, {0xffdcf4ea, 0xffb9e4d6, 0, 0.65F, 0, 191});
    lay(image, disc(0.150), {0xffe6f6e6, 0xffdcf1e0, 0.35F, 0.65F, 0.004F, 193});
    lay(image, disc(0.105), {0xfff6f6dc, 0xfff1efd0, 0.35F, 0.65F, 0.004F, 195});
    lay(image, disc(0.064), {0xffffd98a, 0xfffbc96e, 0.43F, 0.57F, 0.005F, 197});
    lay(image, cloud({-0.16, 0.425}, 0.13), {0xfff7fcf6, 0xffe6f4ee, 0.36F, 0.43F, 0.005F, 213});
    lay(image, cloud({0.21, 0.545}, 0.15), {0xfff7fcf6, 0xffe6f4ee, 0.48F, 0.55F, 0.006F, 215});
    for (const Hills& row : rows)
        layHills(image, row);
    return image;
}

} // namespace zdt::assets
