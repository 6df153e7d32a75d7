// Waiting for what other programs and the display do in their own time.
#pragma once

#include "platform/WindowsApi.h"

#include <gtest/gtest.h>

#include <functional>

namespace obrin::test {

/// Polls until the condition holds. Returns false if it does not within 20 seconds.
inline bool Eventually(const std::function<bool()>& condition) {
    // After a failure it waits only a second: the rest may fail for the same reason.
    const ULONGLONG end = GetTickCount64() + (testing::Test::HasFailure() ? 1'000 : 20'000);
    while (!condition()) {
        if (GetTickCount64() > end)
            return false;
        Sleep(10);
    }
    return true;
}

/// Moves the real pointer, and waits until it stays there: the display may report the earlier place late,
/// which undoes the move.
inline void PointAt(POINT place) {
    EXPECT_TRUE(Eventually([&, arrived = 0]() mutable {
        POINT pointer;
        GetCursorPos(&pointer);
        if (pointer.x == place.x && pointer.y == place.y)
            return ++arrived > 5;
        SetCursorPos(place.x, place.y);
        arrived = 0;
        return false;
    }));
}

} // namespace obrin::test
