#include "CmpiManagedInstanceMultiAssociation.h"

namespace QLN {

CmpiManagedInstanceMultiAssociation::CmpiManagedInstanceMultiAssociation() = default;

CmpiManagedInstanceMultiAssociation::~CmpiManagedInstanceMultiAssociation() = default;

} // namespace QLN
