#pragma once
// The instance sink the function tables hand a provider: each instance is
// cut to the request's property list and passed to the object manager.
#include "CmpiBroker.h"
#include "CmpiInstanceResult.h"
#include "cmpift.h"

namespace CmpiCpp {

class CmpiTableInstanceResult : public CmpiInstanceResult {
public:
    CmpiTableInstanceResult(CmpiBroker const& broker, CMPIResult const* result,
                            char const** properties);
    void returnInstance(CmpiInstance const& instance) override;
    // Only the first call reaches the object manager.
    void returnDone() override;

private:
    CmpiBroker _broker;
    CMPIResult const* _result;
    char const** _properties;
    bool _done = false;
};

} // namespace CmpiCpp
