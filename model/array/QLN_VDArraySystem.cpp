#include "QLN_VDArraySystem.h"

#include "CmpiArray.h"
#include "CmpiBroker.h"
#include "CmpiStatus.h"
#include "FixedStateProperties.h"
#include "IdentifyArguments.h"
#include "IdentityHelpers.h"
#include "QLNUtil.h"
#include "VDArrayValues.h"

namespace {

char const* const className = "QLN_VDArraySystem";

// Consolidated status values and the texts that go with them.
int const statusUnknown = 0;
int const statusOk = 2;
int const statusDegraded = 3;
int const statusFailed = 6;

std::string const textOk = "Array is operating properly";
std::string const textUnknown = "Array status is Unknown";
std::string const textControllerFailure = "Controller Failure";
std::string const textLogicalFailure = "Logical Drive Failure";
std::string const textEnclosureFailure = "Storage Enclosure Failure";
std::string const textControllerProblem = "Controller Non-Failure Problem";
std::string const textPhysicalProblem = "Physical Drive Non-Failure Problem";
std::string const textLogicalProblem = "Logical Drive Non-Failure Problem";
std::string const textEnclosureProblem = "Storage Enclosure Non-Failure Problem";

// Raw storage-access values that the consolidation reads.
u32 const controllerOk = 1;
u32 const controllerDegraded = 2;
u32 const controllerNotReported = 4;
long long const logicalOk = 2;
long long const logicalFailed = 3;
long long const logicalProblemFloor = 4;
u32 const enclosureOk = 2;
u32 const enclosureFailed = 6;
u32 const physicalOk = 1;
u32 const physicalRebuilding = 0x8005;

unsigned int const methodFailed = 2;

struct Health {
    unsigned short operational;
    unsigned short health;
};

Health healthOf(int status) {
    if (status == statusOk)
        return {2, 5};
    if (status == statusDegraded)
        return {3, 10};
    if (status == statusFailed)
        return {6, 20};
    return {0, 0};
}

} // namespace

namespace QLN {

QLN_VDArraySystem::QLN_VDArraySystem(Logger& logger, std::string const& nameSpace,
                                     unsigned int controllerIndex, VeldraController* controller)
    : ControllerManagedInstance(logger, className, nameSpace, controllerIndex, controller),
      _status(statusOk), _statusText(textOk) {}

CmpiCpp::CmpiObjectPath QLN_VDArraySystem::getPath() const {
    VeldraControllerData data = _lastData();
    return _pathByClassAndKey("Name", getControllerName(data, static_cast<int>(_controllerIndex)));
}

CmpiCpp::CmpiInstance QLN_VDArraySystem::getInstance() const {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    VeldraControllerData data;
    _controller->getLastVDData(data);
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, getPath());
    std::string name = getControllerName(data, static_cast<int>(_controllerIndex));
    Health health = healthOf(_status);

    instance.addProperty("CreationClassName", className);
    // The array system's prefix knows "External"; the display name has exactly that rule.
    instance.addProperty("ElementName", getControllerDisplayName(data));
    instance.addProperty("Name", name);
    instance.addProperty("NameFormat", "Other");

    instance.addProperty("OtherIdentifyingInfo", VDArrayValues::strings({name}));
    instance.addProperty("IdentifyingDescriptions",
                         VDArrayValues::strings({"Other Vendor Specific Name"}));

    instance.addProperty("HealthState", health.health);
    instance.addProperty("OperationalStatus", VDArrayValues::uint16s({health.operational}));
    instance.addProperty("StatusDescriptions", VDArrayValues::strings({_statusText}));

    FixedStateProperties::enabled(instance);
    instance.addProperty("Dedicated", VDArrayValues::uint16s({3, 15}));
    return instance;
}

void QLN_VDArraySystem::manageDynamic(bool indicationsEnabled, CmpiCpp::CmpiContext const&) {
    _logger.info("manageDynamic()");
    if (indicationsEnabled) {
        _logger.info("indications enabled");
    }
    int status = statusOk;
    std::string text = textOk;

    // Everything comes from the stored snapshots: the consolidated status must
    // agree with what getInstance of the devices shows in the same pass.
    VeldraControllerData data;
    _controller->getLastVDData(data);
    controllerOperationalStatusEnum controllerStatus;
    if (data.getControllerOperationalStatus(controllerStatus) != 0) {
        status = statusUnknown;
        text = textUnknown;
    } else if (controllerStatus == controllerOk || controllerStatus == controllerNotReported) {
        // fine
    } else if (controllerStatus == controllerDegraded) {
        status = statusDegraded;
        text = textControllerProblem;
    } else {
        status = statusFailed;
        text = textControllerFailure;
    }

    // A failure always takes over; a problem applies only while nothing worse
    // is known, so the first problem keeps the text.
    std::vector<VeldraLogicalDisk> logicals;
    _controller->getLastLogicalDisks(logicals);
    for (auto const& logical : logicals) {
        // Compared signed, as the hardware may hand back any bit pattern.
        long long value = static_cast<int>(logical.getStatus());
        if (value == logicalOk) {
            continue;
        }
        if (value == logicalFailed) {
            status = statusFailed;
            text = textLogicalFailure;
        } else if (value >= logicalProblemFloor) {
            if (status == statusOk || status == statusUnknown) {
                status = statusDegraded;
                text = textLogicalProblem;
            }
        } else if (status == statusOk) {
            // Unknown is weaker than any problem: it lowers only a clean status.
            status = statusUnknown;
            text = textUnknown;
        }
    }

    for (auto const& enclosure : _controller->getLastAllEnclosures()) {
        u32 value = enclosure.getOverallStatus();
        if (value == enclosureOk) {
            continue;
        }
        if (value == enclosureFailed) {
            status = statusFailed;
            text = textEnclosureFailure;
        } else if (status == statusOk || status == statusUnknown) {
            status = statusDegraded;
            text = textEnclosureProblem;
        }
    }

    // A single disk never fails the array: redundancy is the volumes' business.
    for (auto const& disk : _controller->getLastAllPhysicalDisks()) {
        u32 value = disk.getStatus();
        if (value == physicalOk || value == physicalRebuilding) {
            continue;
        }
        if (status == statusOk || status == statusUnknown) {
            status = statusDegraded;
            text = textPhysicalProblem;
        }
    }

    if (status != _status) {
        _logger.info("Array System status changed. Old: %d New %d", _status, status);
        if (indicationsEnabled) {
            // The devices' own indications tell clients; this class only logs.
            _logger.info("Send Array System Status changed indication");
        }
        _status = status;
        _statusText = text;
    }
}

unsigned int QLN_VDArraySystem::invokeMethod(CmpiCpp::CmpiName const& method,
                                             CmpiCpp::CmpiArgs const& in) {
    std::optional<u32> const duration = IdentifyArguments::duration(method, in, _logger);
    if (!duration)
        return CmpiManagedInstance::methodNotFound;
    int identified = _controller->identifyAllPhysicalDisks(*duration);
    return identified >= 0 ? 0 : methodFailed;
}

} // namespace QLN
