#pragma once

#include <string>

// Turns one CIM-XML ExportIndication request into one line: the time it was
// received, the indication's class and its properties, as text or as a JSON
// object.
class IndicationPrinter {
public:
    explicit IndicationPrinter(bool json) : _json(json) {}

    // The line for `request`; throws std::invalid_argument when the request
    // is not an ExportIndication with an INSTANCE.
    std::string line(std::string const& request, std::string const& receivedAt) const;

    // The answer a CIM listener gives: an empty EXPMETHODRESPONSE, or an ERROR.
    static std::string response(std::string const& messageId, std::string const& error = "");

private:
    bool _json;
};
