#pragma once

#include "CimObjectPath.h"
#include "EncapsulatedObject.h"
#include "cmpift.h"

namespace Cimom {

// CMPIObjectPath over a CimObjectPath.
class BrokerObjectPath : public EncapsulatedObject {
public:
    BrokerObjectPath(ObjectRegistry& registry, CimObjectPath path);

    CMPIObjectPath* cmpi() { return &_cmpi; }
    CimObjectPath& path() { return _path; }
    CimObjectPath const& path() const { return _path; }
    char const* cmpiTypeName() const override { return "CMPIObjectPath"; }
    std::string describe() const override { return _path.toString(); }

    static BrokerObjectPath* from(CMPIObjectPath const* op);

private:
    CMPIObjectPath _cmpi;
    CimObjectPath _path;
};

} // namespace Cimom
