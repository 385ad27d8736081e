#pragma once
// The arguments of an extrinsic method call, by name (without regard to case).
#include "CmpiData.h"
#include "CmpiName.h"
#include <string>
#include <utility>
#include <vector>

namespace CmpiCpp {

class CmpiArgs {
public:
    CmpiArgs() = default;

    // Adding a name that is there already replaces its value in place.
    void setArg(CmpiName const& name, CmpiData const& value);
    void addArg(CmpiName const& name, CmpiData const& value) { setArg(name, value); }

    bool hasArg(CmpiName const& name) const;
    // A missing argument throws CmpiStatus(CMPI_RC_ERR_INVALID_PARAMETER, <name>).
    CmpiData const& getArg(std::string const& name) const;
    CmpiData const& getArg(char const* name) const;
    CmpiData const& getArg(CmpiName const& name) const;

    unsigned int getArgCount() const { return static_cast<unsigned int>(_args.size()); }
    // Index at or past getArgCount() throws CmpiStatus(CMPI_RC_ERR_NOT_FOUND).
    CmpiName const& getArgNameAt(unsigned int index) const;
    CmpiData const& getArgAt(unsigned int index) const;

private:
    std::vector<std::pair<CmpiName, CmpiData>> _args;
};

} // namespace CmpiCpp
