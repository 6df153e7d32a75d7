#include "menu/MenuLayout.h"

#include <gtest/gtest.h>

#include <tuple>

namespace obrin {
namespace {

// Round numbers: margins of 1000 around the frame and of 200 and 300 around the tree.
constexpr MenuLayout designed{{100, 50, 4000, 3000}, {10, 20, 3800, 2700}, {}};
constexpr LayoutMargins margins{.height = 1000, .width = 1000, .treeWidth = 200, .treeHeight = 300};
constexpr OwnSizes own{.label1 = 700,
                       .image1 = 500,
                       .label2 = {300, 230},
                       .label3 = {},
                       .label4 = {900, 240},
                       .label5 = {600, 250}};

MenuLayout At(double width, double height, const OwnSizes& sizes = own) {
    return Resize(designed, margins, {width, height}, {width - 200, height - 500}, sizes);
}

TEST(MenuLayout, FrameAndTreeKeepTheirMargins) {
    struct {
        Size outer, frame, tree;
    } const cases[] = {
        {{9000, 8000}, {8000, 7000}, {7800, 6700}}, {{5000.5, 4000}, {4000.5, 3000}, {3800.5, 2700}},
        {{1000, 1000}, {4000, 3000}, {3800, 2700}}, // exactly the margins: left as they were
        {{15, 15}, {4000, 3000}, {3800, 2700}},     {{900, 8000}, {4000, 7000}, {3800, 6700}},
        {{1200, 4000}, {200, 3000}, {3800, 2700}}, // the frame is as wide as the tree's margin
        {{5000, 1300}, {4000, 300}, {3800, 2700}},  {{1201, 1301}, {201, 301}, {1, 1}},
    };
    for (const auto& [outer, frame, tree] : cases) {
        const MenuLayout layout = At(outer.width, outer.height);
        const auto& [frame1, tree1] = std::tie(layout.frame1, layout.treeView1);
        EXPECT_EQ(std::tuple(frame1.width, frame1.height, tree1.width, tree1.height),
                  std::tuple(frame.width, frame.height, tree.width, tree.height));
        EXPECT_EQ(layout.command1.top, 20 + tree.height + design::command1Gap) << "below the tree";
    }
    const auto recorded = RecordMargins({5000.4, 4000.6}, designed);
    EXPECT_EQ(std::tuple(recorded.width, recorded.height, recorded.treeWidth, recorded.treeHeight),
              std::tuple(1000, 1001, 200, 300))
        << "in whole twips";
}

TEST(MenuLayout, CentresByTheOuterWidthAndPutsTheLinkIntoTheInnerCorner) {
    OwnSizes wide = own;
    wide.label2.width = 100'000;                    // overlaps the frame
    const MenuLayout layout = At(9001, 4000, wide); // the frame ends at 8101, and 900 remain
    EXPECT_EQ(layout.label1Left, 8101 + 450 - 350);
    EXPECT_EQ(layout.image1.left, 8101 + 450 - 250);
    EXPECT_EQ(layout.label2Left, 8101 + 450 - 50'000);
    EXPECT_EQ(layout.label3.left, 8101 + 450);
    EXPECT_EQ(layout.label3.top, design::label3Top);
    EXPECT_EQ(layout.image1.top, design::image1Top);
    wide.label2.height = 500; // a large font of the user's
    wide.label3.height = 700;
    EXPECT_EQ(At(9001, 4000, wide).label3.top, design::label2Top + 500);
    EXPECT_EQ(At(9001, 4000, wide).image1.top, design::label2Top + 500 + 700);
    EXPECT_EQ(layout.label5.left, 9001 - 200 - 100 - 600);
    EXPECT_EQ(layout.label5.top, 3500 - 20 - 250);
    EXPECT_EQ(layout.label4.left, layout.label5.left - 900);
    EXPECT_EQ(layout.label4.top, layout.label5.top);
}

} // namespace
} // namespace obrin
