#pragma once

#include <stdexcept>
#include <string>

#include "cmpidt.h"

namespace Cimom {

// A failed CIM operation: the CMPI status code that a provider or the broker
// answered, and its description. The server maps the code one to one onto
// the CIM-XML ERROR CODE (the CMPI codes 1..17 are the CIM status codes).
class CimError : public std::runtime_error {
public:
    CimError(CMPIrc code, std::string const& description);

    CMPIrc code() const { return _code; }
    std::string const& description() const { return _description; }

    // "CIM_ERR_NOT_FOUND" and the like, for logs and messages: any CIM status
    // code, including those of pulled enumerations; "CIM_ERR_FAILED" for codes
    // nobody defines.
    static char const* codeName(int code);

private:
    CMPIrc _code;
    std::string _description;
};

} // namespace Cimom
