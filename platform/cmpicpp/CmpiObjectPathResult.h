#pragma once
// Where a request's object paths go; see CmpiInstanceResult.
#include "CmpiObjectPath.h"

namespace CmpiCpp {

class CmpiObjectPathResult {
public:
    virtual ~CmpiObjectPathResult();
    virtual void returnObjectPath(CmpiObjectPath const& path) = 0;
    virtual void returnDone() {}
};

} // namespace CmpiCpp
