#pragma once

#include "CimHttpExchange.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Cimom {

class PasswordFile;

// HTTP(S) front of veldra-cimd: one POST route, authentication, size,
// header, time and connection limits, a worker pool. The CIM-XML work is the
// handler's.
//
// Connections are served by a few event-driven I/O threads; only a request
// that has arrived whole goes to a worker. So a client that sends slowly, or
// keeps a connection open and says nothing, holds a socket but never a
// worker, and it is cut off by a deadline. How many sockets one client and
// all clients together may hold is bounded; a connection beyond a bound is
// refused at once with 503.
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
        int timeoutSeconds = 30; // to receive a whole request, and to send an answer
        int idleSeconds = 5;     // to wait for a request on an open connection
        size_t maxConnections = 512;
        size_t maxConnectionsPerClient = 64;
        int shutdownGraceSeconds = 10;       // for requests still running at stop()
        PasswordFile const* users = nullptr; // null: no authentication
    };
    using Handler = std::function<void(CimHttpExchange&)>;

    CimHttpServer(Settings settings, Handler handler);
    ~CimHttpServer();

    // Binds the socket; returns the port (the chosen one when 0 was asked).
    // Throws std::runtime_error when the address cannot be bound.
    int bind();
    // Serves until stop(). True when every running request finished within
    // the grace time; false leaves them running (see stuckRequests()), and
    // the caller should not wait for them.
    bool run();
    void stop();
    // What the requests still running are: method, object and client.
    std::vector<std::string> stuckRequests() const;

    // Whether the address names this host's loopback, by value, not by text.
    static bool isLoopback(std::string const& address);

    struct Shared;

private:
    void _accept();

    Settings _settings;
    std::unique_ptr<Shared> _shared;
};

} // namespace Cimom
