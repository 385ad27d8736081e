#include "VeldraPhysicalPath.h"

#include <utility>

VeldraPhysicalPath::VeldraPhysicalPath(std::string port, int box, int status)
    : _port(std::move(port)), _box(box), _status(status) {}
