#include "QLN_VDSCSIInitiatorTargetLogicalUnitPath.h"

#include "CmpiBroker.h"
#include "QLNUtil.h"

#include <utility>

using CmpiCpp::CmpiBroker;
using CmpiCpp::CmpiInstance;
using CmpiCpp::CmpiName;
using CmpiCpp::CmpiObjectPath;

namespace {
char const* const className = "QLN_VDSCSIInitiatorTargetLogicalUnitPath";
char const* const initiatorRole = "Initiator";
char const* const targetRole = "Target";
char const* const logicalUnitRole = "LogicalUnit";
} // namespace

namespace QLN {

QLN_VDSCSIInitiatorTargetLogicalUnitPath::QLN_VDSCSIInitiatorTargetLogicalUnitPath(
    Ends ends, Logger& logger, std::string const& nameSpace, VeldraController*,
    StateReader targetState)
    : _namespace(nameSpace), _logger(logger), _initiator(ends.initiator), _target(ends.target),
      _logicalUnit(ends.logicalUnit), _targetState(std::move(targetState)) {
    _logger.appendLogSource(":");
    _logger.appendLogSource(className);
    _logger.info("cxtor()");
}

QLN_VDSCSIInitiatorTargetLogicalUnitPath::~QLN_VDSCSIInitiatorTargetLogicalUnitPath() {
    _logger.info("dxtor()");
}

CmpiObjectPath QLN_VDSCSIInitiatorTargetLogicalUnitPath::getPath() const {
    CmpiBroker const broker(QLNUtil::getBroker());
    CmpiObjectPath path = CmpiCpp::makeCmpiObjectPath(broker, _namespace, className);
    path.setHost(QLNUtil::getHostName());
    path.addKey(initiatorRole, _initiator->getPath());
    path.addKey(targetRole, _target->getPath());
    path.addKey(logicalUnitRole, _logicalUnit->getPath());
    return path;
}

CmpiInstance QLN_VDSCSIInitiatorTargetLogicalUnitPath::getInstance() const {
    CmpiBroker const broker(QLNUtil::getBroker());
    CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, getPath());
    instance.addProperty(initiatorRole, _initiator->getPath());
    instance.addProperty(targetRole, _target->getPath());
    instance.addProperty(logicalUnitRole, _logicalUnit->getPath());
    if (_targetState) {
        instance.addProperty("State", static_cast<unsigned int>(_targetState()));
    }
    return instance;
}

CmpiName QLN_VDSCSIInitiatorTargetLogicalUnitPath::getClassName() const {
    return className;
}

std::vector<CmpiObjectPath>
QLN_VDSCSIInitiatorTargetLogicalUnitPath::otherEnd(CmpiObjectPath const& end,
                                                   CmpiName const& resultRole) const {
    CmpiObjectPath const initiator = _initiator->getPath();
    CmpiObjectPath const target = _target->getPath();
    CmpiObjectPath const logicalUnit = _logicalUnit->getPath();
    // The far ends in role order, with the role each plays.
    std::vector<std::pair<char const*, CmpiObjectPath const*>> far;
    if (end == target) {
        far = {{initiatorRole, &initiator}, {logicalUnitRole, &logicalUnit}};
    } else if (end == initiator) {
        far = {{targetRole, &target}, {logicalUnitRole, &logicalUnit}};
    } else if (end == logicalUnit) {
        far = {{initiatorRole, &initiator}, {targetRole, &target}};
    }
    std::vector<CmpiObjectPath> others;
    for (auto const& [role, path] : far) {
        if (resultRole.empty() || resultRole == CmpiName(role)) {
            others.push_back(*path);
        }
    }
    return others;
}

} // namespace QLN
