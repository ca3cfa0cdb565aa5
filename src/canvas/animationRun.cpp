#include "canvas/animationRun.h"

#include <algorithm>
#include <utility>

namespace zdt {

namespace {

bool staysFinished(const ItemAnimation* animation) {
    return animation->finished() && animation->interval() < 0 && !animation->loop();
}

} // namespace

ItemAnimation::~ItemAnimation() = default;

void AnimationRun::start(std::vector<ItemAnimation*> animations, std::int64_t now) {
    stop();
    _animations = std::move(animations);
    _due = now + animationTick;
    _playing = true;
}

void AnimationRun::stop() {
    for (ItemAnimation* animation : _animations)
        animation->reset();
    _animations.clear();
    _playing = false;
}

bool AnimationRun::isOver() const {
    return std::ranges::all_of(_animations, staysFinished);
}

AnimationRun::Pass AnimationRun::pass(std::int64_t now) {
    if (!_playing)
        return Pass::unchanged;
    if (isOver()) {
        _playing = false;
        return Pass::ended;
    }
    if (now < _due)
        return Pass::unchanged;
    // Counted from when it was due, so that late passes don't slow it down; what was missed by far isn't caught up.
    _due += animationTick;
    if (_due <= now)
        _due = now + animationTick;
    for (ItemAnimation* animation : _animations) {
        if (staysFinished(animation))
            continue;
        if (animation->finished())
            animation->reset();
        animation->advance();
    }
    return Pass::changed;
}

} // namespace zdt
