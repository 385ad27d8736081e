#pragma once

#include <string>
#include <utility>
#include <vector>

#include "CimValue.h"
#include "EncapsulatedObject.h"
#include "cmpift.h"

namespace Cimom {

// CMPIContext: named entries of a call (invocation flags, namespace,
// principal) that a provider reads and may add to.
class BrokerContext : public EncapsulatedObject {
public:
    using Entry = std::pair<std::string, CimValue>;

    BrokerContext(ObjectRegistry& registry, std::vector<Entry> entries = {});

    CMPIContext* cmpi() { return &_cmpi; }
    std::vector<Entry> const& entries() const { return _entries; }
    void add(std::string const& name, CimValue value);
    char const* cmpiTypeName() const override { return "CMPIContext"; }

    static BrokerContext* from(CMPIContext const* c);

private:
    CMPIContext _cmpi;
    std::vector<Entry> _entries;
};

} // namespace Cimom
