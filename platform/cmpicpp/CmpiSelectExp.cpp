#include "CmpiSelectExp.h"

#include "CmpiConvert.h"

namespace CmpiCpp {

std::string CmpiSelectExp::str() const {
    if (!_exp || !_exp->ft || !_exp->ft->getString)
        return std::string();
    return CmpiConvert::fromCMPI(_exp->ft->getString(_exp, nullptr));
}

} // namespace CmpiCpp
