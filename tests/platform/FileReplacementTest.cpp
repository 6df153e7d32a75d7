#include "platform/FileReplacement.h"

#include "common/RunTimeError.h"
#include "platform/File.h"
#include "platform/Folder.h"
#include "platform/ScratchFolder.h"
#include "platform/Workstation.h"
#include "settings/SettingsStore.h"
#include "startup/StartUp.h"

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
        SetFileAttributesA("f", FILE_ATTRIBUTE_NORMAL);
        EXPECT_EQ(ListNormalFiles("."), Names{"f"}) << "nothing beside it";
    }
}

constexpr const char* killedVariable = "OBRIN_TEST_KILLED";
constexpr const char* configuration = "FennConfig.Sys";
constexpr const char* settingsFile = "Ini\\UB.ini";

std::string LongText() {
    return std::string(1 << 20, 'x');
}

SettingValues LongSettings(const std::string& text) {
    SettingValues values;
    values.back() = text;
    return values;
}

// The program that is killed is this one once more: it writes the file that it is told again and again, and
// runs no test.
const bool startedToBeKilled = [] {
    const std::string file = EnvironmentVariable(killedVariable);
    while (file == configuration) {
        ReplaceFileBytes(configuration, LongText());
        Main({.windowClass = "ObrinTest.NoMenu", .caption = "ObrinTest", .show = [] {}});
    }
    while (file == settingsFile) {
        SaveSystemSettings(settingsFile, LongSettings(LongText()));
        SaveSystemSettings(settingsFile, LongSettings(""));
    }
    return false;
}();

FILETIME LastWrite(const char* file) {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    GetFileAttributesExA(file, GetFileExInfoStandard, &data);
    return data.ftLastWriteTime;
}

// Starts this program and ends it the given time behind the first change of the file.
void KillWriterOf(const char* file, DWORD milliseconds) {
    std::array<char, MAX_PATH> program{};
    GetModuleFileNameA(nullptr, program.data(), program.size());
    SetEnvironmentVariableA(killedVariable, file);
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    const FILETIME before = LastWrite(file);
    ASSERT_TRUE(CreateProcessA(program.data(), nullptr, nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                               &startup, &process));
    const UniqueFile thread(process.hThread), writer(process.hProcess);
    SetEnvironmentVariableA(killedVariable, nullptr);
    const ULONGLONG deadline = GetTickCount64() + 10'000;
    for (FILETIME now = before; CompareFileTime(&now, &before) == 0; now = LastWrite(file))
        ASSERT_LT(GetTickCount64(), deadline);
    if (milliseconds != 0)
        Sleep(milliseconds);
    TerminateProcess(writer.get(), 1);
    WaitForSingleObject(writer.get(), INFINITE);
}

TEST(FileReplacement, KilledAtAnyMomentKeepsTheOldOrTheNewContents) {
    const test::ScratchFolder folder;
    CreateFolder("Core");
    CreateFolder("Ini");
    const std::string drive = "Drive S," + ShortPath(CurrentFolder()) + ",X,\\\r\n" + LongText() + "\r\n";
    const std::pair<const char*, Names> cases[] = {
        {configuration, {LongText(), drive}},
        {settingsFile, {FormatSettings(LongSettings("")), FormatSettings(LongSettings(LongText()))}}};
    for (const auto& [file, states] : cases) {
        const auto isWhole = [&states = states](const std::string& path) {
            return std::ranges::count(states, ReadFileBytes(path)) != 0;
        };
        const std::string place = file == configuration ? "" : "Ini\\";
        int besideHeld = 0;
        for (DWORD kill = 0; kill < 8; ++kill) {
            const bool held = kill % 2 != 0;
            WriteFileBytes(file, states[0]);
            {
                const UniqueFile holder = held ? Hold(file, FILE_SHARE_READ | FILE_SHARE_WRITE) : nullptr;
                KillWriterOf(file, held ? 0 : kill / 2);
            }
            bool kept = isWhole(file);
            EXPECT_TRUE(kept || held) << file;
            for (const std::string& name : ListNormalFiles(place + ".")) {
                if (!name.ends_with(".tmp"))
                    continue;
                const bool whole = isWhole(place + name);
                kept = kept || whole;
                besideHeld += held && whole;
                DeleteFileA((place + name).c_str());
            }
            EXPECT_TRUE(kept) << file << " and what lies beside it";
        }
        EXPECT_GT(besideHeld, 0) << "complete beside " << file << " while that is written";
    }
}

} // namespace
} // namespace obrin
