#include "support/files.h"

#include "common/fixtures.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>

namespace zdt {
namespace {

namespace fs = std::filesystem;
using test::namesIn;
using test::readFile;
using test::TemporaryFolder;
using Names = std::vector<std::string>;

Names sorted(Names names) {
    std::sort(names.begin(), names.end());
    return names;
}

TEST(Files, PathsFallIntoTheirParts) {
    const struct {
        const char* path;
        const char* name;
        const char* stem;
        const char* extension;
        const char* parent;
    } cases[] = {
        {"a/b/c.png", "c.png", "c", ".png", "a/b"},
        {"c.png", "c.png", "c", ".png", ""},
        {"a/b/", "", "", "", "a/b"},
        {"/c", "c", "c", "", ""},
        {"a.b.c", "a.b.c", "a.b", ".c", ""},
        {"dir.x/file", "file", "file", ".x/file", "dir.x"},
        {".hidden", ".hidden", "", ".hidden", ""},
        {"a\\b\\c.9.png", "c.9.png", "c.9", ".png", ""},
        {"name.", "name.", "name", ".", ""},
        {"", "", "", "", ""},
    };
    for (const auto& [path, name, stemOf, suffix, parent] : cases) {
        SCOPED_TRACE(path);
        EXPECT_EQ(fileName(path), name);
        EXPECT_EQ(stem(path), stemOf);
        EXPECT_EQ(extension(path), suffix);
        EXPECT_EQ(parentPath(path), parent);
    }
    std::string windows = "a\\b/c\\";
    normalisePath(windows);
    EXPECT_EQ(windows, "a/b/c/");
}

TEST(Files, NameIsPrintableWhateverTheFolderHolds) {
    EXPECT_TRUE(isPrintableName("图标/a b~.png"));
    EXPECT_FALSE(isPrintableName("icons/图标.png"));
    EXPECT_FALSE(isPrintableName("a\tb"));
    EXPECT_FALSE(isPrintableName("a\x7f"));
}

TEST(Files, FoldersAreMadeUpToTheLastSlash) {
    const TemporaryFolder folder;
    folder.write("plain", "");
    const struct {
        const char* path;
        bool made;
        const char* exists;
        const char* absent;
    } cases[] = {
        {"a/b/c", true, "a/b", "a/b/c"}, {"a/b/c/", true, "a/b/c", nullptr},    {"a/b/c/", true, "a/b/c", nullptr},
        {"d//e/", true, "d/e", nullptr}, {"plain/x/", false, nullptr, nullptr}, {"plain/", false, nullptr, nullptr},
        {"a/leaf", true, "a", "a/leaf"},
    };
    for (const auto& [path, made, exists, absent] : cases) {
        SCOPED_TRACE(path);
        EXPECT_EQ(makePath(folder.path(path)), made);
        EXPECT_TRUE(!exists || isFolder(folder.path(exists)));
        EXPECT_TRUE(!absent || !pathExists(folder.path(absent)));
    }
    EXPECT_TRUE(makePath("name"));
    EXPECT_FALSE(pathExists("name"));
    EXPECT_FALSE(makeParent("name"));
    EXPECT_TRUE(makeParent(folder.path("f/name")));
    EXPECT_TRUE(isFolder(folder.path("f")));
}

TEST(Files, WhatAPathIsIsToldThroughLinks) {
    const TemporaryFolder folder;
    folder.write("file", "12345");
    fs::create_directory(folder.path("folder"));
    ASSERT_EQ(::mkfifo(folder.path("pipe").c_str(), 0600), 0);
    fs::create_symlink("file", folder.path("toFile"));
    fs::create_symlink("folder", folder.path("toFolder"));
    fs::create_symlink("nowhere", folder.path("dangling"));
    const struct {
        const char* name;
        bool exists;
        bool plain;
        bool folderLike;
        std::uint64_t size;
    } cases[] = {
        {"file", true, true, false, 5},      {"folder", true, false, true, 0},   {"pipe", true, false, false, 0},
        {"toFile", true, true, false, 5},    {"toFolder", true, false, true, 0}, {"dangling", false, false, false, 0},
        {"missing", false, false, false, 0},
    };
    for (const auto& [name, exists, plain, folderLike, size] : cases) {
        SCOPED_TRACE(name);
        EXPECT_EQ(pathExists(folder.path(name)), exists);
        EXPECT_EQ(isPlainFile(folder.path(name)), plain);
        EXPECT_EQ(isFolder(folder.path(name)), folderLike);
        EXPECT_EQ(treeSize(folder.path(name)), size);
    }
    EXPECT_EQ(sorted(listFiles(folder.path())), (Names{"file", "toFile"}));
    EXPECT_EQ(listDirectories(folder.path()), Names{"folder"});
    EXPECT_TRUE(listFiles(folder.path("missing")).empty());
    EXPECT_FALSE(listEntries(folder.path("missing")).has_value());
    EXPECT_FALSE(listEntries(folder.path("file")).has_value());
}

TEST(Files, SizeOfATreeCountsEveryDepthAndNoLink) {
    const TemporaryFolder folder;
    folder.write("a", std::string(10, 'x'));
    folder.write("b/c/d", std::string(200, 'x'));
    folder.write("b/c/.e", std::string(3000, 'x'));
    fs::create_symlink(folder.path("b"), folder.path("again"));
    fs::create_symlink(folder.path("a"), folder.path("b/a"));
    EXPECT_EQ(treeSize(folder.path()), 3210U);
}

TEST(Files, CopyIsWholeOrTheTargetStays) {
    const TemporaryFolder folder;
    const std::string bytes = std::string("\0\r\n\xff", 4) + std::string(200'000, 'x');
    const std::string source = folder.write("source", bytes);
    ASSERT_EQ(::mkfifo(folder.path("pipe").c_str(), 0600), 0);
    folder.write("folder/inside", "kept");
    folder.write("target", "old");
    const struct {
        const char* source;
        const char* target;
        bool copied;
    } cases[] = {
        {"source", "new/deep/target", true}, {"missing", "other/target", false}, {"pipe", "target", false},
        {"folder", "target", false},         {"source", "folder", false},        {"source", "source/below", false},
        {"source", "source", true},          {"missing", "missing", false},
    };
    for (const auto& [from, to, copied] : cases) {
        SCOPED_TRACE(std::string(from) + " to " + to);
        EXPECT_EQ(copyFile(folder.path(from), folder.path(to)), copied);
        EXPECT_EQ(readFile(folder.path("target")), "old");
        EXPECT_EQ(readFile(folder.path("folder/inside")), "kept");
        EXPECT_TRUE(readFile(source) == bytes);
    }
    EXPECT_TRUE(readFile(folder.path("new/deep/target")) == bytes);
    EXPECT_EQ(namesIn(folder.path()), (Names{"folder", "new", "pipe", "source", "target"}));
    EXPECT_TRUE(copyFile(source, folder.path("target")));
    EXPECT_TRUE(readFile(folder.path("target")) == bytes);
}

TEST(Files, TreesMergeWhenCopied) {
    const TemporaryFolder folder;
    folder.write("from/a", "new a");
    folder.write("from/deep/er/b", "new b");
    folder.write("to/a", "old a");
    folder.write("to/deep/c", "old c");
    EXPECT_TRUE(copyTree(folder.path("from"), folder.path("to/")));
    EXPECT_EQ(readFile(folder.path("to/a")), "new a");
    EXPECT_EQ(readFile(folder.path("to/deep/er/b")), "new b");
    EXPECT_EQ(readFile(folder.path("to/deep/c")), "old c");
    EXPECT_TRUE(copyTree(folder.path("missing"), folder.path("to")));
    EXPECT_FALSE(copyTree("", folder.path("to")));
    EXPECT_FALSE(copyTree(folder.path("from"), ""));
    EXPECT_FALSE(copyTree(folder.path("from"), folder.path("to/a"))) << "a file stands in the way";
}

TEST(Files, RemovingATreeNeverFollowsLinks) {
    const TemporaryFolder folder;
    const std::string precious = folder.write("precious/file", "kept");
    folder.write("theme/deep/er/file", "x");
    fs::create_directory_symlink(folder.path("precious"), folder.path("theme/deep/link"));
    fs::create_symlink(precious, folder.path("theme/toFile"));
    EXPECT_TRUE(removeTree(folder.path("theme/")));
    EXPECT_FALSE(pathExists(folder.path("theme")));
    EXPECT_EQ(readFile(precious), "kept");

    for (const char* spelling : {"link", "link/"}) {
        SCOPED_TRACE(spelling);
        fs::create_directory_symlink(folder.path("precious"), folder.path("link"));
        EXPECT_TRUE(removeTree(folder.path(spelling)));
        EXPECT_FALSE(fs::is_symlink(folder.path("link")));
        EXPECT_EQ(readFile(precious), "kept");
    }
    for (const std::string& target : {precious, folder.path("nowhere")}) {
        fs::create_symlink(target, folder.path("link"));
        EXPECT_TRUE(removeTree(folder.path("link")));
        EXPECT_FALSE(fs::is_symlink(folder.path("link"))) << "to " << target;
        EXPECT_EQ(readFile(precious), "kept");
    }
    EXPECT_TRUE(removeTree(folder.path("missing")));
    EXPECT_TRUE(removeTree(precious)) << "a plain file can't be listed, which counts as done";
    EXPECT_EQ(readFile(precious), "kept");
}

TEST(Files, RemovingAFileLeavesFolders) {
    const TemporaryFolder folder;
    folder.write("folder/file", "x");
    EXPECT_FALSE(removeFile(folder.path("folder")));
    EXPECT_TRUE(removeFile(folder.path("folder/file")));
    EXPECT_FALSE(removeFile(folder.path("folder/file")));
}

TEST(Files, ProgramFolderHoldsThisProgram) {
    const std::string directory = programDirectory();
    EXPECT_TRUE(directory.ends_with('/'));
    EXPECT_TRUE(isPlainFile(directory + fs::read_symlink("/proc/self/exe").filename().string()));
}

TEST(Files, LinkedCopyIsTheFileItselfUntilEitherIsReplaced) {
    const TemporaryFolder folder;
    const std::string source = folder.write("in/a", "content");
    fs::create_symlink("a", folder.path("in/link"));
    ASSERT_EQ(::mkfifo(folder.path("in/pipe").c_str(), 0600), 0);
    EXPECT_TRUE(linkOrCopyFile(source, folder.path("out/deep/a")));
    EXPECT_TRUE(fs::equivalent(source, folder.path("out/deep/a")));
    EXPECT_TRUE(linkOrCopyFile(folder.path("in/link"), folder.path("out/b")));
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(folder.path("out/b")))) << "the content, not the link";
    EXPECT_FALSE(linkOrCopyFile(folder.path("in/pipe"), folder.path("out/c")));
    EXPECT_FALSE(linkOrCopyFile(folder.path("in/missing"), folder.path("out/c")));
    EXPECT_TRUE(linkOrCopyFile(folder.write("in/d", "other"), folder.path("out/b"))) << "what stands there is replaced";
    EXPECT_EQ(test::readFile(folder.path("out/b")), "other");
    ASSERT_TRUE(writeFile(source, "changed"));
    EXPECT_EQ(test::readFile(folder.path("out/deep/a")), "content");
}

TEST(Files, PathIsInsideAFolderWhateverItsSpelling) {
    const TemporaryFolder folder;
    folder.write("store/res/T/a", "");
    fs::create_symlink("store/res", folder.path("alias"));
    const struct {
        const char* path;
        bool inside;
    } cases[] = {
        {"store/res/T/a", true}, {"store/res/new/b", true}, {"store/res", true},     {"store/res/../res/x", true},
        {"alias/T/x", true},     {"store/./res//x", true},  {"store/result", false}, {"store/res/../../res", false},
        {"store/x", false}};
    for (const auto& [path, inside] : cases)
        EXPECT_EQ(isInside(folder.path(path), folder.path("store/res/")), inside) << path;
}

TEST(Files, WholeFileIsReadUpToItsBound) {
    const TemporaryFolder folder;
    const std::string file = folder.write("a", "12345");
    ASSERT_EQ(::mkfifo(folder.path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(zdt::readFile(file, 5), "12345");
    EXPECT_EQ(zdt::readFile(file, 4), std::nullopt);
    EXPECT_EQ(zdt::readFile(folder.path("pipe"), 5), std::nullopt);
    EXPECT_EQ(zdt::readFile(folder.path(), 5), std::nullopt);
}

} // namespace
} // namespace zdt
