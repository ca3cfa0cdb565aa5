#pragma once

#include "support/xmlFile.h"

#include <array>
#include <map>
#include <string>
#include <string_view>

/// description.xml: nine texts that name a theme and say which generation of the phone's skin it is for. Its root
/// element is `ZdTheme`, with one child element for each text.
namespace zdt {

inline constexpr std::string_view descriptionFile = "description.xml";
inline constexpr std::string_view descriptionRoot = "ZdTheme";

struct DescriptionField {
    std::string_view key;
    std::string_view fallback;
    std::string_view pattern; ///< Empty allows every value.
};

/// In the order in which they stand in the tree and in the file.
inline constexpr std::array<DescriptionField, 9> descriptionFields{{
    {"title", "English Name", ".+"},
    {"title-cn", "主题中文名称", ".+"},
    {"author", "制作者名称", ".+"},
    {"designer", "设计师名称", ".+"},
    {"screen", "FHD", "(FHD)|(HD)"},
    {"version", "8.0.1", R"((5|8|9)\.\d\.\d+)"},
    {"font", "Default", ".+"},
    {"font-cn", "默认", ".+"},
    {"briefinfo", "", ""},
}};

/// The generation's index that a version text tells: 0 for a first sign "5", 1 for "8", 2 for any other; 3 for an empty
/// text.
[[nodiscard]] unsigned generationOfVersion(std::string_view version);

using Description = std::map<std::string, std::string>;

/// The fields that a file names. A field whose element holds no text is there with an empty value; unknown elements are
/// left out; of two texts for one field the later one counts. Empty for an unreadable file, which is noted in
/// `damaged`.
[[nodiscard]] Description readDescriptionFile(const std::string& path, DamagedFile* damaged = nullptr);

} // namespace zdt
