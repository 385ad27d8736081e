#pragma once

#include "CimHttpExchange.h"

#include <functional>
#include <atomic>
#include <cstdint>
#include <memory>
#include <string>

namespace httplib {
class Server;
struct Request;
struct Response;
}  // namespace httplib

class PasswordFile;

// HTTP(S) front of veldra-cimd: one POST route, authentication, size, header
// and time limits, a worker pool. The CIM-XML work is the handler's.
class CimHttpServer {
public:
    struct Settings {
        std::string listen = "127.0.0.1";
        int port = 5988;
        std::string certFile;
        std::string keyFile;
        size_t threads = 8;
        size_t maxBodyBytes = 4 * 1024 * 1024;
        size_t maxHeaders = 64;
        int timeoutSeconds = 30;
        const PasswordFile* users = nullptr;  // null: no authentication
    };
    using Handler = std::function<void(CimHttpExchange&)>;

    CimHttpServer(Settings settings, Handler handler);
    ~CimHttpServer();

    // Binds the socket; returns the port (the chosen one when 0 was asked).
    // Throws std::runtime_error when the address cannot be bound.
    int bind();
    // Serves until stop(); in-flight requests finish before it returns.
    void run();
    void stop();

    static bool isLoopback(const std::string& address);

private:
    bool _authorized(const httplib::Request& request) const;
    void _serve(const httplib::Request& request, httplib::Response& response);
    void _releaseFreedMemory(std::size_t answerBytes);

    Settings _settings;
    Handler _handler;
    std::unique_ptr<httplib::Server> _server;
    std::atomic<int> _inFlight{0};
    std::atomic<std::int64_t> _lastTrimMs{0};
};
