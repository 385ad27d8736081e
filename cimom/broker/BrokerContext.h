#pragma once

#include <string>
#include <utility>
#include <vector>

#include "CimValue.h"
#include "EncapsulatedObject.h"
#include "cmpift.h"

// CMPIContext: named entries of a call (invocation flags, namespace,
// principal) that a provider reads and may add to.
class BrokerContext : public EncapsulatedObject {
public:
    using Entry = std::pair<std::string, CimValue>;

    BrokerContext(ObjectRegistry& registry, std::vector<Entry> entries = {});

    CMPIContext* cmpi() { return &_cmpi; }
    const std::vector<Entry>& entries() const { return _entries; }
    void add(const std::string& name, CimValue value);
    const char* cmpiTypeName() const override { return "CMPIContext"; }

    static BrokerContext* from(const CMPIContext* c);

private:
    CMPIContext _cmpi;
    std::vector<Entry> _entries;
};
