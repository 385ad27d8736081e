#pragma once
// The framework's alert: a CIM alert with the hardware's identity and the
// number under which the indication database knows the event. Each setter
// fills the property of its own name.
#include "CIMAlertIndication.h"
#include "CmpiContext.h"

namespace QLN {

class MWAlertIndication : public CIMAlertIndication {
public:
    MWAlertIndication(Logger& logger, std::string const& className, std::string const& nameSpace,
                      int indicationNumber);

    void setSummary(std::string const& text);
    void setEventCategory(int category);
    void setProbableCause(int cause);
    void setProbableCauseDescription(std::string const& text);
    // The address under which management stations reach this host: the
    // first IPv4 address of an interface that is up and not loopback, else
    // the first such IPv6 address, else the loopback address.
    void setNetworkIPAddress(CmpiCpp::CmpiContext const& context);
    void setHWLogicalLocation(std::string const& text);
    void setHWPhysicalLocation(std::string const& text);
    void setDeviceControllerLogicalLocation(std::string const& text);
    void setHWFirmwareVersion(std::string const& text);
    void setHWManufacturer(std::string const& text);
    void setHWSerialNumber(std::string const& text);
    void setDeviceModel(std::string const& text);
};

} // namespace QLN
