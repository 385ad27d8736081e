// veldra-cimd: the embedded CIM object manager. Reads the class repository,
// loads the registered providers through CMPI, and serves CIM-XML over HTTP.
#include "CimHttpServer.h"
#include "CimOperationHandler.h"
#include "ClassRepository.h"
#include "FreedMemory.h"
#include "IndicationDispatcher.h"
#include "InstanceOperations.h"
#include "MofError.h"
#include "PasswordFile.h"
#include "ProviderManager.h"
#include "PullOperations.h"
#include "RegistrationFile.h"
#include "ServerLog.h"
#include "SubscriptionOperations.h"
#include "SubscriptionStore.h"

#include <CLI/CLI.hpp>

#include <csignal>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <pthread.h>
#include <thread>
#include <unistd.h>

using namespace Cimom;

// Read by jemalloc when it starts (and ignored by the sanitizer builds, which
// run without it): freed pages go back to the system within seconds, from a
// thread of its own, so an idle server does not keep the peak of its last
// answers or of the scenario's parsing.
extern "C" char const* malloc_conf;
char const* malloc_conf = "background_thread:true,dirty_decay_ms:5000,muzzy_decay_ms:0";

namespace {

std::filesystem::path executableDir() {
    std::error_code ec;
    auto self = std::filesystem::read_symlink("/proc/self/exe", ec);
    return ec ? std::filesystem::current_path() : self.parent_path();
}

// A data file of an installed tree (<prefix>/share/veldra/...) when there is
// one beside this program, else the source tree's.
std::string dataPath(std::string const& relative) {
    auto installed = (executableDir() / ".." / "share" / "veldra" / relative).lexically_normal();
    if (std::filesystem::exists(installed))
        return installed.string();
    return (std::filesystem::path(VELDRA_SOURCE_DATA_DIR) / relative).string();
}

struct Options {
    std::string listen = "127.0.0.1";
    std::optional<int> port;
    std::string portFile;
    std::string config;
    std::string scenario;
    std::string registration = dataPath("registration/veldra-cimd.yaml");
    std::string mofDir = dataPath("mof");
    std::string interopMof = dataPath("interop/Interop.mof");
    std::vector<std::string> mofFiles;
    std::string providerDir;
    std::string users;
    std::string cert;
    std::string key;
    std::string logLevel = "info";
    size_t threads = 8;
    size_t maxBody = 4 * 1024 * 1024;
    size_t maxHeaders = 64;
    int maxDepth = 32;
    int timeout = 30;
    int idle = 5;
    size_t maxConnections = 512;
    size_t maxPerClient = 64;
    int shutdownGrace = 10;
    std::string stateFile;
    int deliveryAttempts = 8;
    int deliveryPauseMs = 500;
};

} // namespace

int main(int argc, char** argv) {
    Options o;
    CLI::App app{"veldra-cimd: CIM-XML object manager for the Veldra provider"};
    app.add_option("--listen", o.listen, "address to listen on (default 127.0.0.1)");
    app.add_option("--port", o.port, "port; 0 picks a free one (default 5988, 5989 with --cert)")
        ->check(CLI::Range(0, 65535));
    app.add_option("--port-file", o.portFile, "write the listening port to this file once serving");
    app.add_option("--config", o.config, "framework configuration file (sets VELDRA_CONFIG)");
    app.add_option("--scenario", o.scenario, "simulated hardware scenario (sets VELDRA_SCENARIO)");
    app.add_option("--registration", o.registration, "provider registration file")
        ->capture_default_str();
    app.add_option("--mof-dir", o.mofDir, "folder of MOF class files")->capture_default_str();
    app.add_option("--interop-mof", o.interopMof,
                   "MOF of the subscription classes in root/interop; empty for none")
        ->capture_default_str();
    app.add_option("--mof", o.mofFiles, "extra MOF file (repeatable)");
    app.add_option("--provider-dir", o.providerDir,
                   "folder of provider libraries (default <bin>/../lib)");
    app.add_option("--users", o.users,
                   "users file for HTTP Basic authentication (see veldra-passwd)");
    app.add_option("--cert", o.cert, "PEM certificate: serve HTTPS");
    app.add_option("--key", o.key, "PEM private key for --cert");
    app.add_option("--log-level", o.logLevel, "error, warn, info or debug")
        ->check(CLI::IsMember({"error", "warn", "info", "debug"}));
    app.add_option("--threads", o.threads, "worker threads")->check(CLI::Range(1, 256));
    app.add_option("--max-body", o.maxBody, "largest request body in bytes")
        ->check(CLI::Range(1024, 1 << 30));
    app.add_option("--max-headers", o.maxHeaders, "most request headers")
        ->check(CLI::Range(8, 1024));
    app.add_option("--max-depth", o.maxDepth, "deepest XML nesting")->check(CLI::Range(8, 1024));
    app.add_option("--timeout", o.timeout,
                   "seconds to receive a whole request, and to send an answer")
        ->check(CLI::Range(1, 3600));
    app.add_option("--idle-timeout", o.idle,
                   "seconds an open connection may wait for its next request")
        ->check(CLI::Range(1, 3600));
    app.add_option("--max-connections", o.maxConnections, "most connections open at once")
        ->check(CLI::Range(1, 100000));
    app.add_option("--max-connections-per-client", o.maxPerClient,
                   "most connections open at once from one address")
        ->check(CLI::Range(1, 100000));
    app.add_option("--shutdown-grace", o.shutdownGrace,
                   "seconds running requests may take to finish at shutdown")
        ->check(CLI::Range(0, 3600));
    app.add_option("--state-file", o.stateFile,
                   "where subscriptions are kept across restarts (default "
                   "<bin>/../var/veldra-cimd/subscriptions.json)");
    app.add_option("--delivery-attempts", o.deliveryAttempts,
                   "sends of one indication to a listener at most")
        ->check(CLI::Range(1, 100));
    app.add_option("--delivery-pause-ms", o.deliveryPauseMs,
                   "pause after a failed send, doubled each time up to 5 s")
        ->check(CLI::Range(1, 60000));
    CLI11_PARSE(app, argc, argv);

    ServerLog::Level level = ServerLog::Level::Info;
    ServerLog::parseLevel(o.logLevel, level);
    ServerLog::setLevel(level);

    if (o.cert.empty() != o.key.empty()) {
        std::cerr << "veldra-cimd: --cert and --key go together\n";
        return 2;
    }
    if (!CimHttpServer::isLoopback(o.listen) && o.users.empty()) {
        std::cerr << "veldra-cimd: listening on " << o.listen << " needs --users (credentials)\n";
        return 2;
    }
    // The framework inside the provider reads these; set them before it loads.
    if (!o.config.empty())
        setenv("VELDRA_CONFIG", std::filesystem::absolute(o.config).c_str(), 1);
    if (!o.scenario.empty())
        setenv("VELDRA_SCENARIO", std::filesystem::absolute(o.scenario).c_str(), 1);
    if (o.providerDir.empty())
        o.providerDir = (executableDir() / ".." / "lib").lexically_normal().string();

    // Signals go to one waiting thread; the request threads never see them.
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGTERM);
    sigaddset(&signals, SIGINT);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    signal(SIGPIPE, SIG_IGN);

    ClassRepository classes;
    std::optional<PasswordFile> users;
    std::unique_ptr<ProviderManager> providers;
    if (o.stateFile.empty())
        o.stateFile = (executableDir() / ".." / "var" / "veldra-cimd" / "subscriptions.json")
                          .lexically_normal()
                          .string();
    SubscriptionStore subscriptionStore(o.stateFile);
    ListenerQueue::Settings delivery;
    delivery.attempts = o.deliveryAttempts;
    delivery.firstPause = std::chrono::milliseconds(o.deliveryPauseMs);
    auto dispatcher = std::make_shared<IndicationDispatcher>(
        subscriptionStore,
        [&classes](std::string const& ns, std::string const& cls, std::string const& base) {
            return classes.isA(ns, cls, base);
        },
        delivery);
    try {
        if (!o.mofDir.empty() && std::filesystem::is_directory(o.mofDir))
            classes.loadDirectory(o.mofDir, "root/mwq");
        else if (!o.mofDir.empty())
            ServerLog::warn("MOF folder " + o.mofDir + " not found");
        for (auto const& f : o.mofFiles)
            classes.loadFile(f, "root/mwq");
        // The object manager's own classes: subscriptions to indications.
        if (!o.interopMof.empty())
            classes.loadFile(o.interopMof, "root/interop");
        if (!o.users.empty())
            users = PasswordFile::load(o.users);
        classes.resolve();
        ProviderManager::Options managerOptions;
        managerOptions.libraryDirs = {o.providerDir};
        // Providers ask the broker about class ancestry; the repository answers.
        managerOptions.classIsA = [&classes](std::string const& ns, std::string const& cls,
                                             std::string const& base) {
            return classes.isA(ns, cls, base);
        };
        managerOptions.log = [](int severity, std::string const& text) {
            switch (severity) {
            case CMPI_SEV_ERROR:
                ServerLog::error(text);
                break;
            case CMPI_SEV_WARNING:
                ServerLog::warn(text);
                break;
            case CMPI_SEV_INFO:
                ServerLog::info(text);
                break;
            default:
                ServerLog::debug(text);
                break;
            }
        };
        managerOptions.indicationSink = dispatcher;
        providers = std::make_unique<ProviderManager>(managerOptions);
        if (!o.registration.empty()) {
            if (!std::filesystem::exists(o.registration))
                throw std::runtime_error("registration file " + o.registration + " not found");
            // The namespaces a registration names exist even where no MOF puts a class.
            for (auto const& p : RegistrationFile::load(o.registration).providers)
                for (auto const& ns : p.namespaces)
                    classes.addNamespace(ns);
            providers->loadRegistrationFile(o.registration);
            ServerLog::info("loaded providers from " + o.registration);
            // The providers parsed their scenarios and built their graphs;
            // what that left freed goes back before the first request.
            giveBackFreedMemory();
        }
    } catch (MofError const& e) {
        std::cerr << "veldra-cimd: " << e.what() << "\n";
        return 1;
    } catch (std::exception const& e) {
        std::cerr << "veldra-cimd: " << e.what() << "\n";
        return 1;
    }

    char systemName[256] = {};
    if (gethostname(systemName, sizeof systemName - 1) != 0)
        std::strcpy(systemName, "localhost");
    SubscriptionOperations subscriptions(subscriptionStore, *providers, classes, systemName);
    subscriptions.activate();
    InstanceOperations instances(classes, *providers);
    instances.setSubscriptions(&subscriptions);
    CimOperationHandler handler(classes, CimOperationHandler::Settings{o.maxDepth});
    instances.registerWith(handler);
    PullOperations pulls(instances, PullOperations::Settings{});
    pulls.registerWith(handler);
    CimHttpServer::Settings settings;
    settings.listen = o.listen;
    settings.port = o.port.value_or(o.cert.empty() ? 5988 : 5989);
    settings.certFile = o.cert;
    settings.keyFile = o.key;
    settings.threads = o.threads;
    settings.maxBodyBytes = o.maxBody;
    settings.maxHeaders = o.maxHeaders;
    settings.timeoutSeconds = o.timeout;
    settings.idleSeconds = o.idle;
    settings.maxConnections = o.maxConnections;
    settings.maxConnectionsPerClient = o.maxPerClient;
    settings.shutdownGraceSeconds = o.shutdownGrace;
    settings.users = users ? &*users : nullptr;

    int port = 0;
    std::unique_ptr<CimHttpServer> server;
    try {
        server = std::make_unique<CimHttpServer>(
            settings, [&handler](CimHttpExchange& e) { handler.handle(e); });
        port = server->bind();
        // Paths name the host clients reach us by; a wildcard address is no such name.
        std::string host = o.listen;
        if (host == "0.0.0.0" || host == "::") {
            char name[256] = {};
            host = gethostname(name, sizeof name - 1) == 0 ? name : "localhost";
        }
        if (host.find(':') != std::string::npos)
            host = "[" + host + "]";
        instances.setHost(host + ":" + std::to_string(port));
    } catch (std::exception const& e) {
        std::cerr << "veldra-cimd: " << e.what() << "\n";
        providers->shutdown();
        return 1;
    }
    std::cout << "veldra-cimd listening on " << (o.cert.empty() ? "http://" : "https://")
              << o.listen << ":" << port << std::endl;
    if (!o.portFile.empty()) {
        // Written whole and renamed, so a reader never sees half a number.
        std::string tmp = o.portFile + ".tmp";
        std::ofstream(tmp) << port << "\n";
        std::filesystem::rename(tmp, o.portFile);
    }

    std::thread waiter([&server, &signals] {
        int received = 0;
        sigwait(&signals, &received);
        ServerLog::info(std::string("received ") + (received == SIGTERM ? "SIGTERM" : "SIGINT") +
                        ", shutting down");
        server->stop();
    });
    bool const drained = server->run();
    if (!drained) {
        // A provider call that never returns must not keep the process: its
        // thread and the provider's lock cannot be freed, so nothing is torn down.
        std::string stuck;
        for (auto const& request : server->stuckRequests())
            stuck += (stuck.empty() ? "" : "; ") + request;
        ServerLog::error("shutdown: gave up after " + std::to_string(o.shutdownGrace) +
                         " s waiting for requests still running: " + stuck);
        std::cerr.flush();
        std::_Exit(3);
    }
    if (waiter.joinable()) {
        // A stop that did not come from a signal still has to free the waiter.
        pthread_kill(waiter.native_handle(), SIGTERM);
        waiter.join();
    }
    server.reset();
    providers->shutdown();
    ServerLog::info("stopped");
    return 0;
}
