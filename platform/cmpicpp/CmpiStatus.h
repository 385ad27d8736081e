#pragma once
// The exception type of the provider family: a CMPI return code with an
// optional message. The function tables turn it into the CMPIStatus that the
// object manager receives.
#include "cmpidt.h"
#include <exception>
#include <string>

namespace CmpiCpp {

class CmpiStatus : public std::exception {
public:
    explicit CmpiStatus(CMPIrc rc);
    CmpiStatus(CMPIrc rc, std::string const& msg);

    CMPIrc rc() const { return _rc; }
    std::string const& msg() const { return _msg; }
    // "CMPI_RC_ERR_NOT_FOUND (6)" or "CMPI_RC_ERR_NOT_FOUND (6): <message>".
    std::string str() const;
    char const* what() const noexcept override { return _text.c_str(); }

    // The symbolic name of a return code, "CMPI_RC_UNKNOWN" for codes the
    // standard does not define.
    static char const* rcName(CMPIrc rc);

private:
    CMPIrc _rc;
    std::string _msg;
    std::string _text;
};

} // namespace CmpiCpp
