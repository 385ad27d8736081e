#include "CmpiManagedInstance.h"

namespace QLN {

namespace {
// The CMPI return code for an unknown method, handed back as a value.
constexpr std::uint32_t methodNotFound = 17;
} // namespace

CmpiManagedInstance::CmpiManagedInstance() = default;

CmpiManagedInstance::~CmpiManagedInstance() = default;

void CmpiManagedInstance::invokeMethod(CmpiCpp::CmpiName const&, CmpiCpp::CmpiArgs const&,
                                       CmpiCpp::CmpiMethodResult& result) {
    result.returnData(methodNotFound);
}

} // namespace QLN
