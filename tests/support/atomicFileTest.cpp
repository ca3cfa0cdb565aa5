#include "support/atomicFile.h"

#include "common/fixtures.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

namespace zdt {
namespace {

using test::namesIn;
using test::readFile;
using test::TemporaryFolder;
using Names = std::vector<std::string>;

TEST(AtomicFile, TargetIsTheOldOneUntilTheCommit) {
    const TemporaryFolder folder;
    const std::string target = folder.write("theme.xml", "old");
    AtomicFile file(target);
    ASSERT_TRUE(file.isOpen());
    std::fputs("new", file.stream());
    std::fflush(file.stream());
    EXPECT_EQ(readFile(target), "old");
    EXPECT_TRUE(file.commit());
    EXPECT_EQ(readFile(target), "new");
    EXPECT_EQ(namesIn(folder.path()), Names{"theme.xml"});
}

TEST(AtomicFile, AbandonedWritingLeavesTargetAndFolderAsTheyWere) {
    const TemporaryFolder folder;
    const std::string target = folder.write("theme.xml", "old");
    {
        const AtomicFile file(target);
        ASSERT_TRUE(file.isOpen());
        std::fputs("half of the n", file.stream());
    }
    EXPECT_EQ(readFile(target), "old");
    EXPECT_EQ(namesIn(folder.path()), Names{"theme.xml"});
}

TEST(AtomicFile, CommitThatFailsLeavesNothingBehind) {
    const TemporaryFolder folder;
    folder.write("target/keep.txt", "kept");
    EXPECT_FALSE(writeFile(folder.path("target"), "text"));
    EXPECT_EQ(namesIn(folder.path()), Names{"target"});
    EXPECT_EQ(namesIn(folder.path("target")), Names{"keep.txt"});

    EXPECT_FALSE(writeFile(folder.path(std::string(256, 'n')), "text")) << "a name too long for any file";
    EXPECT_EQ(namesIn(folder.path()), Names{"target"});
}

TEST(AtomicFile, FolderThatIsNoneCannotBeWrittenInto) {
    const TemporaryFolder folder;
    const std::string plain = folder.write("plain", "text");
    for (const std::string& target : {folder.path("missing/file"), plain + "/file"}) {
        SCOPED_TRACE(target);
        AtomicFile file(target);
        EXPECT_FALSE(file.isOpen());
        EXPECT_FALSE(file.commit());
        EXPECT_FALSE(writeFile(target, "text", Flush::toDisk));
    }
    EXPECT_EQ(namesIn(folder.path()), Names{"plain"});
}

TEST(AtomicFile, AnyContentAndTheLongestNameAreWrittenToTheLetter) {
    using namespace std::string_literals;
    const TemporaryFolder folder;
    const std::string name(255, 'n');
    for (const std::string& content : {""s, "a\0b\r\n"s, std::string(3'000'000, 'x')}) {
        for (const Flush flush : {Flush::no, Flush::toDisk}) {
            EXPECT_TRUE(writeFile(folder.path(name), content, flush));
            EXPECT_TRUE(readFile(folder.path(name)) == content);
            EXPECT_EQ(namesIn(folder.path()), Names{name});
        }
    }
}

TEST(AtomicFile, NamesLeftBehindByAKilledProcessAreNoObstacle) {
    const TemporaryFolder folder;
    constexpr int left = 300;
    for (int number = 0; number < left; ++number)
        folder.write("." + std::to_string(::getpid()) + "-" + std::to_string(number) + ".part", "of a process before");
    EXPECT_TRUE(writeFile(folder.path("target"), "new"));
    EXPECT_EQ(readFile(folder.path("target")), "new");
    EXPECT_EQ(namesIn(folder.path()).size(), left + 1U) << "what another process left stays";
}

TEST(AtomicFile, LinkAtTheTargetIsReplacedAndNotWrittenThrough) {
    const TemporaryFolder folder;
    const std::string other = folder.write("other", "untouched");
    std::filesystem::create_symlink(other, folder.path("target"));
    EXPECT_TRUE(writeFile(folder.path("target"), "new"));
    EXPECT_EQ(readFile(other), "untouched");
    EXPECT_FALSE(std::filesystem::is_symlink(folder.path("target")));
}

TEST(AtomicFile, FlushTellsAMissingPath) {
    const TemporaryFolder folder;
    EXPECT_TRUE(flushToDisk(folder.path()));
    EXPECT_FALSE(flushToDisk(folder.path("missing")));
    EXPECT_FALSE(moveIntoPlace(folder.path("missing"), folder.path("target"), Flush::no));
}

TEST(AtomicFile, FoldersChangePlacesWithAllThatTheyHold) {
    const TemporaryFolder folder;
    folder.write("a/x", "from a");
    folder.write("b/y", "from b");
    EXPECT_TRUE(exchangePlaces(folder.path("a"), folder.path("b")));
    EXPECT_EQ(test::readFile(folder.path("b/x")), "from a");
    EXPECT_EQ(test::readFile(folder.path("a/y")), "from b");
    EXPECT_FALSE(exchangePlaces(folder.path("missing"), folder.path("b")));
    EXPECT_EQ(test::readFile(folder.path("b/x")), "from a") << "back in its place";
    EXPECT_EQ(test::namesIn(folder.path()), (std::vector<std::string>{"a", "b"}));
}

} // namespace
} // namespace zdt
