#pragma once

#include <stdexcept>
#include <string>

namespace Cimom {

// A failed operation: answered inside a 200 response as an ERROR element
// with a CIM status code, which is what clients branch on.
class CimOperationError : public std::runtime_error {
public:
    CimOperationError(int code, std::string const& description)
        : std::runtime_error(description), _code(code) {}

    int code() const { return _code; }

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

} // namespace Cimom
