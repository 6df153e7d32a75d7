#include "menu/MenuLayout.h"

#include "common/RunTimeError.h"

#include <gtest/gtest.h>

#include <limits>

namespace obrin {
namespace {

constexpr double infinite = std::numeric_limits<double>::infinity();

// A design in round numbers, which make the expected sums easy to follow.
constexpr MenuLayout designed{.frame1 = {.left = 100, .top = 50, .width = 4000, .height = 3000},
                              .treeView1 = {.left = 10, .top = 20, .width = 3800, .height = 2700},
                              .command1 = {}};
constexpr LayoutMargins margins{.height = 1000, .width = 1000, .treeWidth = 200, .treeHeight = 300};

// Returns the layout in a window of this outer size, whose borders take 200 of the width and 500 of the
// height.
MenuLayout At(Size outer, const ContentSizes& contents = {}) {
    return Resize(designed, margins, outer, {outer.width - 200, outer.height - 500}, contents);
}

TEST(RecordMargins, ReturnsTheDesignedDistancesInWholeTwips) {
    const LayoutMargins recorded = RecordMargins({.width = 5000.4, .height = 4000.6}, designed);
    EXPECT_EQ(recorded.width, 1000);
    EXPECT_EQ(recorded.height, 1001);
    EXPECT_EQ(recorded.treeWidth, 200);
    EXPECT_EQ(recorded.treeHeight, 300);
}

TEST(Resize, FrameAndTreeKeepTheirMarginsUnlessThereIsNoRoom) {
    struct {
        const char* room;
        Size outer;
        Size frame, tree;
    } const cases[] = {
        {"room for everything", {9000, 8000}, {8000, 7000}, {7800, 6700}},
        {"room for one twip of the frame", {1001, 1001}, {1, 1}, {3800, 2700}},
        {"room only for the margins of the frame", {1000, 1000}, {4000, 3000}, {3800, 2700}},
        {"room for one twip of the tree", {1201, 1301}, {201, 301}, {1, 1}},
        {"room only for the margins of the tree", {1200, 1300}, {200, 300}, {3800, 2700}},
    };
    for (const auto& [room, outer, frame, tree] : cases) {
        const MenuLayout layout = At(outer);
        EXPECT_EQ(layout.frame1.width, frame.width) << room;
        EXPECT_EQ(layout.frame1.height, frame.height) << room;
        EXPECT_EQ(layout.treeView1.width, tree.width) << room;
        EXPECT_EQ(layout.treeView1.height, tree.height) << room;
    }
}

TEST(Resize, ButtonIsBelowTheTree) {
    EXPECT_EQ(At({9000, 8000}).command1.top, 20 + 6700 + design::command1Gap);
}

TEST(Resize, RightHandControlsAreCentredInTheOuterWidthBesideTheFrame) {
    ContentSizes contents{};
    contents.label1 = 2000; // overlaps the frame
    contents.image1 = 500;
    contents.label2.width = 300;
    contents.label3.width = 200;
    const MenuLayout layout = At({9000, 8000}, contents); // the frame ends at 8100, the middle is at 8550
    EXPECT_EQ(layout.label1Left, 8550 - 1000);
    EXPECT_EQ(layout.image1.left, 8550 - 250);
    EXPECT_EQ(layout.label2Left, 8550 - 150);
    EXPECT_EQ(layout.label3.left, 8550 - 100);
}

TEST(Resize, RightHandControlsMoveDownBelowTallText) {
    ContentSizes contents{};
    EXPECT_EQ(At({9000, 8000}, contents).label3.top, design::label3Top);
    EXPECT_EQ(At({9000, 8000}, contents).image1.top, design::image1Top);
    contents.label2.height = 500;
    contents.label3.height = 700;
    EXPECT_EQ(At({9000, 8000}, contents).label3.top, design::label2Top + 500);
    EXPECT_EQ(At({9000, 8000}, contents).image1.top, design::label2Top + 500 + 700);
}

TEST(Resize, LinkIsInTheLowerRightCornerOfTheInnerArea) {
    ContentSizes contents{};
    contents.label5 = {.width = 600, .height = 250};
    const MenuLayout layout = At({9000, 8000}, contents); // 8800 x 7500 inside
    EXPECT_EQ(layout.label5.left + 600, 8800 - 100);
    EXPECT_EQ(layout.label5.top + 250, 7500 - 20);
}

TEST(Resize, QuestionTouchesTheLinkOnTheLeft) {
    ContentSizes contents{};
    contents.label4.width = 900;
    const MenuLayout layout = At({9000, 8000}, contents);
    EXPECT_EQ(layout.label4.left + 900, layout.label5.left);
    EXPECT_EQ(layout.label4.top, layout.label5.top);
}

TEST(Resize, RefusesAnInfinitePosition) {
    EXPECT_THROW(RecordMargins({.width = infinite, .height = 4000}, designed), RunTimeError);
    ContentSizes infiniteTitle{};
    infiniteTitle.label1 = infinite;
    EXPECT_THROW(At({infinite, 8000}), RunTimeError);
    EXPECT_THROW(At({9000, infinite}), RunTimeError);
    EXPECT_THROW(At({9000, 8000}, infiniteTitle), RunTimeError);
}

} // namespace
} // namespace obrin
