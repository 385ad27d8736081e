#include "CimError.h"

#include "CmpiRcName.h"

#include <array>

namespace Cimom {

namespace {
// "CMPI_RC_" before the part of a name that the CIM name shares.
constexpr std::size_t cmpiPrefix = 8;

std::string whatText(CMPIrc code, std::string const& description) {
    std::string text = CimError::codeName(code);
    if (!description.empty()) {
        text += ": " + description;
    }
    return text;
}
} // namespace

CimError::CimError(CMPIrc code, std::string const& description)
    : std::runtime_error(whatText(code, description)), _code(code), _description(description) {}

char const* CimError::codeName(int code) {
    // The CIM status codes 1..17 are the CMPI codes of the same number; their
    // names are the CMPI names with the CIM prefix.
    static std::array<std::string, CMPI_RC_ERR_METHOD_NOT_FOUND + 1> const shared = [] {
        std::array<std::string, CMPI_RC_ERR_METHOD_NOT_FOUND + 1> names;
        for (int rc = CMPI_RC_ERR_FAILED; rc <= CMPI_RC_ERR_METHOD_NOT_FOUND; ++rc)
            names[rc] = std::string("CIM_") + (cmpiRcName(static_cast<CMPIrc>(rc)) + cmpiPrefix);
        return names;
    }();
    // The codes of pulled enumerations came after CMPI 2.0 and exist in CIM-XML only.
    static char const* const pullCodes[] = {
        "CIM_ERR_NAMESPACE_NOT_EMPTY",
        "CIM_ERR_INVALID_ENUMERATION_CONTEXT",
        "CIM_ERR_INVALID_OPERATION_TIMEOUT",
        "CIM_ERR_PULL_HAS_BEEN_ABANDONED",
        "CIM_ERR_PULL_CANNOT_BE_ABANDONED",
        "CIM_ERR_FILTERED_ENUMERATION_NOT_SUPPORTED",
        "CIM_ERR_CONTINUATION_ON_ERROR_NOT_SUPPORTED",
        "CIM_ERR_SERVER_LIMITS_EXCEEDED",
        "CIM_ERR_SERVER_IS_SHUTTING_DOWN",
    };
    if (code >= CMPI_RC_ERR_FAILED && code <= CMPI_RC_ERR_METHOD_NOT_FOUND)
        return shared[code].c_str();
    if (code >= 20 && code <= 28)
        return pullCodes[code - 20];
    // CMPI's own codes keep their CMPI names; a provider may also hand back
    // any other integer, which is still a failure.
    if (code != CMPI_RC_OK) {
        if (char const* name = cmpiRcName(static_cast<CMPIrc>(code)))
            return name;
    }
    return "CIM_ERR_FAILED";
}

} // namespace Cimom
