#include "menu/MenuDefinition.h"

#include "common/RunTimeError.h"

#include <gtest/gtest.h>

namespace obrin {

static bool operator==(const MenuEntry& left, const MenuEntry& right) {
    return left.text == right.text && left.key == right.key && left.isProgram == right.isProgram &&
           left.depth == right.depth && left.parent == right.parent;
}

static void PrintTo(const MenuEntry& entry, std::ostream* out) {
    *out << entry.text << " [" << entry.key << "] depth " << entry.depth << " below " << entry.parent;
}

namespace {

using Kind = MenuFault::Kind;

// 81 begins a character of two bytes in a made-up code page.
bool IsLeadByte(char byte) {
    return byte == '\x81';
}

MenuEntry Heading(const char* text, std::size_t depth = 0, std::int16_t parent = 0) {
    return {.text = text, .key = "", .isProgram = false, .depth = depth, .parent = parent};
}

MenuEntry Program(const char* text, const char* key, std::size_t depth = 0, std::int16_t parent = 0) {
    return {.text = text, .key = key, .isProgram = true, .depth = depth, .parent = parent};
}

// The entries of a file with these lines behind its header.
std::vector<MenuEntry> EntriesOf(const std::string& lines) {
    return ParseMenuDefinition("Title\r\n" + lines, IsLeadByte).entries;
}

// The faults of a file as "line kind".
std::vector<std::pair<int, Kind>> FaultsOf(const std::string& file) {
    std::vector<std::pair<int, Kind>> faults;
    for (const MenuFault& fault : ParseMenuDefinition(file, IsLeadByte).faults)
        faults.emplace_back(fault.line, fault.kind);
    return faults;
}

using Entries = std::vector<MenuEntry>;
using Faults = std::vector<std::pair<int, Kind>>;

TEST(MenuDefinition, TitleIsTheFirstFieldOfTheHeaderWithItsBlanks) {
    EXPECT_EQ(ParseMenuDefinition("Utility Billing^x^y\r\nA\r\n", IsLeadByte).title, "Utility Billing");
    EXPECT_EQ(ParseMenuDefinition("  Payroll ", IsLeadByte).title, "  Payroll ");
    EXPECT_EQ(ParseMenuDefinition("\r\nA", IsLeadByte).title, "");
    EXPECT_EQ(ParseMenuDefinition("\x81^T^x", IsLeadByte).title, "\x81^T")
        << "half of a character is no field end";
}

TEST(MenuDefinition, SystemCodeIsTheFirstTwoCharactersOfTheFileName) {
    EXPECT_EQ(SystemCode("UB.mnu", IsLeadByte), "UB");
    EXPECT_EQ(SystemCode("U\x81\x81.mnu", IsLeadByte), "U\x81\x81");
}

TEST(MenuDefinition, MenuFilesAreNamedBySmallLetters) {
    EXPECT_TRUE(IsMenuFileName("A.mnu"));
    for (const char* name : {".mnu", "C.MNU", "A.Mnu", "b.txt", "mnu", "A.mnu.bak", ""})
        EXPECT_FALSE(IsMenuFileName(name)) << name;
}

TEST(MenuDefinition, ProgramsHangBelowTheLastHeadingOneLevelUp) {
    EXPECT_EQ(EntriesOf("Billing\r\n>Post^UB\\Post\r\n>Reports\r\n>>Journal^UB\\Journal\r\n"),
              (Entries{Heading("Billing"), Program("Post", "UB\\Post", 1, 1), Heading("Reports", 1, 1),
                       Program("Journal", "UB\\Journal", 2, 3)}));
}

TEST(MenuDefinition, ProgramsAreNoParents) {
    EXPECT_EQ(EntriesOf("A\r\nTop^K1\r\n>B^K2\r\n"),
              (Entries{Heading("A"), Program("Top", "K1"), Program("B", "K2", 1, 1)}));
}

TEST(MenuDefinition, HeadingClosesTheDeeperOnes) {
    EXPECT_EQ(EntriesOf("A\r\n>B\r\nC\r\n>D\r\n>>E^K\r\n"),
              (Entries{Heading("A"), Heading("B", 1, 1), Heading("C"), Heading("D", 1, 3),
                       Program("E", "K", 2, 4)}));
    EXPECT_EQ(FaultsOf("T\r\nA\r\n>B\r\nC\r\n>>E^K\r\n"), (Faults{{5, Kind::NoHeading}}));
    EXPECT_EQ(FaultsOf("T\r\nA\r\n>B\r\n>>C\r\n>D\r\n>>>E^K\r\n"), (Faults{{6, Kind::NoHeading}}));
}

TEST(MenuDefinition, EntryWithoutItsHeadingIsAFault) {
    EXPECT_EQ(FaultsOf("T\r\n>A^K\r\n"), (Faults{{2, Kind::NoHeading}}));
    EXPECT_EQ(FaultsOf("T\r\nA\r\n>>B^K\r\n"), (Faults{{3, Kind::NoHeading}}));
}

TEST(MenuDefinition, ProgramsLoseEveryDepthMarkAndHeadingsOnlyTheLeadingOnes) {
    EXPECT_EQ(EntriesOf("A>B^K>1>\r\n"), (Entries{Program("AB", "K1")}));
    EXPECT_EQ(EntriesOf("A>B\r\n>C>D\r\n"), (Entries{Heading("A>B"), Heading("C>D", 1, 1)}));
}

TEST(MenuDefinition, FieldsBehindTheKeyAreIgnored) {
    EXPECT_EQ(EntriesOf("A^K^x^y\r\n"), (Entries{Program("A", "K")}));
    EXPECT_EQ(EntriesOf("\x81^\r\n>\x81^^UB\\\x81\x5C^x"),
              (Entries{Heading("\x81^"), Program("\x81^", "UB\\\x81\x5C", 1, 1)}));
}

TEST(MenuDefinition, EmptyLineIsAHeadingWithoutText) {
    EXPECT_EQ(EntriesOf("A\r\n\r\n>B^K\r\n"), (Entries{Heading("A"), Heading(""), Program("B", "K", 1, 2)}));
}

TEST(MenuDefinition, LinesEndAtCrLfOrCrAndNotAtLf) {
    EXPECT_EQ(EntriesOf("A\nB\rC\r\n\nD\r\rE"),
              (Entries{Heading("A\nB"), Heading("C"), Heading("\nD"), Heading(""), Heading("E")}));
}

TEST(MenuDefinition, KeysAreUniqueAndNoNumbers) {
    EXPECT_EQ(FaultsOf("T\r\nA^K\r\nB^K2\r\nC^K\r\n"), (Faults{{4, Kind::KeyTwice}}));
    EXPECT_EQ(ParseMenuDefinition("T\r\nA^K\r\nB^K2\r\nC^K\r\n", nullptr).faults.front().firstLine, 2);
    EXPECT_EQ(FaultsOf("T\r\nA^12\r\n"), (Faults{{2, Kind::NumberAsKey}}));
    EXPECT_EQ(FaultsOf("T\r\nA^\r\nB^\r\nC^K\r\nD^k\r\n"), Faults{}) << "no key, or another case";
}

TEST(MenuDefinition, HoldsAtMost32767Entries) {
    std::string file = "T\r\n";
    for (int i = 1; i <= 32767; ++i)
        file += "A\r\n";
    EXPECT_EQ(FaultsOf(file), Faults{});
    EXPECT_EQ(FaultsOf(file + "A\r\nB\r\n"), (Faults{{32769, Kind::TooManyEntries}}));
}

TEST(MenuDefinition, FileWithoutAHeaderIsAFault) {
    EXPECT_EQ(FaultsOf(""), (Faults{{1, Kind::NoHeader}}));
}

TEST(MenuDefinition, FirstFaultIsRefusedWithFileAndLine) {
    EXPECT_NO_THROW(RefuseFaults(ParseMenuDefinition("T\r\nA^K\r\n", nullptr), "UB.mnu"));
    try {
        RefuseFaults(ParseMenuDefinition("T\r\n>A^K\r\n>B^K\r\n", nullptr), "UB.mnu");
        FAIL() << "nothing was thrown";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Code(), static_cast<std::uint32_t>(PlatformError::InvalidData));
        EXPECT_STREQ(error.what(), "UB.mnu, line 2: there is no heading one level above this entry");
    }
}

} // namespace
} // namespace obrin
