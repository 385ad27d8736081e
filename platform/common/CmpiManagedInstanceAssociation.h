#pragma once
// Base of the two-ended association classes. The reference keys of getPath()
// name the roles; otherEnd() walks from one end to the other.
#include "CmpiManagedInstance.h"

namespace QLN {

class CmpiManagedInstanceAssociation : public CmpiManagedInstance {
public:
    CmpiManagedInstanceAssociation();
    ~CmpiManagedInstanceAssociation() override;

    // The path at the other end, or an empty path when `end` is neither end.
    virtual CmpiCpp::CmpiObjectPath otherEnd(CmpiCpp::CmpiObjectPath const& end) const = 0;
};

} // namespace QLN
