#pragma once

#include <stdexcept>
#include <string>

namespace Cimom {

// A request the server refuses before any operation runs: answered with an
// HTTP status and a CIMError header instead of a CIM-XML ERROR element.
class CimProtocolError : public std::runtime_error {
public:
    CimProtocolError(int httpStatus, std::string cimError, std::string const& what)
        : std::runtime_error(what), _httpStatus(httpStatus), _cimError(std::move(cimError)) {}

    int httpStatus() const { return _httpStatus; }
    std::string const& cimError() const { return _cimError; }

private:
    int _httpStatus;
    std::string _cimError;
};

} // namespace Cimom
