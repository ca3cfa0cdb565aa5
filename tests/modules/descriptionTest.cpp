#include "modules/description.h"

#include "common/fixtures.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace zdt {
namespace {

using test::TemporaryFolder;

TEST(Description, AbsentFieldIsToldFromAnEmptyOne) {
    const TemporaryFolder folder;
    const struct {
        const char* file;
        Description fields;
    } cases[] = {
        {"<ZdTheme/>", {}},
        {"<ZdTheme><version/></ZdTheme>", {{"version", ""}}},
        {"<ZdTheme><version> </version></ZdTheme>", {{"version", ""}}},
        {"<ZdTheme><version>5.0.1</version><x>1</x></ZdTheme>", {{"version", "5.0.1"}}},
        {"<ZdTheme><version>5.0.1</version><version/></ZdTheme>", {{"version", "5.0.1"}}},
        {"<ZdTheme><Version>5.0.1</Version></ZdTheme>", {}},
        {"<ZdTheme><version>5.0.1</version>", {}},
        {"\xef\xbb\xbf<ZdTheme><title-cn>主题</title-cn></ZdTheme>", {{"title-cn", "主题"}}},
        {"", {}},
    };
    for (const auto& [file, fields] : cases)
        EXPECT_EQ(readDescriptionFile(folder.write("description.xml", file)), fields) << file;
    ASSERT_EQ(::mkfifo(folder.path("pipe").c_str(), 0600), 0);
    EXPECT_TRUE(readDescriptionFile(folder.path("pipe")).empty());
    EXPECT_TRUE(readDescriptionFile(folder.path()).empty());
    EXPECT_TRUE(readDescriptionFile(folder.path("missing")).empty());
}

} // namespace
} // namespace zdt
