#include "ProviderEntry.h"

#include "CmpiStatus.h"

namespace QLN::ProviderEntry {

void logFailure(Logger& logger, char const* entryPoint, char const* name,
                std::exception_ptr failure) {
    try {
        std::rethrow_exception(failure);
    } catch (CmpiCpp::CmpiStatus const& status) {
        logger.error("%s: %s constructor threw CmpiStatus exception: %s", entryPoint, name,
                     status.str().c_str());
    } catch (std::exception const& e) {
        logger.error("%s: %s constructor threw std::exception: %s", entryPoint, name, e.what());
    } catch (...) {
        logger.error("%s: %s constructor threw unknown exception", entryPoint, name);
    }
}

} // namespace QLN::ProviderEntry
