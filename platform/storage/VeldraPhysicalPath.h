#pragma once
// One route from a controller port to a disk or an enclosure.
#include <string>

class VeldraPhysicalPath {
public:
    VeldraPhysicalPath() = default;
    VeldraPhysicalPath(std::string port, int box, int status);

    std::string getPort() const { return _port; }
    // Box (enclosure) number that the route reaches through the port.
    int getBox() const { return _box; }
    // 1 while the route works, anything else when it does not.
    int getStatus() const { return _status; }

    bool operator==(VeldraPhysicalPath const&) const = default;

private:
    std::string _port;
    int _box = 0;
    int _status = 1;
};
