#pragma once

#include <map>
#include <string>
#include <vector>

// The real wbemcli pointed at one veldra-cimd namespace. Object paths are
// given in local form ("QLN_X.Key=\"v\""); answers come back one line per
// object, as wbemcli prints them.
class WbemcliClient {
public:
    WbemcliClient(int port, std::string nameSpace = "root/mwq");

    std::string url() const { return _url; }
    // Runs "wbemcli OP [OPTIONS] URL[:PATH] [TRAILER]"; throws std::runtime_error,
    // with wbemcli's output, when wbemcli does not exit 0.
    std::vector<std::string> run(std::string const& op, std::string const& path,
                                 std::string const& options = "",
                                 std::string const& trailer = "") const;

    // The CIM class of an answer line ("host/root/mwq:QLN_X.Key=..." gives QLN_X).
    static std::string className(std::string const& line);
    // The object path of an answer line in local form, host and namespace cut off.
    static std::string localPath(std::string const& line);
    // How many lines of each class.
    static std::map<std::string, int> histogram(std::vector<std::string> const& lines);

private:
    std::string _url;
};
