#pragma once
// A light wrapper of an indication filter's select expression, as the object
// manager passes it to the indication operations. It owns nothing.
#include "cmpift.h"
#include <string>

namespace CmpiCpp {

class CmpiSelectExp {
public:
    CmpiSelectExp() = default;
    CmpiSelectExp(CMPISelectExp const* exp) : _exp(exp) {}

    CMPISelectExp const* toCMPI() const { return _exp; }
    bool isNull() const { return _exp == nullptr; }
    // The query text of the filter; empty if there is none.
    std::string str() const;

private:
    CMPISelectExp const* _exp = nullptr;
};

} // namespace CmpiCpp
