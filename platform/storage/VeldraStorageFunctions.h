#pragma once
// Free functions over the storage-access records: set differences between
// two polls, look-ups in a vector, and texts made from routes.
#include "VeldraEnclosure.h"
#include "VeldraLogicalDisk.h"
#include "VeldraPhysicalDisk.h"
#include "VeldraPhysicalPath.h"

#include <string>
#include <vector>

std::vector<VeldraEnclosure> findNewVDEnclosures(std::vector<VeldraEnclosure>& previous,
                                                 std::vector<VeldraEnclosure>& current);
std::vector<VeldraEnclosure> findRemovedVDEnclosures(std::vector<VeldraEnclosure>& previous,
                                                     std::vector<VeldraEnclosure>& current);
std::vector<VeldraLogicalDisk> findNewVDLogicalDisks(std::vector<VeldraLogicalDisk>& previous,
                                                     std::vector<VeldraLogicalDisk>& current);
std::vector<VeldraLogicalDisk> findRemovedVDLogicalDisks(std::vector<VeldraLogicalDisk>& previous,
                                                         std::vector<VeldraLogicalDisk>& current);
void findNewVDPhysicalDisks(std::vector<VeldraPhysicalDisk>& previous,
                            std::vector<VeldraPhysicalDisk>& current,
                            std::vector<VeldraPhysicalDisk>& out);
void findRemovedVDPhysicalDisks(std::vector<VeldraPhysicalDisk>& previous,
                                std::vector<VeldraPhysicalDisk>& current,
                                std::vector<VeldraPhysicalDisk>& out);
// Routes of current that previous lacks (same port and box). Status is not identity.
void findNewVDPhysicalPaths(std::vector<VeldraPhysicalPath> const& previous,
                            std::vector<VeldraPhysicalPath> const& current,
                            std::vector<VeldraPhysicalPath>& out);

// Index of the disk with this serial number (or, for an empty serial, the
// serial-less disk at this enclosure and bay); -1 when there is none.
int findPhysicalDiskInVector(std::string serial, int enclosureBoxNumber, int bay,
                             std::vector<VeldraPhysicalDisk> const& disks);
int findLogicalDiskInVector(std::string serial, std::vector<VeldraLogicalDisk> const& disks);
int findEnclosureInVector(u32 enclosureBoxNumber, std::vector<VeldraEnclosure> const& enclosures);

// "1I,2I": the ports of the routes in order, comma separated; "" for none.
std::string pathsToPortStr(std::vector<VeldraPhysicalPath> const& paths);
// "Port 1I Box 1 Bay 3, Port 2I Box 1 Bay 3"; a negative bay is left out.
std::string pathsToUserStr(std::vector<VeldraPhysicalPath> const& paths, int bay);
bool isPortInPaths(std::string port, std::vector<VeldraPhysicalPath> const& paths);
