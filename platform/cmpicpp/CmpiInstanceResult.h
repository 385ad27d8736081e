#pragma once
// Where a request's instances go. The function tables hand the provider one
// that passes each instance to the object manager; tests and the collection's
// own users can derive an in-memory one.
#include "CmpiInstance.h"

namespace CmpiCpp {

class CmpiInstanceResult {
public:
    virtual ~CmpiInstanceResult();
    virtual void returnInstance(CmpiInstance const& instance) = 0;
    // For a caller done with its instance: a result that keeps instances
    // takes it without a copy.
    virtual void returnInstance(CmpiInstance&& instance) {
        returnInstance(static_cast<CmpiInstance const&>(instance));
    }
    // The end of the result; the function tables call it themselves after the
    // operation, so providers need not.
    virtual void returnDone() {}
};

} // namespace CmpiCpp
