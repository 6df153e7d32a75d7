// Where the controls of the menu window stand, in twips: the designed layout and the rule of every resize.
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

/// The designed distances that every resize keeps.
struct LayoutMargins {
    std::int32_t height;     ///< window outer height - Frame1 height
    std::int32_t width;      ///< window outer width - Frame1 width
    std::int32_t treeWidth;  ///< Frame1 width - TreeView1 width
    std::int32_t treeHeight; ///< Frame1 height - TreeView1 height
};

/// The sizes that the controls have by their texts and picture.
struct OwnSizes {
    double label1, image1; ///< widths
    Size label2, label3, label4, label5;
};

struct MenuLayout {
    Box frame1;     ///< in the window
    Box treeView1;  ///< in Frame1
    Point command1; ///< in Frame1, below the tree
    double label1Left = 0, label2Left = 0;
    Point label3{}, image1{}, label4{}, label5{};
};

/// The window's designed inner size and layout. The right-hand controls have these tops but where larger text
/// above needs the room.
namespace design {
constexpr Size inner{11100, 7500};
constexpr Box frame1{150, 120, 6000, 7200};
constexpr Box treeView1{150, 420, 5700, 6060}; // below a caption in large letters, too
constexpr double command1Gap = 120;            // between the tree and Command1
constexpr Size command1{1800, 420};
constexpr double label1Top = 240;
constexpr double label2Top = 900;
constexpr double label3Top = 1230;
constexpr double image1Top = 1800;
constexpr MenuLayout layout{
    frame1, treeView1, {treeView1.left, treeView1.top + treeView1.height + command1Gap}};
} // namespace design

/// Records the margins of a layout, rounded to whole twips; `outer` is the window's size with its frame.
LayoutMargins RecordMargins(Size outer, const MenuLayout& layout);

/// The layout after a resize of the window. Throws RunTimeError for a position that is no finite number.
MenuLayout Resize(MenuLayout layout, const LayoutMargins& margins, Size outer, Size inner,
                  const OwnSizes& own);

} // namespace obrin
