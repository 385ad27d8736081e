#pragma once
// Base of the framework's indication objects. It holds the CIM instance that
// the setters of the derived classes fill, and gives every indication of the
// process a running identifier, so that a listener can tell two alike
// indications apart and see when some went missing.
#include "CmpiInstance.h"
#include "Logger.h"

#include <string>

namespace QLN {

class CIMIndication {
public:
    CIMIndication(Logger& logger, std::string const& className, std::string const& nameSpace);
    virtual ~CIMIndication();
    CIMIndication(CIMIndication const&) = delete;
    CIMIndication& operator=(CIMIndication const&) = delete;

    // The running identifier, also the value of IndicationIdentifier.
    unsigned long long getId() const { return _id; }

    // What was set so far, with IndicationTime taken now.
    CmpiCpp::CmpiInstance getInstance() const;

protected:
    template <typename Value> void _set(char const* property, Value const& value) {
        _instance.addProperty(property, value);
    }

    Logger _logger;

private:
    unsigned long long _id;
    CmpiCpp::CmpiInstance _instance;
};

} // namespace QLN
