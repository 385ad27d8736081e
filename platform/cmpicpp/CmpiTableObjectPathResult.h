#pragma once
// The path sink the function tables hand a provider: paths are kept and
// handed over together when the operation is done, as instances are.
#include "CmpiBroker.h"
#include "CmpiObjectPathResult.h"
#include "cmpift.h"

#include <vector>

namespace CmpiCpp {

class CmpiTableObjectPathResult : public CmpiObjectPathResult {
public:
    CmpiTableObjectPathResult(CmpiBroker const& broker, CMPIResult const* result);
    void returnObjectPath(CmpiObjectPath const& path) override;
    // Hands the table over; only the first call reaches the object manager.
    void returnDone() override;

private:
    CmpiBroker _broker;
    CMPIResult const* _result;
    std::vector<CmpiObjectPath> _table;
    bool _done = false;
};

} // namespace CmpiCpp
