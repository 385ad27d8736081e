#pragma once

#include "CimObjectPath.h"
#include "EncapsulatedObject.h"
#include "cmpift.h"

// CMPIObjectPath over a CimObjectPath.
class BrokerObjectPath : public EncapsulatedObject {
public:
    BrokerObjectPath(ObjectRegistry& registry, CimObjectPath path);

    CMPIObjectPath* cmpi() { return &_cmpi; }
    CimObjectPath& path() { return _path; }
    const CimObjectPath& path() const { return _path; }
    const char* cmpiTypeName() const override { return "CMPIObjectPath"; }
    std::string describe() const override { return _path.toString(); }

    static BrokerObjectPath* from(const CMPIObjectPath* op);

private:
    CMPIObjectPath _cmpi;
    CimObjectPath _path;
};
