#include "assets/templateTheme.h"

#include "model/template.h"
#include "modules/tables/pictures.h"
#include "support/files.h"

#include <filesystem>
#include <stdexcept>

namespace zdt::test {

namespace fs = std::filesystem;

std::string templatePath(unsigned generation) {
    return std::string(ZDT_TEMPLATES_DIR) + "/" + templateDirectory(generation);
}

std::vector<TypeMask> themeKinds(unsigned generation) {
    std::vector<TypeMask> kinds;
    for (const TypeMask size : {typeMask::bigTheme, typeMask::smallTheme}) {
        for (const TypeMask language : {typeMask::chinese, typeMask::otherLanguage})
            kinds.push_back(size | language | generationBit(generation));
    }
    return kinds;
}

std::unique_ptr<ThemeNode> makeTree(TypeMask mask, const std::string& directory) {
    auto theme = std::make_unique<ThemeNode>(mask, directory);
    if (mask & typeMask::otherLanguage) {
        for (const std::string_view name : tables::overseasLauncherPictures) {
            const ResNode* pictures = theme->findByPath(KeyPath{"launcher", "image"});
            ResNode* picture = nullptr;
            while ((picture = pictures->findChild(std::string(name), picture)))
                picture->addTypeBits(typeMask::generation5);
        }
    }
    return theme;
}

std::set<std::string> filesBelow(const std::string& directory) {
    std::set<std::string> files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(directory)) {
        if (entry.is_regular_file())
            files.insert(fs::relative(entry.path(), directory).string());
    }
    return files;
}

TemplateTheme::TemplateTheme(unsigned generation) {
    const std::string source = templatePath(generation);
    const bool copied = copyTree(source, path()) && copyTree(path("unlock_amazing/"), path("unlock/")) &&
                        copyTree(path("unlock_slide/"), path("unlock/"));
    if (!copied || !isFolder(source))
        throw std::runtime_error("no template in " + source);
    for (const char* folder : {"unlock_amazing", "unlock_slide", "unlock_magazine"})
        fs::remove_all(path(folder));
}

} // namespace zdt::test
