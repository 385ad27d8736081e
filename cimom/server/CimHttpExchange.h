#pragma once

#include <optional>
#include <string>

namespace Cimom {

// What the CIM-XML layer needs from one HTTP request, and what it answers.
// Keeps the operation handler free of the HTTP library.
struct CimHttpExchange {
    std::optional<std::string> cimOperation;
    std::optional<std::string> cimMethod;
    std::optional<std::string> cimObject;
    std::optional<std::string> cimProtocolVersion;
    std::optional<std::string> contentType;
    std::string body;
    std::string client; // the peer's address

    int status = 200;
    std::string cimError; // CIMError header when set
    std::string responseBody;
};

} // namespace Cimom
