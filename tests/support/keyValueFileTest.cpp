#include "support/keyValueFile.h"

#include "common/fixtures.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace zdt {
namespace {

using test::readFile;
using test::TemporaryFolder;

TEST(KeyValueFile, LinesThatAreNoPairsAreSkipped) {
    const struct {
        const char* text;
        KeyValues pairs;
    } cases[] = {
        {"", {}},
        {"type=1073741829\n", {{"type", "1073741829"}}},
        {"a=1\nb=2", {{"a", "1"}, {"b", "2"}}},
        {"a=1\r\nb=2\r\n", {{"a", "1"}, {"b", "2"}}},
        {"a=1\r\r\n", {{"a", "1\r"}}},
        {"#a=1\n\n \nnone\nb=\n", {}},
        {"a=1\na=\n", {{"a", "1"}}},
        {"a=1\na=2\n", {{"a", "2"}}},
        {"a=b=c\n", {{"a", "b=c"}}},
        {" a = 1 \n", {{" a ", " 1 "}}},
        {"a#=1\n", {{"a#", "1"}}},
        {"=1\n", {{"", "1"}}},
    };
    for (const auto& [text, pairs] : cases) {
        SCOPED_TRACE(text);
        EXPECT_EQ(parseKeyValues(text), pairs);
    }
}

TEST(KeyValueFile, WrittenPairsAreSortedAndReadBack) {
    const TemporaryFolder folder;
    const std::string path = folder.path("config.txt");
    const KeyValues pairs{{"type", "1"}, {"com.android.calendar", "true"}, {"lock wallpaper", "a=b"}};
    EXPECT_TRUE(writeKeyValueFile(path, pairs));
    EXPECT_EQ(readFile(path), "com.android.calendar=true\nlock wallpaper=a=b\ntype=1\n");
    EXPECT_EQ(readKeyValueFile(path), pairs);
}

TEST(KeyValueFile, LineBreakInAPairKeepsTheOldFile) {
    const TemporaryFolder folder;
    const std::string path = folder.write("config.txt", "type=1\n");
    EXPECT_FALSE(writeKeyValueFile(path, {{"name", "two\nlines"}}));
    EXPECT_FALSE(writeKeyValueFile(path, {{"a\nb", "1"}}));
    EXPECT_EQ(readFile(path), "type=1\n");
    EXPECT_FALSE(writeKeyValueFile(folder.path("missing/config.txt"), {{"type", "1"}}));
}

TEST(KeyValueFile, WhatCanBeNoSettingsFileReadsAsEmpty) {
    const TemporaryFolder folder;
    ASSERT_EQ(::mkfifo(folder.path("pipe").c_str(), 0600), 0);
    const std::string line = "type=1\n";
    const std::string largest = line + std::string(1024 * 1024 - line.size(), '#');
    EXPECT_EQ(readKeyValueFile(folder.write("largest", largest)), (KeyValues{{"type", "1"}}));
    for (const std::string& path :
         {folder.path(), folder.path("missing"), folder.path("pipe"), folder.write("larger", largest + "#")}) {
        SCOPED_TRACE(path);
        EXPECT_TRUE(readKeyValueFile(path).empty());
    }
}

} // namespace
} // namespace zdt
