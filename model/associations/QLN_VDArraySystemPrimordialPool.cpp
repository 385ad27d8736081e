#include "QLN_VDArraySystemPrimordialPool.h"

namespace {
char const* const className = "QLN_VDArraySystemPrimordialPool";
}

namespace QLN {

QLN_VDArraySystemPrimordialPool::QLN_VDArraySystemPrimordialPool(
    Logger& logger, std::string const& nameSpace, CmpiManagedInstance* arraySystem,
    CmpiManagedInstance* primordialPool)
    : VeldraAssociation({className, "GroupComponent", "PartComponent", WrittenFirst::FirstEnd},
                        logger, nameSpace, arraySystem, primordialPool) {}

} // namespace QLN
