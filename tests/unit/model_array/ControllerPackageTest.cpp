// The controller's packages, product and locations: keys that keep
// controllers apart and the package type chosen from the controller type.
#include "ArrayTestRig.h"
#include "QLN_VDArrayControllerLocation.h"
#include "QLN_VDArrayControllerPhysicalPackage.h"
#include "QLN_VDArraySystemLocation.h"
#include "QLN_VDPhysicalPackage.h"
#include "QLN_VDProduct.h"

#include <gtest/gtest.h>

namespace {

// Controller 1 is a card in PCI slot 3, 2 is external, 3 embedded and 4 of a
// type that cannot be read; 2 and 5 share the null location and no serial.
char const* const fleet = "  - {serialNumber: P1, model: Veldra 8i, manufacturer: QLN, physloc: [5, 3], controllerType: 2}\n"
                          "  - {controllerType: 3}\n"
                          "  - {serialNumber: P3, physloc: [1, 0], controllerType: 1}\n"
                          "  - {serialNumber: P4, physloc: [5, 2, 1], fail: [getControllerType, getModel]}\n"
                          "  - {controllerType: 3}\n";

template <typename T>
CmpiCpp::CmpiInstance instanceOf(ArrayTestRig& rig, int number) {
    T object(rig.logger, "root/mwq", number, rig.controller(number));
    CmpiCpp::CmpiInstance instance = object.getInstance();
    EXPECT_TRUE(instance.getPath() == object.getPath());
    return instance;
}

std::string text(CmpiCpp::CmpiInstance const& instance, char const* name) {
    return instance.getProperty(name).getString();
}

unsigned short number(CmpiCpp::CmpiInstance const& instance, char const* name) {
    return instance.getProperty(name).getUint16();
}

} // namespace

TEST(ControllerPackages, TagsAreTheClassAndTheControllerName) {
    ArrayTestRig rig(fleet);
    auto system = instanceOf<QLN::QLN_VDPhysicalPackage>(rig, 1);
    EXPECT_EQ(text(system, "Tag"), "QLN_VDPhysicalPackage-P1");
    EXPECT_EQ(text(system, "CreationClassName"), "QLN_VDPhysicalPackage");
    EXPECT_EQ(text(system, "Model"), "Veldra 8i");
    EXPECT_EQ(text(system, "SerialNumber"), "P1");
    EXPECT_EQ(text(system, "ElementName"), "Veldra in PCI Slot 3");
    auto card = instanceOf<QLN::QLN_VDArrayControllerPhysicalPackage>(rig, 1);
    EXPECT_EQ(text(card, "Tag"), "QLN_VDArrayControllerPhysicalPackage-P1");
    EXPECT_EQ(text(card, "Description"), "Veldra Array Controller Physical Package");

    // Without a serial number the tag falls back to the location tag.
    auto external = instanceOf<QLN::QLN_VDPhysicalPackage>(rig, 2);
    EXPECT_EQ(text(external, "Tag"), "QLN_VDPhysicalPackage-EXTERNAL-2");
    EXPECT_FALSE(external.hasProperty("SerialNumber")) << "an empty serial is left out";
    EXPECT_FALSE(external.hasProperty("Model"));
}

TEST(ControllerPackages, PackageTypeFollowsTheControllerType) {
    ArrayTestRig rig(fleet);
    struct Row {
        int controller;
        unsigned short systemType;
        unsigned short controllerType;
        unsigned short removal;
    };
    // card, external, embedded, unreadable type
    for (Row row : {Row{1, 9, 9, 3}, Row{2, 3, 9, 3}, Row{3, 1, 1, 2}, Row{4, 9, 9, 3}}) {
        auto system = instanceOf<QLN::QLN_VDPhysicalPackage>(rig, row.controller);
        auto card = instanceOf<QLN::QLN_VDArrayControllerPhysicalPackage>(rig, row.controller);
        EXPECT_EQ(number(system, "PackageType"), row.systemType) << row.controller;
        EXPECT_EQ(number(card, "PackageType"), row.controllerType) << row.controller;
        EXPECT_EQ(number(card, "RemovalConditions"), row.removal) << row.controller;
        EXPECT_EQ(system.hasProperty("OtherPackageType"), row.systemType == 1) << row.controller;
        EXPECT_EQ(card.hasProperty("OtherPackageType"), row.controllerType == 1) << row.controller;
    }
}

TEST(ControllerProduct, KeysNameThePieceAndFallBackWhenUnread) {
    ArrayTestRig rig(fleet);
    auto product = instanceOf<QLN::QLN_VDProduct>(rig, 1);
    CmpiCpp::CmpiObjectPath path = product.getPath();
    EXPECT_EQ(path.getKeyCount(), 4u);
    EXPECT_EQ(path.getKey("Name").getString(), "Veldra 8i");
    EXPECT_EQ(path.getKey("IdentifyingNumber").getString(), "P1");
    EXPECT_EQ(path.getKey("Vendor").getString(), "QLN");
    EXPECT_EQ(path.getKey("Version").getString(), "N/A");

    auto unread = instanceOf<QLN::QLN_VDProduct>(rig, 4);
    EXPECT_EQ(text(unread, "Name"), "UNKNOWN");
    EXPECT_EQ(text(unread, "Vendor"), "UNKNOWN") << "an empty manufacturer is no key either";
}

TEST(ControllerLocations, NamesUseTheLocationTagAndKeepExternalControllersApart) {
    ArrayTestRig rig(fleet);
    auto slot = instanceOf<QLN::QLN_VDArraySystemLocation>(rig, 4);
    EXPECT_EQ(text(slot, "Name"), "QLN_VDArraySystemLocation-PCISLOT-R1S2");
    EXPECT_EQ(text(slot, "PhysicalPosition"), "PCI Slot 2 on Riser 1");
    EXPECT_EQ(text(slot, "ElementName"), "Veldra in PCI Slot 2 on Riser 1");
    CmpiCpp::CmpiArray codes = slot.getProperty("LocationInformation").getArray();
    CmpiCpp::CmpiArray names = slot.getProperty("LocationInfoDesc").getArray();
    ASSERT_EQ(codes.size(), 2u);
    ASSERT_EQ(names.size(), 2u);
    EXPECT_EQ(names.getElementAt(0).getString(), "Riser");
    EXPECT_EQ(codes.getElementAt(0).getUint16(), 1);
    EXPECT_EQ(names.getElementAt(1).getString(), "PCI Slot");
    EXPECT_EQ(codes.getElementAt(1).getUint16(), 2);

    auto first = instanceOf<QLN::QLN_VDArrayControllerLocation>(rig, 2);
    auto second = instanceOf<QLN::QLN_VDArrayControllerLocation>(rig, 5);
    EXPECT_EQ(text(first, "Name"), "QLN_VDArrayControllerLocation-EXTERNAL-2");
    EXPECT_FALSE(first.getPath() == second.getPath());
    // The system's location says "External"; the controller's does not.
    EXPECT_EQ(text(instanceOf<QLN::QLN_VDArraySystemLocation>(rig, 2), "ElementName").rfind("Veldra External ", 0),
              0u);
    EXPECT_EQ(text(first, "ElementName"), "Veldra Unknown Location");
}

TEST(ControllerLocations, UnreadLocationKeepsTheTextsButDropsTheParts) {
    ArrayTestRig rig("  - {serialNumber: X, physloc: [5, 3], fail: [getPhysloc]}\n");
    auto location = instanceOf<QLN::QLN_VDArrayControllerLocation>(rig, 1);
    EXPECT_EQ(text(location, "Name"), "QLN_VDArrayControllerLocation-UNKNOWN-1");
    EXPECT_EQ(text(location, "ElementName").rfind("Veldra Unknown ", 0), 0u);
    EXPECT_FALSE(location.hasProperty("LocationInformation"));
    EXPECT_FALSE(location.hasProperty("LocationInfoDesc"));
}
