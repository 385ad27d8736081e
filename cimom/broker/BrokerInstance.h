#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "CimInstance.h"
#include "EncapsulatedObject.h"
#include "cmpift.h"

namespace Cimom {

// CMPIInstance over a CimInstance. Key properties that a provider sets are
// mirrored into the path's keys of the same name, so getObjectPath agrees
// with the properties.
class BrokerInstance : public EncapsulatedObject {
public:
    BrokerInstance(ObjectRegistry& registry, CimInstance instance);

    CMPIInstance* cmpi() { return &_cmpi; }
    CimInstance& instance() { return _instance; }
    CimInstance const& instance() const { return _instance; }
    char const* cmpiTypeName() const override { return "CMPIInstance"; }
    std::string describe() const override;

    // Honours a filter set with setPropertyFilter.
    void setProperty(std::string_view name, CimValue value);
    void setFilter(std::optional<std::vector<std::string>> filter) { _filter = std::move(filter); }

    static BrokerInstance* from(CMPIInstance const* inst);

private:
    CMPIInstance _cmpi;
    CimInstance _instance;
    std::optional<std::vector<std::string>> _filter;
};

} // namespace Cimom
