#pragma once

#include <string>

namespace zdt {

/// A file of a theme that was there and couldn't be read. It is kept when the file is written anew, so that an author
/// may still mend it by hand.
class DamagedFile {
public:
    /// Notes the file if something stands there; to be called when reading failed.
    void note(const std::string& path);
    /// Empty if nothing is damaged.
    [[nodiscard]] const std::string& path() const { return _path; }
    /// To be called before the file is written: moves the damaged one aside, to its name and ".damaged" (or
    /// ".damaged-2" and so on), if that is where it stands.
    [[nodiscard]] bool keepFrom(const std::string& path);

private:
    std::string _path;
};

} // namespace zdt
