#include "CmpiStatus.h"

#include "CmpiRcName.h"

#include <cstdio>

namespace CmpiCpp {

CmpiStatus::CmpiStatus(CMPIrc rc) : CmpiStatus(rc, std::string()) {}

CmpiStatus::CmpiStatus(CMPIrc rc, std::string const& msg) : _rc(rc), _msg(msg), _text(str()) {}

std::string CmpiStatus::str() const {
    std::string text = rcName(_rc);
    text += " (" + std::to_string(static_cast<int>(_rc)) + ")";
    if (!_msg.empty())
        text += ": " + _msg;
    return text;
}

char const* CmpiStatus::rcName(CMPIrc rc) {
    char const* name = cmpiRcName(rc);
    return name != nullptr ? name : "CMPI_RC_UNKNOWN";
}

} // namespace CmpiCpp
