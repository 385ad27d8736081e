#include "CmpiManagedInstanceAssociation.h"

namespace QLN {

CmpiManagedInstanceAssociation::CmpiManagedInstanceAssociation() = default;

CmpiManagedInstanceAssociation::~CmpiManagedInstanceAssociation() = default;

} // namespace QLN
