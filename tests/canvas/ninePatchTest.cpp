#include "canvas/ninePatch.h"

#include "canvas/shapes.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QtEndian>

#include <initializer_list>

namespace zdt::test {
namespace {

/// Three columns and rows of 10 pixels, the one in the middle red.
QImage tiles() {
    QImage picture(30, 30, QImage::Format_ARGB32);
    picture.fill(Qt::blue);
    QPainter painter(&picture);
    painter.fillRect(10, 0, 10, 30, Qt::red);
    painter.fillRect(0, 10, 30, 10, Qt::red);
    return picture;
}

/// With guide lines that stretch what is red.
QImage withGuides() {
    QImage framed(32, 32, QImage::Format_ARGB32);
    framed.fill(0);
    QPainter painter(&framed);
    painter.drawImage(1, 1, tiles());
    painter.fillRect(11, 0, 10, 1, Qt::black);
    painter.fillRect(0, 11, 1, 10, Qt::black);
    return framed;
}

std::string big(std::int32_t number) {
    std::string bytes(4, '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

std::string patchOf(std::initializer_list<std::int32_t> across, std::initializer_list<std::int32_t> down) {
    std::string content{1, static_cast<char>(across.size()), static_cast<char>(down.size()), 0};
    content[0] = 1;
    content.resize(32);
    for (const auto& numbers : {across, down}) {
        for (const std::int32_t number : numbers)
            content += big(number);
    }
    return content;
}

/// A PNG with a chunk of that content before its pixels; `length` is what the chunk claims.
std::string compiled(const std::string& content, std::int32_t length) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    tiles().save(&buffer, "png");
    std::string png = bytes.toStdString();
    // Without a checksum that fits: decoders only warn of it in chunks that they don't know.
    return png.insert(33, big(length) + "npTc" + content + std::string(4, '\0'));
}

class NinePatchTest : public testing::Test {
protected:
    [[nodiscard]] NinePatch read(const std::string& content) const {
        return readNinePatch(folder.write("a.9.png", content));
    }
    TemporaryFolder folder;
};

void expectCornersKept(const NinePatch& patch, const char* name) {
    const QImage image = stretched(patch, {300, 60});
    ASSERT_EQ(image.size(), QSize(300, 60)) << name;
    EXPECT_EQ(image.pixelColor(9, 9), QColor(Qt::blue)) << name;
    EXPECT_EQ(image.pixelColor(10, 9), QColor(Qt::red)) << name;
    EXPECT_EQ(image.pixelColor(289, 59), QColor(Qt::red)) << name;
    EXPECT_EQ(image.pixelColor(290, 59), QColor(Qt::blue)) << name;
    EXPECT_EQ(image.pixelColor(290, 49), QColor(Qt::red)) << name;
}

TEST_F(NinePatchTest, StretchesWhatIsToldAndKeepsTheRest) {
    const std::string path = saved(folder, "drawn.9.png", withGuides());
    const NinePatch drawn = readNinePatch(path);
    EXPECT_EQ(drawn.picture.size(), QSize(30, 30));
    expectCornersKept(drawn, "drawn");
    const std::string content = patchOf({10, 20}, {10, 20});
    const NinePatch made = read(compiled(content, static_cast<std::int32_t>(content.size())));
    EXPECT_EQ(made.across, drawn.across);
    expectCornersKept(made, "compiled");
}

TEST_F(NinePatchTest, TooLittlePlaceMakesCornersSmaller) {
    const NinePatch patch{tiles(), {{10, 10}}, {{10, 10}}};
    const QImage image = stretched(patch, {10, 4});
    ASSERT_EQ(image.size(), QSize(10, 4));
    for (int x = 0; x < 10; ++x)
        EXPECT_EQ(image.pixelColor(x, 0), QColor(Qt::blue)) << x;
    EXPECT_TRUE(stretched(patch, {0, 4}).isNull());
    EXPECT_TRUE(stretched({}, {10, 10}).isNull());
}

TEST_F(NinePatchTest, DamagedOneIsStretchedAsAWhole) {
    const std::string whole = patchOf({10, 20}, {10, 20});
    const std::vector<std::pair<const char*, std::string>> cases{
        {"backwards", patchOf({20, 10}, {10, 20})},
        {"below zero", patchOf({-5, 10}, {10, 20})},
        {"beyond the picture", patchOf({10, 31}, {10, 20})},
        {"overlapping", patchOf({0, 20, 10, 30}, {10, 20})},
        {"half a pair", patchOf({10, 20, 25}, {10, 20})},
        {"numbers missing", whole.substr(0, whole.size() - 1)},
        {"head missing", whole.substr(0, 5)},
        {"empty", ""},
    };
    for (const auto& [name, content] : cases) {
        const NinePatch patch = read(compiled(content, static_cast<std::int32_t>(content.size())));
        EXPECT_EQ(patch.picture.size(), QSize(30, 30)) << name;
        EXPECT_TRUE(patch.across.empty() && patch.down.empty()) << name;
        EXPECT_EQ(stretched(patch, {90, 90}).pixelColor(25, 25), QColor(Qt::blue)) << name;
    }
    EXPECT_TRUE(read(compiled(whole, 0x7fffffff)).across.empty());
    EXPECT_TRUE(read("no picture").picture.isNull());
    EXPECT_TRUE(readNinePatch(saved(folder, "plain.9.png", tiles())).across.empty());
}

} // namespace
} // namespace zdt::test
