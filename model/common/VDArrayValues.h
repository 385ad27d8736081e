#pragma once
// Small CIM array values built in one call; most properties of the model are
// one- or two-element arrays of fixed values.
#include "CmpiArray.h"

#include <initializer_list>
#include <string>

namespace QLN {

class VDArrayValues {
public:
    static CmpiCpp::CmpiArray uint16s(std::initializer_list<unsigned short> values);
    static CmpiCpp::CmpiArray strings(std::initializer_list<std::string> values);
};

} // namespace QLN
