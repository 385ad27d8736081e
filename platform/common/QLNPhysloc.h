#pragma once
// Physical location records (physloc_t) turned into texts for people, into
// unique identifiers and into name/number pairs for CIM location classes.
//
// The location scheme. Byte 0, low four bits: the kind of location; high four
// bits: reserved, ignored. The meaning of bytes 1 to 7 depends on the kind;
// bytes not named below are 0.
//
//   kind 0  none: the platform does not know the location (an external
//           controller). BMC_physloc_NULL is the all-zero record of this kind.
//   kind 1  embedded on the system board. byte 1: device number on the board
//           (0 = the only one).                 "System Board", "System Board Device 2"
//   kind 2  enclosure bay. byte 1: enclosure number, byte 2: bay number.
//                                                "Enclosure 1 Bay 4"
//   kind 3  mezzanine connector. byte 1: connector number.
//                                                "Mezzanine Slot 1"
//   kind 4  internal storage slot (a dedicated controller slot without a PCI
//           number). byte 1: slot number.        "Internal Storage Slot 1"
//   kind 5  PCI slot. byte 1: slot number, byte 2: riser number (0 = the slot
//           is on the system board), byte 3: PCI bus of the slot (informative).
//                                                "PCI Slot 3", "PCI Slot 2 on Riser 1"
//   kinds 6 to 15 are unassigned and render as "Unknown Location Kind 9".
//
// Unique identifiers read "<prefix>:<index>:<KIND>:<code>"; the code, the part
// behind the last colon, is unique per location: the slot number ("3") or
// "R1S2" for PCI, "SB0" for the system board, "E1B4" for a bay, "M1", "IS1",
// and for kind 0 the controller's index, since every external controller has
// the same (null) location.
#include "physloc.h"

#include <string>
#include <vector>

namespace QLN {

class QLNPhysloc {
public:
    enum class Kind {
        None = 0,
        SystemBoard = 1,
        EnclosureBay = 2,
        Mezzanine = 3,
        InternalSlot = 4,
        PciSlot = 5
    };

    // The rendering is table driven and needs no open resources; init and
    // close count their callers so that an unbalanced close is visible.
    static bool init(int const& handle);
    static bool close(int const& handle);
    static int openCount();

    static int kindOf(physloc_t const& location) { return location.bytes[0] & 0x0f; }
    static physloc_t make(Kind kind, uint8_t b1 = 0, uint8_t b2 = 0, uint8_t b3 = 0);

    static std::string physlocToHWLocation(physloc_t const& location);
    static std::string physlocToUniqueID(std::string const& prefix, physloc_t const& location,
                                         int const& index);

    // Fills two parallel vectors with the location's parts, outermost first:
    // "PCI Slot 2 on Riser 1" gives ("Riser", 1), ("PCI Slot", 2); a part
    // without a number ("System Board") gets 0. Both vectors are cleared first.
    static void createLocationInfoVectors(std::string const& location,
                                          std::vector<std::string>& names,
                                          std::vector<unsigned short>& numbers);
    static void createLocationInfoVectors(physloc_t const& location,
                                          std::vector<std::string>& names,
                                          std::vector<unsigned short>& numbers);
};

} // namespace QLN
