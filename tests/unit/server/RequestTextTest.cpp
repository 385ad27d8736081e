// Text that comes from a request and goes back out, into an answer or a log
// line. The end-to-end tests take xmlSafe as their judge of an answer, so
// it is checked here against sequences written out byte by byte.
#include "CimXmlWriter.h"
#include "ServerLog.h"

#include <gtest/gtest.h>

#include <string>

using namespace Cimom;

namespace {

std::string const fffd = "\xEF\xBF\xBD";

TEST(XmlSafe, KeepsEveryCharacterXmlAllows) {
    for (std::string text : {std::string("plain ASCII <&>"), std::string("tab\tand\r\nbreaks"),
                             std::string("\xC3\xA9t\xC3\xA9"),         // two-byte
                             std::string("\xE2\x82\xAC \xEF\xBF\xBD"), // three-byte, U+FFFD itself
                             std::string("\xED\x9F\xBF"),      // U+D7FF, just below the surrogates
                             std::string("\xF0\x9F\x98\x80"),  // four-byte
                             std::string("\xF4\x8F\xBF\xBF")}) // U+10FFFF, the last
        EXPECT_EQ(CimXmlWriter::xmlSafe(text), text) << text;
}

TEST(XmlSafe, ReplacesWhatNoXmlParserAccepts) {
    struct Case {
        std::string in, out;
    } const cases[] = {
        {"A\xFF\xFE"
         "B",
         "A" + fffd + fffd + "B"}, // bytes that never start UTF-8
        {"A\xC0\xBC"
         "B",
         "A" + fffd + "B"},            // overlong '<'
        {"A\xE0\x80\xBC", "A" + fffd}, // overlong in three bytes
        {"A\xEF\xBF\xBF"
         "B",
         "A" + fffd + "B"},               // U+FFFF
        {"\xEF\xBF\xBE", fffd},           // U+FFFE
        {"\xED\xA0\x80", fffd},           // a lone surrogate
        {"\xF4\x90\x80\x80", fffd},       // past U+10FFFF
        {"A\xE2\x82", "A" + fffd + fffd}, // cut short at the end
        {"\xE2"
         "AB",
         fffd + "AB"},                                // cut short by ASCII: the ASCII stays
        {std::string("A\0B\x01\x7F", 5), "A B \x7F"}, // control characters; DEL is allowed
    };
    for (auto const& c : cases)
        EXPECT_EQ(CimXmlWriter::xmlSafe(c.in), c.out) << c.in;
}

TEST(LogText, LineBreaksAndControlsBecomeEscapes) {
    EXPECT_EQ(ServerLog::escaped("root/mwq\r\nFORGED INFO ok"), "root/mwq\\r\\nFORGED INFO ok");
    EXPECT_EQ(ServerLog::escaped(std::string("a\0b\x1b[31m\x7f", 9)), "a\\x00b\\x1b[31m\\x7f");
    EXPECT_EQ(ServerLog::escaped("caf\xC3\xA9 \"quoted\""), "caf\xC3\xA9 \"quoted\"");
}

} // namespace
