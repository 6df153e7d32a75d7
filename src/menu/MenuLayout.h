// The layout of the menu window in twips: the design, and the rules for a resize.
#pragma once

#include <cstdint>

namespace obrin {

struct Point {
    double left, top;
};
struct Size {
    double width, height;
};
struct Box {
    double left, top, width, height;
};

/// Differences between sizes that every resize keeps.
struct LayoutMargins {
    std::int32_t height;     ///< window outer height - Frame1 height
    std::int32_t width;      ///< window outer width - Frame1 width
    std::int32_t treeWidth;  ///< Frame1 width - TreeView1 width
    std::int32_t treeHeight; ///< Frame1 height - TreeView1 height
};

/// The sizes of controls that are as large as their text or picture.
struct ContentSizes {
    double label1, image1; ///< widths
    Size label2, label3, label4, label5;
};

struct MenuLayout {
    Box frame1;
    Box treeView1;  ///< relative to Frame1
    Point command1; ///< relative to Frame1
    double label1Left = 0, label2Left = 0;
    Point label3{}, image1{}, label4{}, label5{};
};

/// The designed inner size and layout of the window. Large text can move label3 and image1 further down.
namespace design {
constexpr Size inner{11100, 7500};
constexpr Box frame1{150, 120, 6000, 7200};
constexpr Box treeView1{150, 420, 5700, 6060}; // leaves room for a caption in a large font
constexpr double command1Gap = 120;            // between the tree and Command1
constexpr Size command1{1800, 420};
constexpr double label1Top = 240;
constexpr double label2Top = 900;
constexpr double label3Top = 1230;
constexpr double image1Top = 1800;
constexpr MenuLayout layout{
    frame1, treeView1, {treeView1.left, treeView1.top + treeView1.height + command1Gap}};
} // namespace design

/// Returns the margins of a layout, rounded to whole twips. `outer` is the size of the window with its frame.
LayoutMargins RecordMargins(Size outer, const MenuLayout& layout);

/// Returns the layout after a resize of the window. Throws RunTimeError if a position is not a finite number.
MenuLayout Resize(MenuLayout layout, const LayoutMargins& margins, Size outer, Size inner,
                  const ContentSizes& contents);

} // namespace obrin
