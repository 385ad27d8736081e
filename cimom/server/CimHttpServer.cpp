#include "CimHttpServer.h"

#include "PasswordFile.h"
#include "ServerLog.h"

#include <httplib.h>
#include <chrono>
#include <malloc.h>
#include <openssl/evp.h>

#include <stdexcept>

namespace {

constexpr const char* realmHeader = "Basic realm=\"veldra-cimd\"";

std::optional<std::string> headerOf(const httplib::Request& request, const char* name) {
    if (!request.has_header(name)) return std::nullopt;
    return request.get_header_value(name);
}

bool decodeBase64(const std::string& in, std::string& out) {
    if (in.empty() || in.size() % 4 != 0 || in.size() > 4096) return false;
    std::string buffer(in.size() / 4 * 3, '\0');
    int n = EVP_DecodeBlock(reinterpret_cast<unsigned char*>(buffer.data()),
                            reinterpret_cast<const unsigned char*>(in.data()), static_cast<int>(in.size()));
    if (n < 0) return false;
    // EVP_DecodeBlock counts padding as data; drop one byte per '='.
    size_t pad = 0;
    if (in.back() == '=') ++pad;
    if (in.size() > 1 && in[in.size() - 2] == '=') ++pad;
    buffer.resize(static_cast<size_t>(n) - pad);
    out = std::move(buffer);
    return true;
}

}  // namespace

CimHttpServer::CimHttpServer(Settings settings, Handler handler)
    : _settings(std::move(settings)), _handler(std::move(handler)) {
    if (!_settings.certFile.empty()) {
        auto ssl = std::make_unique<httplib::SSLServer>(_settings.certFile.c_str(), _settings.keyFile.c_str());
        if (!ssl->is_valid())
            throw std::runtime_error("cannot use certificate " + _settings.certFile + " with key " + _settings.keyFile);
        _server = std::move(ssl);
    } else {
        _server = std::make_unique<httplib::Server>();
    }
    size_t threads = _settings.threads == 0 ? 1 : _settings.threads;
    _server->new_task_queue = [threads] { return new httplib::ThreadPool(threads); };
    _server->set_payload_max_length(_settings.maxBodyBytes);
    _server->set_read_timeout(_settings.timeoutSeconds, 0);
    _server->set_write_timeout(_settings.timeoutSeconds, 0);
    _server->set_keep_alive_timeout(5);
    // wbemcli and load tools reuse one connection for many requests.
    _server->set_keep_alive_max_count(1000);
    // Headers and body go out in separate writes; without this, delayed ACKs
    // add about 40 ms to every answer on a kept-alive connection.
    _server->set_tcp_nodelay(true);
    _server->Post("/cimom", [this](const httplib::Request& request, httplib::Response& response) {
        _serve(request, response);
    });
    // CIM operations come only as POST; say so rather than "not found".
    auto onlyPost = [](const httplib::Request&, httplib::Response& response) {
        response.status = 405;
        response.set_header("Allow", "POST");
    };
    _server->Get("/cimom", onlyPost);
    _server->Put("/cimom", onlyPost);
    _server->Delete("/cimom", onlyPost);
    _server->set_error_handler([](const httplib::Request&, httplib::Response& response) {
        if (response.status == 413) ServerLog::warn("refused oversized request");
    });
}

CimHttpServer::~CimHttpServer() = default;

bool CimHttpServer::isLoopback(const std::string& address) {
    return address == "localhost" || address == "::1" || address.rfind("127.", 0) == 0;
}

bool CimHttpServer::_authorized(const httplib::Request& request) const {
    if (!_settings.users) return true;
    std::string value = request.get_header_value("Authorization");
    if (value.size() < 6 || strncasecmp(value.c_str(), "Basic ", 6) != 0) return false;
    std::string decoded;
    if (!decodeBase64(value.substr(6), decoded)) return false;
    auto colon = decoded.find(':');
    if (colon == std::string::npos) return false;
    return _settings.users->verify(decoded.substr(0, colon), decoded.substr(colon + 1));
}

void CimHttpServer::_serve(const httplib::Request& request, httplib::Response& response) {
    // Checked here rather than before routing: by now the body has been read
    // (within the size limit), so a refused request leaves a clean
    // connection that a client may reuse with credentials.
    if (request.headers.size() > _settings.maxHeaders) {
        response.status = 431;
        ServerLog::warn("refused request with " + std::to_string(request.headers.size()) + " headers");
        return;
    }
    if (!_authorized(request)) {
        response.status = 401;
        response.set_header("WWW-Authenticate", realmHeader);
        ServerLog::warn("refused request from " + request.remote_addr + ": bad or missing credentials");
        return;
    }
    CimHttpExchange exchange;
    exchange.cimOperation = headerOf(request, "CIMOperation");
    exchange.cimMethod = headerOf(request, "CIMMethod");
    exchange.cimObject = headerOf(request, "CIMObject");
    exchange.cimProtocolVersion = headerOf(request, "CIMProtocolVersion");
    exchange.contentType = headerOf(request, "Content-Type");
    exchange.body = request.body;
    ++_inFlight;
    try {
        _handler(exchange);
    } catch (const std::exception& e) {
        // The handler answers every CIM failure itself; this is the last guard.
        ServerLog::error(std::string("request failed: ") + e.what());
        exchange.status = 500;
        exchange.responseBody.clear();
        exchange.cimError.clear();
    }
    _releaseFreedMemory(exchange.responseBody.size());
    response.status = exchange.status;
    if (!exchange.cimError.empty()) response.set_header("CIMError", exchange.cimError);
    if (exchange.status == 200) {
        response.set_header("CIMOperation", "MethodResponse");
        // Answers run to megabytes: the body moves rather than being copied.
        response.body = std::move(exchange.responseBody);
        response.set_header("Content-Type", "application/xml; charset=\"utf-8\"");
    } else if (!exchange.responseBody.empty()) {
        response.body = std::move(exchange.responseBody);
        response.set_header("Content-Type", "text/plain");
    }
}

void CimHttpServer::_releaseFreedMemory(std::size_t answerBytes) {
    // A large answer leaves tens of megabytes freed in this thread's malloc
    // arena, which glibc keeps for reuse; with eight request threads the
    // process would hold several such peaks (measured: 1.4 GiB resident after
    // every class of the 16 x 256 scenario, 0.4 GiB of it live). Handing it
    // back costs about 20 ms, so under steady load it happens once a second,
    // and otherwise when the last request in flight is done.
    constexpr std::size_t largeAnswer = 1 << 20;
    constexpr std::int64_t interval = 1000;
    const bool last = _inFlight.fetch_sub(1) == 1;
    if (answerBytes < largeAnswer) return;
    const std::int64_t now = std::chrono::duration_cast<std::chrono::milliseconds>(
                                 std::chrono::steady_clock::now().time_since_epoch())
                                 .count();
    std::int64_t previous = _lastTrimMs.load();
    if (!last && now - previous < interval) return;
    if (!_lastTrimMs.compare_exchange_strong(previous, now)) return;  // another thread is at it
    malloc_trim(0);
}

int CimHttpServer::bind() {
    int port = _settings.port;
    if (port == 0) {
        port = _server->bind_to_any_port(_settings.listen.c_str());
        if (port < 0) throw std::runtime_error("cannot bind " + _settings.listen);
    } else if (!_server->bind_to_port(_settings.listen.c_str(), port)) {
        throw std::runtime_error("cannot bind " + _settings.listen + ":" + std::to_string(port));
    }
    return port;
}

void CimHttpServer::run() { _server->listen_after_bind(); }

void CimHttpServer::stop() { _server->stop(); }
