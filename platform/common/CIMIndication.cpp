#include "CIMIndication.h"

#include "CmpiDateTime.h"

#include <atomic>
#include <chrono>

namespace QLN {

namespace {
// Starts at 1 so that 0 never looks like a real identifier.
std::atomic<unsigned long long> nextId{1};
} // namespace

CIMIndication::CIMIndication(Logger& logger, std::string const& className,
                             std::string const& nameSpace)
    : _logger(logger), _id(nextId.fetch_add(1)),
      _instance(CmpiCpp::CmpiObjectPath(nameSpace, className)) {
    _instance.addProperty("IndicationIdentifier", std::to_string(_id));
}

CIMIndication::~CIMIndication() = default;

CmpiCpp::CmpiInstance CIMIndication::getInstance() const {
    CmpiCpp::CmpiInstance instance = _instance;
    auto const now = std::chrono::system_clock::now().time_since_epoch();
    auto const micros = std::chrono::duration_cast<std::chrono::microseconds>(now).count();
    instance.addProperty("IndicationTime",
                         CmpiCpp::CmpiDateTime(static_cast<std::uint64_t>(micros), false));
    return instance;
}

} // namespace QLN
