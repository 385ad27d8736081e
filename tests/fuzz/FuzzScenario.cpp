// Arbitrary text as a scenario file. A ScenarioError is the expected refusal.
#include "ScenarioParser.h"

#include <cstdint>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(uint8_t const* data, size_t size) {
    std::string text(reinterpret_cast<char const*>(data), size);
    try {
        ScenarioParser::parseText(text, "fuzz.yaml");
    } catch (ScenarioError const&) {
    }
    return 0;
}
