#include "QLN_VDStorageSpecificCollection.h"

#include "CmpiBroker.h"
#include "OperationalStatus.h"
#include "QLNUtil.h"
#include "QLN_VDArraySystem.h"
#include "VDArrayValues.h"

namespace {
char const* const className = "QLN_VDStorageSpecificCollection";
char const* const groupText = "Storage Array Consolidated Status";
char const* const degradedText = "One or more of the Array Controllers are not OK but not failed, "
                                 "one or more of the Storage Enclosures are "
                                 "not OK but not failed, one or more of the physical drives are "
                                 "not OK or one or more of the logical drives "
                                 "are not OK but not failed";
char const* const failedText = "One or more of the Array Controllers have failed, one or more of "
                               "the Storage Enclosures have failed, one or "
                               "more of the logical drives have failed";
char const* const okText = "Storage Arrays are operating properly";
// The misspelling is what clients have always matched on; keep it.
char const* const unknownText = "Strorage Array status is Unknown";

// A group cannot vouch for an array whose state is unknown, so anything that
// is neither OK nor degraded counts as failed here.
QLN::operationalStatus groupViewOf(int arrayStatus) {
    if (arrayStatus == QLN::OPERATIONAL_STATUS_OK)
        return QLN::OPERATIONAL_STATUS_OK;
    if (arrayStatus == QLN::OPERATIONAL_STATUS_DEGRADED)
        return QLN::OPERATIONAL_STATUS_DEGRADED;
    return QLN::OPERATIONAL_STATUS_FAILED;
}
} // namespace

namespace QLN {

QLN_VDStorageSpecificCollection::QLN_VDStorageSpecificCollection(Logger& logger,
                                                                 std::string const& nameSpace)
    : _namespace(nameSpace), _firstStatus(true), _status(OPERATIONAL_STATUS_OK) {
    _logger = logger;
    _logger.appendLogSource(":");
    _logger.appendLogSource(className);
    _logger.info("cxtor()");
}

QLN_VDStorageSpecificCollection::~QLN_VDStorageSpecificCollection() {
    _logger.info("dxtor()");
}

std::string QLN_VDStorageSpecificCollection::_instanceId() const {
    return std::string(className) + "-1";
}

CmpiCpp::CmpiObjectPath QLN_VDStorageSpecificCollection::getPath() const {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiObjectPath path = CmpiCpp::makeCmpiObjectPath(broker, _namespace, className);
    path.setHost(QLNUtil::getHostName());
    path.addKey("InstanceID", _instanceId());
    return path;
}

CmpiCpp::CmpiInstance QLN_VDStorageSpecificCollection::getInstance() const {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, getPath());
    instance.addProperty("InstanceID", _instanceId());
    instance.addProperty("Caption", groupText);
    instance.addProperty("Description", groupText);
    instance.addProperty("ElementName", groupText);
    unsigned short shown = OPERATIONAL_STATUS_UNKNOWN;
    char const* text = unknownText;
    if (_status == OPERATIONAL_STATUS_DEGRADED) {
        shown = OPERATIONAL_STATUS_DEGRADED;
        text = degradedText;
    } else if (_status == OPERATIONAL_STATUS_FAILED) {
        shown = OPERATIONAL_STATUS_FAILED;
        text = failedText;
    } else if (_status == OPERATIONAL_STATUS_OK) {
        shown = OPERATIONAL_STATUS_OK;
        text = okText;
    }
    instance.addProperty("GroupOperationalStatus", VDArrayValues::uint16s({shown}));
    instance.addProperty("GroupStatusDescriptions", VDArrayValues::strings({text}));
    return instance;
}

void QLN_VDStorageSpecificCollection::manageDynamic(
    bool indicationsEnabled, CmpiCpp::CmpiContext const&,
    std::vector<QLN_VDArraySystem*> const& arraySystems) {
    _logger.info("manageDynamic()");
    if (indicationsEnabled)
        _logger.info("indications enabled");

    operationalStatus worst = OPERATIONAL_STATUS_OK;
    for (QLN_VDArraySystem const* arraySystem : arraySystems)
        worst = updateWorst(worst, groupViewOf(arraySystem->getStatus()));

    unsigned int const result = static_cast<unsigned int>(worst);
    if (result == _status)
        return;
    // The wording of these lines is historical: they speak of the controller
    // but report the group. No indication leaves from here.
    if (_firstStatus) {
        _logger.info("Controller Operational Status bad, %d", static_cast<int>(result));
        if (indicationsEnabled)
            _logger.info("Send Controller Operational Status bad, %d", static_cast<int>(result));
        _firstStatus = false;
    } else {
        _logger.info("Controller Operational Status change, Old: %d New: %d",
                     static_cast<int>(_status), static_cast<int>(result));
        if (indicationsEnabled)
            _logger.info("Send Controller Operational Status change, Old: %d New: %d",
                         static_cast<int>(_status), static_cast<int>(result));
    }
    _status = result;
}

CmpiCpp::CmpiName QLN_VDStorageSpecificCollection::getClassName() const {
    return CmpiCpp::CmpiName(className);
}

} // namespace QLN
