#pragma once

#include <string>
#include <utility>
#include <vector>

#include "CimValue.h"
#include "EncapsulatedObject.h"
#include "cmpift.h"

namespace Cimom {

// CMPIArgs: named method parameters in the order they were added; adding a
// name again replaces its value.
class BrokerArgs : public EncapsulatedObject {
public:
    using Arg = std::pair<std::string, CimValue>;

    BrokerArgs(ObjectRegistry& registry, std::vector<Arg> args = {});

    CMPIArgs* cmpi() { return &_cmpi; }
    std::vector<Arg> const& args() const { return _args; }
    void add(std::string const& name, CimValue value);
    char const* cmpiTypeName() const override { return "CMPIArgs"; }

    static BrokerArgs* from(CMPIArgs const* a);

private:
    CMPIArgs _cmpi;
    std::vector<Arg> _args;
};

} // namespace Cimom
