#include "BrokerResult.h"

#include "BrokerInstance.h"
#include "BrokerObjectPath.h"
#include "BrokerStatus.h"
#include "CimError.h"
#include "ObjectRegistry.h"
#include "ValueConverter.h"

namespace Cimom {

namespace {

using Self = BrokerResult;

CMPIStatus release(CMPIResult* r) {
    return BrokerStatus::onStatus<Self>(r, [](Self& self) { self.registry().release(&self); });
}

CMPIResult* clone(CMPIResult const* r, CMPIStatus* rc) {
    return BrokerStatus::on<Self>(
        r, rc, static_cast<CMPIResult*>(nullptr), [](Self&) -> CMPIResult* {
            throw CimError(CMPI_RC_ERR_NOT_SUPPORTED, "a result cannot be cloned");
        });
}

CMPIStatus returnData(CMPIResult const* r, CMPIValue const* value, CMPIType const type) {
    return BrokerStatus::onStatus<Self>(
        r, [&](Self& self) { self.addData(ValueConverter::toCim(value, type)); });
}

CMPIStatus returnInstance(CMPIResult const* r, CMPIInstance const* inst) {
    return BrokerStatus::onStatus<Self>(r, [&](Self& self) {
        BrokerInstance* i = BrokerInstance::from(inst);
        if (i == nullptr) {
            throw CimError(CMPI_RC_ERR_INVALID_HANDLE,
                           "returned instance is not one of the broker's");
        }
        self.addInstance(i->instance());
    });
}

CMPIStatus returnObjectPath(CMPIResult const* r, CMPIObjectPath const* ref) {
    return BrokerStatus::onStatus<Self>(r, [&](Self& self) {
        BrokerObjectPath* p = BrokerObjectPath::from(ref);
        if (p == nullptr) {
            throw CimError(CMPI_RC_ERR_INVALID_HANDLE, "returned path is not one of the broker's");
        }
        self.addPath(p->path());
    });
}

CMPIStatus returnDone(CMPIResult const* r) {
    return BrokerStatus::onStatus<Self>(r, [](Self& self) { self.markDone(); });
}

CMPIStatus returnError(CMPIResult const* r, CMPIError const*) {
    return BrokerStatus::onStatus<Self>(r, [](Self&) {
        throw CimError(CMPI_RC_ERR_NOT_SUPPORTED, "extended errors are not supported");
    });
}

CMPIResultFT const resultTable = {CMPICurrentVersion, release,          clone,      returnData,
                                  returnInstance,     returnObjectPath, returnDone, returnError};

} // namespace

BrokerResult::BrokerResult(ObjectRegistry& registry)
    : EncapsulatedObject(registry), _cmpi{this, &resultTable} {}

void BrokerResult::setInstanceSink(InstanceSink sink) {
    std::lock_guard<std::mutex> lock(_mutex);
    _sink = std::move(sink);
}

void BrokerResult::addInstance(CimInstance const& inst) {
    std::lock_guard<std::mutex> lock(_mutex);
    if (_sink)
        _sink(inst);
    else
        _instances.push_back(inst);
}

void BrokerResult::addPath(CimObjectPath path) {
    std::lock_guard<std::mutex> lock(_mutex);
    _paths.push_back(std::move(path));
}

void BrokerResult::addData(CimValue value) {
    std::lock_guard<std::mutex> lock(_mutex);
    _data.push_back(std::move(value));
}

void BrokerResult::markDone() {
    std::lock_guard<std::mutex> lock(_mutex);
    _done = true;
}

std::vector<CimInstance> BrokerResult::takeInstances() {
    std::lock_guard<std::mutex> lock(_mutex);
    return std::move(_instances);
}

std::vector<CimObjectPath> BrokerResult::takePaths() {
    std::lock_guard<std::mutex> lock(_mutex);
    return std::move(_paths);
}

std::vector<CimValue> BrokerResult::takeData() {
    std::lock_guard<std::mutex> lock(_mutex);
    return std::move(_data);
}

bool BrokerResult::done() const {
    std::lock_guard<std::mutex> lock(_mutex);
    return _done;
}

BrokerResult* BrokerResult::from(CMPIResult const* r) {
    return (r != nullptr && r->ft == &resultTable) ? static_cast<BrokerResult*>(r->hdl) : nullptr;
}

} // namespace Cimom
