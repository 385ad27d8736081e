#include "CmpiManagedInstance.h"

namespace QLN {

CmpiManagedInstance::CmpiManagedInstance() = default;

CmpiManagedInstance::~CmpiManagedInstance() = default;

void CmpiManagedInstance::invokeMethod(CmpiCpp::CmpiName const&, CmpiCpp::CmpiArgs const&,
                                       CmpiCpp::CmpiMethodResult& result) {
    result.returnData(methodNotFound);
}

} // namespace QLN
