#pragma once
// Base of associations with more than two ends.
#include "CmpiManagedInstance.h"

#include <vector>

namespace QLN {

class CmpiManagedInstanceMultiAssociation : public CmpiManagedInstance {
public:
    CmpiManagedInstanceMultiAssociation();
    ~CmpiManagedInstanceMultiAssociation() override;

    // The paths of the other ends, in the order of their roles; empty when
    // `end` is none of the ends. A non-empty `resultRole` keeps only the end
    // that plays that role.
    virtual std::vector<CmpiCpp::CmpiObjectPath>
    otherEnd(CmpiCpp::CmpiObjectPath const& end,
             CmpiCpp::CmpiName const& resultRole = {}) const = 0;
};

} // namespace QLN
