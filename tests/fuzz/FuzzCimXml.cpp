// One CIM-XML request through the operation handler, with the shipped classes
// and the instance operations in place but no provider loaded.
//
// Input: flags byte, CIMMethod line, CIMObject line, then the body. The
// header lines let the fuzzer get past the header checks into dispatch.
// Any exception that escapes handle() is a finding: the server would turn it
// into a bare 500 instead of a CIM error the client can read.
#include "CimHttpExchange.h"
#include "CimOperationHandler.h"
#include "CimXmlWriter.h"
#include "ClassRepository.h"
#include "InstanceOperations.h"
#include "ProviderManager.h"
#include "ServerLog.h"

#include <pugixml.hpp>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

using namespace Cimom;

namespace {

struct Server {
    ClassRepository classes;
    std::unique_ptr<ProviderManager> providers;
    std::unique_ptr<InstanceOperations> instances;
    std::unique_ptr<CimOperationHandler> handler;

    Server() {
        classes.loadDirectory(VELDRA_DATA_DIR "/mof", "root/mwq");
        classes.resolve();
        ProviderManager::Options options;
        options.classIsA = [this](std::string const& ns, std::string const& cls,
                                  std::string const& base) { return classes.isA(ns, cls, base); };
        options.log = [](int, std::string const&) {};
        providers = std::make_unique<ProviderManager>(options);
        instances = std::make_unique<InstanceOperations>(classes, *providers);
        handler = std::make_unique<CimOperationHandler>(classes, CimOperationHandler::Settings{});
        instances->registerWith(*handler);
    }
};

std::string takeLine(std::string& rest) {
    size_t nl = rest.find('\n');
    std::string line = rest.substr(0, nl);
    rest = nl == std::string::npos ? "" : rest.substr(nl + 1);
    return line;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(uint8_t const* data, size_t size) {
    static Server* server = [] {
        ServerLog::setLevel(ServerLog::Level::Error);
        return new Server();
    }();
    if (size < 1)
        return 0;
    uint8_t const flags = data[0];
    std::string rest(reinterpret_cast<char const*>(data + 1), size - 1);

    CimHttpExchange exchange;
    exchange.cimOperation = (flags & 1) ? "methodcall" : "MethodCall";
    exchange.cimMethod = takeLine(rest);
    exchange.cimObject = takeLine(rest);
    if (flags & 2)
        exchange.cimProtocolVersion = (flags & 4) ? "2.0" : "1.0";
    if (flags & 8)
        exchange.contentType = (flags & 16) ? "text/plain" : "application/xml; charset=utf-8";
    if (flags & 32)
        exchange.cimMethod.reset();
    exchange.body = std::move(rest);

    try {
        server->handler->handle(exchange);
    } catch (std::exception const& e) {
        std::fprintf(stderr, "escaped handle(): %s\n", e.what());
        std::abort();
    }
    if (exchange.status == 200) {
        // Whatever the request held, the answer must be a document the client can parse.
        pugi::xml_document doc;
        if (!doc.load_buffer(exchange.responseBody.data(), exchange.responseBody.size())) {
            std::fprintf(stderr, "malformed answer: %s\n", exchange.responseBody.c_str());
            std::abort();
        }
        // pugixml does not check characters; a client's parser does.
        if (CimXmlWriter::xmlSafe(exchange.responseBody) != exchange.responseBody) {
            std::fprintf(stderr, "answer holds text that is not XML: %s\n",
                         exchange.responseBody.c_str());
            std::abort();
        }
    } else if (exchange.cimError.empty() && exchange.status != 500) {
        std::fprintf(stderr, "refusal %d without CIMError\n", exchange.status);
        std::abort();
    }
    return 0;
}
