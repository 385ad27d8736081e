#include "MWAlertIndication.h"

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <net/if.h>
#include <netinet/in.h>

namespace QLN {

namespace {

std::string hostAddress() {
    ifaddrs* list = nullptr;
    if (::getifaddrs(&list) != 0) {
        return "127.0.0.1";
    }
    std::string v4;
    std::string v6;
    for (ifaddrs* entry = list; entry != nullptr; entry = entry->ifa_next) {
        if (entry->ifa_addr == nullptr || (entry->ifa_flags & IFF_UP) == 0 ||
            (entry->ifa_flags & IFF_LOOPBACK) != 0) {
            continue;
        }
        char text[INET6_ADDRSTRLEN] = {};
        if (entry->ifa_addr->sa_family == AF_INET && v4.empty()) {
            auto const* address = reinterpret_cast<sockaddr_in const*>(entry->ifa_addr);
            if (::inet_ntop(AF_INET, &address->sin_addr, text, sizeof text) != nullptr) {
                v4 = text;
            }
        } else if (entry->ifa_addr->sa_family == AF_INET6 && v6.empty()) {
            auto const* address = reinterpret_cast<sockaddr_in6 const*>(entry->ifa_addr);
            if (::inet_ntop(AF_INET6, &address->sin6_addr, text, sizeof text) != nullptr) {
                v6 = text;
            }
        }
    }
    ::freeifaddrs(list);
    if (!v4.empty()) {
        return v4;
    }
    return v6.empty() ? std::string("127.0.0.1") : v6;
}

} // namespace

MWAlertIndication::MWAlertIndication(Logger& logger, std::string const& className,
                                     std::string const& nameSpace, int indicationNumber)
    : CIMAlertIndication(logger, className, nameSpace) {
    _set("IndicationNumber", indicationNumber);
}

void MWAlertIndication::setSummary(std::string const& text) {
    _set("Summary", text);
}

void MWAlertIndication::setEventCategory(int category) {
    _set("EventCategory", static_cast<unsigned short>(category));
}

void MWAlertIndication::setProbableCause(int cause) {
    _set("ProbableCause", static_cast<unsigned short>(cause));
}

void MWAlertIndication::setProbableCauseDescription(std::string const& text) {
    _set("ProbableCauseDescription", text);
}

// The request context carries no address of ours: the object manager may
// have been reached over loopback. The host's own interfaces tell.
void MWAlertIndication::setNetworkIPAddress(CmpiCpp::CmpiContext const&) {
    _set("NetworkIPAddress", hostAddress());
}

void MWAlertIndication::setHWLogicalLocation(std::string const& text) {
    _set("HWLogicalLocation", text);
}

void MWAlertIndication::setHWPhysicalLocation(std::string const& text) {
    _set("HWPhysicalLocation", text);
}

void MWAlertIndication::setDeviceControllerLogicalLocation(std::string const& text) {
    _set("DeviceControllerLogicalLocation", text);
}

void MWAlertIndication::setHWFirmwareVersion(std::string const& text) {
    _set("HWFirmwareVersion", text);
}

void MWAlertIndication::setHWManufacturer(std::string const& text) {
    _set("HWManufacturer", text);
}

void MWAlertIndication::setHWSerialNumber(std::string const& text) {
    _set("HWSerialNumber", text);
}

void MWAlertIndication::setDeviceModel(std::string const& text) {
    _set("DeviceModel", text);
}

} // namespace QLN
