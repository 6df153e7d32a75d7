#include "platform/FileReplacement.h"

#include "support/HeldFile.h"
#include "support/Machine.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace obrin {
namespace {

std::vector<std::string> FileNames() {
    std::vector<std::string> names;
    for (const FolderEntry& entry : ListFolder(".")) {
        if (!entry.isFolder)
            names.push_back(entry.name);
    }
    return names;
}

// The file "f" in an otherwise empty folder.
class FileReplacement : public testing::Test {
protected:
    FileReplacement() { WriteFileBytes("f", "old"); }
    ~FileReplacement() override { SetFileAttributesA("f", FILE_ATTRIBUTE_NORMAL); }

    // The names of all files but "f".
    static std::vector<std::string> OtherFiles() {
        std::vector<std::string> names = FileNames();
        std::erase(names, "f");
        return names;
    }

    // Expects a refusal with this error code, and that no temporary file is left.
    static void ExpectRefusal(const std::string& path, DWORD code) {
        try {
            ReplaceFileBytes(path, "new");
            ADD_FAILURE() << path << " was written";
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.Code(), code);
            EXPECT_EQ(error.what(), "Writing " + path);
        }
        EXPECT_EQ(OtherFiles(), std::vector<std::string>());
    }

    const test::ScratchFolder folder;
};

TEST_F(FileReplacement, GivesTheFileItsNewContents) {
    ReplaceFileBytes("f", "new");
    EXPECT_EQ(ReadFileBytes("f"), "new");
    EXPECT_EQ(OtherFiles(), std::vector<std::string>());
}

TEST_F(FileReplacement, LetsAReaderReadTheOldContentsToTheirEnd) {
    File reader("f", File::Use::Read);
    ReplaceFileBytes("f", "new");
    EXPECT_EQ(reader.ReadToEnd(), "old");
}

TEST_F(FileReplacement, MakesAMissingFile) {
    DeleteFileA("f");
    ReplaceFileBytes("f", "new");
    EXPECT_EQ(ReadFileBytes("f"), "new");
    EXPECT_EQ(OtherFiles(), std::vector<std::string>());
}

TEST_F(FileReplacement, DoesNotWriteAFileThatHasTheContentsAlready) {
    const test::HeldFile reader("f", FILE_SHARE_READ); // a write would be refused
    EXPECT_NO_THROW(ReplaceFileBytes("f", "old"));
}

TEST_F(FileReplacement, WritesInPlaceIfTheFileCannotBeReplaced) {
    const test::HeldFile reader("f", FILE_SHARE_READ | FILE_SHARE_WRITE); // no FILE_SHARE_DELETE
    ReplaceFileBytes("f", "n");
    EXPECT_EQ(ReadFileBytes("f"), "n");
    EXPECT_EQ(OtherFiles(), std::vector<std::string>());
}

TEST_F(FileReplacement, IsRefusedForAFileThatStaysHeld) {
    {
        const test::HeldFile reader("f", FILE_SHARE_READ);
        ExpectRefusal("f", ERROR_SHARING_VIOLATION);
    }
    EXPECT_EQ(ReadFileBytes("f"), "old");
}

TEST_F(FileReplacement, IsRefusedForAFolderAndInAMissingFolder) {
    CreateFolder("d");
    ExpectRefusal("d", ERROR_ACCESS_DENIED);
    ExpectRefusal("missing\\f", ERROR_PATH_NOT_FOUND);
}

TEST_F(FileReplacement, IsRefusedForAReadOnlyFile) {
    SetFileAttributesA("f", FILE_ATTRIBUTE_READONLY);
    ExpectRefusal("f", ERROR_ACCESS_DENIED);
    EXPECT_EQ(ReadFileBytes("f"), "old");
}

constexpr const char* killedVariable = "OBRIN_TEST_KILLED";
const std::array<std::string, 2> states{std::string(100, 'a'), std::string(1 << 20, 'b')};

// The test starts this program a second time and kills it. With the variable set, the program writes the file
// again and again, and runs no test.
const bool startedToBeKilled = [] {
    while (!EnvironmentVariable(killedVariable).empty()) {
        for (const std::string& state : states)
            ReplaceFileBytes("f", state);
    }
    return false;
}();

bool IsWhole(const std::string& path) {
    return std::ranges::count(states, ReadFileBytes(path)) != 0;
}

// Whether the file or a temporary file is whole: the platform replaces a file in two steps, and between them
// only the temporary file may exist.
bool IsAnyFileWhole() {
    return std::ranges::any_of(FileNames(), IsWhole);
}

// Starts this program, waits until it has changed the file, and ends it some milliseconds later.
void KillWriter(DWORD milliseconds) {
    WriteFileBytes("f", states[0]);
    SetEnvironmentVariableA(killedVariable, "yes");
    const test::StartedProgram writer = test::Start(test::OwnProgram());
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

TEST_F(FileReplacement, KilledAtAnyMomentLeavesTheOldOrTheNewContents) {
    for (DWORD milliseconds = 0; milliseconds < 4; ++milliseconds) {
        KillWriter(milliseconds);
        EXPECT_TRUE(IsAnyFileWhole());
    }
}

TEST_F(FileReplacement, KilledInTheMiddleOfAWriteInPlaceLeavesTheContentsBesideTheFile) {
    for (int round = 0; round < 4; ++round) {
        {
            const test::HeldFile reader("f", FILE_SHARE_READ | FILE_SHARE_WRITE);
            KillWriter(0);
        }
        EXPECT_TRUE(IsAnyFileWhole());
    }
}

} // namespace
} // namespace obrin
