#pragma once
// A light wrapper of the call context the object manager passes with each
// request. It owns nothing.
#include "cmpift.h"

namespace CmpiCpp {

class CmpiContext {
public:
    CmpiContext() = default;
    CmpiContext(CMPIContext const* context) : _context(context) {}

    CMPIContext const* toCMPI() const { return _context; }
    bool isNull() const { return _context == nullptr; }

private:
    CMPIContext const* _context = nullptr;
};

} // namespace CmpiCpp
