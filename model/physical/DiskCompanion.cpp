#include "DiskCompanion.h"

#include "PhysicalDiskKey.h"

namespace QLN {

DiskCompanion::DiskCompanion(Logger& logger, std::string const& nameSpace, char const* className,
                             unsigned int controllerIndex, VeldraPhysicalDisk const& disk,
                             VeldraController* controller)
    : _namespace(nameSpace), _className(className), _serialNumber(disk.getSerialNumber()),
      _model(disk.getModel()), _boxNumber(disk.getEnclosureBoxNumber()), _bay(disk.getBay()),
      _controllerIndex(controllerIndex), _controller(controller) {
    _logger = logger;
    _logger.appendLogSource(":");
    _logger.appendLogSource(className);
    _logger.info("cxtor()");
}

DiskCompanion::~DiskCompanion() {
    _logger.info("dxtor()");
}

CmpiCpp::CmpiName DiskCompanion::getClassName() const {
    return CmpiCpp::CmpiName(_className);
}

std::string DiskCompanion::_identityTail() const {
    return PhysicalDiskKey::name(_serialNumber, _model, std::to_string(_controllerIndex) + "-",
                                 _boxNumber, _bay);
}

VeldraPhysicalDisk DiskCompanion::_findDisk(char const* failure) const {
    return PhysicalDiskKey::find(_controller, _logger, _serialNumber, _boxNumber, _bay, failure);
}

} // namespace QLN
