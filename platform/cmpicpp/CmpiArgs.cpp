#include "CmpiArgs.h"

#include "CmpiStatus.h"

#include <algorithm>

namespace CmpiCpp {

void CmpiArgs::setArg(CmpiName const& name, CmpiData const& value) {
    for (auto& arg : _args) {
        if (arg.first == name) {
            arg.second = value;
            return;
        }
    }
    _args.emplace_back(name, value);
}

bool CmpiArgs::hasArg(CmpiName const& name) const {
    return std::any_of(_args.begin(), _args.end(), [&](auto const& a) { return a.first == name; });
}

CmpiData const& CmpiArgs::getArg(std::string const& name) const {
    return getArg(CmpiName(name));
}

CmpiData const& CmpiArgs::getArg(char const* name) const {
    return getArg(CmpiName(name));
}

CmpiData const& CmpiArgs::getArg(CmpiName const& name) const {
    for (auto const& arg : _args)
        if (arg.first == name)
            return arg.second;
    throw CmpiStatus(CMPI_RC_ERR_INVALID_PARAMETER, "missing argument " + name.str());
}

CmpiName const& CmpiArgs::getArgNameAt(unsigned int index) const {
    if (index >= _args.size())
        throw CmpiStatus(CMPI_RC_ERR_NOT_FOUND, "no argument at index " + std::to_string(index));
    return _args[index].first;
}

CmpiData const& CmpiArgs::getArgAt(unsigned int index) const {
    if (index >= _args.size())
        throw CmpiStatus(CMPI_RC_ERR_NOT_FOUND, "no argument at index " + std::to_string(index));
    return _args[index].second;
}

} // namespace CmpiCpp
