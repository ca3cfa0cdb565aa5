#include "assets/controls/dialKeys.h"
#include "assets/controls/panelTable.h"
#include "assets/controls/panels.h"
#include "assets/controls/symbolTable.h"
#include "assets/controls/symbols.h"
#include "assets/templateTheme.h"

#include <gtest/gtest.h>

#include <QPainter>

#include <algorithm>
#include <cstdlib>

namespace zdt::test {

namespace {

using assets::Generation;
using assets::PanelRow;
using assets::PanelShape;

QImage drawControl(std::string_view name, const Generation& generation) {
    if (name.ends_with(".9.png"))
        return assets::drawPanel(name, generation);
    const QImage key = assets::drawDialKey(name, generation);
    return key.isNull() ? assets::drawSymbol(name, {96, 96}, false, generation) : key;
}

/// A nine-patch without its guide lines.
QImage withoutGuides(const QImage& picture) {
    return picture.copy(picture.rect().adjusted(1, 1, -1, -1));
}

/// Where a nine-patch's guide lines at the bottom and right put the content, in the picture without them.
QRect contentOf(const QImage& picture) {
    const auto run = [](int length, const auto& pixel) {
        int start = 1;
        while (start < length - 1 && qAlpha(pixel(start)) == 0)
            ++start;
        int end = start;
        while (end < length - 1 && qAlpha(pixel(end)) != 0)
            ++end;
        return std::pair(start - 1, end - start);
    };
    const auto [x, width] = run(picture.width(), [&](int at) { return picture.pixel(at, picture.height() - 1); });
    const auto [y, height] = run(picture.height(), [&](int at) { return picture.pixel(picture.width() - 1, at); });
    return {x, y, width, height};
}

QRect inkOf(const QImage& picture) {
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qAlpha(picture.pixel(x, y)) > 0x40)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

/// How many of a hundred pixels an eye can tell from those of the other picture, on a grey ground.
double visibleDifference(const QImage& one, const QImage& other) {
    const auto onGround = [](const QImage& picture) {
        QImage ground(picture.size(), QImage::Format_RGB32);
        ground.fill(0xfff0f0f0);
        QPainter(&ground).drawImage(0, 0, picture);
        return ground;
    };
    const QImage a = onGround(one);
    const QImage b = onGround(other);
    int differing = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            const int apart =
                std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) + std::abs(qBlue(p) - qBlue(q));
            differing += apart > 24 ? 1 : 0;
        }
    }
    return 100.0 * differing / (a.width() * a.height());
}

} // namespace

TEST(Controls, LeaveContentAPlainGround) {
    for (const Generation& generation : assets::generations) {
        for (const PanelRow& row : assets::panelTable) {
            // Nothing is written in these; the top box is as large as the line of a list.
            if (row.shape == PanelShape::loneSign || row.shape == PanelShape::bar || row.shape == PanelShape::topBox)
                continue;
            SCOPED_TRACE(std::string(row.name) + " " + std::string(generation.version));
            const QImage picture = assets::drawPanel(row.name, generation);
            const QRect content = contentOf(picture);
            ASSERT_FALSE(content.isEmpty());
            const QImage ground = withoutGuides(picture).copy(content);
            QImage plain(ground.size(), ground.format());
            plain.fill(QColor::fromRgba(ground.pixel(0, 0)));
            EXPECT_TRUE(ground == plain) << "a shadow, line or tail in the content";
            EXPECT_EQ(qAlpha(ground.pixel(0, 0)), qAlpha(row.fill)) << "content beside the shape";
        }
    }
}

TEST(Controls, KeepTheirShadowsInsideThePicture) {
    for (const Generation& generation : assets::generations) {
        for (const PanelRow& row : assets::panelTable) {
            if (row.finish != assets::Finish::card && row.finish != assets::Finish::button)
                continue;
            const QImage picture = withoutGuides(assets::drawPanel(row.name, generation));
            const QRect inside = picture.rect().adjusted(1, 1, -1, -1);
            int strongest = 0;
            for (int y = 0; y < picture.height(); ++y) {
                for (int x = 0; x < picture.width(); ++x)
                    strongest = inside.contains(x, y) ? strongest : std::max(strongest, qAlpha(picture.pixel(x, y)));
            }
            EXPECT_LE(strongest, 2) << row.name << " " << generation.version << ": a cut edge is seen";
        }
    }
}

TEST(Controls, LookOtherInEachState) {
    // Neighbours in a group are compared.
    using Names = std::vector<const char*>;
    const std::array<Names, 12> groups{
        Names{"contact_dial_fun_menu.9.png", "contact_dial_fun_menu_pressed.9.png"},
        Names{"button_big_bg_stroked_pressed.9.png", "button_big_bg_stroked.9.png",
              "button_big_bg_stroked_disable.9.png"},
        Names{"button_small_bg_stroked_pressed.9.png", "button_small_bg_stroked.9.png",
              "button_small_bg_stroked_disable.9.png"},
        Names{"btn_default_pressed_ovui.9.png", "btn_default_normal_ovui.9.png", "btn_default_disabled_ovui.9.png"},
        Names{"search_bg_normal.9.png", "search_bg_actived.9.png"},
        Names{"textfield_default_linear_ovui.9.png", "textfield_default_linear_actived_ovui.9.png"},
        Names{"expander_close_ovui.9.png", "expander_open_ovui.9.png"},
        Names{"zd_recents_close_all.png", "zd_recents_close_all_press.png"},
        Names{"zd_recents_lock.png", "zd_recents_unlock.png", "zd_recents_dismiss.png"},
        Names{"scrubber_control_pressed_ovui.png", "scrubber_control_normal_ovui.png",
              "scrubber_control_disabled_ovui.png"},
        Names{"duoqu_point_on.png", "duoqu_point_off.png"},
        Names{"dial_num_5_blk.png", "dial_num_5_blk_press.png"},
    };
    for (const Generation& generation : assets::generations) {
        for (const Names& names : groups) {
            for (std::size_t index = 1; index < names.size(); ++index) {
                const QImage one = drawControl(names[index - 1], generation);
                const QImage other = drawControl(names[index], generation);
                ASSERT_EQ(one.size(), other.size()) << names[index];
                EXPECT_GT(visibleDifference(one, other), 2) << names[index] << " " << generation.version;
            }
        }
    }
}

TEST(Controls, SpeakEachLanguageInItsOwnWay) {
    std::vector<std::string_view> names{"dial_num_3_blk.png", "xing.png", "jingpress.png"};
    for (const PanelRow& row : assets::panelTable) {
        if (row.shape != PanelShape::plain)
            names.push_back(row.name);
    }
    // What is off is a grey disc in two of them.
    for (const assets::SymbolRow& row : assets::symbolTable) {
        if (row.ground != assets::palette::line && row.shape != assets::SymbolShape::glow &&
            row.shape != assets::SymbolShape::ring)
            names.push_back(row.name);
    }
    for (const std::string_view name : names) {
        const QImage paper = drawControl(name, assets::generations[0]);
        const QImage dune = drawControl(name, assets::generations[1]);
        const QImage aurora = drawControl(name, assets::generations[2]);
        EXPECT_TRUE(paper != dune && dune != aurora && aurora != paper) << name;
    }
}

TEST(Controls, WriteDigitsInTheMiddleOfKeysAboveTheLetters) {
    // The phone writes letters of 31 pixels 75 below the middle.
    constexpr int lettersTop = 192 / 2 + 75 - 31 / 2;
    for (const Generation& generation : assets::generations) {
        for (const char* name : {"dial_num_0_blk.png", "dial_num_1_blk.png", "dial_num_2_blk.png", "dial_num_3_blk.png",
                                 "dial_num_4_blk.png", "dial_num_5_blk.png", "dial_num_6_blk.png", "dial_num_7_blk.png",
                                 "dial_num_8_blk.png", "dial_num_9_blk.png", "xing.png", "jing.png"}) {
            const QRect ink = inkOf(drawControl(name, generation));
            EXPECT_NEAR(ink.left() + ink.right() + 1, 360, 3) << name << " " << generation.version;
            EXPECT_NEAR(ink.top() + ink.bottom() + 1, 192, 7) << name << " " << generation.version;
            EXPECT_LT(ink.bottom(), lettersTop - 12) << name << " " << generation.version;
            EXPECT_GT(ink.height(), 40) << name << " " << generation.version;
        }
    }
}

TEST(Controls, PointTheOtherWayOnMirroredScreens) {
    for (const Generation& generation : assets::generations) {
        const QRect right = inkOf(assets::drawSymbol("ic_arrow.png", {48, 48}, false, generation));
        const QImage picture = assets::drawSymbol("ic_arrow.png", {48, 48}, true, generation);
        // The tip of an arrow to the left is at its middle.
        const QRect left = inkOf(picture);
        EXPECT_GT(qAlpha(picture.pixel(left.left(), 24)), 0);
        EXPECT_EQ(left.left(), 47 - right.right());
    }
}

TEST(Controls, AreAllThereWithInk) {
    for (unsigned generation = 0; generation < generationCount; ++generation) {
        int seen = 0;
        for (const std::string& file : filesBelow(templatePath(generation))) {
            if (!file.ends_with(".png") || file.starts_with("icons/") || file.starts_with("unlock_"))
                continue;
            ++seen;
            QImage picture(QString::fromStdString(templatePath(generation) + file));
            picture = file.ends_with(".9.png") ? withoutGuides(picture) : picture;
            const QImage alpha = picture.convertToFormat(QImage::Format_Alpha8);
            const auto* bits = alpha.constBits();
            const auto ink = std::count_if(bits, bits + alpha.sizeInBytes(), [](uchar value) { return value > 0x14; });
            EXPECT_GT(100.0 * static_cast<double>(ink) / (picture.width() * picture.height()), 1)
                << file << " " << generation;
        }
        EXPECT_GT(seen, 150) << generation;
    }
}

} // namespace zdt::test
