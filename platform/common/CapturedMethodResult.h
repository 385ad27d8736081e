#pragma once
// A method result kept in memory, for calls the framework makes itself
// (the periodic PerformWork) rather than on behalf of an object manager.
#include "CmpiData.h"
#include "CmpiMethodResult.h"
#include "CmpiName.h"

#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

namespace QLN {

class CapturedMethodResult : public CmpiCpp::CmpiMethodResult {
public:
    CapturedMethodResult();
    ~CapturedMethodResult() override;

    void returnData(std::uint32_t returnValue) override;
    void addOutArg(CmpiCpp::CmpiName const& name, CmpiCpp::CmpiData const& value) override;

    // Nullopt when the method never set a return value.
    std::optional<std::uint32_t> returnValue() const { return _returnValue; }
    std::vector<std::pair<CmpiCpp::CmpiName, CmpiCpp::CmpiData>> const& outArgs() const {
        return _outArgs;
    }

private:
    std::optional<std::uint32_t> _returnValue;
    std::vector<std::pair<CmpiCpp::CmpiName, CmpiCpp::CmpiData>> _outArgs;
};

} // namespace QLN
