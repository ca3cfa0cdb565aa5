#include "packaging/zipFolder.h"

#include "common/fixtures.h"
#include "support/files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <zip.h>

#include <algorithm>
#include <functional>
#include <vector>

namespace zdt {
namespace {

using test::TemporaryFolder;

std::vector<std::string> entriesOf(const std::string& archivePath) {
    std::vector<std::string> names;
    zip_t* archive = zip_open(archivePath.c_str(), ZIP_RDONLY, nullptr);
    for (zip_int64_t index = 0; archive && index < zip_get_num_entries(archive, 0); ++index)
        names.emplace_back(zip_get_name(archive, static_cast<zip_uint64_t>(index), 0));
    zip_discard(archive);
    return names;
}

/// Writes an archive entry by entry, so that it can hold what `ZipFolder` never writes.
void writeArchive(const std::string& path, const std::vector<std::pair<std::string, std::string>>& entries,
                  const std::function<void(zip_t*)>& change = {}) {
    zip_t* archive = zip_open(path.c_str(), ZIP_CREATE | ZIP_TRUNCATE, nullptr);
    ASSERT_NE(archive, nullptr);
    for (const auto& [name, content] : entries) {
        zip_source_t* source = zip_source_buffer(archive, content.data(), content.size(), 0);
        ASSERT_GE(zip_file_add(archive, name.c_str(), source, 0), 0) << name;
    }
    if (change)
        change(archive);
    ASSERT_EQ(zip_close(archive), 0);
}

/// Replaces every occurrence of a text in a file by another of the same length.
void patchFile(const TemporaryFolder& folder, const std::string& name, const std::string& from, const std::string& to) {
    std::string bytes = test::readFile(folder.path(name));
    ASSERT_NE(bytes.find(from), std::string::npos);
    for (std::size_t place = bytes.find(from); place != std::string::npos; place = bytes.find(from, place + 1))
        bytes.replace(place, from.size(), to);
    folder.write(name, bytes);
}

TEST(ZipFolder, FolderComesBackWithItsEmptyFoldersAndOddNames) {
    const TemporaryFolder folder;
    const std::vector<std::string> files{"a.txt", "deep/er/b c.txt", "deep/'quoted\".txt", "中文/图.png", "empty.bin"};
    for (const std::string& file : files)
        folder.write("in/" + file, file == "empty.bin" ? "" : "content of " + file);
    ASSERT_TRUE(CreateFolderPath(folder.path("in/hollow")));

    ASSERT_TRUE(ZipFolder(folder.path("in/"), folder.path("a.zip"), false));
    ASSERT_TRUE(UnzipToFolder(folder.path("a.zip"), folder.path("out/")));

    for (const std::string& file : files)
        EXPECT_EQ(test::readFile(folder.path("out/" + file)), test::readFile(folder.path("in/" + file))) << file;
    EXPECT_TRUE(isFolder(folder.path("out/hollow")));
    EXPECT_TRUE(holdsAllOf(folder.path("out/"), folder.path("a.zip")));
}

TEST(ZipFolder, FolderEntryFollowsWhatTheFolderHolds) {
    const TemporaryFolder folder;
    folder.write("in/sub/one", "1");
    folder.write("in/sub/below/two", "2");
    struct Case {
        bool keepRoot;
        std::vector<std::string> sorted;
    };
    for (const Case& each : {Case{false, {"sub/", "sub/below/", "sub/below/two", "sub/one"}},
                             Case{true, {"in/", "in/sub/", "in/sub/below/", "in/sub/below/two", "in/sub/one"}}}) {
        ASSERT_TRUE(ZipFolder(folder.path("in/"), folder.path("a.zip"), each.keepRoot));
        std::vector<std::string> names = entriesOf(folder.path("a.zip"));
        for (std::size_t index = 0; index < names.size(); ++index) {
            for (std::size_t later = index + 1; names[index].ends_with('/') && later < names.size(); ++later)
                EXPECT_FALSE(names[later].starts_with(names[index])) << names[later] << " follows its folder";
        }
        std::sort(names.begin(), names.end());
        EXPECT_EQ(names, each.sorted);
    }
}

TEST(ZipFolder, FailureLeavesTheArchiveThatStoodThere) {
    const TemporaryFolder folder;
    folder.write("in/a", "a");
    ASSERT_TRUE(ZipFolder(folder.path("in/"), folder.path("a.zip"), false));
    const std::string before = test::readFile(folder.path("a.zip"));
    EXPECT_FALSE(ZipFolder(folder.path("missing/"), folder.path("a.zip"), false));
    EXPECT_FALSE(ZipFolder("", folder.path("a.zip"), false));
    EXPECT_FALSE(ZipFolder(folder.path("in/"), "", false));
    EXPECT_FALSE(ZipFolder(folder.path("in/"), folder.path("no/such/folder/a.zip"), false));
    EXPECT_EQ(test::readFile(folder.path("a.zip")), before);
    EXPECT_EQ(test::namesIn(folder.path()), (std::vector<std::string>{"a.zip", "in"}));
}

TEST(ZipFolder, ArchiveOfAnEmptyFolderLeavesNoFile) {
    const TemporaryFolder folder;
    ASSERT_TRUE(CreateFolderPath(folder.path("in")));
    EXPECT_TRUE(ZipFolder(folder.path("in/"), folder.path("a.zip"), false));
    EXPECT_FALSE(pathExists(folder.path("a.zip")));
}

TEST(ZipFolder, OnAllCoresTheSameEntriesComeOut) {
    const TemporaryFolder folder;
    for (int index = 0; index < 40; ++index)
        folder.write("in/" + std::string(index % 3 == 0 ? "sub/" : "") + std::to_string(index),
                     std::string(static_cast<std::size_t>(index) * 100, static_cast<char>('a' + index)));
    ASSERT_TRUE(CreateFolderPath(folder.path("in/hollow")) && CreateFolderPath(folder.path("work")));
    ASSERT_TRUE(ZipFolder(folder.path("in/"), folder.path("one.zip"), false));
    ASSERT_TRUE(ZipFolderOnAllCores(folder.path("in/"), folder.path("all.zip"), folder.path("work/")));
    EXPECT_EQ(entriesOf(folder.path("all.zip")), entriesOf(folder.path("one.zip")));
    ASSERT_TRUE(UnzipToFolder(folder.path("all.zip"), folder.path("out/")));
    EXPECT_TRUE(holdsAllOf(folder.path("out/"), folder.path("one.zip")));
    for (const std::string& name : test::namesIn(folder.path("in/sub/")))
        EXPECT_TRUE(test::readFile(folder.path("out/sub/" + name)) == test::readFile(folder.path("in/sub/" + name)));
    EXPECT_FALSE(ZipFolderOnAllCores(folder.path("none/"), folder.path("all.zip"), folder.path("work/")));
    EXPECT_FALSE(ZipFolderOnAllCores(folder.path("in/"), folder.path("all.zip"), folder.path("none/")));
    EXPECT_TRUE(holdsAllOf(folder.path("out/"), folder.path("all.zip"))) << "what stood there stays";
}

TEST(ZipFolder, LinksNeitherLeaveTheFolderNorRunInCircles) {
    const TemporaryFolder folder;
    folder.write("in/a", "a");
    folder.write("secret/b", "b");
    ASSERT_EQ(::symlink("../secret", folder.path("in/away").c_str()), 0);
    ASSERT_EQ(::symlink(".", folder.path("in/circle").c_str()), 0);
    ASSERT_EQ(::mkfifo(folder.path("in/pipe").c_str(), 0600), 0);
    ASSERT_TRUE(ZipFolder(folder.path("in/"), folder.path("a.zip"), false));
    EXPECT_EQ(entriesOf(folder.path("a.zip")), std::vector<std::string>{"a"});
}

TEST(ZipFileList, FilesThatCannotBeAddedAreLeftOut) {
    const TemporaryFolder folder;
    const std::string first = folder.write("x/a", "first");
    const std::string namesake = folder.write("y/a", "second");
    const std::string other = folder.write("y/b", "other");
    EXPECT_TRUE(ZipFileList({}, folder.path("none.zip")));
    EXPECT_FALSE(pathExists(folder.path("none.zip")));
    EXPECT_TRUE(ZipFileList({first, other}, folder.path("good.zip")));
    EXPECT_FALSE(ZipFileList({first, namesake, folder.path("missing"), other}, folder.path("part.zip")));
    EXPECT_EQ(entriesOf(folder.path("part.zip")), (std::vector<std::string>{"a", "b"}));
}

TEST(UnzipToFolder, ArchiveThatCouldWriteOutsideIsRefusedWhole) {
    const TemporaryFolder folder;
    for (const std::string name : {"/tmp/zdt-evil", "../evil", "sub/../../evil", "..", "sub/..", "a\\..\\evil",
                                   "C:evil", "c:/evil", "../../../../../../../../tmp/zdt-evil"}) {
        SCOPED_TRACE(name);
        writeArchive(folder.path("bad.zip"), {{"good.txt", "good"}, {name, "evil"}});
        EXPECT_FALSE(UnzipToFolder(folder.path("bad.zip"), folder.path("out/deep/")));
        EXPECT_EQ(test::namesIn(folder.path()), std::vector<std::string>{"bad.zip"}) << "nothing may be written";
    }
    EXPECT_FALSE(pathExists("/tmp/zdt-evil"));
}

TEST(UnzipToFolder, LinksEncryptionAndStrangeNamesAreRefused) {
    const TemporaryFolder folder;
    const auto refuse = [&](const char* what) {
        UnpackBudget budget;
        EXPECT_EQ(inspectArchive(folder.path("bad.zip"), budget), ArchiveVerdict::unsafe) << what;
        EXPECT_EQ(budget.entries, UnpackBudget().entries) << "a refused archive takes nothing";
        EXPECT_FALSE(UnzipToFolder(folder.path("bad.zip"), folder.path("out/"))) << what;
        EXPECT_FALSE(pathExists(folder.path("out"))) << what;
    };
    writeArchive(folder.path("bad.zip"), {{"link", "/etc/passwd"}}, [](zip_t* archive) {
        constexpr zip_uint32_t mode = S_IFLNK | 0777;
        zip_file_set_external_attributes(archive, 0, 0, ZIP_OPSYS_UNIX, mode << 16);
    });
    refuse("a symbolic link");
    writeArchive(folder.path("bad.zip"), {{"secret", "text"}},
                 [](zip_t* archive) { zip_file_set_encryption(archive, 0, ZIP_EM_AES_256, "password"); });
    refuse("an encrypted entry");
    writeArchive(folder.path("bad.zip"), {{"ab.txt", "text"}});
    patchFile(folder, "bad.zip", "ab.txt", "\xff\xfe.txt");
    refuse("a name that isn't UTF-8");
}

TEST(UnzipToFolder, NothingLargerThanTheBudgetIsUnpacked) {
    const TemporaryFolder folder;
    const std::string megabyte(1024 * 1024, '\0');
    writeArchive(folder.path("a.zip"), {{"one", megabyte}, {"two", megabyte}});
    struct Case {
        UnpackBudget budget;
        ArchiveVerdict verdict;
    };
    for (const Case& each :
         {Case{{2, 2 * 1024 * 1024}, ArchiveVerdict::good}, Case{{1, 2 * 1024 * 1024}, ArchiveVerdict::tooLarge},
          Case{{2, 2 * 1024 * 1024 - 1}, ArchiveVerdict::tooLarge}}) {
        UnpackBudget budget = each.budget;
        EXPECT_EQ(inspectArchive(folder.path("a.zip"), budget), each.verdict);
    }

    std::vector<std::pair<std::string, std::string>> many;
    for (int index = 0; index < 30000; ++index)
        many.emplace_back("n" + std::to_string(index), "");
    writeArchive(folder.path("many.zip"), many);
    EXPECT_FALSE(UnzipToFolder(folder.path("many.zip"), folder.path("many/")));
    EXPECT_FALSE(pathExists(folder.path("many")));
}

TEST(UnzipToFolder, EntryThatHoldsMoreThanItSaysIsLeftOut) {
    const TemporaryFolder folder;
    const std::string size("\x00\x00\x10\x00", 4); // 1 MiB, little-endian
    writeArchive(folder.path("bomb.zip"), {{"zeros", std::string(1024 * 1024, '\0')}, {"good", "good"}});
    patchFile(folder, "bomb.zip", size, std::string("\x0a\x00\x00\x00", 4));
    static_cast<void>(UnzipToFolder(folder.path("bomb.zip"), folder.path("out/")));
    EXPECT_LE(fileSize(folder.path("out/zeros")), 10U);
    EXPECT_FALSE(holdsAllOf(folder.path("out/"), folder.path("bomb.zip")));
}

TEST(UnzipToFolder, DamageIsFoundWhereverItIs) {
    const TemporaryFolder folder;
    std::string noise;
    for (unsigned value = 1; noise.size() < 2000; value = value * 1103515245U + 12345U)
        noise += static_cast<char>(value >> 16);
    writeArchive(folder.path("a.zip"), {{"noise", noise}, {"more", "more"}});
    const std::string whole = test::readFile(folder.path("a.zip"));
    for (std::size_t length = 0; length < whole.size(); ++length) {
        folder.write("cut.zip", whole.substr(0, length));
        ASSERT_FALSE(UnzipToFolder(folder.path("cut.zip"), folder.path("out/"))) << "cut at " << length;
    }
    std::string changed = whole;
    changed[600] = static_cast<char>(changed[600] + 1); // in the middle of the noise
    folder.write("changed.zip", changed);
    static_cast<void>(UnzipToFolder(folder.path("changed.zip"), folder.path("out/")));
    EXPECT_FALSE(holdsAllOf(folder.path("out/"), folder.path("changed.zip")));
    EXPECT_FALSE(UnzipToFolder(folder.path("missing.zip"), folder.path("out/")));
    EXPECT_FALSE(UnzipToFolder(folder.path(), folder.path("out/"))) << "a folder is no archive";
}

TEST(UnzipToFolder, FileThatCannotBeWrittenIsSkippedAndMissed) {
    const TemporaryFolder folder;
    writeArchive(folder.path("a.zip"), {{"sub/in-the-way", "x"}, {"good", "good"}});
    ASSERT_TRUE(CreateFolderPath(folder.path("out/sub/in-the-way")));
    EXPECT_TRUE(UnzipToFolder(folder.path("a.zip"), folder.path("out/")));
    EXPECT_EQ(test::readFile(folder.path("out/good")), "good");
    EXPECT_FALSE(holdsAllOf(folder.path("out/"), folder.path("a.zip")));
}

TEST(FolderHelpers, AbsentFolderCountsAsRemovedAndSubfoldersEndInASlash) {
    const TemporaryFolder folder;
    EXPECT_TRUE(RemoveFolder(folder.path("absent/")));
    folder.write("from/sub/file", "content");
    folder.write("from/plain", "content");
    EXPECT_EQ(ListSubfolders(folder.path("from/")), std::vector<std::string>{"sub/"});
    EXPECT_TRUE(CopyFolder(folder.path("from"), folder.path("to")));
    EXPECT_EQ(test::readFile(folder.path("to/sub/file")), "content");
    EXPECT_FALSE(CopyFolder("", folder.path("to")));
    EXPECT_TRUE(CopyFolder(folder.path("absent"), folder.path("to")));
    EXPECT_TRUE(RemoveFileAt(folder.path("to/plain")));
    EXPECT_FALSE(RemoveFileAt(folder.path("to/plain")));
    EXPECT_TRUE(RemoveFolder(folder.path("to/")));
    EXPECT_FALSE(pathExists(folder.path("to")));
}

} // namespace
} // namespace zdt
