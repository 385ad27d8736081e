#include "MemoryIndicationSink.h"

namespace Cimom {

MemoryIndicationSink::MemoryIndicationSink(LogFunction log) : _log(std::move(log)) {}

void MemoryIndicationSink::deliver(std::string const& nameSpace, CimInstance const& indication) {
    {
        std::lock_guard<std::mutex> lock(_mutex);
        _delivered.push_back(Delivered{nameSpace, indication});
    }
    if (_log) {
        _log("indication " + indication.className() + " delivered in " + nameSpace + " (" +
             std::to_string(indication.properties().size()) + " properties)");
    }
}

std::vector<MemoryIndicationSink::Delivered> MemoryIndicationSink::delivered() const {
    std::lock_guard<std::mutex> lock(_mutex);
    return _delivered;
}

std::size_t MemoryIndicationSink::count() const {
    std::lock_guard<std::mutex> lock(_mutex);
    return _delivered.size();
}

void MemoryIndicationSink::clear() {
    std::lock_guard<std::mutex> lock(_mutex);
    _delivered.clear();
}

} // namespace Cimom
