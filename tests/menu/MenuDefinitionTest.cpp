#include "menu/MenuDefinition.h"

#include "common/RunTimeError.h"
#include "support/CodePage.h"

#include <gtest/gtest.h>

namespace obrin {

static bool operator==(const MenuEntry& left, const MenuEntry& right) {
    return left.text == right.text && left.key == right.key && left.isProgram == right.isProgram &&
           left.depth == right.depth && left.parent == right.parent;
}

static void PrintTo(const MenuEntry& entry, std::ostream* out) {
    *out << (entry.isProgram ? "program " : "heading ") << entry.text << " [" << entry.key << "] depth "
         << entry.depth << " below " << entry.parent;
}

namespace {

using test::IsLeadByte;
using Entries = std::vector<MenuEntry>;
using Kind = MenuFault::Kind;
using Faults = std::vector<std::pair<int, Kind>>; // with their lines

MenuEntry Heading(const char* text, std::size_t depth = 0, std::int16_t parent = 0) {
    return {.text = text, .key = "", .isProgram = false, .depth = depth, .parent = parent};
}

MenuEntry Program(const char* text, const char* key, std::size_t depth = 0, std::int16_t parent = 0) {
    return {.text = text, .key = key, .isProgram = true, .depth = depth, .parent = parent};
}

// The entries of a file with these lines after its header.
Entries EntriesOf(const std::string& lines) {
    return ParseMenuDefinition("Title\r\n" + lines, IsLeadByte).entries;
}

Faults FaultsOf(const std::string& file) {
    Faults faults;
    for (const MenuFault& fault : ParseMenuDefinition(file, IsLeadByte).faults)
        faults.emplace_back(fault.line, fault.kind);
    return faults;
}

TEST(IsMenuFileName, NeedsANameBeforeTheLowerCaseEnding) {
    EXPECT_TRUE(IsMenuFileName("A.mnu"));
    for (const char* name : {".mnu", "C.MNU", "A.Mnu", "b.txt", "mnu", "A.mnu.bak", ""})
        EXPECT_FALSE(IsMenuFileName(name)) << name;
}

TEST(SystemCode, IsTheFirstTwoCharactersOfTheFileName) {
    EXPECT_EQ(SystemCode("UB.mnu", IsLeadByte), "UB");
    EXPECT_EQ(SystemCode("U\x81\x81.mnu", IsLeadByte), "U\x81\x81");
}

TEST(HeaderTitle, IsTheFirstFieldWithItsBlanks) {
    EXPECT_EQ(HeaderTitle("Utility Billing^x^y", IsLeadByte), "Utility Billing");
    EXPECT_EQ(HeaderTitle("  Payroll ", IsLeadByte), "  Payroll ");
    EXPECT_EQ(HeaderTitle("\x81^T^x", IsLeadByte), "\x81^T") << "the second byte of a character";
}

TEST(MenuDefinition, TitleComesFromTheFirstLine) {
    EXPECT_EQ(ParseMenuDefinition(" Payroll ^x\r\nA\r\n", IsLeadByte).title, " Payroll ");
    EXPECT_EQ(ParseMenuDefinition("\r\nA", IsLeadByte).title, "");
}

TEST(MenuDefinition, ParentIsTheLastHeadingOneLevelUp) {
    EXPECT_EQ(EntriesOf("Billing\r\n>Post^UB\\Post\r\n>Reports\r\n>>Journal^UB\\Journal\r\n"),
              (Entries{Heading("Billing"), Program("Post", "UB\\Post", 1, 1), Heading("Reports", 1, 1),
                       Program("Journal", "UB\\Journal", 2, 3)}));
    EXPECT_EQ(EntriesOf("A\r\n>B\r\nC\r\n>D\r\n>>E^K\r\n"),
              (Entries{Heading("A"), Heading("B", 1, 1), Heading("C"), Heading("D", 1, 3),
                       Program("E", "K", 2, 4)}));
}

TEST(MenuDefinition, ProgramIsNeverAParent) {
    EXPECT_EQ(EntriesOf("A\r\nTop^K1\r\n>B^K2\r\n"),
              (Entries{Heading("A"), Program("Top", "K1"), Program("B", "K2", 1, 1)}));
}

TEST(MenuDefinition, HeadingClosesTheDeeperOnes) {
    EXPECT_EQ(FaultsOf("T\r\nA\r\n>B\r\nC\r\n>>E^K\r\n"), (Faults{{5, Kind::NoHeading}}));
    EXPECT_EQ(FaultsOf("T\r\nA\r\n>B\r\n>>C\r\n>D\r\n>>>E^K\r\n"), (Faults{{6, Kind::NoHeading}}));
}

TEST(MenuDefinition, EntryWithoutAHeadingOneLevelUpIsAFault) {
    EXPECT_EQ(FaultsOf("T\r\n>A^K\r\n"), (Faults{{2, Kind::NoHeading}}));
    EXPECT_EQ(FaultsOf("T\r\nA\r\n>>>B\r\n>>C^K\r\n"), (Faults{{3, Kind::NoHeading}, {4, Kind::NoHeading}}));
}

TEST(MenuDefinition, ProgramLosesEveryDepthMark) {
    EXPECT_EQ(EntriesOf("A>B^K>1>\r\n"), (Entries{Program("AB", "K1")}));
}

TEST(MenuDefinition, HeadingLosesOnlyTheLeadingDepthMarks) {
    EXPECT_EQ(EntriesOf("A>B\r\n>C>D\r\n"), (Entries{Heading("A>B"), Heading("C>D", 1, 1)}));
}

TEST(MenuDefinition, FieldsAfterTheKeyAreIgnored) {
    EXPECT_EQ(EntriesOf("A^K^x^y\r\n"), (Entries{Program("A", "K")}));
}

TEST(MenuDefinition, SecondByteOfACharacterEndsNoField) {
    EXPECT_EQ(EntriesOf("\x81^\r\n>\x81^^UB\\\x81^^x"),
              (Entries{Heading("\x81^"), Program("\x81^", "UB\\\x81^", 1, 1)}));
}

TEST(MenuDefinition, EmptyLineIsAHeadingWithoutText) {
    EXPECT_EQ(EntriesOf("A\r\n\r\n>B^K\r\n"), (Entries{Heading("A"), Heading(""), Program("B", "K", 1, 2)}));
}

TEST(MenuDefinition, LoneLfEndsNoLine) {
    EXPECT_EQ(EntriesOf("A\nB\rC\r\n"), (Entries{Heading("A\nB"), Heading("C")}));
}

TEST(MenuDefinition, DuplicateKeyIsAFault) {
    EXPECT_EQ(FaultsOf("T\r\nA^K\r\nB^k\r\nC^K\r\n"), (Faults{{4, Kind::KeyTwice}})) << "case matters";
    EXPECT_EQ(FaultsOf("T\r\nA^\r\nB^\r\n"), Faults{}) << "an empty key is no key";
}

TEST(MenuDefinition, DuplicateKeyNamesItsFirstLine) {
    EXPECT_EQ(ParseMenuDefinition("T\r\nA^K\r\nB^L\r\nC^K\r\n", IsLeadByte).faults.at(0).firstLine, 2);
}

TEST(MenuDefinition, NumberAsKeyIsAFault) {
    EXPECT_EQ(FaultsOf("T\r\nA^12\r\nB^12a\r\n"), (Faults{{2, Kind::NumberAsKey}}));
}

TEST(MenuDefinition, HoldsAtMost32767Entries) {
    std::string lines;
    for (int i = 1; i <= 32767; ++i)
        lines += "A\r\n";
    EXPECT_EQ(FaultsOf("T\r\n" + lines), Faults{});
    EXPECT_EQ(FaultsOf("T\r\n" + lines + "B\r\nC\r\n"), (Faults{{32769, Kind::TooManyEntries}}));
    EXPECT_EQ(EntriesOf(lines + "B\r\nC\r\n").size(), 32767U);
}

TEST(MenuDefinition, FileWithoutAHeaderIsAFault) {
    EXPECT_EQ(FaultsOf(""), (Faults{{1, Kind::NoHeader}}));
}

TEST(ThrowFirstFault, ThrowsTheFirstFaultWithFileNameAndLine) {
    try {
        ThrowFirstFault(ParseMenuDefinition("T\r\n>A^K\r\n>B^K\r\n", IsLeadByte), "UB.mnu");
        FAIL() << "nothing was thrown";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Code(), static_cast<std::uint32_t>(PlatformError::InvalidData));
        EXPECT_STREQ(error.what(), "UB.mnu, line 2: there is no heading one level above this entry");
    }
}

TEST(ThrowFirstFault, AcceptsAFileWithoutFaults) {
    EXPECT_NO_THROW(ThrowFirstFault(ParseMenuDefinition("T\r\nA^K\r\n", IsLeadByte), "UB.mnu"));
}

} // namespace
} // namespace obrin
