#include "CmpiMethodResult.h"

namespace CmpiCpp {

CmpiMethodResult::~CmpiMethodResult() = default;

} // namespace CmpiCpp
