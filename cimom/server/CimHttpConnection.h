#pragma once
// One client connection of CimHttpServer, over plain TCP or TLS. Internal to
// the server; kept apart so the server's header stays free of Boost.

#include "CimHttpServer.h"

// Boost 1.74's asio uses std::exchange without including <utility> under C++20.
#include <utility>

#include <boost/asio.hpp>
#include <boost/asio/ssl.hpp>
#include <boost/beast/core.hpp>
#include <boost/beast/http.hpp>
#include <boost/beast/ssl.hpp>

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

namespace Cimom {

// What every connection of one server shares.
struct CimHttpServer::Shared {
    Shared(Settings const& settings, Handler handler);

    // Counts a new connection of `client`; false when a bound is reached.
    bool admit(std::string const& client, std::string& refusal);
    void release(std::string const& client);

    // Requests handed to a worker and not yet answered, by number.
    std::uint64_t started(std::string description);
    void finished(std::uint64_t id);

    bool authorized(std::string const& authorization) const;

    // After a large answer, hands freed memory back once the server has
    // been without large answers for a moment.
    void trimWhenQuiet(std::size_t answerBytes);

    Settings const& settings;
    Handler handler;

    // Declared before the I/O context: connections still queued there at
    // destruction give their count back here.
    mutable std::mutex mutex;
    std::condition_variable allFinished;
    std::condition_variable stopRequested;
    std::map<std::uint64_t, std::string> running;
    std::uint64_t nextRequest = 0;
    std::map<std::string, size_t> perClient;
    size_t connections = 0;
    std::chrono::steady_clock::time_point lastRefusalLogged{};
    bool stopping = false;

    boost::asio::io_context io;
    boost::asio::ip::tcp::acceptor acceptor{io};
    std::optional<boost::asio::ssl::context> tls;
    boost::asio::thread_pool workers;
    std::vector<std::thread> ioThreads;
    boost::asio::strand<boost::asio::io_context::executor_type> trimStrand{io.get_executor()};
    boost::asio::steady_timer trimTimer{trimStrand};
};

template <class Stream>
class CimHttpConnection : public std::enable_shared_from_this<CimHttpConnection<Stream>> {
public:
    CimHttpConnection(Stream stream, CimHttpServer::Shared& shared, std::string client);
    ~CimHttpConnection();
    void start();

private:
    using Request = boost::beast::http::request<boost::beast::http::string_body>;
    using Response = boost::beast::http::response<boost::beast::http::string_body>;

    auto& _socket() { return boost::beast::get_lowest_layer(_stream); }
    void _awaitRequest();
    void _readHeader();
    void _onHeader(boost::beast::error_code ec);
    void _readBody();
    void _onBody(boost::beast::error_code ec);
    void _dispatch(Request request);
    void _answer(Response response, bool close);
    // An answer in parts (chunked): the header goes with the first part,
    // each part as it comes, and the end (with the status as a trailer when
    // the client takes trailers) once the handler is done.
    void _queuePart(std::string part);
    void _endParts(std::string rest, int failed, std::string description);
    void _pumpParts();
    void _partsDone(bool whole);
    void _refuse(boost::beast::http::status status, std::string const& why);
    void _close();
    void _linger(std::size_t drained);

    Stream _stream;
    CimHttpServer::Shared& _shared;
    std::string _client;
    boost::beast::flat_buffer _buffer;
    std::optional<boost::beast::http::request_parser<boost::beast::http::string_body>> _parser;
    std::shared_ptr<Response> _response;
    std::optional<std::uint64_t> _answering; // the running request being answered
    struct Parts {
        bool close = false;
        bool trailers = false; // the client said it takes them (TE: trailers)
        std::optional<boost::beast::http::response<boost::beast::http::empty_body>> header;
        std::optional<boost::beast::http::response_serializer<boost::beast::http::empty_body>>
            serializer;
        std::deque<std::string> queue;
        std::string inFlight;
        boost::beast::http::fields trailer;
        bool writing = false;
        bool headerSent = false;
        bool ending = false;
        bool broken = false;
        int failed = 0;
        std::string description;
    };
    // Set while a request may answer in parts; only the connection's strand touches it.
    std::optional<Parts> _parts;
    static constexpr char const* _continue = "HTTP/1.1 100 Continue\r\n\r\n";
};

using CimPlainConnection = CimHttpConnection<boost::beast::tcp_stream>;
using CimTlsConnection = CimHttpConnection<boost::beast::ssl_stream<boost::beast::tcp_stream>>;

} // namespace Cimom
