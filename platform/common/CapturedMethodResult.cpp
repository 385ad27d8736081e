#include "CapturedMethodResult.h"

namespace QLN {

CapturedMethodResult::CapturedMethodResult() = default;

CapturedMethodResult::~CapturedMethodResult() = default;

void CapturedMethodResult::returnData(std::uint32_t returnValue) {
    _returnValue = returnValue;
}

void CapturedMethodResult::addOutArg(CmpiCpp::CmpiName const& name,
                                     CmpiCpp::CmpiData const& value) {
    _outArgs.emplace_back(name, value);
}

} // namespace QLN
