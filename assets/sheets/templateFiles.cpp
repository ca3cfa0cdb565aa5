#include "assets/sheets/templateFiles.h"

#include "support/files.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <set>

namespace zdt::assets {

namespace fs = std::filesystem;

QImage TemplateFolder::picture(const std::string& path) const {
    return QImage(QString::fromStdString(directory + path));
}

std::vector<std::string> TemplateFolder::files(const std::function<bool(const std::string&)>& wanted) const {
    std::vector<std::string> paths;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(directory)) {
        std::string path = fs::relative(entry.path(), directory).string();
        if (entry.is_regular_file() && wanted(path))
            paths.push_back(std::move(path));
    }
    std::ranges::sort(paths);
    constexpr std::uint64_t maxBytes = 16U << 20U;
    std::set<std::string> known;
    std::erase_if(paths, [&](const std::string& path) {
        return !known.insert(readFile(directory + path, maxBytes).value_or(path)).second;
    });
    return paths;
}

QString shortName(const std::string& path) {
    std::string name = stem(path);
    if (name.ends_with(".9"))
        name.resize(name.size() - 2);
    for (const std::string_view common : {"com.zendro.android.", "com.zendro.", "com.android."}) {
        if (name.starts_with(common)) {
            name.erase(0, common.size());
            break;
        }
    }
    return QString::fromStdString(name);
}

} // namespace zdt::assets
