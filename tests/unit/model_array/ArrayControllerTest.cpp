// The array controller's instance: the "if read" rule, the two cache groups,
// the encryption list and the operational status map.
#include "ArrayTestSupport.h"
#include "QLN_VDArrayController.h"

#include <gtest/gtest.h>

namespace {

CmpiCpp::CmpiInstance instanceOf(std::string const& controllers, int number = 1) {
    ScenarioRig rig(ScenarioRig::controllerList, controllers);
    QLN::QLN_VDArrayController controller(rig.logger, "root/mwq", number, rig.controller(number));
    return controller.getInstance();
}

// Every getter the instance reads; failing all of them leaves the fixed rows.
std::string const allGetters =
    "[getControllerSerialNumber, getModel, getManufacturer, getCacheSerialNumber, "
    "getControllerTemperature,"
    " getCacheModuleTemperature, getSuperCapTemperature, getCacheSizeInBytes, getCacheSizeTotal, "
    "getSplitReadSize,"
    " getSplitWriteSize, getCacheParityReadErrors, getCacheParityWriteErrors, "
    "getExtendedCacheSizeTotal,"
    " getCacheReadPercent, getCacheWritePercent, getNumberOfSASPorts, getNumberOfSASInternalPorts,"
    " getNumberOfSASExternalPorts, getPhysloc, getControllerStatus, getControllerOperationalStatus,"
    " getBatteryStatus, getCacheStatus, getCacheState, getCacheBoardPresent, getCacheHasBattery,"
    " getCacheBackupPowerSource, getCacheOperationalStatus, getReadCacheStatus, getRebuildPriority,"
    " getExpandPriority, getDPGSupportedType, getEncryptionStatus, getEncryptionSelfTestStatus,"
    " getEncryptionCSPNvramStatus, getEncryptFWLockStatus, getEncryptCntlrPwdSetStatus,"
    " getEncryptCryptoOfficerPwdSetStatus, getEncryptedCntlrPwdAvailStatus, "
    "getEncryptLDCreationPolicy,"
    " getUnencryptLDCreationPolicy]";

std::string const fixedRows =
    "CreationClassName Name ElementName NameFormat OtherIdentifyingInfo "
    "IdentifyingDescriptions HealthState OperationalStatus StatusDescriptions "
    "EnabledDefault EnabledState RequestedState Dedicated";

} // namespace

TEST(ArrayControllerInstance, AllPropertiesInOrderWithoutSplitCache) {
    CmpiCpp::CmpiInstance instance =
        instanceOf("  - {serialNumber: PCTL0001, physloc: [5, 3], cacheSizeInBytes: 2048,"
                   " cacheSizeTotal: 4096, rebuildPriority: 2}\n");
    // RebuildPriority is set twice and stays one property, at its first place.
    EXPECT_EQ(
        propertyNames(instance),
        fixedRows +
            " DPGSupported RebuildPriority BatteryStatus CacheBoardPresent CacheHasBattery "
            "CacheParityReadErrors CacheParityWriteErrors CacheSerialNumber ExtendedCacheSizeTotal "
            "CacheReadPercent CacheWritePercent CacheSizeTotal ControllerTemperature "
            "CacheModuleTemperature SuperCapTemperature ExpandPriority NumberOfPorts "
            "NumberOfInternalPorts NumberOfExternalPorts AcceleratorBackupPowerSource CacheStatus "
            "CacheState ControllerStatus CacheOperationalStatus EncryptionStatus "
            "EncryptSelfTestStatus "
            "EncryptCSPNvramStatus EncryptCntlrPwdSetStatus EncryptCryptoOfficerPwdSetStatus "
            "EncryptedCntlrPwdAvailStatus EncryptFWLockStatus UnencryptedLogicalDrvCreationPolicy "
            "EncryptedLogicalDrvCreationPolicy IsHBAModeSupported IsSanitizeEraseSupported");
    EXPECT_EQ(instance.getProperty("RebuildPriority").getType(), CMPI_uint16);
    EXPECT_EQ(instance.getProperty("CacheSizeTotal").getUint32(), 2048u)
        << "from the size in bytes";
    EXPECT_EQ(instance.getProperty("ExtendedCacheSizeTotal").getType(), CMPI_uint64);
    EXPECT_EQ(instance.getProperty("ControllerTemperature").getType(), CMPI_sint32);
    EXPECT_EQ(instance.getProperty("OtherIdentifyingInfo").getArray().getElementAt(0).getString(),
              "Veldra in PCI Slot 3");
}

TEST(ArrayControllerInstance, SplitCacheGroupReadsTheTotalFromItsOwnGetter) {
    CmpiCpp::CmpiInstance instance = instanceOf("  - {splitCacheSupported: true, cacheSizeInBytes: "
                                                "2048, cacheSizeTotal: 4096, splitWriteSize: 3072,"
                                                " fail: [getSplitReadSize]}\n");
    EXPECT_NE(
        propertyNames(instance).find("ExtendedCacheSizeTotal IsSplitCacheSupported SplitWriteSize "
                                     "CacheSizeTotal ReadCacheStatus ControllerTemperature"),
        std::string::npos)
        << propertyNames(instance);
    EXPECT_TRUE(instance.getProperty("IsSplitCacheSupported").getBool());
    EXPECT_EQ(instance.getProperty("CacheSizeTotal").getUint32(), 4096u);
    EXPECT_FALSE(instance.hasProperty("CacheReadPercent"));
}

TEST(ArrayControllerInstance, EveryGetterFailingLeavesTheFixedRowsAndTheSwitches) {
    CmpiCpp::CmpiInstance plain = instanceOf("  - {fail: " + allGetters + "}\n");
    EXPECT_EQ(propertyNames(plain), fixedRows + " IsHBAModeSupported IsSanitizeEraseSupported");
    EXPECT_EQ(plain.getProperty("HealthState").getUint16(), 0);
    EXPECT_EQ(plain.getProperty("StatusDescriptions").getArray().getElementAt(0).getString(),
              "Array controller Unknown");
    EXPECT_EQ(plain.getProperty("ElementName").getString().rfind("Veldra Unknown ", 0), 0u);

    CmpiCpp::CmpiInstance hba =
        instanceOf("  - {hbaModeSupported: true, fail: " + allGetters + "}\n");
    EXPECT_EQ(propertyNames(hba),
              fixedRows + " IsHBAModeSupported IsHBAModeEnabled IsSanitizeEraseSupported");
}

TEST(ArrayControllerInstance, EncryptionStatusIsAListEvenWhenEmpty) {
    CmpiCpp::CmpiArray none =
        instanceOf("  - {encryptionStatus: 0}\n").getProperty("EncryptionStatus").getArray();
    ASSERT_EQ(none.size(), 1u);
    EXPECT_EQ(none.getElementType(), CMPI_uint16);
    EXPECT_EQ(none.getElementAt(0).getUint16(), 0);
    CmpiCpp::CmpiArray one =
        instanceOf("  - {encryptionStatus: 3}\n").getProperty("EncryptionStatus").getArray();
    ASSERT_EQ(one.size(), 1u);
    EXPECT_EQ(one.getElementAt(0).getUint16(), 3);
}

TEST(ArrayControllerInstance, NotReportedReadsAsUnknownHere) {
    auto health = [](char const* value) {
        CmpiCpp::CmpiInstance instance =
            instanceOf(std::string("  - {operationalStatus: ") + value + "}\n");
        return std::to_string(instance.getProperty("HealthState").getUint16()) + " " +
               std::to_string(instance.getProperty("OperationalStatus")
                                  .getArray()
                                  .getElementAt(0)
                                  .getUint16()) +
               " " +
               instance.getProperty("StatusDescriptions").getArray().getElementAt(0).getString();
    };
    EXPECT_EQ(health("1"), "5 2 Array controller is operating properly");
    EXPECT_EQ(health("2"), "10 3 Array controller Degraded");
    EXPECT_EQ(health("4"), "0 0 Array controller Unknown");
}

TEST(ArrayControllerPath, SharesTheNameOfItsArraySystemButNotTheExternalWording) {
    ScenarioRig rig(ScenarioRig::controllerList, "  - {serialNumber: A}\n  - {}\n");
    QLN::QLN_VDArrayController second(rig.logger, "root/mwq", 2, rig.controller(2));
    EXPECT_EQ(second.getPath().getKey("Name").getString(), "EXTERNAL-2");
    EXPECT_EQ(second.getInstance().getProperty("ElementName").getString(),
              "Veldra Unknown Location");
    EXPECT_TRUE(second.isFirstStatus());
}
