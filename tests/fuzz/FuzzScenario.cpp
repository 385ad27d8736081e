// Arbitrary text as a scenario file. A ScenarioError is the expected refusal.
#include "ScenarioParser.h"

#include <cstdint>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    std::string text(reinterpret_cast<const char*>(data), size);
    try {
        ScenarioParser::parseText(text, "fuzz.yaml");
    } catch (const ScenarioError&) {
    }
    return 0;
}
