#include "QLNVeldraHostProvider.h"

#include "CmpiStatus.h"
#include "QLNUtil.h"
#include "QLN_Chassis.h"
#include "QLN_ComputerSystem.h"
#include "QLN_PCIDevice.h"

using CmpiCpp::CmpiContext;
using CmpiCpp::CmpiObjectPath;

namespace {
char const* const hostNameSpace = "root/mwq";
}

namespace QLN {

QLNVeldraHostProvider::QLNVeldraHostProvider(CmpiCpp::CmpiBroker const& broker, Logger& logger,
                                             std::string const& dmiDirectory)
    : _broker(broker), _logger(logger), _instances(_logger) {
    _logger.info("cxtor()");
    // Both providers share the framework library; storing the same broker
    // again is harmless and lets this one stand alone.
    QLNUtil::setBroker(broker);
    _instances.createInstance(new QLN_ComputerSystem(_logger, hostNameSpace));
    _instances.createInstance(new QLN_Chassis(_logger, hostNameSpace, dmiDirectory));

    _storage.reset(internalVeldraControllerMRAFactory(_logger));
    if (!_storage) {
        _logger.error("no storage back end: serving the host without PCI devices");
        return;
    }
    unsigned int devices = 0;
    for (VeldraController* controller = _storage->getFirstData(); controller != nullptr;
         controller = _storage->getNextData(controller)) {
        // Two controllers without PCI data share one path; the collection
        // keeps the later one and logs it.
        if (_instances.createInstance(new QLN_PCIDevice(_logger, hostNameSpace, controller))) {
            ++devices;
        }
    }
    _logger.info("serving %u PCI devices", devices);
}

QLNVeldraHostProvider::~QLNVeldraHostProvider() {
    _logger.info("dxtor() unloading provider");
}

void QLNVeldraHostProvider::enumInstanceNames(CmpiContext const& context,
                                              CmpiObjectPath const& path,
                                              CmpiCpp::CmpiObjectPathResult& result) {
    _instances.enumInstanceNames(result, context, path);
}

void QLNVeldraHostProvider::enumInstances(CmpiContext const& context, CmpiObjectPath const& path,
                                          char const** properties,
                                          CmpiCpp::CmpiInstanceResult& result) {
    _instances.enumInstances(result, context, path, properties);
}

void QLNVeldraHostProvider::getInstance(CmpiContext const& context, CmpiObjectPath const& path,
                                        char const** properties,
                                        CmpiCpp::CmpiInstanceResult& result) {
    if (!_instances.getInstance(result, context, path, properties)) {
        throw CmpiCpp::CmpiStatus(CMPI_RC_ERR_NOT_FOUND);
    }
}

CmpiCpp::CmpiBroker QLNVeldraHostProvider::getBroker() {
    return _broker;
}

// Nothing is held beyond what the destructor frees; the entry points notice a
// deleted provider by itself and build a new one on the next load.
void QLNVeldraHostProvider::cleanup(CmpiContext const&, bool) {}

// An instance provider only.
int QLNVeldraHostProvider::getProviderKind() {
    return 1;
}

} // namespace QLN
