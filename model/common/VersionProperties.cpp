#include "VersionProperties.h"

#include "QLNUtil.h"
#include "VDArrayValues.h"

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

void VersionProperties::addIdentityInfo(CmpiCpp::CmpiInstance& instance,
                                        std::string const& targetType, std::string const& family,
                                        char const* category) {
    instance.addProperty("TargetTypes", VDArrayValues::strings({targetType}));
    instance.addProperty("IdentityInfoType",
                         VDArrayValues::strings({"CIM:SoftwareFamily", "MWQ:SoftwareCategory"}));
    instance.addProperty("IdentityInfoValue", VDArrayValues::strings({family, category}));
}

} // namespace QLN
