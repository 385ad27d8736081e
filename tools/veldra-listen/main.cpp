// veldra-listen: a CIM-XML indication listener that prints each indication it
// receives on one line (or as a JSON object per line with --json).
//   veldra-listen [--listen ADDR] [--port N] [--json] [--count N]
//                 [--subscribe http://cimom:5988 [--filter QUERY] [--name NAME]]
#include "IndicationPrinter.h"
#include "Subscriber.h"

#include <CLI/CLI.hpp>
#include <httplib.h>

#include <unistd.h>

#include <atomic>
#include <chrono>
#include <csignal>
#include <ctime>
#include <fstream>
#include <iostream>
#include <mutex>
#include <optional>
#include <regex>
#include <thread>

namespace {

std::string now() {
    auto at = std::chrono::system_clock::now();
    std::time_t seconds = std::chrono::system_clock::to_time_t(at);
    auto millis =
        std::chrono::duration_cast<std::chrono::milliseconds>(at.time_since_epoch()).count() % 1000;
    std::tm tm{};
    gmtime_r(&seconds, &tm);
    char text[40];
    std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%S", &tm);
    char out[48];
    std::snprintf(out, sizeof out, "%s.%03dZ", text, static_cast<int>(millis));
    return out;
}

httplib::Server* running = nullptr;

} // namespace

int main(int argc, char** argv) {
    CLI::App app{
        "Receives CIM indications (CIM-XML ExportIndication over HTTP) and prints one line each."};
    std::string listen = "127.0.0.1", portFile, cimom, filter = "SELECT * FROM CIM_AlertIndication",
                name, user, password, sourceNamespace, advertised;
    int port = 5990;
    long count = 0;
    bool json = false;
    app.add_option("--listen", listen, "address to listen on")->capture_default_str();
    app.add_option("--port", port, "port to listen on; 0 picks a free one")
        ->check(CLI::Range(0, 65535))
        ->capture_default_str();
    app.add_option("--port-file", portFile, "write the listening port to this file once listening");
    app.add_flag("--json", json, "one JSON object per line");
    app.add_option("--count", count, "exit after this many indications")
        ->check(CLI::PositiveNumber);
    app.add_option("--subscribe", cimom,
                   "object manager to subscribe with, e.g. http://127.0.0.1:5988");
    app.add_option("--filter", filter, "the subscription's query")->capture_default_str();
    app.add_option("--source-namespace", sourceNamespace,
                   "the namespace whose indications are wanted (default all)");
    app.add_option("--name", name,
                   "name of the filter and destination made (default veldra-listen-<port>)");
    app.add_option("--user", user, "user for the object manager");
    app.add_option("--password", password, "password for the object manager");
    app.add_option("--url", advertised,
                   "the URL the object manager should send to (default http://<listen>:<port>/)");
    CLI11_PARSE(app, argc, argv);
    if (!cimom.empty() && !std::regex_match(cimom, std::regex("^https?://[^/]+/?$"))) {
        std::cerr << "veldra-listen: --subscribe needs http(s)://host:port, not " << cimom << "\n";
        return 2;
    }

    IndicationPrinter printer(json);
    httplib::Server server;
    std::mutex outputMutex;
    std::atomic<long> received{0};
    server.Post(".*", [&](httplib::Request const& request, httplib::Response& response) {
        std::string messageId = "0";
        std::smatch m;
        if (std::regex_search(request.body, m, std::regex(R"re(<MESSAGE\s+ID="([^"]*)")re")))
            messageId = m[1];
        try {
            std::string line = printer.line(request.body, now());
            std::lock_guard lock(outputMutex);
            std::cout << line << std::endl;
        } catch (std::invalid_argument const& e) {
            std::cerr << "veldra-listen: refused a request from " << request.remote_addr << ": "
                      << e.what() << "\n";
            response.set_content(IndicationPrinter::response(messageId, e.what()),
                                 "application/xml; charset=\"utf-8\"");
            response.set_header("CIMExport", "MethodResponse");
            return;
        }
        response.set_content(IndicationPrinter::response(messageId),
                             "application/xml; charset=\"utf-8\"");
        response.set_header("CIMExport", "MethodResponse");
        if (count > 0 && ++received >= count)
            std::thread([&server] { server.stop(); }).detach();
    });

    int bound = port == 0 ? server.bind_to_any_port(listen.c_str())
                          : (server.bind_to_port(listen.c_str(), port) ? port : -1);
    if (bound < 0) {
        std::cerr << "veldra-listen: cannot listen on " << listen << ":" << port << "\n";
        return 1;
    }
    if (!portFile.empty()) {
        std::ofstream(portFile + ".tmp") << bound << "\n";
        std::rename((portFile + ".tmp").c_str(), portFile.c_str());
    }
    std::cerr << "veldra-listen: listening on http://" << listen << ":" << bound << "/"
              << std::endl;

    std::optional<Subscriber> subscriber;
    if (!cimom.empty()) {
        if (cimom.back() == '/')
            cimom.pop_back();
        subscriber.emplace(cimom, user, password);
        if (name.empty())
            name = "veldra-listen-" + std::to_string(bound);
        if (advertised.empty())
            advertised = "http://" + listen + ":" + std::to_string(bound) + "/";
        try {
            subscriber->subscribe(name, filter, advertised, sourceNamespace);
            std::cerr << "veldra-listen: subscribed to \"" << filter << "\" at " << cimom << " as "
                      << name << std::endl;
        } catch (std::exception const& e) {
            std::cerr << "veldra-listen: " << e.what() << "\n";
            return 1;
        }
    }

    running = &server;
    std::signal(SIGINT, [](int) { running->stop(); });
    std::signal(SIGTERM, [](int) { running->stop(); });
    server.listen_after_bind();
    if (subscriber)
        subscriber->unsubscribe();
    return 0;
}
