#include "menu/MenuLayout.h"

#include "common/RunTimeError.h"

#include <algorithm>
#include <cmath>

namespace obrin {

namespace {

double RequireFinite(double twips) {
    if (!std::isfinite(twips))
        throw RunTimeError(PlatformError::ArithmeticOverflow, "Laying out the menu window");
    return twips;
}

std::int32_t RoundTwips(double twips) {
    return static_cast<std::int32_t>(std::lrint(RequireFinite(twips)));
}

} // namespace

LayoutMargins RecordMargins(Size outer, const MenuLayout& layout) {
    return {
        .height = RoundTwips(outer.height - layout.frame1.height),
        .width = RoundTwips(outer.width - layout.frame1.width),
        .treeWidth = RoundTwips(layout.frame1.width - layout.treeView1.width),
        .treeHeight = RoundTwips(layout.frame1.height - layout.treeView1.height),
    };
}

MenuLayout Resize(MenuLayout layout, const LayoutMargins& margins, Size outer, Size inner,
                  const ContentSizes& contents) {
    Box& frame = layout.frame1;
    Box& tree = layout.treeView1;
    // If the window is too small for the margins, frame and tree keep their size.
    if (outer.height > margins.height)
        frame.height = RequireFinite(outer.height - margins.height);
    if (outer.width > margins.width)
        frame.width = RequireFinite(outer.width - margins.width);
    if (frame.width > margins.treeWidth)
        tree.width = RequireFinite(frame.width - margins.treeWidth);
    if (frame.height > margins.treeHeight)
        tree.height = RequireFinite(frame.height - margins.treeHeight);
    layout.command1.top = tree.top + tree.height + design::command1Gap;

    // Uses the outer width, as the menu has always done: the result is slightly right of the true centre.
    const double right = frame.left + frame.width;
    const auto centred = [&](double width) {
        return RequireFinite(right + (outer.width - right) / 2 - width / 2);
    };
    layout.label1Left = centred(contents.label1);
    layout.image1.left = centred(contents.image1);
    layout.label2Left = centred(contents.label2.width);
    layout.label3.left = centred(contents.label3.width);
    layout.label3.top = std::max(design::label3Top, design::label2Top + contents.label2.height);
    layout.image1.top = std::max(design::image1Top, layout.label3.top + contents.label3.height);

    layout.label5 = {RequireFinite(inner.width - contents.label5.width - 100),
                     RequireFinite(inner.height - contents.label5.height - 20)};
    layout.label4 = {RequireFinite(layout.label5.left - contents.label4.width), layout.label5.top};
    return layout;
}

} // namespace obrin
