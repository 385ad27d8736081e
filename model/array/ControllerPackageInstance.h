#pragma once
// A physical package named after the controller: the array system's
// package and the controller's own one carry the same identity and part
// texts, and differ in what kind of package they are and how they go out.
#include "ControllerManagedInstance.h"

#include <string>

namespace QLN {

class ControllerPackageInstance : public ControllerManagedInstance {
public:
    struct Kind {
        unsigned short packageType;
        // Only for PackageType "Other"; null leaves OtherPackageType out.
        char const* otherPackageType;
        unsigned short removalConditions;
    };
    using KindOf = Kind (*)(VeldraControllerData const&);

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;

protected:
    // description must outlive the instance (the classes pass a literal).
    ControllerPackageInstance(Logger& logger, char const* className, std::string const& nameSpace,
                              unsigned int controllerIndex, VeldraController* controller,
                              KindOf kindOf, char const* description);

private:
    KindOf _kindOf;
    char const* _description;
};

} // namespace QLN
