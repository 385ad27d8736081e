#pragma once

#include <functional>
#include <mutex>
#include <vector>

#include "CimInstance.h"
#include "CimObjectPath.h"
#include "CimValue.h"
#include "EncapsulatedObject.h"
#include "cmpift.h"

namespace Cimom {

// CMPIResult that copies whatever a provider returns into C++ vectors, so
// the results outlive the call's objects; or, with a sink, hands each
// instance on as it comes, so that an answer is written without holding all
// of it twice.
class BrokerResult : public EncapsulatedObject {
public:
    explicit BrokerResult(ObjectRegistry& registry);

    CMPIResult* cmpi() { return &_cmpi; }
    char const* cmpiTypeName() const override { return "CMPIResult"; }

    using InstanceSink = std::function<void(CimInstance const&)>;
    // From now on instances go to the sink instead of the vector. The sink
    // runs on the provider's thread; what it throws fails that return.
    void setInstanceSink(InstanceSink sink);

    void addInstance(CimInstance const& inst);
    void addPath(CimObjectPath path);
    void addData(CimValue value);
    void markDone();

    std::vector<CimInstance> takeInstances();
    std::vector<CimObjectPath> takePaths();
    std::vector<CimValue> takeData();
    bool done() const;

    static BrokerResult* from(CMPIResult const* r);

private:
    CMPIResult _cmpi;
    mutable std::mutex _mutex; // a provider may return from threads of its own
    std::vector<CimInstance> _instances;
    InstanceSink _sink;
    std::vector<CimObjectPath> _paths;
    std::vector<CimValue> _data;
    bool _done = false;
};

} // namespace Cimom
