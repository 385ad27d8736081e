// Arbitrary text as a provider registration file. A CimError is the expected refusal.
#include "CimError.h"
#include "RegistrationFile.h"

#include <cstdint>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    std::string text(reinterpret_cast<const char*>(data), size);
    try {
        RegistrationFile::parse(text, "fuzz.yaml", "/tmp");
    } catch (const CimError&) {
    }
    return 0;
}
