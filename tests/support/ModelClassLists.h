#pragma once
// Which classes the Veldra provider's graph makes per controller, port,
// enclosure, disk, path and volume: shared by the graph's unit tests and the
// end-to-end expectations, so that a class added to the graph is added to
// both.

// Classes made exactly once for every controller, whatever hangs behind it.
inline char const* const perController[] = {
    "QLN_VDArraySystem", "QLN_VDComputerSystemArraySystem", "QLN_VDSoftwareIdentityDriver",
    "QLN_VDInstalledSoftwareIdentityDriver", "QLN_VDElementSoftwareIdentityDriver",
    "QLN_VDPhysicalPackage", "QLN_VDPhysicalPackageArraySystem", "QLN_VDFirmware",
    "QLN_VDFirmwareArraySystem", "QLN_VDArraySystemFirmware", "QLN_VDPortController",
    "QLN_VDPortControllerPCIDevice", "QLN_VDArraySystemPortController",
    "QLN_VDPhysicalPackagePortController", "QLN_VDComputerSystemPortController", "QLN_VDProduct",
    "QLN_VDProductPhysicalPackage", "QLN_VDArraySystemLocation",
    "QLN_VDPhysicalPackageArraySystemLocation", "QLN_VDArrayController",
    "QLN_VDArraySystemArrayController", "QLN_VDArrayControllerPhysicalPackage",
    "QLN_VDArrayControllerPhysicalPackageArrayController",
    "QLN_VDPhysicalPackageArrayControllerPhysicalPackage", "QLN_VDArrayControllerLocation",
    "QLN_VDArrayControllerPhysicalPackageArrayControllerLocation", "QLN_VDDAPort",
    "QLN_VDArraySystemDAPort", "QLN_VDSCSIProtocolEndpoint",
    "QLN_VDArraySystemSCSIProtocolEndpoint", "QLN_VDDAPortSCSIProtocolEndpoint",
    "QLN_VDSCSIProtocolController", "QLN_VDArraySystemSCSIProtocolController",
    "QLN_VDSCSIProtocolEndpointSCSIProtocolController", "QLN_VDPrimordialPool",
    "QLN_VDPrimordialPoolStorageCapabilities", "QLN_VDArraySystemPrimordialPool",
    // the one concrete pool
    "QLN_VDStoragePool", "QLN_VDStoragePoolStorageCapabilities", "QLN_VDArraySystemStoragePool",
    "QLN_VDPrimordialPoolStoragePool"};
// The controller's PCI function, which the host provider serves.
inline char const* const perControllerHost[] = {"QLN_PCIDevice"};

inline char const* const perInitiatorPort[] = {"QLN_VDISASPort",
                                               "QLN_VDArraySystemISASPort",
                                               "QLN_VDISASSCSIProtocolEndpoint",
                                               "QLN_VDArraySystemISASSCSIProtocolEndpoint",
                                               "QLN_VDISASPortISASSCSIProtocolEndpoint",
                                               "QLN_VDPortControllerISASPort"};

inline char const* const perEnclosure[] = {"QLN_VDStorageEnclosure",
                                           "QLN_VDPhysicalPackageStorageEnclosure",
                                           "QLN_VDStorageEnclosureLocation",
                                           "QLN_VDStorageEnclosureEnclosureLocation",
                                           "QLN_VDStorageEnclosureProcessor",
                                           "QLN_VDStorageEnclosureStorageEnclosureProcessor",
                                           "QLN_VDArraySystemStorageEnclosureProcessor",
                                           "QLN_VDDriveCage",
                                           "QLN_VDDriveCageLocation",
                                           "QLN_VDDriveCageDriveCageLocation",
                                           "QLN_VDStorageEnclosureDriveCage"};
inline char const* const perEnclosureFirmware[] = {
    "QLN_VDEnclosureFirmware", "QLN_VDStorageEnclosureProcessorEnclosureFirmware"};

inline char const* const perDisk[] = {"QLN_VDDiskDrive",
                                      "QLN_VDArraySystemDiskDrive",
                                      "QLN_VDStorageExtent",
                                      "QLN_VDArraySystemStorageExtent",
                                      "QLN_VDDiskDriveStorageExtent",
                                      "QLN_VDDiskPhysicalPackage",
                                      "QLN_VDDiskPhysicalPackageDiskDrive",
                                      "QLN_VDDiskDriveLocation",
                                      "QLN_VDDiskPhysicalPackageDiskDriveLocation"};
inline char const* const perDiskPath[] = {"QLN_VDTSASPort",
                                          "QLN_VDArraySystemTSASPort",
                                          "QLN_VDTSASSCSIProtocolEndpoint",
                                          "QLN_VDArraySystemTSASSCSIProtocolEndpoint",
                                          "QLN_VDTSASPortTSASSCSIProtocolEndpoint",
                                          "QLN_VDDiskDriveTSASSCSIProtocolEndpoint"};
inline char const* const perDiskFirmware[] = {"QLN_VDDiskDriveFirmware",
                                              "QLN_VDDiskDriveDiskDriveFirmware"};
inline char const* const perCarrier[] = {"QLN_VDLumenDriveCarrierAppFirmware",
                                         "QLN_VDLumenDrvCarrierAppElementFirmwareIdentity",
                                         "QLN_VDLumenDrvCarrierAppInstalledFirmwareIdentity",
                                         "QLN_VDLumenDriveCarrierBootldrFirmware",
                                         "QLN_VDLumenDrvCarrierBootldrElementFirmwareIdentity",
                                         "QLN_VDLumenDrvCarrierBootldrInstalledFirmwareIdentity"};
inline char const* const perStatistics[] = {"QLN_VDMediaAccessStatData",
                                            "QLN_VDDiskDriveMediaAccessStatData"};

inline char const* const perVolume[] = {"QLN_VDStorageVolume", "QLN_VDArraySystemStorageVolume",
                                        "QLN_VDSCSIProtocolControllerStorageVolume",
                                        "QLN_VDStorageSetting",
                                        "QLN_VDStorageVolumeStorageSetting"};
