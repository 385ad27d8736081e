#pragma once

#include <stdexcept>
#include <string>

// A request the server refuses before any operation runs: answered with an
// HTTP status and a CIMError header instead of a CIM-XML ERROR element.
class CimProtocolError : public std::runtime_error {
public:
    CimProtocolError(int httpStatus, std::string cimError, const std::string& what)
        : std::runtime_error(what), _httpStatus(httpStatus), _cimError(std::move(cimError)) {}

    int httpStatus() const { return _httpStatus; }
    const std::string& cimError() const { return _cimError; }

private:
    int _httpStatus;
    std::string _cimError;
};
