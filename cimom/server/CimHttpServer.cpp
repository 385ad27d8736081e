#include "CimHttpServer.h"

#include "CimHttpConnection.h"
#include "ServerLog.h"

#include <sys/resource.h>

#include <algorithm>
#include <stdexcept>

namespace Cimom {

namespace asio = boost::asio;
namespace beast = boost::beast;
using tcp = asio::ip::tcp;

namespace {

// Two threads move bytes for every connection; the CIM work is the workers'.
constexpr unsigned ioThreadCount = 2;

// Each connection is a descriptor; the soft limit (often 1024) would refuse
// connections long before the configured bound does.
void raiseDescriptorLimit(size_t wanted) {
    rlimit limit{};
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0)
        return;
    rlim_t target = std::min<rlim_t>(limit.rlim_max, static_cast<rlim_t>(wanted));
    if (limit.rlim_cur < target) {
        limit.rlim_cur = target;
        setrlimit(RLIMIT_NOFILE, &limit);
    }
}

asio::ip::address addressOf(std::string const& text) {
    if (text == "localhost")
        return asio::ip::make_address("127.0.0.1");
    return asio::ip::make_address(text);
}

} // namespace

CimHttpServer::CimHttpServer(Settings settings, Handler handler)
    : _settings(std::move(settings)),
      _shared(std::make_unique<Shared>(_settings, std::move(handler))) {
    if (!_settings.certFile.empty()) {
        try {
            auto& tls = _shared->tls.emplace(asio::ssl::context::tls_server);
            tls.set_options(asio::ssl::context::default_workarounds | asio::ssl::context::no_sslv2 |
                            asio::ssl::context::no_sslv3 | asio::ssl::context::no_tlsv1 |
                            asio::ssl::context::no_tlsv1_1);
            tls.use_certificate_chain_file(_settings.certFile);
            tls.use_private_key_file(_settings.keyFile, asio::ssl::context::pem);
        } catch (std::exception const&) {
            throw std::runtime_error("cannot use certificate " + _settings.certFile + " with key " +
                                     _settings.keyFile);
        }
    }
}

CimHttpServer::~CimHttpServer() = default;

bool CimHttpServer::isLoopback(std::string const& text) {
    if (text == "localhost")
        return true;
    boost::system::error_code ec;
    auto address = asio::ip::make_address(text, ec);
    if (ec)
        return false;
    if (address.is_v6() && address.to_v6().is_v4_mapped())
        return asio::ip::make_address_v4(asio::ip::v4_mapped, address.to_v6()).is_loopback();
    return address.is_loopback();
}

int CimHttpServer::bind() {
    raiseDescriptorLimit(_settings.maxConnections + 256);
    auto& acceptor = _shared->acceptor;
    try {
        tcp::endpoint endpoint(addressOf(_settings.listen),
                               static_cast<unsigned short>(_settings.port));
        acceptor.open(endpoint.protocol());
        acceptor.set_option(asio::socket_base::reuse_address(true));
        acceptor.bind(endpoint);
        acceptor.listen(asio::socket_base::max_listen_connections);
    } catch (std::exception const& e) {
        throw std::runtime_error("cannot bind " + _settings.listen + ":" +
                                 std::to_string(_settings.port) + ": " + e.what());
    }
    return acceptor.local_endpoint().port();
}

void CimHttpServer::_accept() {
    _shared->acceptor.async_accept(asio::make_strand(_shared->io), [this](beast::error_code ec,
                                                                          tcp::socket socket) {
        if (ec == asio::error::operation_aborted || !_shared->acceptor.is_open())
            return;
        if (!ec) {
            beast::error_code ignored;
            auto peer = socket.remote_endpoint(ignored);
            std::string client = ignored ? std::string("unknown") : peer.address().to_string();
            std::string refusal;
            if (!_shared->admit(client, refusal)) {
                // Said at once rather than queued: a client told to come back
                // later is better off than one left waiting.
                static constexpr char busy[] =
                    "HTTP/1.1 503 Service Unavailable\r\nContent-Length: 0\r\nRetry-After: "
                    "1\r\nConnection: close\r\n\r\n";
                socket.non_blocking(true, ignored);
                socket.write_some(asio::buffer(busy, sizeof busy - 1), ignored);
                socket.shutdown(tcp::socket::shutdown_send, ignored);
                socket.close(ignored);
                std::lock_guard lock(_shared->mutex);
                auto now = std::chrono::steady_clock::now();
                if (now - _shared->lastRefusalLogged >= std::chrono::seconds(1)) {
                    _shared->lastRefusalLogged = now;
                    ServerLog::warn("refused a connection from " + client + ": " + refusal);
                }
            } else {
                socket.set_option(tcp::no_delay(true), ignored);
                if (_shared->tls) {
                    std::make_shared<CimTlsConnection>(
                        beast::ssl_stream<beast::tcp_stream>(beast::tcp_stream(std::move(socket)),
                                                             *_shared->tls),
                        *_shared, client)
                        ->start();
                } else {
                    std::make_shared<CimPlainConnection>(beast::tcp_stream(std::move(socket)),
                                                         *_shared, client)
                        ->start();
                }
            }
        } else {
            // Out of descriptors and the like: say so, and go on accepting.
            ServerLog::warn("accept failed: " + ec.message());
        }
        _accept();
    });
}

bool CimHttpServer::run() {
    _accept();
    for (unsigned i = 0; i < ioThreadCount; ++i)
        _shared->ioThreads.emplace_back([this] { _shared->io.run(); });
    bool drained = true;
    {
        std::unique_lock lock(_shared->mutex);
        _shared->stopRequested.wait(lock, [this] { return _shared->stopping; });
        // Requests under way are answered before the connections go.
        drained = _shared->allFinished.wait_for(
            lock, std::chrono::seconds(_settings.shutdownGraceSeconds),
            [this] { return _shared->running.empty(); });
    }
    _shared->io.stop();
    for (auto& thread : _shared->ioThreads)
        thread.join();
    _shared->ioThreads.clear();
    if (drained)
        _shared->workers.join();
    return drained;
}

void CimHttpServer::stop() {
    {
        std::lock_guard lock(_shared->mutex);
        _shared->stopping = true;
        _shared->stopRequested.notify_all();
    }
    asio::post(_shared->io, [this] {
        beast::error_code ignored;
        _shared->acceptor.close(ignored);
    });
}

std::vector<std::string> CimHttpServer::stuckRequests() const {
    std::lock_guard lock(_shared->mutex);
    std::vector<std::string> out;
    for (auto const& [id, description] : _shared->running)
        out.push_back(description);
    return out;
}

} // namespace Cimom
