// Long answers go out in chunks as they are written. What a client must be
// able to rely on: the chunks add up to the answer, an HTTP/1.0 client still
// gets one whole body, and a failure after the first chunk never passes for
// a complete answer.
#include "CimHttpServer.h"
#include "RawHttp.h"

#include <gtest/gtest.h>

#include <thread>

using namespace Cimom;

namespace {

// Serves one handler on a free port for the life of the fixture.
class AnswerInParts : public ::testing::Test {
protected:
    void serve(CimHttpServer::Handler handler) {
        CimHttpServer::Settings settings;
        settings.port = 0;
        settings.threads = 2;
        _server = std::make_unique<CimHttpServer>(settings, std::move(handler));
        _port = _server->bind();
        _thread = std::thread([this] { _server->run(); });
    }
    void TearDown() override {
        if (_server) {
            _server->stop();
            _thread.join();
        }
    }
    std::string ask(std::string const& extraHeaders = "", bool http10 = false) {
        std::string request =
            post("EnumerateInstances", body("EnumerateInstances", ""), extraHeaders);
        if (http10)
            request.replace(request.find("HTTP/1.1"), 8, "HTTP/1.0");
        return rawExchange(_port, request);
    }

    std::unique_ptr<CimHttpServer> _server;
    std::thread _thread;
    int _port = 0;
};

struct Chunked {
    std::string head;
    std::string body;
    std::string trailer;
    int chunks = 0;
    bool ended = false; // the last chunk came
};

Chunked decode(std::string const& reply) {
    Chunked out;
    std::size_t at = reply.find("\r\n\r\n");
    out.head = reply.substr(0, at);
    at += 4;
    while (at < reply.size()) {
        std::size_t eol = reply.find("\r\n", at);
        if (eol == std::string::npos)
            break;
        std::size_t const size = std::stoul(reply.substr(at, eol - at), nullptr, 16);
        at = eol + 2;
        if (size == 0) {
            out.ended = true;
            out.trailer = reply.substr(at);
            break;
        }
        if (at + size + 2 > reply.size())
            break;
        out.body += reply.substr(at, size);
        ++out.chunks;
        at += size + 2;
    }
    return out;
}

// Three parts, the rest in the body, and optionally a failure in between.
CimHttpServer::Handler threeParts(int failWith = 0) {
    return [failWith](CimHttpExchange& exchange) {
        if (!exchange.sendPart) {
            exchange.responseBody = "whole";
            return;
        }
        exchange.sendPart(std::string(300000, 'a'));
        exchange.sendPart("b");
        exchange.sendPart("c");
        if (failWith != 0) {
            exchange.failedAfterParts = failWith;
            exchange.failedDescription = "controller gone\r\nX-Forged: 1";
        }
        exchange.responseBody = "end";
    };
}

} // namespace

TEST_F(AnswerInParts, PartsAddUpToTheAnswerAndEndWithAStatusTrailer) {
    serve(threeParts());
    Chunked reply = decode(ask("TE: trailers\r\n"));
    EXPECT_EQ(reply.head.rfind("HTTP/1.1 200", 0), 0u) << reply.head;
    EXPECT_NE(reply.head.find("Transfer-Encoding: chunked"), std::string::npos) << reply.head;
    EXPECT_NE(reply.head.find("CIMOperation: MethodResponse"), std::string::npos);
    EXPECT_EQ(reply.head.find("Content-Length"), std::string::npos);
    EXPECT_EQ(reply.body, std::string(300000, 'a') + "bcend");
    EXPECT_EQ(reply.chunks, 4);
    EXPECT_TRUE(reply.ended);
    EXPECT_NE(reply.trailer.find("CIMStatusCode: 0"), std::string::npos) << reply.trailer;

    // Without TE: trailers the end carries no trailer at all.
    Chunked plain = decode(ask());
    EXPECT_TRUE(plain.ended);
    EXPECT_EQ(plain.trailer, "\r\n");
    EXPECT_EQ(plain.head.find("Trailer:"), std::string::npos);
}

TEST_F(AnswerInParts, AFailureAfterTheFirstPartIsNeverAWholeAnswer) {
    serve(threeParts(6));
    Chunked told = decode(ask("TE: trailers\r\n"));
    EXPECT_TRUE(told.ended);
    EXPECT_NE(told.trailer.find("CIMStatusCode: 6"), std::string::npos) << told.trailer;
    EXPECT_NE(told.trailer.find("CIMStatusCodeDescription: controller gone  X-Forged: 1"),
              std::string::npos)
        << told.trailer;

    // A client that takes no trailers sees the answer cut short.
    Chunked cut = decode(ask());
    EXPECT_FALSE(cut.ended);
    EXPECT_EQ(cut.body.rfind(std::string(300000, 'a'), 0), 0u);
}

TEST_F(AnswerInParts, AnHttp10ClientGetsOneWholeBody) {
    serve(threeParts());
    std::string reply = ask("", true);
    EXPECT_NE(reply.find("Content-Length: 5"), std::string::npos) << reply.substr(0, 300);
    EXPECT_EQ(reply.substr(reply.size() - 5), "whole");
}
