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
using Faults = std::vector<std::pair<int, Kind>>; // line and kind

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
    EXPECT_EQ(HeaderTitle("  Payroll ^x^y", IsLeadByte), "  Payroll ");
    EXPECT_EQ(HeaderTitle("\x81^T^x", IsLeadByte), "\x81^T") << "the second byte of a character";
}

TEST(MenuDefinition, TitleComesFromTheFirstLine) {
    EXPECT_EQ(ParseMenuDefinition(" Payroll ^x\r\nA\r\n", IsLeadByte).title, " Payroll ");
}

TEST(MenuDefinition, LinesBelowTheTitleAreEntries) {
    struct {
        const char* rule;
        const char* lines;
        Entries entries;
    } const cases[] = {
        {"the parent is the last heading one level up",
         "A\r\n>B\r\nC\r\n>D\r\n>>E^K\r\n>F^L\r\n",
         {Heading("A"), Heading("B", 1, 1), Heading("C"), Heading("D", 1, 3), Program("E", "K", 2, 4),
          Program("F", "L", 1, 3)}},
        {"a program is never a parent",
         "A\r\nTop^K1\r\n>B^K2\r\n",
         {Heading("A"), Program("Top", "K1"), Program("B", "K2", 1, 1)}},
        {"a program loses every depth mark", "A>B^K>1>\r\n", {Program("AB", "K1")}},
        {"a heading loses only its leading depth marks",
         "A>B\r\n>C>D\r\n",
         {Heading("A>B"), Heading("C>D", 1, 1)}},
        {"fields after the key are ignored", "A^K^x^y\r\n", {Program("A", "K")}},
        {"the second byte of a character ends no field",
         "\x81^\r\n>\x81^^UB\\\x81^^x",
         {Heading("\x81^"), Program("\x81^", "UB\\\x81^", 1, 1)}},
        {"an empty line is a heading without text",
         "A\r\n\r\n>B^K\r\n",
         {Heading("A"), Heading(""), Program("B", "K", 1, 2)}},
        {"a CR ends a line, a lone LF does not", "A\nB\rC\r\n", {Heading("A\nB"), Heading("C")}},
    };
    for (const auto& [rule, lines, entries] : cases)
        EXPECT_EQ(EntriesOf(lines), entries) << rule;
}

TEST(MenuDefinition, ReportsEachFaultWithItsLine) {
    struct {
        const char* rule;
        const char* file;
        Faults faults;
    } const cases[] = {
        {"a file needs a header", "", {{1, Kind::NoHeader}}},
        {"an entry needs a heading one level up", "T\r\n>A^K\r\n", {{2, Kind::NoHeading}}},
        {"a heading with a fault can still be a parent",
         "T\r\nA\r\n>>>B\r\n>>C^K\r\n>>>>D^L\r\n",
         {{3, Kind::NoHeading}, {4, Kind::NoHeading}}},
        {"a heading closes the deeper ones",
         "T\r\nA\r\n>B\r\n>>C\r\n>D\r\n>>>E^K\r\n",
         {{6, Kind::NoHeading}}},
        {"a heading at the top closes all deeper ones",
         "T\r\nA\r\n>B\r\nC\r\n>>E^K\r\n",
         {{5, Kind::NoHeading}}},
        {"a key may occur only once, and case matters", "T\r\nA^K\r\nB^k\r\nC^K\r\n", {{4, Kind::KeyTwice}}},
        {"an empty key may occur twice", "T\r\nA^\r\nB^\r\n", {}},
        {"a number is not allowed as a key", "T\r\nA^12\r\nB^12a\r\n", {{2, Kind::NumberAsKey}}},
    };
    for (const auto& [rule, file, faults] : cases)
        EXPECT_EQ(FaultsOf(file), faults) << rule;
}

TEST(MenuDefinition, DuplicateKeyRefersToTheLineThatUsedItFirst) {
    EXPECT_EQ(ParseMenuDefinition("T\r\nA^K\r\nB^L\r\nC^K\r\n", IsLeadByte).faults.at(0).firstLine, 2);
}

TEST(MenuDefinition, HoldsAtMost32767Entries) {
    std::string lines;
    for (int i = 1; i <= 32767; ++i)
        lines += "A\r\n";
    EXPECT_EQ(FaultsOf("T\r\n" + lines), Faults{});
    EXPECT_EQ(FaultsOf("T\r\n" + lines + "B\r\nC\r\n"), (Faults{{32769, Kind::TooManyEntries}}));
    EXPECT_EQ(EntriesOf(lines + "B\r\nC\r\n").size(), 32767U);
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
