#include "QLNUtil.h"

#include "FrameworkConfig.h"

#include <unistd.h>

#include <atomic>
#include <climits>
#include <optional>
#include <vector>

using CmpiCpp::CmpiObjectPath;

namespace QLN {

namespace {

std::atomic<_CMPIBroker const*> storedBroker{nullptr};

char const* const hostNameSpace = "root/mwq";

// The numeric parts of a version, or nullopt when it is not one.
std::optional<std::vector<unsigned short>> versionParts(std::string const& version) {
    std::size_t begin = version.find_first_not_of(" \t");
    if (begin == std::string::npos) {
        return std::nullopt;
    }
    std::size_t end = version.find_last_not_of(" \t") + 1;
    std::string text = version.substr(begin, end - begin);

    std::vector<unsigned short> parts;
    std::size_t at = 0;
    while (true) {
        std::size_t digits = at;
        unsigned long value = 0;
        while (digits < text.size() && text[digits] >= '0' && text[digits] <= '9') {
            value = value * 10 + static_cast<unsigned long>(text[digits] - '0');
            if (value > USHRT_MAX) {
                return std::nullopt;
            }
            ++digits;
        }
        if (digits == at) {
            return std::nullopt;
        }
        parts.push_back(static_cast<unsigned short>(value));
        at = digits;
        if (at == text.size()) {
            break;
        }
        char separator = text[at];
        if (separator == '.' && parts.size() < 3) {
            ++at;
            continue;
        }
        // A build suffix ends the numbers; it must not be empty.
        if ((separator == '-' || separator == '_' || separator == '+' || separator == ' ') &&
            at + 1 < text.size()) {
            break;
        }
        return std::nullopt;
    }
    if (parts.size() < 2) {
        return std::nullopt;
    }
    return parts;
}

bool part(std::string const& version, std::size_t index, unsigned short& value) {
    auto parts = versionParts(version);
    if (!parts || parts->size() <= index) {
        return false;
    }
    value = (*parts)[index];
    return true;
}

} // namespace

void QLNUtil::setBroker(CmpiCpp::CmpiBroker const& broker) {
    storedBroker.store(broker.toCMPI());
}

_CMPIBroker const* QLNUtil::getBroker() {
    return storedBroker.load();
}

std::string QLNUtil::getHostName() {
    try {
        if (auto configured = FrameworkConfig::get("VELDRA_HOSTNAME");
            configured && !configured->empty()) {
            return *configured;
        }
    } catch (std::exception const&) {
        // Called for every path; a broken configuration is reported where it
        // is loaded, and the system's own name stands in meanwhile.
    }
    // Asked once: every path carries the name, and a host renamed while we
    // run would otherwise give one instance two paths.
    static std::string const system = [] {
        char name[HOST_NAME_MAX + 1] = {};
        if (gethostname(name, sizeof name - 1) != 0 || name[0] == '\0') {
            return std::string("localhost");
        }
        return std::string(name);
    }();
    return system;
}

bool QLNUtil::PerfmonEnabled() {
    return FrameworkConfig::getBool("VELDRA_PERFMON", false);
}

bool QLNUtil::HeartBeatIndicationsEnabled() {
    return FrameworkConfig::getBool("VELDRA_HEARTBEAT", false);
}

CmpiObjectPath QLNUtil::getComputerSystemPath() {
    CmpiObjectPath path =
        CmpiCpp::makeCmpiObjectPath(getBroker(), hostNameSpace, "QLN_ComputerSystem");
    std::string host = getHostName();
    path.setHost(host);
    path.addKey("CreationClassName", "QLN_ComputerSystem");
    path.addKey("Name", host);
    return path;
}

CmpiObjectPath QLNUtil::getChassisPath() {
    CmpiObjectPath path = CmpiCpp::makeCmpiObjectPath(getBroker(), hostNameSpace, "QLN_Chassis");
    std::string host = getHostName();
    path.setHost(host);
    path.addKey("CreationClassName", "QLN_Chassis");
    path.addKey("Tag", host);
    return path;
}

void QLNUtil::postStatus(Logger& logger, CmpiCpp::CmpiContext const&,
                         CmpiCpp::CmpiInstance const& status) {
    std::string text;
    for (unsigned int i = 0; i < status.getPropertyCount(); ++i) {
        text += (i ? ", " : "") + status.getPropertyNameAt(i).str() + "=" +
                status.getPropertyAt(i).str();
    }
    logger.info("postStatus %s: %s", status.getClassName().c_str(), text.c_str());
}

bool QLNUtil::validateVersion(std::string const& version) {
    return versionParts(version).has_value();
}

bool QLNUtil::stringVersionToMajor(std::string const& version, unsigned short& value) {
    return part(version, 0, value);
}

bool QLNUtil::stringVersionToMinor(std::string const& version, unsigned short& value) {
    return part(version, 1, value);
}

bool QLNUtil::stringVersionToRevision(std::string const& version, unsigned short& value) {
    return part(version, 2, value);
}

} // namespace QLN
