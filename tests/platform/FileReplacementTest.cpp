#include "platform/FileReplacement.h"

#include "support/Machine.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <thread>

namespace obrin {
namespace {

using Names = std::vector<std::string>;

UniqueFile Hold(const std::string& path, DWORD share) {
    return UniqueFile(CreateFileA(path.c_str(), GENERIC_READ, share, nullptr, OPEN_EXISTING, 0, nullptr));
}

TEST(FileReplacement, IsWholeWhileSeveralWriteInPlace) {
    const test::ScratchFolder folder;
    const std::array<std::string, 2> contents{std::string(100, 'a'), std::string(50'000, 'b')};
    ReplaceFileBytes("f", contents[0]);
    const UniqueFile holder = Hold("f", FILE_SHARE_READ | FILE_SHARE_WRITE);
    constexpr int rounds = 12;
    const std::jthread other([&] {
        for (int i = 0; i < rounds; ++i)
            ReplaceFileBytes("f", contents[static_cast<std::size_t>(i % 2)]);
    });
    for (int i = 0; i < 20 * rounds; ++i) {
        if (i % 20 == 0)
            ReplaceFileBytes("f", contents[static_cast<std::size_t>(i / 20 % 2)]);
        const std::string seen = ReadFileIfThere("f").value();
        EXPECT_TRUE(std::ranges::count(contents, seen) == 1) << seen.size();
    }
}

TEST(FileReplacement, WritesInPlaceWhatOthersHoldAndLeavesAloneWhatTheyLetNobodyWrite) {
    const test::ScratchFolder folder;
    ReplaceFileBytes("f", "first");
    CreateFolder("d");
    EXPECT_THROW(ReplaceFileBytes("d", "x"), RunTimeError);
    EXPECT_THROW(ReplaceFileBytes("missing\\f", "x"), RunTimeError);
    SECURITY_DESCRIPTOR everybody{};
    InitializeSecurityDescriptor(&everybody, SECURITY_DESCRIPTOR_REVISION);
    SetSecurityDescriptorDacl(&everybody, TRUE, nullptr, FALSE);
    SetFileSecurityA("f", DACL_SECURITY_INFORMATION, &everybody);
    const auto rights = [] {
        std::array<char, 1000> description{};
        DWORD size = 0;
        GetFileSecurityA("f", DACL_SECURITY_INFORMATION, description.data(), description.size(), &size);
        return description;
    };
    const auto given = rights();
    const std::string old = "of some length";
    constexpr DWORD unheld = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    struct {
        DWORD share, attributes, refusal;
        bool letsGoSoon = false;
    } const cases[] = {
        {unheld, FILE_ATTRIBUTE_HIDDEN, 0},
        {0, FILE_ATTRIBUTE_NORMAL, 0, true},
        {FILE_SHARE_READ | FILE_SHARE_WRITE, FILE_ATTRIBUTE_HIDDEN, 0},
        {FILE_SHARE_READ, FILE_ATTRIBUTE_NORMAL, ERROR_SHARING_VIOLATION},
        {0, FILE_ATTRIBUTE_NORMAL, ERROR_SHARING_VIOLATION},
        {unheld, FILE_ATTRIBUTE_READONLY, ERROR_ACCESS_DENIED},
    };
    for (const auto& [share, attributes, refusal, letsGoSoon] : cases) {
        ReplaceFileBytes("f", old);
        SetFileAttributesA("f", attributes);
        DWORD error = 0;
        {
            UniqueFile holder = share == unheld ? nullptr : Hold("f", share);
            const std::jthread other([&, letsGoSoon = letsGoSoon] {
                Sleep(100);
                if (letsGoSoon)
                    holder.reset();
            });
            if (share != 0)
                ReplaceFileBytes("f", old); // right already
            try {
                ReplaceFileBytes("f", "new");
            } catch (const RunTimeError& raised) {
                error = raised.Code();
                EXPECT_STREQ(raised.what(), "Writing f");
            }
        }
        EXPECT_EQ(error, refusal) << share;
        EXPECT_EQ(ReadFileBytes("f"), refusal == 0 ? "new" : old) << share;
        EXPECT_EQ(GetFileAttributesA("f") & FILE_ATTRIBUTE_HIDDEN, attributes & FILE_ATTRIBUTE_HIDDEN);
        EXPECT_TRUE(refusal != 0 || rights() == given);
        SetFileAttributesA("f", FILE_ATTRIBUTE_NORMAL);
        EXPECT_EQ(ListFolder(".").size(), 4U) << "nothing beside it, d and the folders";
    }
}

constexpr const char* killedVariable = "OBRIN_TEST_KILLED";
const std::array<std::string, 2> states{std::string(100, 'a'), std::string(1 << 20, 'b')};

// The program that is killed is this one once more: it writes the file again and again, and runs no test.
const bool startedToBeKilled = [] {
    while (!EnvironmentVariable(killedVariable).empty()) {
        for (const std::string& state : states)
            ReplaceFileBytes("f", state);
    }
    return false;
}();

// Starts this program and ends it the given time behind the first change of the file from the first state.
void KillWriter(DWORD milliseconds) {
    SetEnvironmentVariableA(killedVariable, "yes");
    const test::Started writer = test::Start(test::OwnProgram());
    SetEnvironmentVariableA(killedVariable, nullptr);
    const ULONGLONG deadline = GetTickCount64() + 10'000;
    WIN32_FILE_ATTRIBUTE_DATA now{};
    do {
        ASSERT_LT(GetTickCount64(), deadline);
        GetFileAttributesExA("f", GetFileExInfoStandard, &now);
    } while (now.nFileSizeLow == states[0].size());
    if (milliseconds != 0)
        Sleep(milliseconds);
    TerminateProcess(writer.process.get(), 1);
    WaitForSingleObject(writer.process.get(), INFINITE);
}

TEST(FileReplacement, KilledAtAnyMomentKeepsTheOldOrTheNewContents) {
    const test::ScratchFolder folder;
    const auto isWhole = [](const std::string& path) {
        return std::ranges::count(states, ReadFileBytes(path)) != 0;
    };
    int besideHeld = 0;
    for (DWORD kill = 0; kill < 8; ++kill) {
        const bool held = kill % 2 != 0;
        WriteFileBytes("f", states[0]);
        {
            const UniqueFile holder = held ? Hold("f", FILE_SHARE_READ | FILE_SHARE_WRITE) : nullptr;
            KillWriter(held ? 0 : kill / 2);
        }
        bool kept = isWhole("f");
        EXPECT_TRUE(kept || held);
        DeleteFileA("f");
        for (const std::string& name : ListNormalFiles(".")) {
            const bool whole = isWhole(name);
            kept = kept || whole;
            besideHeld += held && whole;
            DeleteFileA(name.c_str());
        }
        EXPECT_TRUE(kept) << "the file or what lies beside it";
    }
    EXPECT_GT(besideHeld, 0) << "complete beside the file while that is written";
}

} // namespace
} // namespace obrin
