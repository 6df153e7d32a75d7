#include "menu/MenuDefinition.h"

#include <gtest/gtest.h>

namespace obrin {
namespace {

// Of a made-up code page.
bool IsLeadByte(char byte) {
    return byte == '\x81';
}

TEST(MenuDefinition, TakesTheTitleFromTheHeaderLine) {
    const std::pair<const char*, const char*> cases[] = {{"Utility Billing^x^y", "Utility Billing"},
                                                         {"  Payroll ", "  Payroll "},
                                                         {"", ""},
                                                         {"\x81^T^x", "\x81^T"}}; // a character of two bytes
    for (const auto& [line, title] : cases) {
        EXPECT_EQ(HeaderTitle(line, IsLeadByte), title);
        EXPECT_EQ(ParseMenuDefinition(std::string(line) + "\r\n", "UB.mnu", IsLeadByte).title, title);
    }
    EXPECT_EQ(SystemCode("U\x81\x81.mnu", IsLeadByte), "U\x81\x81");
    for (const char* name : {".mnu", "C.MNU", "A.Mnu", "b.txt", "mnu", "A.mnu.bak", ""})
        EXPECT_FALSE(IsMenuFileName(name)) << name;
}

TEST(MenuDefinition, LinesBecomeNodes) {
    // "text|key|parent" of each node.
    const std::pair<const char*, const char*> cases[] = {
        {"Billing\r\n>Post^UB\\Post\r\n>Reports\r\n>>Journal^UB\\Journal\r\n",
         "Billing||0 Post|UB\\Post|1 Reports||1 Journal|UB\\Journal|3 "},
        {"A\r\nTop^K1\r\n>B^K2\r\n", "A||0 Top|K1|0 B|K2|1 "}, // programs are no parents
        {"A>B^K>1>\r\n", "AB|K1|0 "},
        {"A>B\r\n>C>D\r\n", "A>B||0 C>D||1 "}, // headings keep inner marks
        {"A>B^K^x^y\r\n", "AB|K|0 "},
        {"A\r\n\r\n>B^K\r\n", "A||0 ||0 B|K|2 "},
        {"A\r\n>B\r\nC\r\n>D\r\n>>E^K\r\n", "A||0 B||1 C||0 D||3 E|K|4 "},
        {"A\nB\rC\r\n\nD\r\rE", "A\nB||0 C||0 \nD||0 ||0 E||0 "},
        {"\x81^\r\n>\x81^^UB\\\x81\x5C^x", "\x81^||0 \x81^|UB\\\x81\x5C|1 "},
    };
    for (const auto& [lines, expected] : cases) {
        std::string nodes;
        for (const auto& [text, key, parent] :
             ParseMenuDefinition(std::string("T\r\n") + lines, "UB.mnu", IsLeadByte).entries)
            nodes.append(text).append("|").append(key).append("|").append(std::to_string(parent)) += " ";
        EXPECT_EQ(nodes, expected);
    }
    std::string many = "T";
    for (int i = 1; i <= 300; ++i)
        many += "\rA^K" + std::to_string(i);
    EXPECT_EQ(ParseMenuDefinition(many, "", nullptr).entries.size(), 300U);
    EXPECT_THROW(ParseMenuDefinition(many + "\rA^K1", "", nullptr), RunTimeError);
}

} // namespace
} // namespace obrin
