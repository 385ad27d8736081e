#pragma once

#include <string>

// Makes the three instances of a subscription on a CIM object manager (a
// filter, a CIM-XML listener destination and the subscription joining them,
// in root/interop) with CreateInstance requests, and removes them again.
class Subscriber {
public:
    // `cimom`: "http://host:port" or "https://host:port".
    Subscriber(std::string cimom, std::string user = "", std::string password = "");

    // Throws std::runtime_error with the object manager's answer when a step
    // fails; what was made before the failing step is removed again.
    void subscribe(std::string const& name, std::string const& query,
                   std::string const& listenerUrl, std::string const& sourceNamespace);
    // Removes what subscribe() made, the subscription first; errors are ignored.
    void unsubscribe();

private:
    // The IRETURNVALUE of the call as XML text.
    std::string _call(std::string const& method, std::string const& params);

    std::string _cimom, _user, _password;
    std::string _filter, _destination, _subscription; // INSTANCENAMEs made
};
