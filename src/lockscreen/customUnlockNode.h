#pragma once

#include "model/fileResNode.h"
#include "model/resNode.h"

#include <cstdint>
#include <string>

namespace zdt {

/// The largest package of a custom lock screen in bytes.
inline constexpr std::uint64_t maxCustomUnlockBytes = 0xa00000;

/// A file of a custom lock screen. A project keeps it below "unlock/custom/", so that the lock screen's other kinds
/// don't meet it; a theme saved elsewhere with the type "custom" holds it where the phone looks for it.
class CustomUnlockFile : public FileResNode {
public:
    using FileResNode::FileResNode;

    /// Copies the file, if there is one, to the directory of the phone's lock screen engine. Nothing is written for the
    /// project itself, where the file stands already, nor with another type.
    [[nodiscard]] bool save(bool all) override;
};

/// A lock screen that is supplied whole, as a package and its `ext.properties`. Below its child `file` stand the leaf
/// "ext.properties" and, once the author has given one, the package under its own name.
class CustomUnlockNode : public ResNode {
public:
    explicit CustomUnlockNode(ResNode* parent);

    /// The package's leaf; null if there is none.
    [[nodiscard]] ResNode* package() const;
};

/// A leaf for a custom lock's package of that file name.
[[nodiscard]] std::unique_ptr<CustomUnlockFile> makeCustomPackageNode(const std::string& name);

/// The name of the leaf that stays when the package is replaced.
inline constexpr const char* customPropertiesName = "ext.properties";
/// Where a project keeps the files.
inline constexpr const char* customUnlockDirectory = "unlock/custom/";

} // namespace zdt
