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
    void subscribe(const std::string& name, const std::string& query, const std::string& listenerUrl,
                   const std::string& sourceNamespace);
    // Removes what subscribe() made, the subscription first; errors are ignored.
    void unsubscribe();

private:
    // The IRETURNVALUE of the call as XML text.
    std::string _call(const std::string& method, const std::string& params);

    std::string _cimom, _user, _password;
    std::string _filter, _destination, _subscription;  // INSTANCENAMEs made
};
