#pragma once

#include <string>

#include "CimInstance.h"

namespace Cimom {

// Where indications that providers deliver through the broker go. The
// server implements it to reach its listeners; it must be thread-safe, as
// providers deliver from threads of their own.
class IndicationSink {
public:
    virtual ~IndicationSink() = default;
    virtual void deliver(std::string const& nameSpace, CimInstance const& indication) = 0;
};

} // namespace Cimom
