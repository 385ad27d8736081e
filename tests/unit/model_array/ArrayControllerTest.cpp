// The array controller's instance: the "if read" rule, the two cache groups,
// the encryption list and the operational status map.
#include "ArrayTestRig.h"
#include "QLN_VDArrayController.h"

#include <gtest/gtest.h>

namespace {

std::vector<std::string> propertyNames(CmpiCpp::CmpiInstance const& instance) {
    std::vector<std::string> names;
    for (unsigned int i = 0; i < instance.getPropertyCount(); ++i) names.push_back(instance.getPropertyNameAt(i).str());
    return names;
}

CmpiCpp::CmpiInstance instanceOf(std::string const& controllerLines, int number = 1) {
    ArrayTestRig rig(controllerLines);
    QLN::QLN_VDArrayController controller(rig.logger, "root/mwq", number, rig.controller(number));
    return controller.getInstance();
}

// Every getter the instance reads; failing all of them leaves the fixed rows.
char const* const allGetters =
    "[getControllerSerialNumber, getModel, getManufacturer, getFWVersion, getCacheSerialNumber, getPCISlotNumber,"
    " getControllerTemperature, getCacheModuleTemperature, getSuperCapTemperature, getCacheSizeInBytes,"
    " getCacheSizeTotal, getSplitReadSize, getSplitWriteSize, getCacheParityReadErrors, getCacheParityWriteErrors,"
    " getExtendedCacheSizeTotal, getCacheReadPercent, getCacheWritePercent, getNumberOfSASPorts,"
    " getNumberOfSASInternalPorts, getNumberOfSASExternalPorts, getPhysloc, getControllerStatus,"
    " getControllerOperationalStatus, getControllerType, getBatteryStatus, getCacheStatus, getCacheState,"
    " getCacheBoardPresent, getCacheHasBattery, getCacheBackupPowerSource, getCacheOperationalStatus,"
    " getReadCacheStatus, getRebuildPriority, getExpandPriority, getDPGSupportedType, getEncryptionStatus,"
    " getEncryptionSelfTestStatus, getEncryptionCSPNvramStatus, getEncryptFWLockStatus,"
    " getEncryptCntlrPwdSetStatus, getEncryptCryptoOfficerPwdSetStatus, getEncryptedCntlrPwdAvailStatus,"
    " getEncryptLDCreationPolicy, getUnencryptLDCreationPolicy]";

std::vector<std::string> const fixedRows = {
    "CreationClassName", "Name", "ElementName", "NameFormat", "OtherIdentifyingInfo", "IdentifyingDescriptions",
    "HealthState", "OperationalStatus", "StatusDescriptions", "EnabledDefault", "EnabledState", "RequestedState",
    "Dedicated"};

} // namespace

TEST(ArrayControllerInstance, AllPropertiesInOrderWithoutSplitCache) {
    CmpiCpp::CmpiInstance instance = instanceOf(
        "  - {serialNumber: PCTL0001, physloc: [5, 3], cacheSizeInBytes: 2048, cacheSizeTotal: 4096,"
        " cacheSerialNumber: CACHE1, extendedCacheSizeTotal: 8589934592, rebuildPriority: 2}\n");
    std::vector<std::string> expected = fixedRows;
    for (char const* name :
         {"DPGSupported", "RebuildPriority", "BatteryStatus", "CacheBoardPresent", "CacheHasBattery",
          "CacheParityReadErrors", "CacheParityWriteErrors", "CacheSerialNumber", "ExtendedCacheSizeTotal",
          "CacheReadPercent", "CacheWritePercent", "CacheSizeTotal", "ControllerTemperature",
          "CacheModuleTemperature", "SuperCapTemperature", "ExpandPriority", "NumberOfPorts",
          "NumberOfInternalPorts", "NumberOfExternalPorts", "AcceleratorBackupPowerSource", "CacheStatus",
          "CacheState", "ControllerStatus", "CacheOperationalStatus", "EncryptionStatus", "EncryptSelfTestStatus",
          "EncryptCSPNvramStatus", "EncryptCntlrPwdSetStatus", "EncryptCryptoOfficerPwdSetStatus",
          "EncryptedCntlrPwdAvailStatus", "EncryptFWLockStatus", "UnencryptedLogicalDrvCreationPolicy",
          "EncryptedLogicalDrvCreationPolicy", "IsHBAModeSupported", "IsSanitizeEraseSupported"})
        expected.push_back(name);
    // RebuildPriority is set twice and stays one property, at its first place.
    EXPECT_EQ(propertyNames(instance), expected);
    EXPECT_EQ(instance.getProperty("RebuildPriority").getUint16(), 2);
    EXPECT_EQ(instance.getProperty("RebuildPriority").getType(), CMPI_uint16);
    EXPECT_FALSE(instance.hasProperty("IsSplitCacheSupported")) << "never set to false";
    EXPECT_EQ(instance.getProperty("CacheSizeTotal").getUint32(), 2048u) << "from the size in bytes";
    EXPECT_EQ(instance.getProperty("ExtendedCacheSizeTotal").getType(), CMPI_uint64);
    EXPECT_EQ(instance.getProperty("ControllerTemperature").getType(), CMPI_sint32);
    EXPECT_EQ(instance.getProperty("ElementName").getString(), "Veldra in PCI Slot 3");
    EXPECT_EQ(instance.getProperty("OtherIdentifyingInfo").getArray().getElementAt(0).getString(),
              "Veldra in PCI Slot 3");
    EXPECT_EQ(instance.getProperty("Dedicated").getArray().size(), 1u);
    EXPECT_EQ(instance.getProperty("Dedicated").getArray().getElementAt(0).getUint16(), 0);
}

TEST(ArrayControllerInstance, SplitCacheGroupReadsTheTotalFromItsOwnGetter) {
    CmpiCpp::CmpiInstance instance = instanceOf(
        "  - {serialNumber: S, splitCacheSupported: true, cacheSizeInBytes: 2048, cacheSizeTotal: 4096,"
        " splitReadSize: 1024, splitWriteSize: 3072, readCacheStatus: 1, fail: [getSplitReadSize]}\n");
    EXPECT_TRUE(instance.getProperty("IsSplitCacheSupported").getBool());
    EXPECT_EQ(instance.getProperty("SplitWriteSize").getUint32(), 3072u);
    EXPECT_FALSE(instance.hasProperty("SplitReadSize")) << "a failed getter drops its property";
    EXPECT_EQ(instance.getProperty("CacheSizeTotal").getUint32(), 4096u);
    EXPECT_EQ(instance.getProperty("ReadCacheStatus").getUint16(), 1);
    EXPECT_FALSE(instance.hasProperty("CacheReadPercent"));
    EXPECT_FALSE(instance.hasProperty("CacheWritePercent"));
    auto names = propertyNames(instance);
    auto at = [&](char const* name) { return std::find(names.begin(), names.end(), name) - names.begin(); };
    EXPECT_LT(at("ExtendedCacheSizeTotal"), at("IsSplitCacheSupported"));
    EXPECT_LT(at("ReadCacheStatus"), at("ControllerTemperature"));
}

TEST(ArrayControllerInstance, EveryGetterFailingLeavesTheFixedRowsAndTheSwitches) {
    std::vector<std::string> expected = fixedRows;
    expected.push_back("IsHBAModeSupported");
    expected.push_back("IsSanitizeEraseSupported");
    CmpiCpp::CmpiInstance plain = instanceOf(std::string("  - {fail: ") + allGetters + "}\n");
    EXPECT_EQ(propertyNames(plain), expected);
    EXPECT_EQ(plain.getProperty("HealthState").getUint16(), 0);
    EXPECT_EQ(plain.getProperty("StatusDescriptions").getArray().getElementAt(0).getString(),
              "Array controller Unknown");
    EXPECT_EQ(plain.getProperty("ElementName").getString().rfind("Veldra Unknown ", 0), 0u);

    // HBA mode is told only where it is supported.
    expected.insert(expected.end() - 1, "IsHBAModeEnabled");
    CmpiCpp::CmpiInstance hba =
        instanceOf(std::string("  - {hbaModeSupported: true, hbaModeEnabled: true, fail: ") + allGetters + "}\n");
    EXPECT_EQ(propertyNames(hba), expected);
    EXPECT_TRUE(hba.getProperty("IsHBAModeEnabled").getBool());
}

TEST(ArrayControllerInstance, EncryptionStatusIsAListEvenWhenEmpty) {
    CmpiCpp::CmpiArray none = instanceOf("  - {encryptionStatus: 0}\n").getProperty("EncryptionStatus").getArray();
    ASSERT_EQ(none.size(), 1u);
    EXPECT_EQ(none.getElementType(), CMPI_uint16);
    EXPECT_EQ(none.getElementAt(0).getUint16(), 0);

    CmpiCpp::CmpiArray one = instanceOf("  - {encryptionStatus: 3}\n").getProperty("EncryptionStatus").getArray();
    ASSERT_EQ(one.size(), 1u);
    EXPECT_EQ(one.getElementAt(0).getUint16(), 3);

    EXPECT_FALSE(instanceOf("  - {fail: [getEncryptionStatus]}\n").hasProperty("EncryptionStatus"));
}

TEST(ArrayControllerInstance, OperationalStatusMapTreatsNotReportedAsUnknown) {
    struct Row {
        char const* value;
        unsigned short operational;
        unsigned short health;
        char const* text;
    };
    for (Row row : {Row{"1", 2, 5, "Array controller is operating properly"},
                    Row{"2", 3, 10, "Array controller Degraded"}, Row{"3", 6, 20, "Array controller Failed"},
                    Row{"4", 0, 0, "Array controller Unknown"}, Row{"9", 0, 0, "Array controller Unknown"}}) {
        CmpiCpp::CmpiInstance instance = instanceOf(std::string("  - {operationalStatus: ") + row.value + "}\n");
        EXPECT_EQ(instance.getProperty("OperationalStatus").getArray().getElementAt(0).getUint16(), row.operational)
            << row.value;
        EXPECT_EQ(instance.getProperty("HealthState").getUint16(), row.health) << row.value;
        EXPECT_EQ(instance.getProperty("StatusDescriptions").getArray().getElementAt(0).getString(), row.text);
    }
}

TEST(ArrayControllerPath, SharesTheNameOfItsArraySystemButNotTheExternalWording) {
    ArrayTestRig rig("  - {serialNumber: A}\n  - {}\n");
    QLN::QLN_VDArrayController first(rig.logger, "root/mwq", 1, rig.controller(1));
    QLN::QLN_VDArrayController second(rig.logger, "root/mwq", 2, rig.controller(2));
    EXPECT_EQ(first.getPath().getKey("Name").getString(), "A");
    EXPECT_EQ(second.getPath().getKey("Name").getString(), "EXTERNAL-2");
    EXPECT_EQ(second.getPath().getKey("CreationClassName").getString(), "QLN_VDArrayController");
    std::string element = second.getInstance().getProperty("ElementName").getString();
    EXPECT_EQ(element.rfind("Veldra ", 0), 0u);
    EXPECT_EQ(element.find("External"), std::string::npos) << element;
    EXPECT_TRUE(first.isFirstStatus());
}
