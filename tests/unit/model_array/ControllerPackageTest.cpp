// The controller's packages, product and locations: keys that keep
// controllers apart and the package type chosen from the controller type.
#include "ArrayTestSupport.h"
#include "QLN_VDArrayControllerLocation.h"
#include "QLN_VDArrayControllerPhysicalPackage.h"
#include "QLN_VDArraySystemLocation.h"
#include "QLN_VDPhysicalPackage.h"
#include "QLN_VDProduct.h"

#include <gtest/gtest.h>

namespace {

// 1 a card in PCI slot 3, 2 external, 3 embedded, 4 on a riser with an
// unreadable type and model, 5 external again.
char const* const fleet =
    "  - {serialNumber: P1, model: Veldra 8i, manufacturer: QLN, physloc: [5, 3], controllerType: "
    "2}\n"
    "  - {controllerType: 3}\n"
    "  - {serialNumber: P3, physloc: [1, 0], controllerType: 1}\n"
    "  - {serialNumber: P4, physloc: [5, 2, 1], fail: [getControllerType, getModel, getPhysloc]}\n"
    "  - {controllerType: 3}\n";

template <typename T> CmpiCpp::CmpiInstance instanceOf(ScenarioRig& rig, int number) {
    T object(rig.logger, "root/mwq", number, rig.controller(number));
    return object.getInstance();
}

std::string text(CmpiCpp::CmpiInstance const& instance, char const* name) {
    return instance.getProperty(name).getString();
}

} // namespace

TEST(ControllerPackages, TagsAndPackageTypes) {
    ScenarioRig rig(ScenarioRig::controllerList, fleet);
    auto card = instanceOf<QLN::QLN_VDPhysicalPackage>(rig, 1);
    EXPECT_EQ(text(card, "Tag"), "QLN_VDPhysicalPackage-P1");
    EXPECT_EQ(text(card, "Model"), "Veldra 8i");
    auto external = instanceOf<QLN::QLN_VDArrayControllerPhysicalPackage>(rig, 2);
    EXPECT_EQ(text(external, "Tag"), "QLN_VDArrayControllerPhysicalPackage-EXTERNAL-2");
    EXPECT_FALSE(external.hasProperty("SerialNumber")) << "an empty serial is left out";

    // system package type, controller package type, controller removal
    std::string const expected[] = {"9 9 3", "3 9 3", "1 1 2", "9 9 3"};
    for (int n = 1; n <= 4; ++n) {
        auto system = instanceOf<QLN::QLN_VDPhysicalPackage>(rig, n);
        auto controller = instanceOf<QLN::QLN_VDArrayControllerPhysicalPackage>(rig, n);
        EXPECT_EQ(std::to_string(system.getProperty("PackageType").getUint16()) + " " +
                      std::to_string(controller.getProperty("PackageType").getUint16()) + " " +
                      std::to_string(controller.getProperty("RemovalConditions").getUint16()),
                  expected[n - 1])
            << "controller " << n;
    }
}

TEST(ControllerProduct, KeysNameThePieceAndFallBackWhenUnread) {
    ScenarioRig rig(ScenarioRig::controllerList, fleet);
    QLN::QLN_VDProduct product(rig.logger, "root/mwq", 1, rig.controller(1));
    EXPECT_EQ(
        product.getPath().str().substr(product.getPath().str().find(':') + 1),
        "QLN_VDProduct.Name=\"Veldra 8i\",IdentifyingNumber=\"P1\",Vendor=\"QLN\",Version=\"N/A\"");
    auto unread = instanceOf<QLN::QLN_VDProduct>(rig, 4);
    EXPECT_EQ(text(unread, "Name"), "UNKNOWN");
    EXPECT_EQ(text(unread, "Vendor"), "UNKNOWN") << "an empty manufacturer is no key either";
}

TEST(ControllerLocations, PositionsUseTheLocationTagAndKeepExternalControllersApart) {
    ScenarioRig rig(ScenarioRig::controllerList, fleet);
    auto slot = instanceOf<QLN::QLN_VDArraySystemLocation>(rig, 1);
    EXPECT_EQ(text(slot, "Name"), "QLN_VDArraySystemLocation");
    EXPECT_EQ(text(slot, "PhysicalPosition"), "PCISLOT-3");
    EXPECT_EQ(text(slot, "ElementName"), "Veldra in PCI Slot 3");
    EXPECT_EQ(slot.getProperty("LocationInfoDesc").getArray().getElementAt(0).getString(),
              "PCI Slot");
    EXPECT_EQ(slot.getProperty("LocationInformation").getArray().getElementAt(0).getUint16(), 3);

    auto first = instanceOf<QLN::QLN_VDArrayControllerLocation>(rig, 2);
    auto second = instanceOf<QLN::QLN_VDArrayControllerLocation>(rig, 5);
    EXPECT_EQ(text(first, "PhysicalPosition"), "EXTERNAL-2");
    EXPECT_NE(text(first, "PhysicalPosition"), text(second, "PhysicalPosition"));
    // The system's location says "External"; the controller's does not.
    EXPECT_EQ(text(instanceOf<QLN::QLN_VDArraySystemLocation>(rig, 2), "ElementName"),
              "Veldra External Unknown Location");
    EXPECT_EQ(text(first, "ElementName"), "Veldra Unknown Location");

    auto unread = instanceOf<QLN::QLN_VDArrayControllerLocation>(rig, 4);
    EXPECT_EQ(text(unread, "PhysicalPosition"), "UNKNOWN-4");
    EXPECT_FALSE(unread.hasProperty("LocationInformation"))
        << "no parts for a location that cannot be read";
}
