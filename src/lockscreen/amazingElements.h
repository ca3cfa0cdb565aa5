#pragma once

#include "lockscreen/amazingChild.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

/// The elements of a lock screen layout that the designer treats specially.
namespace zdt {

/// A digit of the clock, or the picture between the digits.
class TimeAboutImage : public AmazingChild {
public:
    using AmazingChild::AmazingChild;
    explicit TimeAboutImage(AmazingChild&& element)
        : AmazingChild(std::move(element)) {}
};

/// The picture that fills the screen and changes with the time. It has two sets of files, one for each screen height.
class LockWallPaper : public TimeAboutImage {
public:
    explicit LockWallPaper(AmazingChild&& element);
    explicit LockWallPaper(const tinyxml2::XMLElement* element)
        : LockWallPaper(AmazingChild(element)) {}

    /// The names for a height of 1920, and those for 2160. They are pairs once the files were looked up.
    [[nodiscard]] const std::vector<std::string>& files1920() const { return _files1920; }
    [[nodiscard]] const std::vector<std::string>& files2160() const { return _files2160; }
    /// Takes the names off each list's end whose files aren't in the directory, up to the first that is, and the longer
    /// list down to the length of the shorter. A missing directory changes nothing.
    void lookUpFiles(const std::string& directory);

    /// Both sets; nothing if the `src` is refused. Without a whole pair they are the
    /// two names that a first pair would have.
    [[nodiscard]] std::optional<std::vector<std::string>> resources() const override;

private:
    std::vector<std::string> _files1920;
    std::vector<std::string> _files2160;
    std::vector<std::string> _firstPair;
    bool _isRefused = false;
};

/// Any other picture.
class Decoration : public AmazingChild {
public:
    using AmazingChild::AmazingChild;
    explicit Decoration(AmazingChild&& element)
        : AmazingChild(std::move(element)) {}
};

/// What the hand moves to unlock: an element with points where it starts and ends.
class UnlockerData : public AmazingChild {
public:
    explicit UnlockerData(AmazingChild&& element)
        : AmazingChild(std::move(element)) {}
    explicit UnlockerData(const tinyxml2::XMLElement* element)
        : UnlockerData(AmazingChild(element)) {}

    /// Children of this element, in their order.
    [[nodiscard]] std::vector<AmazingChild*> startPoints() const { return childrenNamed("StartPoint"); }
    [[nodiscard]] std::vector<AmazingChild*> endPoints() const { return childrenNamed("EndPoint"); }
    /// 1 if the first end lies where the one start does, 2 if it lies elsewhere; 0 without an end, or if the starts are
    /// not exactly one.
    [[nodiscard]] int unlockerKind() const;

private:
    [[nodiscard]] std::vector<AmazingChild*> childrenNamed(const std::string& name) const;
};

/// Whether the attributes are those of a picture that fills the screen.
[[nodiscard]] bool isFullScreen(const AmazingChild& element);
/// Whether a `src` changes with the time of day.
[[nodiscard]] bool changesWithTime(const std::string& src);
/// Whether the attributes are those of the wallpaper: an `image` that fills the screen and changes with the time.
[[nodiscard]] bool isWallpaper(const AmazingChild& element);

} // namespace zdt
