#pragma once

#include <string>

#include "EncapsulatedObject.h"
#include "cmpift.h"

// CMPIString over a std::string.
class BrokerString : public EncapsulatedObject {
public:
    BrokerString(ObjectRegistry& registry, std::string text);

    CMPIString* cmpi() { return &_cmpi; }
    const std::string& text() const { return _text; }
    const char* cmpiTypeName() const override { return "CMPIString"; }
    std::string describe() const override { return _text; }

    // The object behind a CMPIString of ours, or null for anything else.
    static BrokerString* from(const CMPIString* s);

private:
    CMPIString _cmpi;
    std::string _text;
};
