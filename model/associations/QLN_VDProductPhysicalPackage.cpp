#include "QLN_VDProductPhysicalPackage.h"

namespace {
char const* const className = "QLN_VDProductPhysicalPackage";
}

namespace QLN {

QLN_VDProductPhysicalPackage::QLN_VDProductPhysicalPackage(Logger& logger,
                                                           std::string const& nameSpace,
                                                           CmpiManagedInstance* product,
                                                           CmpiManagedInstance* physicalPackage)
    : VeldraAssociation({className, "GroupComponent", "PartComponent", WrittenFirst::FirstEnd},
                        logger, nameSpace, product, physicalPackage) {}

} // namespace QLN
