#include "sheets/skinnedStore.h"

#include "kit/skinFolder.h"

#include <filesystem>

namespace zdt::test {

namespace fs = std::filesystem;

SkinnedStore::SkinnedStore() {
    const std::string skin = root() + std::string(skinFolderName);
    fs::create_directories(skin);
    fs::create_directory_symlink(templateFile(std::string(skinFolderName) + "simplepic"), skin + "simplepic");
    fs::current_path(root());
}

SkinnedStore::~SkinnedStore() {
    fs::current_path("/");
}

} // namespace zdt::test
