#pragma once
// The path sink the function tables hand a provider.
#include "CmpiBroker.h"
#include "CmpiObjectPathResult.h"
#include "cmpift.h"

namespace CmpiCpp {

class CmpiTableObjectPathResult : public CmpiObjectPathResult {
public:
    CmpiTableObjectPathResult(CmpiBroker const& broker, CMPIResult const* result);
    void returnObjectPath(CmpiObjectPath const& path) override;
    // Only the first call reaches the object manager.
    void returnDone() override;

private:
    CmpiBroker _broker;
    CMPIResult const* _result;
    bool _done = false;
};

} // namespace CmpiCpp
