#pragma once
// A provider of extrinsic methods.
#include "CmpiArgs.h"
#include "CmpiContext.h"
#include "CmpiMethodResult.h"
#include "CmpiName.h"
#include "CmpiObjectPath.h"
#include "CmpiProvider.h"
#include "cmpift.h"

namespace CmpiCpp {

class CmpiMethodProvider : public virtual CmpiProvider {
public:
    CmpiMethodProvider();
    ~CmpiMethodProvider() override;

    // The method's uint32 outcome goes to result.returnData; an unknown method
    // is a return value, not an exception.
    virtual void invokeMethod(CmpiContext const& context, CmpiObjectPath const& path,
                              CmpiName const& method, CmpiArgs const& in,
                              CmpiMethodResult& result) = 0;

    CMPIMethodMI* getMethodMI();

private:
    CMPIMethodMI* _methodMI;
};

} // namespace CmpiCpp
