#include "RawHttp.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

// The request says "Connection: close", so the reply ends when the server
// closes. No half-close: the server treats a closed read side as a gone client.
// With a second request, it is sent once the first answer's headers are in
// (the refusals carry no body), as a client retrying on one connection does.
std::string rawExchange(int port, std::string const& request, int timeoutSeconds,
                        std::string const& second) {
    int fd = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in addr{};
    addr.sin_family = AF_INET;
    addr.sin_port = htons(static_cast<uint16_t>(port));
    inet_pton(AF_INET, "127.0.0.1", &addr.sin_addr);
    if (connect(fd, reinterpret_cast<sockaddr*>(&addr), sizeof addr) != 0) {
        close(fd);
        return "";
    }
    timeval tv{timeoutSeconds, 0};
    setsockopt(fd, SOL_SOCKET, SO_RCVTIMEO, &tv, sizeof tv);
    size_t sent = 0;
    while (sent < request.size()) {
        ssize_t n = send(fd, request.data() + sent, request.size() - sent, MSG_NOSIGNAL);
        if (n <= 0)
            break; // the server may refuse before reading everything
        sent += static_cast<size_t>(n);
    }
    std::string reply;
    char buffer[8192];
    ssize_t n = 0;
    if (!second.empty()) {
        while (reply.find("\r\n\r\n") == std::string::npos &&
               (n = recv(fd, buffer, sizeof buffer, 0)) > 0)
            reply.append(buffer, static_cast<size_t>(n));
        send(fd, second.data(), second.size(), MSG_NOSIGNAL);
    }
    while ((n = recv(fd, buffer, sizeof buffer, 0)) > 0)
        reply.append(buffer, static_cast<size_t>(n));
    close(fd);
    return reply;
}

std::string body(std::string const& method, std::string const& params,
                 std::string const& messageId) {
    return "<?xml version=\"1.0\" encoding=\"utf-8\" ?><CIM CIMVERSION=\"2.0\" "
           "DTDVERSION=\"2.0\"><MESSAGE ID=\"" +
           messageId + "\" PROTOCOLVERSION=\"1.0\"><SIMPLEREQ><IMETHODCALL NAME=\"" + method +
           "\"><LOCALNAMESPACEPATH><NAMESPACE NAME=\"root\"/><NAMESPACE "
           "NAME=\"mwq\"/></LOCALNAMESPACEPATH>" +
           params + "</IMETHODCALL></SIMPLEREQ></MESSAGE></CIM>";
}

std::string post(std::string const& method, std::string const& content,
                 std::string const& extraHeaders, std::optional<size_t> contentLength) {
    std::string connection =
        extraHeaders.find("Connection:") == std::string::npos ? "Connection: close\r\n" : "";
    return "POST /cimom HTTP/1.1\r\nHost: localhost\r\nContent-Type: application/xml; "
           "charset=\"utf-8\"\r\n" +
           connection +
           "CIMProtocolVersion: 1.0\r\nCIMOperation: MethodCall\r\nCIMMethod: " + method +
           "\r\nCIMObject: root%2Fmwq\r\n" + extraHeaders +
           "Content-Length: " + std::to_string(contentLength.value_or(content.size())) +
           "\r\n\r\n" + content;
}
