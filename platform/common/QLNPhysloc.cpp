#include "QLNPhysloc.h"

#include <atomic>
#include <cstdio>
#include <cstring>
#include <sstream>

extern "C" {
physloc_t const BMC_physloc_NULL = {{0, 0, 0, 0, 0, 0, 0, 0}};

char* BMC_physloc_to_str(physloc_t const* location, char* buf, unsigned int size) {
    if (!buf || size == 0) {
        return buf;
    }
    buf[0] = '\0';
    if (!location) {
        return buf;
    }
    try {
        std::string text = QLN::QLNPhysloc::physlocToHWLocation(*location);
        std::snprintf(buf, size, "%s", text.c_str());
    } catch (...) {
        // A C caller cannot take an exception; an empty text is the answer.
        buf[0] = '\0';
    }
    return buf;
}
}

namespace QLN {

namespace {

std::atomic<int> opened{0};

unsigned b(physloc_t const& location, int i) {
    return location.bytes[i];
}

} // namespace

bool QLNPhysloc::init(int const&) {
    opened.fetch_add(1);
    return true;
}

bool QLNPhysloc::close(int const&) {
    int current = opened.load();
    while (current > 0) {
        if (opened.compare_exchange_weak(current, current - 1)) {
            return true;
        }
    }
    return false;
}

int QLNPhysloc::openCount() {
    return opened.load();
}

physloc_t QLNPhysloc::make(Kind kind, uint8_t b1, uint8_t b2, uint8_t b3) {
    physloc_t location = BMC_physloc_NULL;
    location.bytes[0] = static_cast<uint8_t>(kind);
    location.bytes[1] = b1;
    location.bytes[2] = b2;
    location.bytes[3] = b3;
    return location;
}

std::string QLNPhysloc::physlocToHWLocation(physloc_t const& location) {
    switch (kindOf(location)) {
    case static_cast<int>(Kind::None):
        return "Unknown Location";
    case static_cast<int>(Kind::SystemBoard):
        return b(location, 1) == 0 ? std::string("System Board")
                                   : "System Board Device " + std::to_string(b(location, 1));
    case static_cast<int>(Kind::EnclosureBay):
        return "Enclosure " + std::to_string(b(location, 1)) + " Bay " +
               std::to_string(b(location, 2));
    case static_cast<int>(Kind::Mezzanine):
        return "Mezzanine Slot " + std::to_string(b(location, 1));
    case static_cast<int>(Kind::InternalSlot):
        return "Internal Storage Slot " + std::to_string(b(location, 1));
    case static_cast<int>(Kind::PciSlot): {
        std::string text = "PCI Slot " + std::to_string(b(location, 1));
        if (b(location, 2) != 0) {
            text += " on Riser " + std::to_string(b(location, 2));
        }
        return text;
    }
    default:
        return "Unknown Location Kind " + std::to_string(kindOf(location));
    }
}

std::string QLNPhysloc::physlocToUniqueID(std::string const& prefix, physloc_t const& location,
                                          int const& index) {
    std::string kind;
    std::string code;
    switch (kindOf(location)) {
    case static_cast<int>(Kind::None):
        kind = "NONE";
        code = std::to_string(index);
        break;
    case static_cast<int>(Kind::SystemBoard):
        kind = "BOARD";
        code = "SB" + std::to_string(b(location, 1));
        break;
    case static_cast<int>(Kind::EnclosureBay):
        kind = "BAY";
        code = "E" + std::to_string(b(location, 1)) + "B" + std::to_string(b(location, 2));
        break;
    case static_cast<int>(Kind::Mezzanine):
        kind = "MEZZ";
        code = "M" + std::to_string(b(location, 1));
        break;
    case static_cast<int>(Kind::InternalSlot):
        kind = "ISLOT";
        code = "IS" + std::to_string(b(location, 1));
        break;
    case static_cast<int>(Kind::PciSlot):
        kind = "PCI";
        code = b(location, 2) == 0
                   ? std::to_string(b(location, 1))
                   : "R" + std::to_string(b(location, 2)) + "S" + std::to_string(b(location, 1));
        break;
    default: {
        // An unassigned kind: all eight bytes, so that distinct records stay distinct.
        kind = "RAW";
        char hex[17];
        for (int i = 0; i < 8; ++i) {
            std::snprintf(hex + 2 * i, 3, "%02X", b(location, i));
        }
        code = hex;
        break;
    }
    }
    return prefix + ":" + std::to_string(index) + ":" + kind + ":" + code;
}

void QLNPhysloc::createLocationInfoVectors(std::string const& location,
                                           std::vector<std::string>& names,
                                           std::vector<unsigned short>& numbers) {
    names.clear();
    numbers.clear();
    // Words gather into a name until a number closes the part; "on" joins
    // parts that are written inside out.
    std::istringstream words(location);
    std::string word;
    std::string name;
    std::vector<std::string> partNames;
    std::vector<unsigned short> partNumbers;
    auto closePart = [&](unsigned short number) {
        partNames.push_back(name);
        partNumbers.push_back(number);
        name.clear();
    };
    while (words >> word) {
        bool numeric =
            word.find_first_not_of("0123456789") == std::string::npos && word.size() <= 5;
        if (numeric && !name.empty()) {
            unsigned long value = std::stoul(word);
            closePart(static_cast<unsigned short>(value > 65535 ? 65535 : value));
        } else if (word == "on" && name.empty()) {
            continue;
        } else {
            name += (name.empty() ? "" : " ") + word;
        }
    }
    if (!name.empty()) {
        closePart(0);
    }
    // "X on Y" names the inner part first; the vectors go outermost first.
    bool insideOut = location.find(" on ") != std::string::npos;
    if (insideOut) {
        for (std::size_t i = partNames.size(); i-- > 0;) {
            names.push_back(partNames[i]);
            numbers.push_back(partNumbers[i]);
        }
    } else {
        names = std::move(partNames);
        numbers = std::move(partNumbers);
    }
}

void QLNPhysloc::createLocationInfoVectors(physloc_t const& location,
                                           std::vector<std::string>& names,
                                           std::vector<unsigned short>& numbers) {
    createLocationInfoVectors(physlocToHWLocation(location), names, numbers);
}

} // namespace QLN
