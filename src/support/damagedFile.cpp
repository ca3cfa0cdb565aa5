#include "support/damagedFile.h"

#include "support/atomicFile.h"
#include "support/files.h"

namespace zdt {

void DamagedFile::note(const std::string& path) {
    if (pathExists(path))
        _path = path;
}

bool DamagedFile::keepFrom(const std::string& path) {
    if (_path.empty() || _path != path)
        return true;
    std::string aside = path + ".damaged";
    for (int number = 2; isTaken(aside); ++number)
        aside = path + ".damaged-" + std::to_string(number);
    if (pathExists(path) && !moveIntoPlace(path, aside, Flush::no))
        return false;
    _path.clear();
    return true;
}

} // namespace zdt
