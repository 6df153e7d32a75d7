#include "menu/MenuLayout.h"

#include "common/RunTimeError.h"

#include <gtest/gtest.h>

#include <limits>

namespace obrin {
namespace {

// Round numbers: margins of 1000 around the frame and of 200 and 300 around the tree.
constexpr MenuLayout designed{{100, 50, 4000, 3000}, {10, 20, 3800, 2700}, {}};
constexpr LayoutMargins margins{.height = 1000, .width = 1000, .treeWidth = 200, .treeHeight = 300};
constexpr OwnSizes own{
    .label1 = 700, .image1 = 500, .label2 = 300, .label3 = 0, .label4 = {900, 240}, .label5 = {600, 250}};

MenuLayout At(double width, double height, const OwnSizes& sizes = own) {
    return Resize(designed, margins, {width, height}, {width - 200, height - 500}, sizes);
}

TEST(MenuLayout, RecordsMarginsInWholeTwips) {
    const auto recorded = RecordMargins({5000.4, 4000.6}, designed);
    EXPECT_EQ(recorded.width, 1000);
    EXPECT_EQ(recorded.height, 1001);
    EXPECT_EQ(recorded.treeWidth, 200);
    EXPECT_EQ(recorded.treeHeight, 300);
}

struct Case {
    const char* name;
    Size outer;
    Size frame, tree;
};

class FrameAndTree : public testing::TestWithParam<Case> {};

TEST_P(FrameAndTree, KeepTheirMargins) {
    const auto& [name, outer, frame, tree] = GetParam();
    const MenuLayout layout = At(outer.width, outer.height);
    EXPECT_EQ(layout.frame1.width, frame.width);
    EXPECT_EQ(layout.frame1.height, frame.height);
    EXPECT_EQ(layout.treeView1.width, tree.width);
    EXPECT_EQ(layout.treeView1.height, tree.height);
    EXPECT_EQ(layout.frame1.left, 100);
    EXPECT_EQ(layout.treeView1.top, 20);
    EXPECT_EQ(layout.command1.top, 20 + tree.height + design::command1Gap) << "below the tree";
}

INSTANTIATE_TEST_SUITE_P(
    , FrameAndTree,
    testing::Values(Case{"Larger", {9000, 8000}, {8000, 7000}, {7800, 6700}},
                    Case{"Designed", {5000, 4000}, {4000, 3000}, {3800, 2700}},
                    Case{"HalfATwip", {5000.5, 4000}, {4000.5, 3000}, {3800.5, 2700}},
                    Case{"ExactlyTheMargins", {1000, 1000}, {4000, 3000}, {3800, 2700}}, // left as they were
                    Case{"OnePixel", {15, 15}, {4000, 3000}, {3800, 2700}},
                    Case{"NarrowButTall", {900, 8000}, {4000, 7000}, {3800, 6700}},
                    Case{"FrameAsWideAsTheTreesMargin", {1200, 4000}, {200, 3000}, {3800, 2700}},
                    Case{"FrameAsTallAsTheTreesMargin", {5000, 1300}, {4000, 300}, {3800, 2700}},
                    Case{"FrameLargerByATwip", {1201, 1301}, {201, 301}, {1, 1}}),
    [](const auto& test) { return test.param.name; });

TEST(MenuLayout, CentresInTheSpaceRightOfTheFrameByTheOuterWidth) {
    const MenuLayout layout = At(9001, 8000); // the frame ends at 8101, and 900 remain
    EXPECT_EQ(layout.label1Left, 8101 + 450 - 350);
    EXPECT_EQ(layout.image1Left, 8101 + 450 - 250);
    EXPECT_EQ(layout.label2Left, 8101 + 450 - 150);
    EXPECT_EQ(layout.label3Left, 8101 + 450);
    OwnSizes wide = own;
    wide.label1 = 100'000; // overlaps the frame
    EXPECT_EQ(At(9001, 8000, wide).label1Left, 8101 + 450 - 50'000);
}

TEST(MenuLayout, PutsTheLinkIntoTheInnerCorner) {
    for (const double width : {9000.0, 5000.0, 15.0}) {
        const MenuLayout layout = At(width, 4000);
        EXPECT_EQ(layout.label5.left + own.label5.width, width - 200 - 100);
        EXPECT_EQ(layout.label5.top + own.label5.height, 3500 - 20);
        EXPECT_EQ(layout.label4.left + own.label4.width, layout.label5.left);
        EXPECT_EQ(layout.label4.top, layout.label5.top);
    }
}

TEST(MenuLayout, RefusesWhatIsNoFiniteNumber) {
    constexpr double infinite = std::numeric_limits<double>::infinity();
    EXPECT_THROW(At(infinite, 4000), RunTimeError);
    OwnSizes sizes = own;
    sizes.label2 = std::numeric_limits<double>::quiet_NaN();
    EXPECT_THROW(At(5000, 4000, sizes), RunTimeError);
    EXPECT_THROW(RecordMargins({infinite, 1}, designed), RunTimeError);
}

} // namespace
} // namespace obrin
