// Times indication delivery the way a provider drives it: each indication is
// made with the broker's CMPI functions and handed to CBDeliverIndication;
// the object manager's dispatcher matches it against a subscription and its
// queue posts it over HTTP to a listener in this process, which notes when
// each one arrives.
//
//   indication_delivery_bench [latency-count] [throughput-count]
//
// Latency is measured one indication at a time (the next is sent once the
// last has arrived), so it is the unloaded path; the rate comes from a burst
// sent as fast as the provider can deliver.
#include "BrokerContext.h"
#include "IndicationDispatcher.h"
#include "ObjectRegistry.h"
#include "ProviderManager.h"
#include "SubscriptionStore.h"

#include <httplib.h>
#include <pugixml.hpp>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

using namespace Cimom;

namespace {

using Clock = std::chrono::steady_clock;

struct Receipts {
    std::mutex mutex;
    std::condition_variable arrived;
    std::vector<Clock::time_point> at; // by the indication's number
    std::size_t count = 0;

    void reset(std::size_t n) {
        std::lock_guard lock(mutex);
        at.assign(n, Clock::time_point{});
        count = 0;
    }
    bool waitFor(std::size_t n, std::chrono::seconds timeout) {
        std::unique_lock lock(mutex);
        return arrived.wait_for(lock, timeout, [&] { return count >= n; });
    }
};

// The number that the sender put into IndicationIdentifier.
long numberOf(std::string const& body) {
    pugi::xml_document doc;
    if (!doc.load_buffer(body.data(), body.size()))
        return -1;
    auto instance = doc.select_node("//INSTANCE").node();
    for (auto p : instance.children("PROPERTY"))
        if (std::string(p.attribute("NAME").value()) == "IndicationIdentifier")
            return std::strtol(p.child_value("VALUE"), nullptr, 10);
    return -1;
}

class ProviderSide {
public:
    explicit ProviderSide(ProviderManager& providers) : _broker(providers.broker()) {}

    // What a provider does for one alert.
    void send(long number) {
        ObjectRegistry::Scope scope(_broker.registry());
        CMPIBroker const* mb = _broker.cmpi();
        BrokerContext* ctx = _broker.newContext("root/mwq", 0);
        CMPIStatus rc{CMPI_RC_OK, nullptr};
        CMPIObjectPath* op =
            mb->eft->newObjectPath(mb, "root/mwq", "QLN_BenchAlertIndication", &rc);
        CMPIInstance* ind = mb->eft->newInstance(mb, op, &rc);
        std::string id = std::to_string(number);
        ind->ft->setProperty(ind, "IndicationIdentifier",
                             reinterpret_cast<CMPIValue const*>(id.c_str()), CMPI_chars);
        char const* text = "Physical disk 3 on controller PVELD13A40 failed";
        ind->ft->setProperty(ind, "Description", reinterpret_cast<CMPIValue const*>(text),
                             CMPI_chars);
        CMPIValue severity;
        severity.uint16 = 6;
        ind->ft->setProperty(ind, "PerceivedSeverity", &severity, CMPI_uint16);
        CMPIStatus delivered = mb->bft->deliverIndication(mb, ctx->cmpi(), "root/mwq", ind);
        if (delivered.rc != CMPI_RC_OK)
            std::fprintf(stderr, "deliverIndication failed: %d\n", delivered.rc);
    }

private:
    Broker& _broker;
};

double percentile(std::vector<double> values, double p) {
    std::sort(values.begin(), values.end());
    std::size_t index = static_cast<std::size_t>(p * static_cast<double>(values.size() - 1) + 0.5);
    return values[index];
}

} // namespace

int main(int argc, char** argv) {
    long latencyCount = argc > 1 ? std::atol(argv[1]) : 1000;
    long burstCount = argc > 2 ? std::atol(argv[2]) : 5000;
    if (latencyCount < 1 || burstCount < 1) {
        std::fprintf(stderr,
                     "usage: indication_delivery_bench [latency-count] [throughput-count]\n");
        return 2;
    }

    Receipts receipts;
    httplib::Server listener;
    listener.Post(".*", [&](httplib::Request const& request, httplib::Response& response) {
        auto now = Clock::now();
        long n = numberOf(request.body);
        {
            std::lock_guard lock(receipts.mutex);
            if (n >= 0 && static_cast<std::size_t>(n) < receipts.at.size())
                receipts.at[n] = now;
            ++receipts.count;
        }
        receipts.arrived.notify_all();
        response.set_content(
            "<?xml version=\"1.0\" encoding=\"utf-8\"?><CIM CIMVERSION=\"2.0\" DTDVERSION=\"2.0\">"
            "<MESSAGE ID=\"1\" PROTOCOLVERSION=\"1.0\"><SIMPLEEXPRSP>"
            "<EXPMETHODRESPONSE NAME=\"ExportIndication\"></EXPMETHODRESPONSE>"
            "</SIMPLEEXPRSP></MESSAGE></CIM>",
            "application/xml");
    });
    int port = listener.bind_to_any_port("127.0.0.1");
    std::thread serving([&] { listener.listen_after_bind(); });

    SubscriptionStore store("");
    SubscriptionStore::Filter filter;
    filter.name = "bench";
    filter.query = "SELECT * FROM CIM_AlertIndication";
    filter.sourceNamespace = "root/mwq";
    filter.wql = WqlFilter::parse(filter.query);
    store.addFilter(filter);
    store.addDestination({"bench", "", "http://127.0.0.1:" + std::to_string(port) + "/"});
    store.addSubscription({"bench", "bench"});

    auto isA = [](std::string const&, std::string const& cls, std::string const& base) {
        return cls == base || base == "CIM_AlertIndication";
    };
    auto dispatcher = std::make_shared<IndicationDispatcher>(store, isA, ListenerQueue::Settings{});
    ProviderManager::Options options;
    options.indicationSink = dispatcher;
    options.classIsA = isA;
    ProviderManager providers(options);
    ProviderSide provider(providers);

    // Latency, one at a time.
    receipts.reset(static_cast<std::size_t>(latencyCount));
    std::vector<double> latencies;
    latencies.reserve(static_cast<std::size_t>(latencyCount));
    for (long i = 0; i < latencyCount; ++i) {
        auto sent = Clock::now();
        provider.send(i);
        if (!receipts.waitFor(static_cast<std::size_t>(i + 1), std::chrono::seconds(30))) {
            std::fprintf(stderr, "indication %ld did not arrive\n", i);
            return 1;
        }
        std::lock_guard lock(receipts.mutex);
        latencies.push_back(
            std::chrono::duration<double, std::micro>(receipts.at[i] - sent).count());
    }

    // Rate, a burst.
    receipts.reset(static_cast<std::size_t>(burstCount));
    auto start = Clock::now();
    for (long i = 0; i < burstCount; ++i)
        provider.send(i);
    auto handedOver = Clock::now();
    bool all = receipts.waitFor(static_cast<std::size_t>(burstCount), std::chrono::seconds(300));
    auto end = Clock::now();
    std::size_t got = 0;
    {
        std::lock_guard lock(receipts.mutex);
        got = receipts.count;
    }
    double seconds = std::chrono::duration<double>(end - start).count();
    double sendMicros =
        std::chrono::duration<double, std::micro>(handedOver - start).count() / burstCount;

    std::printf("indication delivery, one listener over HTTP on loopback\n");
    std::printf("  latency over %ld indications: p50 %.0f us, p99 %.0f us, max %.0f us\n",
                latencyCount, percentile(latencies, 0.50), percentile(latencies, 0.99),
                percentile(latencies, 1.0));
    std::printf(
        "  burst of %ld: %zu received in %.2f s = %.0f indications/s; CBDeliverIndication returned "
        "after %.1f us each\n",
        burstCount, got, seconds, static_cast<double>(got) / seconds, sendMicros);

    providers.shutdown();
    dispatcher.reset();
    listener.stop();
    serving.join();
    return all ? 0 : 1;
}
