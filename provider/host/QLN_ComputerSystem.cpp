#include "QLN_ComputerSystem.h"

#include "CmpiArray.h"
#include "CmpiBroker.h"
#include "QLNUtil.h"
#include "cmpidt.h"

using CmpiCpp::CmpiBroker;
using CmpiCpp::CmpiInstance;
using CmpiCpp::CmpiObjectPath;

namespace {
char const* const className = "QLN_ComputerSystem";
}

namespace QLN {

QLN_ComputerSystem::QLN_ComputerSystem(Logger& logger, std::string const& nameSpace)
    : _namespace(nameSpace), _logger(logger) {
    _logger.appendLogSource(":");
    _logger.appendLogSource(className);
    _logger.info("cxtor()");
}

QLN_ComputerSystem::~QLN_ComputerSystem() {
    _logger.info("dxtor()");
}

// The framework's path, so that the ends the main provider writes resolve here.
CmpiObjectPath QLN_ComputerSystem::getPath() const {
    CmpiObjectPath path = QLNUtil::getComputerSystemPath();
    path.setNameSpace(_namespace);
    return path;
}

CmpiInstance QLN_ComputerSystem::getInstance() const {
    CmpiBroker const broker(QLNUtil::getBroker());
    CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, getPath());
    std::string const host = QLNUtil::getHostName();
    instance.addProperty("ElementName", host);
    instance.addProperty("Caption", "Host computer system");
    instance.addProperty("Description", "The computer system that holds the Veldra controllers.");
    instance.addProperty("NameFormat", "IP"); // the name is the host's network name
    CmpiCpp::CmpiArray dedicated = CmpiCpp::makeCmpiArray(broker, 1, CMPI_uint16);
    dedicated.setElementAt(0, static_cast<unsigned short>(0)); // Not Dedicated
    instance.addProperty("Dedicated", dedicated);
    // It answers, so it runs: there is no deeper health to report from here.
    CmpiCpp::CmpiArray status = CmpiCpp::makeCmpiArray(broker, 1, CMPI_uint16);
    status.setElementAt(0, static_cast<unsigned short>(2)); // OK
    instance.addProperty("OperationalStatus", status);
    instance.addProperty("HealthState", static_cast<unsigned short>(5));  // OK
    instance.addProperty("EnabledState", static_cast<unsigned short>(2)); // Enabled
    return instance;
}

CmpiCpp::CmpiName QLN_ComputerSystem::getClassName() const {
    return className;
}

} // namespace QLN
