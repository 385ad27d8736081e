#include "CmpiInstanceResult.h"

namespace CmpiCpp {

CmpiInstanceResult::~CmpiInstanceResult() = default;

} // namespace CmpiCpp
