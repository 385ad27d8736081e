#pragma once

#include <stdexcept>
#include <string>

// A failed operation: answered inside a 200 response as an ERROR element
// with a CIM status code, which is what clients branch on.
class CimOperationError : public std::runtime_error {
public:
    CimOperationError(int code, const std::string& description) : std::runtime_error(description), _code(code) {}

    int code() const { return _code; }

    // "CIM_ERR_NOT_FOUND" and friends, for descriptions and logs.
    static const char* codeName(int code) {
        switch (code) {
            case 1: return "CIM_ERR_FAILED";
            case 2: return "CIM_ERR_ACCESS_DENIED";
            case 3: return "CIM_ERR_INVALID_NAMESPACE";
            case 4: return "CIM_ERR_INVALID_PARAMETER";
            case 5: return "CIM_ERR_INVALID_CLASS";
            case 6: return "CIM_ERR_NOT_FOUND";
            case 7: return "CIM_ERR_NOT_SUPPORTED";
            case 8: return "CIM_ERR_CLASS_HAS_CHILDREN";
            case 9: return "CIM_ERR_CLASS_HAS_INSTANCES";
            case 10: return "CIM_ERR_INVALID_SUPERCLASS";
            case 11: return "CIM_ERR_ALREADY_EXISTS";
            case 12: return "CIM_ERR_NO_SUCH_PROPERTY";
            case 13: return "CIM_ERR_TYPE_MISMATCH";
            case 14: return "CIM_ERR_QUERY_LANGUAGE_NOT_SUPPORTED";
            case 15: return "CIM_ERR_INVALID_QUERY";
            case 16: return "CIM_ERR_METHOD_NOT_AVAILABLE";
            case 17: return "CIM_ERR_METHOD_NOT_FOUND";
            case 20: return "CIM_ERR_NAMESPACE_NOT_EMPTY";
            case 21: return "CIM_ERR_INVALID_ENUMERATION_CONTEXT";
            case 22: return "CIM_ERR_INVALID_OPERATION_TIMEOUT";
            case 23: return "CIM_ERR_PULL_HAS_BEEN_ABANDONED";
            case 24: return "CIM_ERR_PULL_CANNOT_BE_ABANDONED";
            case 25: return "CIM_ERR_FILTERED_ENUMERATION_NOT_SUPPORTED";
            case 26: return "CIM_ERR_CONTINUATION_ON_ERROR_NOT_SUPPORTED";
            case 27: return "CIM_ERR_SERVER_LIMITS_EXCEEDED";
            case 28: return "CIM_ERR_SERVER_IS_SHUTTING_DOWN";
            default: return "CIM_ERR_FAILED";
        }
    }

    enum Code {
        failed = 1,
        invalidNamespace = 3,
        invalidParameter = 4,
        invalidClass = 5,
        notFound = 6,
        notSupported = 7,
        alreadyExists = 11,
        methodNotFound = 17,
        invalidEnumerationContext = 21,
        invalidOperationTimeout = 22,
        filteredEnumerationNotSupported = 25,
        continuationOnErrorNotSupported = 26,
        serverLimitsExceeded = 27,
    };

private:
    int _code;
};
