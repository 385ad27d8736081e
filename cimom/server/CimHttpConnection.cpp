#include "CimHttpConnection.h"

#include "CimOperationError.h"
#include "FreedMemory.h"
#include "PasswordFile.h"
#include "ServerLog.h"

#include <openssl/evp.h>

#include <algorithm>
#include <cctype>
#include <strings.h>

namespace Cimom {

namespace asio = boost::asio;
namespace beast = boost::beast;
namespace http = beast::http;

namespace {

constexpr char const* realmHeader = "Basic realm=\"veldra-cimd\"";
constexpr size_t headerBytesLimit = 16 * 1024;
// What a refused client may still send before the socket closes: reading it
// lets the refusal arrive instead of being cut by a reset.
constexpr size_t lingerBytes = 1 << 20;
constexpr auto lingerTime = std::chrono::seconds(2);

template <class Stream> constexpr bool isTls = !std::is_same_v<Stream, beast::tcp_stream>;

std::optional<std::string> headerOf(http::request<http::string_body> const& request,
                                    char const* name) {
    auto found = request.find(name);
    if (found == request.end())
        return std::nullopt;
    return std::string(found->value());
}

bool decodeBase64(std::string const& in, std::string& out) {
    if (in.empty() || in.size() % 4 != 0 || in.size() > 4096)
        return false;
    std::string buffer(in.size() / 4 * 3, '\0');
    int n = EVP_DecodeBlock(reinterpret_cast<unsigned char*>(buffer.data()),
                            reinterpret_cast<unsigned char const*>(in.data()),
                            static_cast<int>(in.size()));
    if (n < 0)
        return false;
    // EVP_DecodeBlock counts padding as data; drop one byte per '='.
    size_t pad = 0;
    if (in.back() == '=')
        ++pad;
    if (in.size() > 1 && in[in.size() - 2] == '=')
        ++pad;
    buffer.resize(static_cast<size_t>(n) - pad);
    out = std::move(buffer);
    return true;
}

// What marks an HTTP answer as a CIM operation's, whole or in parts.
void markCimAnswer(http::fields& fields) {
    fields.set("CIMOperation", "MethodResponse");
    fields.set(http::field::content_type, "application/xml; charset=\"utf-8\"");
}

http::response<http::string_body> responseOf(CimHttpExchange&& exchange) {
    http::response<http::string_body> response;
    response.result(static_cast<unsigned>(exchange.status));
    if (!exchange.cimError.empty())
        response.set("CIMError", exchange.cimError);
    if (exchange.status == 200) {
        markCimAnswer(response);
        // Answers run to megabytes: the body moves rather than being copied.
        response.body() = std::move(exchange.responseBody);
    } else if (!exchange.responseBody.empty()) {
        response.set(http::field::content_type, "text/plain");
        response.body() = std::move(exchange.responseBody);
    }
    return response;
}

} // namespace

CimHttpServer::Shared::Shared(Settings const& s, Handler h)
    : settings(s), handler(std::move(h)), workers(s.threads == 0 ? 1 : s.threads) {}

bool CimHttpServer::Shared::admit(std::string const& client, std::string& refusal) {
    std::lock_guard lock(mutex);
    if (stopping) {
        refusal = "shutting down";
        return false;
    }
    if (connections >= settings.maxConnections) {
        refusal = std::to_string(connections) + " connections open (limit " +
                  std::to_string(settings.maxConnections) + ")";
        return false;
    }
    size_t& mine = perClient[client];
    if (mine >= settings.maxConnectionsPerClient) {
        refusal = std::to_string(mine) + " connections from this client (limit " +
                  std::to_string(settings.maxConnectionsPerClient) + ")";
        return false;
    }
    ++mine;
    ++connections;
    return true;
}

void CimHttpServer::Shared::release(std::string const& client) {
    std::lock_guard lock(mutex);
    --connections;
    auto found = perClient.find(client);
    if (found != perClient.end() && --found->second == 0)
        perClient.erase(found);
}

std::uint64_t CimHttpServer::Shared::started(std::string description) {
    std::lock_guard lock(mutex);
    running.emplace(nextRequest, std::move(description));
    return nextRequest++;
}

void CimHttpServer::Shared::finished(std::uint64_t id) {
    std::lock_guard lock(mutex);
    running.erase(id);
    if (running.empty())
        allFinished.notify_all();
}

// A large answer leaves megabytes freed in a worker's malloc arena, which
// glibc keeps for reuse; with eight workers the process would hold several
// such peaks. Handing them back costs about 20 ms and makes the next answer
// fault its pages in again, so it waits until no large answer has been made
// for a moment: a busy server keeps its memory, an idle one gives it back.
void CimHttpServer::Shared::trimWhenQuiet(std::size_t answerBytes) {
    constexpr std::size_t largeAnswer = 1 << 20;
    constexpr auto quiet = std::chrono::milliseconds(300);
    if (answerBytes < largeAnswer)
        return;
    asio::post(trimStrand, [this, quiet] {
        // Setting the expiry cancels the wait before, so one trim follows the last answer.
        trimTimer.expires_after(quiet);
        trimTimer.async_wait([this](beast::error_code ec) {
            if (ec)
                return;
            asio::post(workers, [] { giveBackFreedMemory(); });
        });
    });
}

bool CimHttpServer::Shared::authorized(std::string const& value) const {
    if (!settings.users)
        return true;
    if (value.size() < 6 || strncasecmp(value.c_str(), "Basic ", 6) != 0)
        return false;
    std::string decoded;
    if (!decodeBase64(value.substr(6), decoded))
        return false;
    auto colon = decoded.find(':');
    if (colon == std::string::npos)
        return false;
    return settings.users->verify(decoded.substr(0, colon), decoded.substr(colon + 1));
}

template <class Stream>
CimHttpConnection<Stream>::CimHttpConnection(Stream stream, CimHttpServer::Shared& shared,
                                             std::string client)
    : _stream(std::move(stream)), _shared(shared), _client(std::move(client)) {}

template <class Stream> CimHttpConnection<Stream>::~CimHttpConnection() {
    if (_answering)
        _shared.finished(*_answering);
    _shared.release(_client);
}

template <class Stream> void CimHttpConnection<Stream>::start() {
    if constexpr (isTls<Stream>) {
        _socket().expires_after(std::chrono::seconds(_shared.settings.timeoutSeconds));
        _stream.async_handshake(asio::ssl::stream_base::server,
                                [self = this->shared_from_this()](beast::error_code ec) {
                                    if (ec)
                                        return self->_close();
                                    self->_awaitRequest();
                                });
    } else {
        _awaitRequest();
    }
}

// The wait for a request is bounded by the idle time; once its first bytes
// are in, the whole request must follow within the request time.
template <class Stream> void CimHttpConnection<Stream>::_awaitRequest() {
    if (_buffer.size() > 0)
        return _readHeader(); // pipelined behind the last one
    _socket().expires_after(std::chrono::seconds(_shared.settings.idleSeconds));
    _stream.async_read_some(_buffer.prepare(4096),
                            [self = this->shared_from_this()](beast::error_code ec, std::size_t n) {
                                if (ec)
                                    return self->_close();
                                self->_buffer.commit(n);
                                self->_readHeader();
                            });
}

template <class Stream> void CimHttpConnection<Stream>::_readHeader() {
    _parser.emplace();
    _parser->header_limit(headerBytesLimit);
    // Checked against Content-Length as soon as it is read, before any body.
    _parser->body_limit(_shared.settings.maxBodyBytes);
    _socket().expires_after(std::chrono::seconds(_shared.settings.timeoutSeconds));
    http::async_read_header(_stream, _buffer, *_parser,
                            [self = this->shared_from_this()](beast::error_code ec, std::size_t) {
                                self->_onHeader(ec);
                            });
}

template <class Stream> void CimHttpConnection<Stream>::_onHeader(beast::error_code ec) {
    if (ec == http::error::body_limit)
        return _refuse(http::status::payload_too_large, "oversized request");
    if (ec == http::error::header_limit)
        return _refuse(http::status::request_header_fields_too_large, "oversized header");
    if (ec == beast::error::timeout) {
        ServerLog::warn("dropped a connection from " + _client + ": request not complete within " +
                        std::to_string(_shared.settings.timeoutSeconds) + " s");
        return _close();
    }
    if (ec == http::error::end_of_stream || ec == asio::error::eof ||
        ec == asio::error::connection_reset || ec == asio::error::operation_aborted)
        return _close();
    if (ec)
        return _refuse(http::status::bad_request, "malformed request: " + ec.message());

    auto const& header = _parser->get();
    size_t const fields = static_cast<size_t>(std::distance(header.begin(), header.end()));
    if (fields > _shared.settings.maxHeaders)
        return _refuse(http::status::request_header_fields_too_large,
                       "request with " + std::to_string(fields) + " headers");
    // Two lengths, even equal ones, are how requests get smuggled past a proxy
    // that reads the other one.
    if (header.count(http::field::content_length) > 1)
        return _refuse(http::status::bad_request, "request with two Content-Length headers");
    if (beast::iequals(header[http::field::expect], "100-continue") && !_parser->is_done()) {
        asio::async_write(_stream, asio::buffer(_continue, std::strlen(_continue)),
                          [self = this->shared_from_this()](beast::error_code ec, std::size_t) {
                              if (ec)
                                  return self->_close();
                              self->_readBody();
                          });
        return;
    }
    _readBody();
}

template <class Stream> void CimHttpConnection<Stream>::_readBody() {
    http::async_read(_stream, _buffer, *_parser,
                     [self = this->shared_from_this()](beast::error_code ec, std::size_t) {
                         self->_onBody(ec);
                     });
}

template <class Stream> void CimHttpConnection<Stream>::_onBody(beast::error_code ec) {
    if (ec == http::error::body_limit)
        return _refuse(http::status::payload_too_large, "oversized request");
    if (ec == beast::error::timeout) {
        ServerLog::warn("dropped a connection from " + _client + ": request not complete within " +
                        std::to_string(_shared.settings.timeoutSeconds) + " s");
        return _close();
    }
    if (ec == http::error::end_of_stream || ec == asio::error::eof ||
        ec == asio::error::connection_reset || ec == asio::error::operation_aborted)
        return _close();
    if (ec)
        return _refuse(http::status::bad_request, "malformed request: " + ec.message());
    _dispatch(_parser->release());
}

template <class Stream> void CimHttpConnection<Stream>::_dispatch(Request request) {
    bool const close = !request.keep_alive();
    std::string_view target = request.target();
    target = target.substr(0, target.find('?'));
    if (target != "/cimom") {
        Response response{http::status::not_found, 11};
        return _answer(std::move(response), close);
    }
    if (request.method() != http::verb::post) {
        // CIM operations come only as POST; say so rather than "not found".
        Response response{http::status::method_not_allowed, 11};
        response.set(http::field::allow, "POST");
        return _answer(std::move(response), close);
    }
    if (!_shared.authorized(std::string(request[http::field::authorization]))) {
        ServerLog::warn("refused request from " + _client + ": bad or missing credentials");
        Response response{http::status::unauthorized, 11};
        response.set(http::field::www_authenticate, realmHeader);
        // The body has been read, so the client may retry on this connection.
        return _answer(std::move(response), close);
    }
    CimHttpExchange exchange;
    exchange.cimOperation = headerOf(request, "CIMOperation");
    exchange.cimMethod = headerOf(request, "CIMMethod");
    exchange.cimObject = headerOf(request, "CIMObject");
    exchange.cimProtocolVersion = headerOf(request, "CIMProtocolVersion");
    exchange.contentType = headerOf(request, "Content-Type");
    exchange.body = std::move(request.body());
    exchange.client = _client;

    std::uint64_t id =
        _shared.started(exchange.cimMethod.value_or("(no method)") + " on " +
                        exchange.cimObject.value_or("(no object)") + " from " + _client);
    _socket().expires_never();
    // HTTP/1.1 clients read chunked answers; a long answer then goes out as
    // it is written instead of being held whole.
    bool const inParts = request.version() >= 11;
    _parts.reset();
    if (inParts) {
        _parts.emplace();
        _parts->close = close;
        std::string te(request[http::field::te]);
        std::transform(te.begin(), te.end(), te.begin(),
                       [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
        _parts->trailers = te.find("trailers") != std::string::npos;
    }
    asio::post(_shared.workers, [self = this->shared_from_this(), exchange = std::move(exchange),
                                 id, close, inParts]() mutable {
        std::size_t partBytes = 0;
        if (inParts) {
            exchange.sendPart = [&self, &partBytes](std::string&& part) {
                partBytes += part.size();
                asio::post(self->_stream.get_executor(), [self, part = std::move(part)]() mutable {
                    self->_queuePart(std::move(part));
                });
            };
        }
        try {
            self->_shared.handler(exchange);
        } catch (std::exception const& e) {
            // The handler answers every CIM failure itself; this is the last guard.
            ServerLog::error(std::string("request failed: ") + e.what());
            exchange.status = 500;
            exchange.responseBody.clear();
            exchange.cimError.clear();
            if (partBytes > 0 && exchange.failedAfterParts == 0) {
                exchange.failedAfterParts = CimOperationError::failed;
                exchange.failedDescription = "request failed";
            }
        }
        exchange.sendPart = nullptr;
        std::size_t const bytes = partBytes + exchange.responseBody.size();
        if (partBytes > 0) {
            asio::post(self->_stream.get_executor(),
                       [self, rest = std::move(exchange.responseBody),
                        failed = exchange.failedAfterParts,
                        description = std::move(exchange.failedDescription), id]() mutable {
                           self->_answering = id;
                           self->_endParts(std::move(rest), failed, std::move(description));
                       });
        } else {
            Response response = responseOf(std::move(exchange));
            asio::post(self->_stream.get_executor(),
                       [self, response = std::move(response), id, close]() mutable {
                           self->_parts.reset();
                           self->_answering = id;
                           self->_answer(std::move(response), close);
                       });
        }
        self->_shared.trimWhenQuiet(bytes);
    });
}

template <class Stream> void CimHttpConnection<Stream>::_queuePart(std::string part) {
    if (!_parts || _parts->broken)
        return;
    if (!_parts->header) {
        bool stopping;
        {
            std::lock_guard lock(_shared.mutex);
            stopping = _shared.stopping;
        }
        _parts->close = _parts->close || stopping;
        auto& header = _parts->header.emplace(http::status::ok, 11);
        markCimAnswer(header);
        if (_parts->trailers)
            header.set(http::field::trailer, "CIMStatusCode, CIMStatusCodeDescription");
        header.keep_alive(!_parts->close);
        header.chunked(true);
        _parts->serializer.emplace(header);
    }
    _parts->queue.push_back(std::move(part));
    _pumpParts();
}

template <class Stream>
void CimHttpConnection<Stream>::_endParts(std::string rest, int failed, std::string description) {
    if (!_parts)
        return _close();
    if (!rest.empty())
        _parts->queue.push_back(std::move(rest));
    _parts->ending = true;
    _parts->failed = failed;
    _parts->description = std::move(description);
    _pumpParts();
}

template <class Stream> void CimHttpConnection<Stream>::_pumpParts() {
    Parts& parts = *_parts;
    if (parts.writing)
        return;
    if (parts.broken) {
        if (parts.ending)
            _partsDone(false);
        return;
    }
    auto done = [self = this->shared_from_this()](beast::error_code ec, std::size_t) {
        Parts& parts = *self->_parts;
        parts.writing = false;
        parts.inFlight = std::string();
        if (ec) {
            parts.broken = true;
            parts.queue.clear();
        }
        parts.headerSent = true;
        self->_pumpParts();
    };
    _socket().expires_after(std::chrono::seconds(_shared.settings.timeoutSeconds));
    if (!parts.headerSent) {
        parts.writing = true;
        return http::async_write_header(_stream, *parts.serializer, std::move(done));
    }
    if (!parts.queue.empty()) {
        parts.writing = true;
        parts.inFlight = std::move(parts.queue.front());
        parts.queue.pop_front();
        return asio::async_write(_stream, http::make_chunk(asio::buffer(parts.inFlight)),
                                 std::move(done));
    }
    if (!parts.ending)
        return;
    if (parts.failed != 0 && !parts.trailers) {
        // Without a trailer the failure cannot be told; the answer is cut
        // short, so that the client cannot take a part for the whole.
        ServerLog::warn("cut an answer to " + _client + " short: " + std::to_string(parts.failed) +
                        " " + parts.description);
        return _partsDone(false);
    }
    if (parts.trailers) {
        parts.trailer.set("CIMStatusCode", std::to_string(parts.failed));
        if (parts.failed != 0) {
            // A field value ends at a line break; one in the text would add
            // fields of its own.
            std::string description = parts.description;
            std::replace_if(
                description.begin(), description.end(),
                [](unsigned char c) { return c < 0x20 || c == 0x7F; }, ' ');
            parts.trailer.set("CIMStatusCodeDescription", description);
        }
    }
    parts.writing = true;
    asio::async_write(_stream, http::make_chunk_last(parts.trailer),
                      [self = this->shared_from_this()](beast::error_code ec, std::size_t) {
                          self->_partsDone(!ec);
                      });
}

template <class Stream> void CimHttpConnection<Stream>::_partsDone(bool whole) {
    bool const keep = whole && !_parts->close;
    _parts.reset();
    if (_answering)
        _shared.finished(*std::exchange(_answering, std::nullopt));
    if (!keep)
        return _close();
    _awaitRequest();
}

template <class Stream> void CimHttpConnection<Stream>::_answer(Response response, bool close) {
    {
        std::lock_guard lock(_shared.mutex);
        close = close || _shared.stopping;
    }
    response.version(11);
    response.keep_alive(!close);
    response.prepare_payload();
    _response = std::make_shared<Response>(std::move(response));
    _socket().expires_after(std::chrono::seconds(_shared.settings.timeoutSeconds));
    http::async_write(
        _stream, *_response, [self = this->shared_from_this()](beast::error_code ec, std::size_t) {
            bool const keep = !ec && self->_response->keep_alive();
            self->_response.reset();
            if (self->_answering)
                self->_shared.finished(*std::exchange(self->_answering, std::nullopt));
            if (!keep)
                return self->_close();
            self->_awaitRequest();
        });
}

template <class Stream>
void CimHttpConnection<Stream>::_refuse(http::status status, std::string const& why) {
    ServerLog::warn("refused " + why + " from " + _client);
    _answer(Response{status, 11}, true);
}

// Half-close, then read and drop what the client still sends for a moment:
// closing with unread input would reset the connection and could destroy the
// answer before the client reads it.
template <class Stream> void CimHttpConnection<Stream>::_close() {
    beast::error_code ignored;
    _socket().socket().shutdown(asio::ip::tcp::socket::shutdown_send, ignored);
    _socket().expires_after(lingerTime);
    _linger(0);
}

template <class Stream> void CimHttpConnection<Stream>::_linger(std::size_t drained) {
    // Read into the buffer's spare room and never commit: the bytes are dropped.
    _socket().async_read_some(_buffer.prepare(16384), [self = this->shared_from_this(), drained](
                                                          beast::error_code ec, std::size_t n) {
        if (ec || drained + n > lingerBytes) {
            beast::error_code ignored;
            self->_socket().socket().close(ignored);
            return;
        }
        self->_linger(drained + n);
    });
}

template class CimHttpConnection<beast::tcp_stream>;
template class CimHttpConnection<beast::ssl_stream<beast::tcp_stream>>;

} // namespace Cimom
