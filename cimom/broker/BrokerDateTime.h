#pragma once

#include <string>

#include "EncapsulatedObject.h"
#include "cmpift.h"

namespace Cimom {

// CMPIDateTime, held in its CIM text form (which may carry unspecified
// fields that have no binary value).
class BrokerDateTime : public EncapsulatedObject {
public:
    BrokerDateTime(ObjectRegistry& registry, std::string cimText);

    CMPIDateTime* cmpi() { return &_cmpi; }
    std::string const& text() const { return _text; }
    char const* cmpiTypeName() const override { return "CMPIDateTime"; }
    std::string describe() const override { return _text; }

    static BrokerDateTime* from(CMPIDateTime const* d);

private:
    CMPIDateTime _cmpi;
    std::string _text;
};

} // namespace Cimom
