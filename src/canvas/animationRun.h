#pragma once

#include <cstdint>
#include <vector>

class QImage;
class QTransform;

namespace zdt {

/// Milliseconds of one step of an animation.
inline constexpr int animationTick = 50;
/// Milliseconds between two looks at what plays.
inline constexpr int animationPass = 20;

/// How an item looks at a moment of its animations.
struct AnimatedLook {
    QTransform* transform = nullptr; ///< In the design space; to be multiplied by what an animation adds.
    double opacity = 1;
    const QImage* frame = nullptr; ///< Shown in place of the item's own picture; null for that. It outlives the paint.
};

/// One animation of an item.
class ItemAnimation {
public:
    ItemAnimation() = default;
    virtual ~ItemAnimation();
    ItemAnimation(const ItemAnimation&) = delete;
    ItemAnimation& operator=(const ItemAnimation&) = delete;

    /// Goes on by one step of `animationTick`, within one run. The pauses between runs are no business of it.
    virtual void advance() = 0;
    /// Whether the present run is over.
    [[nodiscard]] virtual bool finished() const = 0;
    /// Milliseconds between the end of a run and the next; below 0 for a single run.
    [[nodiscard]] virtual int interval() const = 0;
    /// Whether it begins again at once, whatever the interval.
    [[nodiscard]] virtual bool loop() const = 0;
    /// Back to the beginning.
    virtual void reset() = 0;
    /// Adds what it does at this moment.
    virtual void apply(AnimatedLook& look) const = 0;

    /// One step of what plays: goes on, waits for the next run with the look of the last one's end, or begins again.
    void step();
    /// Whether it has finished for good.
    [[nodiscard]] bool isOver() const;
    /// Back to the beginning, out of a pause too.
    void rewind();

private:
    [[nodiscard]] bool waits();

    std::int64_t _waited = 0; ///< Milliseconds since the present run ended.
};

/// Those that play on a canvas: found anew for each pass, so that an item may gain and lose some meanwhile.
using ItemAnimations = std::vector<ItemAnimation*>;

/// When what plays goes on. Times are milliseconds of any steady clock.
class AnimationRun {
public:
    /// What a pass found.
    enum class Pass { unchanged, changed, ended };

    /// Begins with all of them at their beginnings.
    void start(const ItemAnimations& animations, std::int64_t now);
    /// Ends, with all of them back at their beginnings.
    void stop(const ItemAnimations& animations);
    [[nodiscard]] bool isPlaying() const { return _playing; }

    /// Looks at everything once: goes on by a step if one is due. `ended` once, when all has finished for good; that
    /// leaves them at their ends.
    [[nodiscard]] Pass pass(const ItemAnimations& animations, std::int64_t now);

private:
    std::int64_t _due = 0; ///< The time of the next step.
    bool _playing = false;
};

} // namespace zdt
