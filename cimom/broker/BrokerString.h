#pragma once

#include <string>

#include "EncapsulatedObject.h"
#include "cmpift.h"

namespace Cimom {

// CMPIString over a std::string.
class BrokerString : public EncapsulatedObject {
public:
    BrokerString(ObjectRegistry& registry, std::string text);

    CMPIString* cmpi() { return &_cmpi; }
    std::string const& text() const { return _text; }
    char const* cmpiTypeName() const override { return "CMPIString"; }
    std::string describe() const override { return _text; }

    // The object behind a CMPIString of ours, or null for anything else.
    static BrokerString* from(CMPIString const* s);

private:
    CMPIString _cmpi;
    std::string _text;
};

} // namespace Cimom
