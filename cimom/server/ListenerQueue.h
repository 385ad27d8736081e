#pragma once

#include "CimInstance.h"

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <functional>
#include <mutex>
#include <string>
#include <thread>

namespace Cimom {

// The indications on their way to one listener, sent one after another by a
// thread of the queue's own as CIM-XML ExportIndication requests, so that
// a slow or absent listener never holds up the provider that delivers. A
// failed send is tried again after a growing pause, a bounded number of
// times, keeping the order; what is given up is logged.
class ListenerQueue {
public:
    struct Settings {
        std::size_t capacity = 10000;              // beyond it the oldest is dropped
        int attempts = 8;                          // sends of one indication at most
        std::chrono::milliseconds firstPause{500}; // doubled after each failure
        std::chrono::milliseconds longestPause{5000};
        std::chrono::seconds sendTimeout{10};
    };
    // The sender is replaceable for tests below the HTTP level; by default
    // it posts to `url`. It returns an empty text on success, else why not.
    using Sender = std::function<std::string(std::string const& url, std::string const& body)>;

    ListenerQueue(std::string url, Settings settings, Sender sender = nullptr);
    ~ListenerQueue(); // sends nothing more; what is still queued is logged as dropped
    ListenerQueue(ListenerQueue const&) = delete;
    ListenerQueue& operator=(ListenerQueue const&) = delete;

    void push(CimInstance const& indication);
    std::size_t pending() const;

    // The ExportIndication request for one indication.
    static std::string exportRequest(CimInstance const& indication, unsigned long messageId);
    // Posts over HTTP(S); empty on a 200 answer without a CIM error.
    static std::string post(std::string const& url, std::string const& body,
                            std::chrono::seconds timeout);

private:
    void _run();

    std::string _url;
    Settings _settings;
    Sender _sender;
    mutable std::mutex _mutex;
    std::condition_variable _wake;
    std::deque<CimInstance> _queue;
    bool _stopping = false;
    bool _sending = false; // one indication is off the queue, being sent
    unsigned long _nextMessage = 1;
    std::thread _thread;
};

} // namespace Cimom
