#include "cli/application.h"
#include "common/fixtures.h"
#include "store/themeResource.h"
#include "support/files.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fstream>
#include <sstream>

/// Lock screens as authors write them. Each folder of `tests/golden/lockscreen/` holds the documents of a theme, the
/// names of the pictures that it has, what `zdt lock` tells of it in generation 9, and what a save writes in each
/// generation; a file that isn't there is one that isn't written. With ZDT_GOLDEN_UPDATE set, the expected files are
/// written instead, to be read before they are kept.
namespace zdt {
namespace {

using test::readFile;
using test::TemporaryFolder;

const std::string goldenFolder = ZDT_GOLDEN_DIR "lockscreen/";

struct Generation {
    const char* digit;
    const char* version;
};
constexpr std::array<Generation, 3> generations{{{"5", "5.0.1"}, {"8", "8.0.1"}, {"9", "9.0.100"}}};

std::vector<std::string> cases() {
    std::vector<std::string> names = listDirectories(goldenFolder);
    std::sort(names.begin(), names.end());
    return names;
}

void expectFile(const std::string& expected, const std::string& actual) {
    if (std::getenv("ZDT_GOLDEN_UPDATE")) {
        if (!actual.empty())
            std::ofstream(expected, std::ios::binary) << actual;
        return;
    }
    EXPECT_EQ(readFile(expected), actual) << expected;
}

/// A theme that holds nothing but the lock screen of a case.
class GoldenLock : public testing::TestWithParam<std::string> {
protected:
    std::string golden(const std::string& name) const { return goldenFolder + GetParam() + "/" + name; }

    void makeTheme(const TemporaryFolder& folder, const std::string& version) const {
        folder.write("res/T/description.xml", "<ZDTheme><version>" + version + "</version></ZDTheme>");
        folder.write("res/T/unlock/theme.xml", "<ZDTheme><item style='amazing'/></ZDTheme>");
        for (const char* form : {"", "_full"}) {
            if (const std::string file = golden("layout" + std::string(form) + ".xml"); pathExists(file))
                folder.write("res/T/unlock/layout-hdpi/layout1" + std::string(form) + ".xml", readFile(file));
        }
        std::istringstream pictures(readFile(golden("pictures.txt")));
        for (std::string name; std::getline(pictures, name);)
            folder.write("res/T/unlock/drawable-hdpi/" + name, name);
    }

    static std::string shown(const TemporaryFolder& folder) {
        const std::string root = folder.path();
        const std::array<const char*, 6> arguments{"zdt", "--root", root.c_str(), "--json", "lock", "T"};
        std::ostringstream out;
        std::ostringstream err;
        EXPECT_EQ(runZdt(static_cast<int>(arguments.size()), arguments.data(), out, err), 0) << err.str();
        return nlohmann::ordered_json::parse(out.str(), nullptr, false).dump(1) + "\n";
    }

    static std::string layout(const TemporaryFolder& folder, const std::string& form) {
        return readFile(folder.path("res/T/unlock/layout-hdpi/layout1" + form + ".xml"));
    }
};

TEST_P(GoldenLock, IsReadAndWrittenForEveryGeneration) {
    for (const auto& [digit, version] : generations) {
        const bool isGeneration5 = std::string(digit) == "5";
        const TemporaryFolder folder;
        makeTheme(folder, version);
        if (std::string(digit) == "9")
            expectFile(golden("model.json"), shown(folder));
        const auto theme = ThemeResource::openTheme("T", true, folder.path());
        ASSERT_TRUE(theme);
        EXPECT_TRUE(theme->applyNode({"unlock", "amazing"}));
        expectFile(golden("generation" + std::string(digit) + ".xml"), layout(folder, ""));
        if (isGeneration5) {
            expectFile(golden("generation5_full.xml"), layout(folder, "_full"));
            continue;
        }
        EXPECT_TRUE(layout(folder, "_full").empty());
        const std::string once = layout(folder, "");
        EXPECT_TRUE(theme->applyNode({"unlock", "amazing"}));
        EXPECT_TRUE(layout(folder, "") == once) << "a save leaves the design as it is";
    }
}

INSTANTIATE_TEST_SUITE_P(Cases, GoldenLock, testing::ValuesIn(cases()),
                         [](const testing::TestParamInfo<std::string>& each) { return each.param; });

} // namespace
} // namespace zdt
