#include "VersionProperties.h"

#include "QLNUtil.h"

namespace QLN {

void VersionProperties::add(CmpiCpp::CmpiInstance& instance, std::string const& version) {
    instance.addProperty("VersionString", version);
    if (!QLNUtil::validateVersion(version))
        return;
    unsigned short major = 0;
    unsigned short minor = 0;
    if (QLNUtil::stringVersionToMajor(version, major))
        instance.addProperty("MajorVersion", major);
    if (QLNUtil::stringVersionToMinor(version, minor))
        instance.addProperty("MinorVersion", minor);
}

} // namespace QLN
