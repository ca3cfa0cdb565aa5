#pragma once

#include "model/resNode.h"
#include "support/xmlFile.h"

#include <string>

namespace zdt {

/// The two engines that play a lock screen of the style "slide" under a package of their own.
inline constexpr const char* videoLockPackage = "com.zendro.ucdlockscreen";
inline constexpr const char* outsideEnginePackage = "com.ibimuyu.lockscreen";

/// The kinds of lock screen. Any other text is a kind too, of which the style alone is written.
namespace unlockType {
inline constexpr const char* slide = "slide";
inline constexpr const char* magazine = "magazine";
inline constexpr const char* amazing = "amazing"; ///< Freely designed.
inline constexpr const char* video = "video";
inline constexpr const char* zooking = "zooking"; ///< Of an outside engine.
inline constexpr const char* custom = "custom";   ///< Supplied whole.
} // namespace unlockType

/// `unlock/theme.xml`: under the root `ZDTheme` an element `item` for each attribute, bearing it as its one XML
/// attribute. Of what a file says only the kind of lock screen is taken; the attributes follow from it, and the
/// children always start from their defaults.
class UnlockConfigNode : public ResNode {
public:
    /// @param parent the node of the lock screen, whose value is its kind
    explicit UnlockConfigNode(ResNode* parent);

    /// Writes the attributes that count for the kind. Nothing is written, and that is no failure, without a kind, and
    /// for a theme in which the node takes no part unless `all` is set.
    [[nodiscard]] bool save(bool all) override;
};

/// The kind of lock screen that the file `unlock/theme.xml` of a theme says; empty if it can't be read, and then it is
/// noted in `damaged`.
[[nodiscard]] std::string readUnlockType(const std::string& themeDirectory, DamagedFile& damaged);

} // namespace zdt
