#include "CimError.h"

namespace {
std::string whatText(CMPIrc code, const std::string& description) {
    std::string text = CimError::codeName(code);
    if (!description.empty()) {
        text += ": " + description;
    }
    return text;
}
} // namespace

CimError::CimError(CMPIrc code, const std::string& description)
    : std::runtime_error(whatText(code, description)), _code(code), _description(description) {}

const char* CimError::codeName(CMPIrc code) {
    switch (code) {
    case CMPI_RC_OK:
        return "CIM_ERR_OK";
    case CMPI_RC_ERR_FAILED:
        return "CIM_ERR_FAILED";
    case CMPI_RC_ERR_ACCESS_DENIED:
        return "CIM_ERR_ACCESS_DENIED";
    case CMPI_RC_ERR_INVALID_NAMESPACE:
        return "CIM_ERR_INVALID_NAMESPACE";
    case CMPI_RC_ERR_INVALID_PARAMETER:
        return "CIM_ERR_INVALID_PARAMETER";
    case CMPI_RC_ERR_INVALID_CLASS:
        return "CIM_ERR_INVALID_CLASS";
    case CMPI_RC_ERR_NOT_FOUND:
        return "CIM_ERR_NOT_FOUND";
    case CMPI_RC_ERR_NOT_SUPPORTED:
        return "CIM_ERR_NOT_SUPPORTED";
    case CMPI_RC_ERR_CLASS_HAS_CHILDREN:
        return "CIM_ERR_CLASS_HAS_CHILDREN";
    case CMPI_RC_ERR_CLASS_HAS_INSTANCES:
        return "CIM_ERR_CLASS_HAS_INSTANCES";
    case CMPI_RC_ERR_INVALID_SUPERCLASS:
        return "CIM_ERR_INVALID_SUPERCLASS";
    case CMPI_RC_ERR_ALREADY_EXISTS:
        return "CIM_ERR_ALREADY_EXISTS";
    case CMPI_RC_ERR_NO_SUCH_PROPERTY:
        return "CIM_ERR_NO_SUCH_PROPERTY";
    case CMPI_RC_ERR_TYPE_MISMATCH:
        return "CIM_ERR_TYPE_MISMATCH";
    case CMPI_RC_ERR_QUERY_LANGUAGE_NOT_SUPPORTED:
        return "CIM_ERR_QUERY_LANGUAGE_NOT_SUPPORTED";
    case CMPI_RC_ERR_INVALID_QUERY:
        return "CIM_ERR_INVALID_QUERY";
    case CMPI_RC_ERR_METHOD_NOT_AVAILABLE:
        return "CIM_ERR_METHOD_NOT_AVAILABLE";
    case CMPI_RC_ERR_METHOD_NOT_FOUND:
        return "CIM_ERR_METHOD_NOT_FOUND";
    case CMPI_RC_DO_NOT_UNLOAD:
        return "CMPI_RC_DO_NOT_UNLOAD";
    case CMPI_RC_NEVER_UNLOAD:
        return "CMPI_RC_NEVER_UNLOAD";
    case CMPI_RC_ERR_INVALID_HANDLE:
        return "CMPI_RC_ERR_INVALID_HANDLE";
    case CMPI_RC_ERR_INVALID_DATA_TYPE:
        return "CMPI_RC_ERR_INVALID_DATA_TYPE";
    case CMPI_RC_ERROR_SYSTEM:
        return "CMPI_RC_ERROR_SYSTEM";
    case CMPI_RC_ERROR:
        return "CMPI_RC_ERROR";
    }
    // A provider may hand back any integer; it is still a failure.
    return "CIM_ERR_FAILED";
}
