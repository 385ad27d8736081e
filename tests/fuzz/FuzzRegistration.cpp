// Arbitrary text as a provider registration file. A CimError is the expected refusal.
#include "CimError.h"
#include "RegistrationFile.h"

#include <cstdint>
#include <string>

using namespace Cimom;

extern "C" int LLVMFuzzerTestOneInput(uint8_t const* data, size_t size) {
    std::string text(reinterpret_cast<char const*>(data), size);
    try {
        RegistrationFile::parse(text, "fuzz.yaml", "/tmp");
    } catch (CimError const&) {
    }
    return 0;
}
