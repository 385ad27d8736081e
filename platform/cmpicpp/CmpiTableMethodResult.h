#pragma once
// The method sink the function tables hand a provider: the return value goes
// to the result as a uint32, output arguments to the call's out list.
#include "CmpiBroker.h"
#include "CmpiMethodResult.h"
#include "cmpift.h"

namespace CmpiCpp {

class CmpiTableMethodResult : public CmpiMethodResult {
public:
    CmpiTableMethodResult(CmpiBroker const& broker, CMPIResult const* result, CMPIArgs* out);
    void returnData(std::uint32_t returnValue) override;
    void addOutArg(CmpiName const& name, CmpiData const& value) override;
    // Only the first call reaches the object manager.
    void returnDone() override;

private:
    CmpiBroker _broker;
    CMPIResult const* _result;
    CMPIArgs* _out;
    bool _done = false;
};

} // namespace CmpiCpp
