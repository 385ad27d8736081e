#pragma once

#include <functional>
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

    // Set by the server when the answer may go out in parts (chunked): each
    // call sends the next part of the body, the first one with a 200 header.
    // What is left when the handler returns goes in responseBody.
    std::function<void(std::string&&)> sendPart;
    // A failure after parts went out can no longer replace the answer with
    // an error: the answer ends with this code instead (0: none).
    int failedAfterParts = 0;
    std::string failedDescription;
};

} // namespace Cimom
