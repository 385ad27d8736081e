#pragma once
// CIM-XML requests written out by hand and sent over a plain socket, for
// tests of what the HTTP front does with exactly these bytes.

#include <cstddef>
#include <optional>
#include <string>

// Sends `request` and reads until the server closes or `timeoutSeconds` pass
// without data. With `second`, that is sent once the first answer's headers
// are in, as a client retrying on one connection does.
std::string rawExchange(int port, std::string const& request, int timeoutSeconds = 10,
                        std::string const& second = std::string());

// An intrinsic method call on root/mwq with the given parameters.
std::string body(std::string const& method, std::string const& params,
                 std::string const& messageId = "9");

// A POST of `content` with the CIM headers; "Connection: close" unless
// `extraHeaders` says otherwise.
std::string post(std::string const& method, std::string const& content,
                 std::string const& extraHeaders = "",
                 std::optional<size_t> contentLength = std::nullopt);
