#include "VeldraAssociation.h"

#include "CmpiArray.h"
#include "CmpiBroker.h"
#include "QLNUtil.h"
#include "cmpidt.h"

using CmpiCpp::CmpiBroker;
using CmpiCpp::CmpiInstance;
using CmpiCpp::CmpiName;
using CmpiCpp::CmpiObjectPath;

namespace QLN {

VeldraAssociation::VeldraAssociation(Shape const& shape, Logger& logger,
                                     std::string const& nameSpace, CmpiManagedInstance* firstEnd,
                                     CmpiManagedInstance* secondEnd)
    : _shape(shape), _namespace(nameSpace), _logger(logger), _firstEnd(firstEnd),
      _secondEnd(secondEnd) {
    _announce();
}

VeldraAssociation::VeldraAssociation(Shape const& shape, Logger& logger,
                                     std::string const& nameSpace, CmpiObjectPath const& firstEnd,
                                     CmpiManagedInstance* secondEnd)
    : _shape(shape), _namespace(nameSpace), _logger(logger),
      _firstEndPath(std::make_unique<CmpiObjectPath>(firstEnd)), _secondEnd(secondEnd) {
    _announce();
}

VeldraAssociation::~VeldraAssociation() {
    _logger.info("dxtor()");
}

void VeldraAssociation::_announce() {
    _logger.appendLogSource(":");
    _logger.appendLogSource(_shape.className);
    _logger.info("cxtor()");
}

CmpiObjectPath VeldraAssociation::_firstPath() const {
    return _firstEndPath ? *_firstEndPath : _firstEnd->getPath();
}

CmpiObjectPath VeldraAssociation::getPath() const {
    CmpiBroker const broker(QLNUtil::getBroker());
    CmpiObjectPath path = CmpiCpp::makeCmpiObjectPath(broker, _namespace, _shape.className);
    path.setHost(QLNUtil::getHostName());
    switch (_shape.writtenFirst) {
    case WrittenFirst::FirstEnd:
        path.addKey(_shape.firstRole, _firstPath());
        path.addKey(_shape.secondRole, _secondEnd->getPath());
        break;
    case WrittenFirst::SecondEnd:
        path.addKey(_shape.secondRole, _secondEnd->getPath());
        path.addKey(_shape.firstRole, _firstPath());
        break;
    }
    return path;
}

CmpiInstance VeldraAssociation::getInstance() const {
    CmpiBroker const broker(QLNUtil::getBroker());
    // The two references are the path's keys, and an instance starts with
    // its keys as properties in the path's order: the ends are asked for
    // their paths once, not twice.
    CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, getPath());
    _addExtraProperties(instance);
    return instance;
}

CmpiName VeldraAssociation::getClassName() const {
    return _shape.className;
}

CmpiObjectPath VeldraAssociation::otherEnd(CmpiObjectPath const& end) const {
    CmpiObjectPath const first = _firstPath();
    CmpiObjectPath const second = _secondEnd->getPath();
    // The end whose role is written second is tried first; that decides only
    // when both ends share one path.
    switch (_shape.writtenFirst) {
    case WrittenFirst::FirstEnd:
        if (end == second) {
            return first;
        }
        if (end == first) {
            return second;
        }
        break;
    case WrittenFirst::SecondEnd:
        if (end == first) {
            return second;
        }
        if (end == second) {
            return first;
        }
        break;
    }
    return CmpiCpp::makeCmpiObjectPath(CmpiBroker(QLNUtil::getBroker()));
}

void VeldraAssociation::_addExtraProperties(CmpiInstance&) const {}

void VeldraAssociation::_addFirmwarePairProperties(CmpiInstance& instance) {
    CmpiBroker const broker(QLNUtil::getBroker());
    CmpiCpp::CmpiArray status = CmpiCpp::makeCmpiArray(broker, 2, CMPI_uint16);
    status.setElementAt(0, static_cast<unsigned short>(2)); // Current
    status.setElementAt(1, static_cast<unsigned short>(6)); // Installed
    instance.addProperty("ElementSoftwareStatus", status);
    instance.addProperty("UpgradeCondition", static_cast<unsigned short>(3)); // Not Applicable
}

} // namespace QLN
