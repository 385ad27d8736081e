#include "VeldraStorageFunctions.h"

#include <algorithm>

namespace {
// Records of `from` whose counterpart is missing in `other`.
template <class Record, class Same>
std::vector<Record> without(std::vector<Record> const& from, std::vector<Record> const& other,
                            Same same) {
    std::vector<Record> out;
    for (auto const& record : from) {
        bool found = std::any_of(other.begin(), other.end(),
                                 [&](Record const& o) { return same(record, o); });
        if (!found)
            out.push_back(record);
    }
    return out;
}
auto const sameEnclosure = [](VeldraEnclosure const& a, VeldraEnclosure const& b) {
    return a.isSameEnclosure(b);
};
auto const sameLogical = [](VeldraLogicalDisk const& a, VeldraLogicalDisk const& b) {
    return a.getSerialNumber() == b.getSerialNumber();
};
auto const samePhysical = [](VeldraPhysicalDisk const& a, VeldraPhysicalDisk const& b) {
    return a.isSameDisk(b);
};
} // namespace

std::vector<VeldraEnclosure> findNewVDEnclosures(std::vector<VeldraEnclosure>& previous,
                                                 std::vector<VeldraEnclosure>& current) {
    return without(current, previous, sameEnclosure);
}

std::vector<VeldraEnclosure> findRemovedVDEnclosures(std::vector<VeldraEnclosure>& previous,
                                                     std::vector<VeldraEnclosure>& current) {
    return without(previous, current, sameEnclosure);
}

std::vector<VeldraLogicalDisk> findNewVDLogicalDisks(std::vector<VeldraLogicalDisk>& previous,
                                                     std::vector<VeldraLogicalDisk>& current) {
    return without(current, previous, sameLogical);
}

std::vector<VeldraLogicalDisk> findRemovedVDLogicalDisks(std::vector<VeldraLogicalDisk>& previous,
                                                         std::vector<VeldraLogicalDisk>& current) {
    return without(previous, current, sameLogical);
}

void findNewVDPhysicalDisks(std::vector<VeldraPhysicalDisk>& previous,
                            std::vector<VeldraPhysicalDisk>& current,
                            std::vector<VeldraPhysicalDisk>& out) {
    out = without(current, previous, samePhysical);
}

void findRemovedVDPhysicalDisks(std::vector<VeldraPhysicalDisk>& previous,
                                std::vector<VeldraPhysicalDisk>& current,
                                std::vector<VeldraPhysicalDisk>& out) {
    out = without(previous, current, samePhysical);
}

void findNewVDPhysicalPaths(std::vector<VeldraPhysicalPath> const& previous,
                            std::vector<VeldraPhysicalPath> const& current,
                            std::vector<VeldraPhysicalPath>& out) {
    out = without(current, previous, [](VeldraPhysicalPath const& a, VeldraPhysicalPath const& b) {
        return a.getPort() == b.getPort() && a.getBox() == b.getBox();
    });
}

int findPhysicalDiskInVector(std::string serial, int enclosureBoxNumber, int bay,
                             std::vector<VeldraPhysicalDisk> const& disks) {
    for (size_t i = 0; i < disks.size(); ++i) {
        VeldraPhysicalDisk const& d = disks[i];
        bool match = serial.empty()
                         ? d.getSerialNumber().empty() &&
                               d.getEnclosureBoxNumber() == enclosureBoxNumber && d.getBay() == bay
                         : d.getSerialNumber() == serial;
        if (match)
            return static_cast<int>(i);
    }
    return -1;
}

int findLogicalDiskInVector(std::string serial, std::vector<VeldraLogicalDisk> const& disks) {
    for (size_t i = 0; i < disks.size(); ++i)
        if (disks[i].getSerialNumber() == serial)
            return static_cast<int>(i);
    return -1;
}

int findEnclosureInVector(u32 enclosureBoxNumber, std::vector<VeldraEnclosure> const& enclosures) {
    for (size_t i = 0; i < enclosures.size(); ++i)
        if (enclosures[i].getEnclosureBoxNumber() == enclosureBoxNumber)
            return static_cast<int>(i);
    return -1;
}

std::string pathsToPortStr(std::vector<VeldraPhysicalPath> const& paths) {
    std::string text;
    for (auto const& path : paths) {
        if (!text.empty())
            text += ",";
        text += path.getPort();
    }
    return text;
}

std::string pathsToUserStr(std::vector<VeldraPhysicalPath> const& paths, int bay) {
    std::string text;
    for (auto const& path : paths) {
        if (!text.empty())
            text += ", ";
        text += "Port " + path.getPort() + " Box " + std::to_string(path.getBox());
        if (bay >= 0)
            text += " Bay " + std::to_string(bay);
    }
    return text;
}

bool isPortInPaths(std::string port, std::vector<VeldraPhysicalPath> const& paths) {
    return std::any_of(paths.begin(), paths.end(),
                       [&](VeldraPhysicalPath const& p) { return p.getPort() == port; });
}
