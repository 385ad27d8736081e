#include "QLN_AutoStartVeldra.h"

#include "CmpiBroker.h"
#include "QLNUtil.h"

namespace {
char const* const className = "QLN_AutoStartVeldra";
char const* const providerName = "QLNVeldra";
// Where a packaged installation keeps its CIM files; nothing here reads it.
[[maybe_unused]] char const* const cimConfigDirectory = "/etc/cim/";
// The decorator takes these as seconds; they are fixed by design.
unsigned short const workerPollInterval = 30;
unsigned short const workerPollIntervalStagger = 18;
} // namespace

namespace QLN {

QLN_AutoStartVeldra::QLN_AutoStartVeldra(Logger& logger, std::string const& nameSpace)
    : _namespace(nameSpace) {
    _logger = logger;
    _logger.appendLogSource(":");
    _logger.appendLogSource(className);
    _logger.info("cxtor()");
    _hostName = QLNUtil::getHostName();
}

QLN_AutoStartVeldra::~QLN_AutoStartVeldra() {
    _logger.info("dxtor()");
}

CmpiCpp::CmpiObjectPath QLN_AutoStartVeldra::getPath() const {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiObjectPath path = CmpiCpp::makeCmpiObjectPath(broker, _namespace, className);
    // The host of the moment: a renamed host shows in the path at once.
    path.setHost(QLNUtil::getHostName());
    path.addKey("ProviderName", providerName);
    return path;
}

CmpiCpp::CmpiInstance QLN_AutoStartVeldra::getInstance() const {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, getPath());
    instance.addProperty("ProviderName", providerName);
    instance.addProperty("WorkerMethodNameSpace", _namespace);
    instance.addProperty("WorkerPollInterval", workerPollInterval);
    instance.addProperty("WorkerPollIntervalStagger", workerPollIntervalStagger);
    // The host the provider started on, which the path no longer tells after a rename.
    instance.addProperty("ProviderStartedHostname", _hostName);
    return instance;
}

CmpiCpp::CmpiName QLN_AutoStartVeldra::getClassName() const {
    return CmpiCpp::CmpiName(className);
}

} // namespace QLN
