#pragma once

#include <cstddef>
#include <vector>

#include "CimValue.h"
#include "EncapsulatedObject.h"
#include "cmpift.h"

namespace Cimom {

// CMPIEnumeration over the results of an up-call: instances (CMPI_instance)
// or paths (CMPI_ref), walked once with getNext.
class BrokerEnumeration : public EncapsulatedObject {
public:
    BrokerEnumeration(ObjectRegistry& registry, std::vector<CimValue> items,
                      std::size_t position = 0);

    CMPIEnumeration* cmpi() { return &_cmpi; }
    std::vector<CimValue> const& items() const { return _items; }
    std::size_t& position() { return _position; }
    char const* cmpiTypeName() const override { return "CMPIEnumeration"; }

    static BrokerEnumeration* from(CMPIEnumeration const* e);

private:
    CMPIEnumeration _cmpi;
    std::vector<CimValue> _items;
    std::size_t _position;
};

} // namespace Cimom
