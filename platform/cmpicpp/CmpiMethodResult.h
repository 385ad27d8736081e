#pragma once
// Where an extrinsic method's outcome goes: its uint32 return value and any
// output arguments.
#include "CmpiData.h"
#include "CmpiName.h"
#include <cstdint>

namespace CmpiCpp {

class CmpiMethodResult {
public:
    virtual ~CmpiMethodResult();
    virtual void returnData(std::uint32_t returnValue) = 0;
    // Output arguments; a method without any need not call it.
    virtual void addOutArg(CmpiName const& name, CmpiData const& value) = 0;
    virtual void returnDone() {}
};

} // namespace CmpiCpp
