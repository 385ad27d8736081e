#include "QLNPhysloc.h"

#include <gtest/gtest.h>

#include <cstring>
#include <set>

using QLN::QLNPhysloc;
using Kind = QLN::QLNPhysloc::Kind;

namespace {

std::string lastPart(std::string const& id) {
    return id.substr(id.rfind(':') + 1);
}

} // namespace

// Fault: a kind is rendered with the wrong bytes or the null record is not kind 0.
TEST(QLNPhysloc, TextsFollowTheScheme) {
    EXPECT_EQ(QLNPhysloc::kindOf(BMC_physloc_NULL), 0);
    EXPECT_EQ(QLNPhysloc::physlocToHWLocation(BMC_physloc_NULL), "Unknown Location");
    struct Case {
        physloc_t location;
        char const* text;
    } const cases[] = {
        {QLNPhysloc::make(Kind::SystemBoard), "System Board"},
        {QLNPhysloc::make(Kind::SystemBoard, 2), "System Board Device 2"},
        {QLNPhysloc::make(Kind::EnclosureBay, 1, 4), "Enclosure 1 Bay 4"},
        {QLNPhysloc::make(Kind::Mezzanine, 1), "Mezzanine Slot 1"},
        {QLNPhysloc::make(Kind::InternalSlot, 2), "Internal Storage Slot 2"},
        {QLNPhysloc::make(Kind::PciSlot, 3), "PCI Slot 3"},
        {QLNPhysloc::make(Kind::PciSlot, 2, 1), "PCI Slot 2 on Riser 1"},
    };
    for (auto const& c : cases) {
        EXPECT_EQ(QLNPhysloc::physlocToHWLocation(c.location), c.text);
    }
    // The high four bits are reserved and must not change the kind.
    physloc_t flagged = QLNPhysloc::make(Kind::PciSlot, 7);
    flagged.bytes[0] |= 0xA0;
    EXPECT_EQ(QLNPhysloc::physlocToHWLocation(flagged), "PCI Slot 7");
    physloc_t odd = BMC_physloc_NULL;
    odd.bytes[0] = 9;
    EXPECT_EQ(QLNPhysloc::physlocToHWLocation(odd), "Unknown Location Kind 9");
}

// Fault: BMC_physloc_to_str overruns a short buffer or leaves it unterminated.
TEST(QLNPhysloc, CRenderingTruncatesSafely) {
    physloc_t slot = QLNPhysloc::make(Kind::PciSlot, 12);
    char buf[8];
    std::memset(buf, '#', sizeof buf);
    EXPECT_EQ(BMC_physloc_to_str(&slot, buf, sizeof buf), buf);
    EXPECT_STREQ(buf, "PCI Slo");
    char full[64];
    EXPECT_STREQ(BMC_physloc_to_str(&slot, full, sizeof full), "PCI Slot 12");
    EXPECT_STREQ(BMC_physloc_to_str(nullptr, full, sizeof full), "");
}

// Fault: two locations (or two external controllers) share the last part of
// the identifier, which would give two controllers the same name.
TEST(QLNPhysloc, UniqueIdLastPartDistinguishesLocations) {
    std::set<std::string> seen;
    std::vector<physloc_t> locations = {
        QLNPhysloc::make(Kind::SystemBoard),        QLNPhysloc::make(Kind::SystemBoard, 1),
        QLNPhysloc::make(Kind::EnclosureBay, 1, 2), QLNPhysloc::make(Kind::EnclosureBay, 2, 1),
        QLNPhysloc::make(Kind::Mezzanine, 1),       QLNPhysloc::make(Kind::InternalSlot, 1),
        QLNPhysloc::make(Kind::PciSlot, 1),         QLNPhysloc::make(Kind::PciSlot, 1, 2),
        QLNPhysloc::make(Kind::PciSlot, 2, 1),
    };
    for (auto const& location : locations) {
        std::string id = QLNPhysloc::physlocToUniqueID("bogus", location, 1);
        EXPECT_EQ(id.rfind("bogus:", 0), 0u) << id;
        EXPECT_TRUE(seen.insert(lastPart(id)).second) << id;
    }
    EXPECT_EQ(
        lastPart(QLNPhysloc::physlocToUniqueID("bogus", QLNPhysloc::make(Kind::PciSlot, 3), 2)),
        "3");
    EXPECT_NE(lastPart(QLNPhysloc::physlocToUniqueID("p", BMC_physloc_NULL, 1)),
              lastPart(QLNPhysloc::physlocToUniqueID("p", BMC_physloc_NULL, 2)));
}

// Fault: the two overloads disagree, or parts come out in the wrong order.
TEST(QLNPhysloc, LocationInfoVectors) {
    std::vector<std::string> names{"stale"};
    std::vector<unsigned short> numbers{99};
    QLNPhysloc::createLocationInfoVectors(QLNPhysloc::make(Kind::PciSlot, 2, 1), names, numbers);
    EXPECT_EQ(names, (std::vector<std::string>{"Riser", "PCI Slot"}));
    EXPECT_EQ(numbers, (std::vector<unsigned short>{1, 2}));

    QLNPhysloc::createLocationInfoVectors("Enclosure 1 Bay 4", names, numbers);
    EXPECT_EQ(names, (std::vector<std::string>{"Enclosure", "Bay"}));
    EXPECT_EQ(numbers, (std::vector<unsigned short>{1, 4}));

    QLNPhysloc::createLocationInfoVectors(QLNPhysloc::make(Kind::SystemBoard), names, numbers);
    EXPECT_EQ(names, (std::vector<std::string>{"System Board"}));
    EXPECT_EQ(numbers, (std::vector<unsigned short>{0}));

    QLNPhysloc::createLocationInfoVectors("", names, numbers);
    EXPECT_TRUE(names.empty());
    EXPECT_TRUE(numbers.empty());
}
