#include "QLN_PCIDevice.h"

#include "CmpiArray.h"
#include "CmpiBroker.h"
#include "IdentityHelpers.h"
#include "QLNUtil.h"
#include "cmpidt.h"

using CmpiCpp::CmpiBroker;
using CmpiCpp::CmpiInstance;
using CmpiCpp::CmpiObjectPath;

namespace {
char const* const className = "QLN_PCIDevice";
}

namespace QLN {

QLN_PCIDevice::QLN_PCIDevice(Logger& logger, std::string const& nameSpace,
                             VeldraController* controller)
    : _namespace(nameSpace), _logger(logger), _controller(controller),
      _path(makePCIDevicePath(controller->getVDData())) {
    _logger.appendLogSource(":");
    _logger.appendLogSource(className);
    _logger.info("cxtor()");
}

QLN_PCIDevice::~QLN_PCIDevice() {
    _logger.info("dxtor()");
}

CmpiObjectPath QLN_PCIDevice::getPath() const {
    CmpiObjectPath path = _path;
    path.setNameSpace(_namespace);
    return path;
}

CmpiInstance QLN_PCIDevice::getInstance() const {
    CmpiBroker const broker(QLNUtil::getBroker());
    CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, getPath());
    VeldraControllerData const data = _controller->getVDData();

    std::string model;
    std::string maker;
    bool const hasModel = data.getModel(model) == 0 && !model.empty();
    bool const hasMaker = data.getManufacturer(maker) == 0 && !maker.empty();
    std::string name = hasMaker ? maker : std::string();
    if (hasModel) {
        name += (name.empty() ? "" : " ") + model;
    }
    if (!name.empty()) {
        instance.addProperty("ElementName", name);
        instance.addProperty("Name", name);
    }
    instance.addProperty("Caption", "RAID controller PCI function");
    instance.addProperty("Description", "The PCI function of a Veldra array controller.");

    VeldraControllerPCIInfo pci;
    if (data.getPCIInfo(pci) == 0) {
        instance.addProperty("BusNumber", static_cast<unsigned char>(pci.bus));
        instance.addProperty("DeviceNumber", static_cast<unsigned char>(pci.device));
        instance.addProperty("FunctionNumber", static_cast<unsigned char>(pci.function));
    }
    int slot = 0;
    if (data.getPCISlotNumber(slot) == 0) {
        CmpiCpp::CmpiArray where = CmpiCpp::makeCmpiArray(broker, 1, CMPI_string);
        where.setElementAt(0, "PCI slot " + std::to_string(slot));
        instance.addProperty("OtherIdentifyingInfo", where);
    }
    return instance;
}

CmpiCpp::CmpiName QLN_PCIDevice::getClassName() const {
    return className;
}

} // namespace QLN
