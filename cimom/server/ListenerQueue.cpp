#include "ListenerQueue.h"

#include "CimXmlWriter.h"
#include "InstanceXml.h"
#include "ServerLog.h"

#include <httplib.h>

#include <algorithm>
#include <regex>

namespace Cimom {

ListenerQueue::ListenerQueue(std::string url, Settings settings, Sender sender)
    : _url(std::move(url)), _settings(settings), _sender(std::move(sender)) {
    if (!_sender) {
        auto timeout = _settings.sendTimeout;
        _sender = [timeout](std::string const& url, std::string const& body) {
            return post(url, body, timeout);
        };
    }
    _thread = std::thread([this] { _run(); });
}

ListenerQueue::~ListenerQueue() {
    {
        std::lock_guard lock(_mutex);
        _stopping = true;
    }
    _wake.notify_all();
    _thread.join();
    if (!_queue.empty())
        ServerLog::warn("indications: dropped " + std::to_string(_queue.size()) + " for " + _url +
                        " at shutdown");
}

void ListenerQueue::push(CimInstance const& indication) {
    {
        std::lock_guard lock(_mutex);
        if (_queue.size() >= _settings.capacity) {
            ServerLog::warn("indications: queue for " + _url + " is full, dropped the oldest, " +
                            _queue.front().className());
            _queue.pop_front();
        }
        _queue.push_back(indication);
    }
    _wake.notify_one();
}

std::size_t ListenerQueue::pending() const {
    std::lock_guard lock(_mutex);
    return _queue.size() + (_sending ? 1 : 0);
}

void ListenerQueue::_run() {
    std::unique_lock lock(_mutex);
    while (true) {
        _wake.wait(lock, [this] { return _stopping || !_queue.empty(); });
        if (_stopping)
            return;
        // Taken off the queue before sending, so a full queue never drops the one under way.
        CimInstance indication = std::move(_queue.front());
        _queue.pop_front();
        _sending = true;
        std::string body = exportRequest(indication, _nextMessage++);
        auto pause = _settings.firstPause;
        std::string failure;
        for (int attempt = 1; attempt <= _settings.attempts; ++attempt) {
            lock.unlock();
            failure = _sender(_url, body);
            lock.lock();
            if (failure.empty() || _stopping)
                break;
            if (attempt == _settings.attempts)
                break;
            // Woken early only to stop.
            if (_wake.wait_for(lock, pause, [this] { return _stopping; }))
                break;
            pause = std::min(pause * 2, _settings.longestPause);
        }
        _sending = false;
        if (_stopping) {
            if (!failure.empty())
                _queue.push_front(std::move(indication)); // counted as dropped below
            return;
        }
        if (!failure.empty())
            ServerLog::warn("indications: dropped " + indication.className() + " for " + _url +
                            " after " + std::to_string(_settings.attempts) +
                            " attempts: " + failure);
    }
}

std::string ListenerQueue::exportRequest(CimInstance const& indication, unsigned long messageId) {
    CimXmlWriter out;
    out.open("CIM", {{"CIMVERSION", "2.0"}, {"DTDVERSION", "2.0"}});
    std::string const id = std::to_string(messageId);
    out.open("MESSAGE", {{"ID", id}, {"PROTOCOLVERSION", "1.0"}});
    out.open("SIMPLEEXPREQ");
    out.open("EXPMETHODCALL", {{"NAME", "ExportIndication"}});
    out.open("EXPPARAMVALUE", {{"NAME", "NewIndication"}});
    InstanceXml::InstanceOptions options;
    InstanceXml::writeInstance(out, indication, options);
    out.close().close().close().close().close();
    return out.take();
}

std::string ListenerQueue::post(std::string const& url, std::string const& body,
                                std::chrono::seconds timeout) {
    static std::regex const form(R"(^(https?://[^/]+)(/.*)?$)", std::regex::icase);
    std::smatch m;
    if (!std::regex_match(url, m, form))
        return "not an http(s) URL: " + url;
    httplib::Client client(m[1].str());
    client.set_connection_timeout(timeout);
    client.set_read_timeout(timeout);
    client.set_write_timeout(timeout);
    httplib::Headers headers{{"CIMExport", "MethodRequest"},
                             {"CIMExportMethod", "ExportIndication"}};
    std::string path = m[2].matched ? m[2].str() : "/";
    auto reply = client.Post(path, headers, body, "application/xml; charset=\"utf-8\"");
    if (!reply)
        return "no answer (" + httplib::to_string(reply.error()) + ")";
    if (reply->status != 200)
        return "HTTP " + std::to_string(reply->status);
    if (reply->has_header("CIMError"))
        return "CIMError " + reply->get_header_value("CIMError");
    if (reply->body.find("<ERROR") != std::string::npos)
        return "the listener answered with an error";
    return "";
}

} // namespace Cimom
