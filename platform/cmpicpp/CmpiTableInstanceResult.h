#pragma once
// The instance sink the function tables hand a provider: each instance is
// cut to the request's property list and kept, and the whole table goes to
// the object manager when the operation is done. A provider answers under
// its own lock; making the CMPI objects and the object manager's copying
// then run after that lock is gone, beside other requests.
#include "CmpiBroker.h"
#include "CmpiInstanceResult.h"
#include "cmpift.h"

#include <vector>

namespace CmpiCpp {

class CmpiTableInstanceResult : public CmpiInstanceResult {
public:
    CmpiTableInstanceResult(CmpiBroker const& broker, CMPIResult const* result,
                            char const** properties);
    void returnInstance(CmpiInstance const& instance) override;
    void returnInstance(CmpiInstance&& instance) override;
    // Hands the table over; only the first call reaches the object manager.
    // A result dropped without it (the provider failed) hands over nothing.
    void returnDone() override;

private:
    void _keep(CmpiInstance instance);

    CmpiBroker _broker;
    CMPIResult const* _result;
    char const** _properties;
    std::vector<CmpiInstance> _table;
    bool _done = false;
};

} // namespace CmpiCpp
