#include "DiskFirmwareIdentity.h"

#include "CmpiBroker.h"
#include "QLNUtil.h"
#include "VDArrayValues.h"
#include "VersionProperties.h"

namespace {
char const* const notFound =
    "getInstance, findPhysicalDiskInVector could not find drive based on serial #";
// CIM_SoftwareIdentity.Classifications: 10 is "Firmware".
unsigned short const firmwareClassification = 10;
} // namespace

namespace QLN {

DiskFirmwareIdentity::DiskFirmwareIdentity(Logger& logger, std::string const& nameSpace,
                                           char const* className, char const* title,
                                           char const* statusText, unsigned int controllerIndex,
                                           VeldraPhysicalDisk const& disk,
                                           VeldraController* controller)
    : DiskCompanion(logger, nameSpace, className, controllerIndex, disk, controller), _title(title),
      _statusText(statusText) {}

std::string DiskFirmwareIdentity::_instanceId() const {
    return std::string("MWQ:") + _cimClassName() + "-" + _identityTail();
}

CmpiCpp::CmpiObjectPath DiskFirmwareIdentity::getPath() const {
    return _pathByKey("InstanceID", _instanceId());
}

CmpiCpp::CmpiInstance DiskFirmwareIdentity::getInstance() const {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, getPath());
    VeldraPhysicalDisk const disk = _findDisk(notFound);
    instance.addProperty("InstanceID", _instanceId());
    instance.addProperty("Caption", _title);
    instance.addProperty("Name", _title);
    instance.addProperty("Description", _title);
    instance.addProperty("IsEntity", true);
    instance.addProperty("Manufacturer", disk.getManufacturer());
    instance.addProperty("Classifications", VDArrayValues::uint16s({firmwareClassification}));
    instance.addProperty("ClassificationDescriptions", VDArrayValues::strings({_title}));
    instance.addProperty("OperationalStatus", VDArrayValues::uint16s({2}));
    instance.addProperty("StatusDescriptions", VDArrayValues::strings({_statusText}));
    instance.addProperty("HealthState", static_cast<unsigned short>(5));

    std::string const version = _version(disk);
    VersionProperties::add(instance, version);

    std::string const model = disk.getModel();
    instance.addProperty("ElementName", _title);
    VersionProperties::addIdentityInfo(instance, model, model, "Storage Device");
    return instance;
}

} // namespace QLN
