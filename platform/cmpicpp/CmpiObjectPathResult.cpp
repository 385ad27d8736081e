#include "CmpiObjectPathResult.h"

namespace CmpiCpp {

CmpiObjectPathResult::~CmpiObjectPathResult() = default;

} // namespace CmpiCpp
