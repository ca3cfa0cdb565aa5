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

    /// Goes on by one step of `animationTick`.
    virtual void advance() = 0;
    [[nodiscard]] virtual bool finished() const = 0;
    /// Milliseconds between two runs; below 0 for a single one.
    [[nodiscard]] virtual int interval() const = 0;
    [[nodiscard]] virtual bool loop() const = 0;
    /// Back to the beginning.
    virtual void reset() = 0;
    /// Adds what it does at this moment.
    virtual void apply(AnimatedLook& look) const = 0;
};

/// What plays on a canvas. Times are milliseconds of any steady clock.
class AnimationRun {
public:
    /// What a pass found.
    enum class Pass { unchanged, changed, ended };

    /// Begins with all animations, which live until `stop`.
    void start(std::vector<ItemAnimation*> animations, std::int64_t now);
    /// Resets them and forgets them.
    void stop();
    [[nodiscard]] bool isPlaying() const { return _playing; }

    /// Looks at everything once: goes on by a step if one is due, and begins again what has finished and repeats.
    /// `ended` once, when all has finished for good; nothing is reset then, so that the last look stays.
    [[nodiscard]] Pass pass(std::int64_t now);

private:
    [[nodiscard]] bool isOver() const;

    std::vector<ItemAnimation*> _animations;
    std::int64_t _due = 0; ///< The time of the next step.
    bool _playing = false;
};

} // namespace zdt
