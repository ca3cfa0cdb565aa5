#include "canvas/animationRun.h"

#include <algorithm>

namespace zdt {

ItemAnimation::~ItemAnimation() = default;

bool ItemAnimation::isOver() const {
    return finished() && interval() < 0 && !loop();
}

void ItemAnimation::rewind() {
    _waited = 0;
    reset();
}

bool ItemAnimation::waits() {
    if (loop() || _waited >= interval())
        return false;
    _waited += animationTick;
    return true;
}

void ItemAnimation::step() {
    if (finished()) {
        if (isOver() || waits())
            return;
        rewind();
    }
    advance();
}

void AnimationRun::start(const ItemAnimations& animations, std::int64_t now) {
    stop(animations);
    _due = now + animationTick;
    _playing = true;
}

void AnimationRun::stop(const ItemAnimations& animations) {
    std::ranges::for_each(animations, &ItemAnimation::rewind);
    _playing = false;
}

AnimationRun::Pass AnimationRun::pass(const ItemAnimations& animations, std::int64_t now) {
    if (!_playing)
        return Pass::unchanged;
    if (std::ranges::all_of(animations, &ItemAnimation::isOver)) {
        _playing = false;
        return Pass::ended;
    }
    if (now < _due)
        return Pass::unchanged;
    // Counted from when it was due, so that late passes don't slow it down; what was missed by far isn't caught up.
    _due += animationTick;
    if (_due <= now)
        _due = now + animationTick;
    std::ranges::for_each(animations, &ItemAnimation::step);
    return Pass::changed;
}

} // namespace zdt
