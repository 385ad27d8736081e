// Arbitrary text as a MOF file. A MofError is the expected refusal; anything
// else escaping is a finding. Includes are read relative to the shipped
// folder so that "#pragma include" of a real file is reachable.
#include "ClassRepository.h"
#include "MofError.h"

#include <cstdint>
#include <string>

using namespace Cimom;

extern "C" int LLVMFuzzerTestOneInput(uint8_t const* data, size_t size) {
    std::string text(reinterpret_cast<char const*>(data), size);
    ClassRepository repository;
    try {
        repository.loadText(text, VELDRA_DATA_DIR "/mof/fuzz.mof", "root/mwq");
        repository.resolve();
    } catch (MofError const&) {
    }
    return 0;
}
