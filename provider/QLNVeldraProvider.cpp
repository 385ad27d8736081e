#include "QLNVeldraProvider.h"

#include "CmpiBroker.h"
#include "CmpiObjectPath.h"
#include "CmpiStatus.h"
#include "ProviderLock.h"
#include "QLNPhysloc.h"
#include "QLNUtil.h"
#include "QLN_VDArraySystem.h"
#include "QLN_VDDiskDrive.h"
#include "QLN_VDStorageVolume.h"

#include <stdexcept>

namespace {
char const* const performWork = "PerformWork";
// Only these classes have extrinsic methods.
char const* const diskDriveClass = "QLN_VDDiskDrive";
char const* const storageVolumeClass = "QLN_VDStorageVolume";
char const* const arraySystemClass = "QLN_VDArraySystem";
int const physlocHandle = 255;
} // namespace

namespace QLN {

using CmpiCpp::CmpiArgs;
using CmpiCpp::CmpiContext;
using CmpiCpp::CmpiInstanceResult;
using CmpiCpp::CmpiMethodResult;
using CmpiCpp::CmpiName;
using CmpiCpp::CmpiObjectPath;
using CmpiCpp::CmpiObjectPathResult;
using CmpiCpp::CmpiSelectExp;
using CmpiCpp::CmpiStatus;

QLNVeldraProvider::QLNVeldraProvider(CmpiCpp::CmpiBroker const& broker, Logger& logger)
    : _managedInstances(logger), _indicationsEnabled(false), _workerEnteredWithIndications(false),
      _heartbeatEnabled(false), _internalVDControllerMRA(nullptr) {
    QLNUtil::setBroker(broker);
    // Association filters name classes such as CIM_ManagedElement; only the
    // object manager knows which of ours descend from them.
    _managedInstances.setClassTest(
        [](std::string const& nameSpace, CmpiName const& className, CmpiName const& filter) {
            CmpiCpp::CmpiBroker const current(QLNUtil::getBroker());
            return current.classPathIsA(CmpiCpp::makeCmpiObjectPath(current, nameSpace, className),
                                        filter);
        });
    _logger = logger;
    pthread_mutex_init(&_providerMutex, nullptr);
    _indicationsEnabled = false;
    _workerEnteredWithIndications = false;
    _heartbeatEnabled = QLNUtil::HeartBeatIndicationsEnabled();
    _logger.info("cxtor()");
    QLNPhysloc::init(physlocHandle);
    _internalVDControllerMRA = internalVeldraControllerMRAFactory(_logger);
    if (_internalVDControllerMRA == nullptr) {
        // The storage library has logged why; without it there is nothing to serve.
        throw std::runtime_error("storage access could not be started");
    }
    _cmpiManagedInstanceFactory();
}

void QLNVeldraProvider::_cmpiManagedInstanceFactory() {
    _graph.buildAll(_internalVDControllerMRA, _controllers);
}

void QLNVeldraProvider::_createAllEnclosureInstances(
    int number, VeldraController* controller, QLN_VDArraySystem* arraySystem,
    QLN_VDPhysicalPackage* physicalPackage, std::vector<VeldraEnclosure> const& enclosures,
    std::vector<CageEntry>& cages, std::vector<CmpiManagedInstance*>& newInstances) {
    _graph.addEnclosures(number, controller, arraySystem, physicalPackage, enclosures, cages,
                         newInstances);
}

void QLNVeldraProvider::_createAllPhysicalDiskInstances(
    int number, VeldraController* controller, std::vector<VeldraPhysicalDisk> const& physicals,
    QLN_VDArraySystem* arraySystem, std::vector<PoolEntry> const& pools,
    std::vector<VeldraCFUArray> const& arrays, std::vector<CageEntry> const& cages,
    std::vector<QLN_VDISASSCSIProtocolEndpoint*> const& initiatorEndpoints,
    std::vector<ExtentEntry>& sparePaths, std::vector<ExtentEntry>& nonSparePaths,
    std::vector<CmpiManagedInstance*>& newInstances) {
    _graph.addPhysicalDisks(number, controller, physicals, arraySystem, pools, arrays, cages,
                            initiatorEndpoints, sparePaths, nonSparePaths, newInstances);
}

void QLNVeldraProvider::_createAllLogicalDiskInstances(
    int number, VeldraController* controller, std::vector<VeldraLogicalDisk> const& logicals,
    QLN_VDArraySystem* arraySystem, QLN_VDSCSIProtocolController* protocolController,
    std::vector<PoolEntry> const& pools, std::vector<ExtentEntry> const& sparePaths,
    std::vector<ExtentEntry> const& nonSparePaths,
    std::vector<CmpiManagedInstance*>& newInstances) {
    _graph.addLogicalDisks(number, controller, logicals, arraySystem, protocolController, pools,
                           sparePaths, nonSparePaths, newInstances);
}

void QLNVeldraProvider::_createViewClassInstances(int number, VeldraController* controller) {
    _graph.addViews(number, controller);
}

QLNVeldraProvider::~QLNVeldraProvider() {
    _logger.info("dxtor() unloading provider");
    delete _internalVDControllerMRA;
    QLNPhysloc::close(physlocHandle);
    pthread_mutex_destroy(&_providerMutex);
}

void QLNVeldraProvider::enumInstanceNames(CmpiContext const& context, CmpiObjectPath const& path,
                                          CmpiObjectPathResult& result) {
    ProviderLock lock(_providerMutex);
    _managedInstances.enumInstanceNames(result, context, path);
}

void QLNVeldraProvider::enumInstances(CmpiContext const& context, CmpiObjectPath const& path,
                                      char const** properties, CmpiInstanceResult& result) {
    ProviderLock lock(_providerMutex);
    _managedInstances.enumInstances(result, context, path, properties);
}

void QLNVeldraProvider::getInstance(CmpiContext const& context, CmpiObjectPath const& path,
                                    char const** properties, CmpiInstanceResult& result) {
    bool found = false;
    {
        ProviderLock lock(_providerMutex);
        found = _managedInstances.getInstance(result, context, path, properties);
    }
    if (!found) {
        throw CmpiStatus(CMPI_RC_ERR_NOT_FOUND);
    }
}

CmpiCpp::CmpiBroker QLNVeldraProvider::getBroker() {
    return CmpiCpp::CmpiBroker(QLNUtil::getBroker());
}

// Unloading is the destructor's work alone.
void QLNVeldraProvider::cleanup(CmpiContext const&, bool) {}

void QLNVeldraProvider::associators(CmpiContext const& context, CmpiObjectPath const& path,
                                    CmpiName const& assocClass, CmpiName const& resultClass,
                                    CmpiName const& role, CmpiName const& resultRole,
                                    char const** properties, CmpiInstanceResult& result) {
    CmpiManagedInstanceCollection::Associators answer;
    {
        ProviderLock lock(_providerMutex);
        answer = _managedInstances.findAssociators(path, assocClass, resultClass, role, resultRole,
                                                   properties);
    }
    // Far ends of other providers are asked for after the unlock: the object
    // manager may route such a request back into this provider.
    _managedInstances.resolveElsewhere(answer, context, properties);
    for (auto& each : answer.found) {
        result.returnInstance(std::move(each));
    }
}

void QLNVeldraProvider::associatorNames(CmpiContext const& context, CmpiObjectPath const& path,
                                        CmpiName const& assocClass, CmpiName const& resultClass,
                                        CmpiName const& role, CmpiName const& resultRole,
                                        CmpiObjectPathResult& result) {
    ProviderLock lock(_providerMutex);
    _managedInstances.associatorNames(result, context, path, assocClass, resultClass, role,
                                      resultRole);
}

void QLNVeldraProvider::references(CmpiContext const& context, CmpiObjectPath const& path,
                                   CmpiName const& resultClass, CmpiName const& role,
                                   char const** properties, CmpiInstanceResult& result) {
    ProviderLock lock(_providerMutex);
    _managedInstances.references(result, context, path, resultClass, role, properties);
}

void QLNVeldraProvider::referenceNames(CmpiContext const& context, CmpiObjectPath const& path,
                                       CmpiName const& resultClass, CmpiName const& role,
                                       CmpiObjectPathResult& result) {
    ProviderLock lock(_providerMutex);
    _managedInstances.referenceNames(result, context, path, resultClass, role);
}

void QLNVeldraProvider::authorizeFilter(CmpiContext const&, CmpiSelectExp const&, CmpiName const&,
                                        CmpiObjectPath const&, std::string const&) {}

void QLNVeldraProvider::mustPoll(CmpiContext const&, CmpiSelectExp const&, CmpiName const&,
                                 CmpiObjectPath const&) {}

// Any activation turns delivery on; deactivation, even of the last filter,
// leaves it on. Only disableIndications turns it off.
void QLNVeldraProvider::activateFilter(CmpiContext const&, CmpiSelectExp const&, CmpiName const&,
                                       CmpiObjectPath const&, bool) {
    _indicationsEnabled = true;
}

void QLNVeldraProvider::deActivateFilter(CmpiContext const&, CmpiSelectExp const&, CmpiName const&,
                                         CmpiObjectPath const&, bool) {}

void QLNVeldraProvider::enableIndications() {
    _indicationsEnabled = true;
}

void QLNVeldraProvider::disableIndications() {
    _indicationsEnabled = false;
}

void QLNVeldraProvider::invokeMethod(CmpiContext const& context, CmpiObjectPath const& path,
                                     CmpiName const& method, CmpiArgs const& in,
                                     CmpiMethodResult& result) {
    std::uint32_t outcome = 0;
    if (method == CmpiName(performWork)) {
        outcome = _backgroundWorker(context);
    } else {
        outcome = _invokeMethodOnInstance(path, method, in);
    }
    result.returnData(outcome);
}

int QLNVeldraProvider::getProviderKind() {
    return 2;
}

std::vector<std::string> QLNVeldraProvider::instancePaths() const {
    ProviderLock lock(_providerMutex);
    std::vector<std::string> paths;
    for (unsigned int i = 0; i < _managedInstances.size(); ++i) {
        paths.push_back(_managedInstances.getManagedInstance(i)->getPath().str());
    }
    return paths;
}

// An instance found under a method class's name that is not of that class
// is as good as not found.
template <typename MethodClass>
std::uint32_t QLNVeldraProvider::_invokeOn(CmpiManagedInstance* instance, CmpiName const& method,
                                           CmpiArgs const& in) {
    auto* target = dynamic_cast<MethodClass*>(instance);
    if (target == nullptr) {
        throw CmpiStatus(CMPI_RC_ERR_NOT_FOUND);
    }
    return target->invokeMethod(method, in);
}

// No lock on purpose: methods run beside reads and beside the worker, and
// the collection guards its own lookups.
std::uint32_t QLNVeldraProvider::_invokeMethodOnInstance(CmpiObjectPath const& path,
                                                         CmpiName const& method,
                                                         CmpiArgs const& in) {
    std::uint32_t const outcome = CmpiManagedInstance::methodNotFound;
    CmpiName const className = path.getClassName();
    bool const diskDrive = className == CmpiName(diskDriveClass);
    bool const storageVolume = className == CmpiName(storageVolumeClass);
    bool const arraySystem = className == CmpiName(arraySystemClass);
    if (!(diskDrive || storageVolume || arraySystem)) {
        return outcome;
    }
    // Held, not borrowed: a worker pass may delete the instance meanwhile.
    std::shared_ptr<CmpiManagedInstance> const instance =
        _managedInstances.shareManagedInstance(path);
    if (instance == nullptr) {
        return outcome;
    }
    if (diskDrive) {
        return _invokeOn<QLN_VDDiskDrive>(instance.get(), method, in);
    }
    if (storageVolume) {
        return _invokeOn<QLN_VDStorageVolume>(instance.get(), method, in);
    }
    return _invokeOn<QLN_VDArraySystem>(instance.get(), method, in);
}

} // namespace QLN
