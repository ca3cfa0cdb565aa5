#include "assets/lock/lockPictures.h"

#include "assets/lock/chargePictures.h"
#include "assets/lock/lockControls.h"
#include "assets/lock/lockDigits.h"
#include "assets/lock/lockParts.h"
#include "canvas/screens/screenIcons.h"

namespace zdt::assets {

namespace {

constexpr const char* designedFolder = "unlock_amazing/drawable-hdpi/";
/// A theme merges both folders, so that the slide lock's names are of their own.
constexpr const char* slidePrefix = "unlock_slide/drawable-hdpi/slide_";

using Draw = QImage (*)(const std::string& name, const Generation& generation);

/// The digit stands in front of ".png".
int digitOf(const std::string& name) {
    return name[name.size() - 5] - '0';
}

QImage drawDigit(const std::string& name, const Generation& generation) {
    return drawClockDigit(digitOf(name), sizeOf(lockDigit), generation);
}

QImage drawColon(const std::string&, const Generation& generation) {
    return drawClockColon(sizeOf(lockColon), generation);
}

QImage drawChargeOf(const std::string& name, const Generation& generation) {
    return drawCharge(digitOf(name), generation);
}

template <Notice notice>
QImage drawNotice(const std::string&, const Generation& generation) {
    return drawNoticeCard(notice, generation);
}

template <char32_t sign, bool isPressed>
QImage drawSkip(const std::string&, const Generation& generation) {
    return drawMusicSkip(sign, isPressed, generation);
}

template <char32_t sign>
QImage drawPlay(const std::string&, const Generation& generation) {
    return drawMusicPlay(sign, generation);
}

/// A drawing that doesn't depend on its name.
template <QImage (*draw)(const Generation&)>
QImage drawPlain(const std::string&, const Generation& generation) {
    return draw(generation);
}

struct Row {
    const char* name;
    Draw draw;
};

/// In the folders of both locks.
constexpr Row common[]{
    {"colon.png", drawColon},
    {"card_message.png", drawNotice<Notice::message>},
    {"card_call.png", drawNotice<Notice::missedCall>},
};

constexpr Row designed[]{
    {"unlock_arrow.png", drawPlain<drawLockArrow>},         {"music_bg.png", drawPlain<drawMusicPanel>},
    {"music_pre.png", drawSkip<sign::skipPrevious, false>}, {"music_pre_press.png", drawSkip<sign::skipPrevious, true>},
    {"music_play.png", drawPlay<sign::playArrow>},          {"music_pause.png", drawPlay<sign::pause>},
    {"music_next.png", drawSkip<sign::skipNext, false>},    {"music_next_press.png", drawSkip<sign::skipNext, true>},
};

constexpr Row slide[]{
    {"track.png", drawPlain<drawSlideTrack>},
    {"knob.png", drawPlain<drawSlideKnob>},
};

} // namespace

std::vector<LockPicture> lockPictures() {
    std::vector<LockPicture> pictures;
    const auto add = [&](const char* folder, const std::string& name, Draw draw) {
        pictures.push_back({folder + name, draw});
    };
    for (const Row& row : common) {
        add(designedFolder, row.name, row.draw);
        add(slidePrefix, row.name, row.draw);
    }
    for (const Row& row : designed)
        add(designedFolder, row.name, row.draw);
    for (const Row& row : slide)
        add(slidePrefix, row.name, row.draw);
    for (int digit = 0; digit < 10; ++digit) {
        const std::string ending = std::to_string(digit) + ".png";
        add(designedFolder, "number_" + ending, drawDigit);
        add(slidePrefix, "number_" + ending, drawDigit);
        add(designedFolder, "charge_" + ending, drawChargeOf);
    }
    return pictures;
}

} // namespace zdt::assets
