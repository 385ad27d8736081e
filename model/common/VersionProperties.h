#pragma once
// VersionString of a software identity, with MajorVersion and MinorVersion
// only when the text parses: a version the parser does not accept still
// shows as text, and the numbers appear only when they are trustworthy.
#include "CmpiInstance.h"

#include <string>

namespace QLN {

class VersionProperties {
public:
    static void add(CmpiCpp::CmpiInstance& instance, std::string const& version);
    // TargetTypes, and the software family and category as IdentityInfoType
    // and IdentityInfoValue, which every firmware identity carries.
    static void addIdentityInfo(CmpiCpp::CmpiInstance& instance, std::string const& targetType,
                                std::string const& family, char const* category);
};

} // namespace QLN
