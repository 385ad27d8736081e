/*
 * Compile-time checks of the CMPI binary layout. Included once from a C file
 * and once from a C++ file, so that both compilers must agree with the
 * numbers an object manager built elsewhere relies on. A failed check names
 * the member that moved.
 */
#ifndef VELDRA_CMPI_LAYOUT_CHECKS_H
#define VELDRA_CMPI_LAYOUT_CHECKS_H

#include <stddef.h>

#include "cmpift.h"

#ifdef __cplusplus
#define LAYOUT_ASSERT(cond, what) static_assert(cond, what)
#else
#define LAYOUT_ASSERT(cond, what) _Static_assert(cond, what)
#endif

#define PTR sizeof(void*)
/* Plain tables start with an int ftVersion, padded to a pointer. */
#define FT_BASE PTR
/* Broker and MI tables start with two ints and a name pointer. */
#define HDR_BASE (2 * sizeof(int) + PTR)

#define SLOT(T, m, base, i) LAYOUT_ASSERT(offsetof(T, m) == (base) + (i)*PTR, #T "." #m " moved")
#define FT_SLOT(T, m, i) SLOT(T, m, FT_BASE, i)
#define HDR_SLOT(T, m, i) SLOT(T, m, HDR_BASE, i)
#define FT_SIZE(T, n) LAYOUT_ASSERT(sizeof(T) == FT_BASE + (n)*PTR, #T " has a wrong member count")
#define HDR_SIZE(T, n)                                                                             \
    LAYOUT_ASSERT(sizeof(T) == HDR_BASE + (n)*PTR, #T " has a wrong member count")

/* ---- Codes ------------------------------------------------------------- */
LAYOUT_ASSERT(CMPI_VERSION == 200 && CMPICurrentVersion == 200, "CMPI version");
LAYOUT_ASSERT(CMPI_boolean == 0x02 && CMPI_char16 == 0x03, "simple codes");
LAYOUT_ASSERT(CMPI_real32 == 0x08 && CMPI_real64 == 0x0C, "real codes");
LAYOUT_ASSERT(CMPI_uint8 == 0x80 && CMPI_uint16 == 0x90 && CMPI_uint32 == 0xA0 &&
                  CMPI_uint64 == 0xB0,
              "unsigned codes");
LAYOUT_ASSERT(CMPI_sint8 == 0xC0 && CMPI_sint16 == 0xD0 && CMPI_sint32 == 0xE0 &&
                  CMPI_sint64 == 0xF0,
              "signed codes");
LAYOUT_ASSERT(CMPI_instance == 0x1000 && CMPI_ref == 0x1100 && CMPI_args == 0x1200 &&
                  CMPI_class == 0x1300 && CMPI_filter == 0x1400 && CMPI_enumeration == 0x1500 &&
                  CMPI_string == 0x1600 && CMPI_chars == 0x1700 && CMPI_dateTime == 0x1800 &&
                  CMPI_ptr == 0x1900 && CMPI_charsptr == 0x1A00,
              "encapsulated codes");
LAYOUT_ASSERT(CMPI_ARRAY == 0x2000 && CMPI_refA == 0x3100 && CMPI_stringA == 0x3600 &&
                  CMPI_uint16A == 0x2090 && CMPI_dateTimeA == 0x3800,
              "array codes");
LAYOUT_ASSERT(CMPI_keyInteger == CMPI_sint64 && CMPI_keyString == CMPI_string &&
                  CMPI_keyBoolean == CMPI_boolean && CMPI_keyRef == CMPI_ref,
              "key codes");
LAYOUT_ASSERT(CMPI_goodValue == 0 && CMPI_nullValue == 0x100 && CMPI_keyValue == 0x200 &&
                  CMPI_notFound == 0x400 && CMPI_badValue == 0x8000,
              "value states");
LAYOUT_ASSERT(CMPI_RC_OK == 0 && CMPI_RC_ERR_FAILED == 1 && CMPI_RC_ERR_INVALID_NAMESPACE == 3 &&
                  CMPI_RC_ERR_INVALID_PARAMETER == 4 && CMPI_RC_ERR_INVALID_CLASS == 5 &&
                  CMPI_RC_ERR_NOT_FOUND == 6 && CMPI_RC_ERR_NOT_SUPPORTED == 7 &&
                  CMPI_RC_ERR_METHOD_NOT_FOUND == 17 && CMPI_RC_DO_NOT_UNLOAD == 50 &&
                  CMPI_RC_ERR_INVALID_HANDLE == 60 && CMPI_RC_ERROR == 200,
              "return codes");
LAYOUT_ASSERT(CMPI_FLAG_LocalOnly == 1 && CMPI_FLAG_DeepInheritance == 2 &&
                  CMPI_FLAG_IncludeQualifiers == 4 && CMPI_FLAG_IncludeClassOrigin == 8,
              "invocation flags");

/* ---- Data ---------------------------------------------------------------- */
LAYOUT_ASSERT(sizeof(CMPIType) == 2 && sizeof(CMPIValueState) == 2 && sizeof(CMPICount) == 4,
              "small types");
LAYOUT_ASSERT(sizeof(CMPIBoolean) == 1 && sizeof(CMPIUint64) == 8 && sizeof(CMPIReal32) == 4,
              "scalar sizes");
LAYOUT_ASSERT(sizeof(CMPIrc) == 4, "CMPIrc is an int-sized enum");
LAYOUT_ASSERT(offsetof(CMPIData, type) == 0 && offsetof(CMPIData, state) == 2, "CMPIData head");
LAYOUT_ASSERT(offsetof(CMPIStatus, rc) == 0 && offsetof(CMPIStatus, msg) == PTR, "CMPIStatus");
LAYOUT_ASSERT(sizeof(CMPIStatus) == 2 * PTR, "CMPIStatus size");
#if defined(__LP64__)
LAYOUT_ASSERT(sizeof(CMPIValue) == 16 && offsetof(CMPIData, value) == 8 && sizeof(CMPIData) == 24,
              "CMPIData on LP64");
#elif defined(__i386__)
LAYOUT_ASSERT(sizeof(CMPIValue) == 8 && offsetof(CMPIData, value) == 4 && sizeof(CMPIData) == 12,
              "CMPIData on i386");
#endif

/* ---- Objects: handle, then table ----------------------------------------- */
#define OBJ(T)                                                                                     \
    LAYOUT_ASSERT(offsetof(T, hdl) == 0 && offsetof(T, ft) == PTR && sizeof(T) == 2 * PTR,         \
                  #T " is not {hdl, ft}")
OBJ(CMPIContext);
OBJ(CMPIResult);
OBJ(CMPIInstance);
OBJ(CMPIObjectPath);
OBJ(CMPIArgs);
OBJ(CMPIString);
OBJ(CMPIArray);
OBJ(CMPIEnumeration);
OBJ(CMPIDateTime);
OBJ(CMPISelectExp);
OBJ(CMPISelectCond);
OBJ(CMPISubCond);
OBJ(CMPIPredicate);
OBJ(CMPIError);
OBJ(CMPIInstanceMI);
OBJ(CMPIAssociationMI);
OBJ(CMPIMethodMI);
OBJ(CMPIPropertyMI);
OBJ(CMPIIndicationMI);

LAYOUT_ASSERT(offsetof(CMPIBroker, hdl) == 0 && offsetof(CMPIBroker, bft) == PTR &&
                  offsetof(CMPIBroker, eft) == 2 * PTR && offsetof(CMPIBroker, xft) == 3 * PTR &&
                  offsetof(CMPIBroker, mft) == 4 * PTR && sizeof(CMPIBroker) == 5 * PTR,
              "CMPIBroker");

/* ---- Broker tables --------------------------------------------------------- */
LAYOUT_ASSERT(offsetof(CMPIBrokerFT, brokerVersion) == 4 && offsetof(CMPIBrokerFT, brokerName) == 8,
              "CMPIBrokerFT head");
HDR_SLOT(CMPIBrokerFT, prepareAttachThread, 0);
HDR_SLOT(CMPIBrokerFT, attachThread, 1);
HDR_SLOT(CMPIBrokerFT, detachThread, 2);
HDR_SLOT(CMPIBrokerFT, deliverIndication, 3);
HDR_SLOT(CMPIBrokerFT, enumerateInstanceNames, 4);
HDR_SLOT(CMPIBrokerFT, getInstance, 5);
HDR_SLOT(CMPIBrokerFT, createInstance, 6);
HDR_SLOT(CMPIBrokerFT, modifyInstance, 7);
HDR_SLOT(CMPIBrokerFT, deleteInstance, 8);
HDR_SLOT(CMPIBrokerFT, execQuery, 9);
HDR_SLOT(CMPIBrokerFT, enumerateInstances, 10);
HDR_SLOT(CMPIBrokerFT, associators, 11);
HDR_SLOT(CMPIBrokerFT, associatorNames, 12);
HDR_SLOT(CMPIBrokerFT, references, 13);
HDR_SLOT(CMPIBrokerFT, referenceNames, 14);
HDR_SLOT(CMPIBrokerFT, invokeMethod, 15);
HDR_SLOT(CMPIBrokerFT, setProperty, 16);
HDR_SLOT(CMPIBrokerFT, getProperty, 17);
HDR_SIZE(CMPIBrokerFT, 18);

FT_SLOT(CMPIBrokerEncFT, newInstance, 0);
FT_SLOT(CMPIBrokerEncFT, newObjectPath, 1);
FT_SLOT(CMPIBrokerEncFT, newArgs, 2);
FT_SLOT(CMPIBrokerEncFT, newString, 3);
FT_SLOT(CMPIBrokerEncFT, newArray, 4);
FT_SLOT(CMPIBrokerEncFT, newDateTime, 5);
FT_SLOT(CMPIBrokerEncFT, newDateTimeFromBinary, 6);
FT_SLOT(CMPIBrokerEncFT, newDateTimeFromChars, 7);
FT_SLOT(CMPIBrokerEncFT, newSelectExp, 8);
FT_SLOT(CMPIBrokerEncFT, classPathIsA, 9);
FT_SLOT(CMPIBrokerEncFT, toString, 10);
FT_SLOT(CMPIBrokerEncFT, isOfType, 11);
FT_SLOT(CMPIBrokerEncFT, getType, 12);
FT_SLOT(CMPIBrokerEncFT, getMessage, 13);
FT_SLOT(CMPIBrokerEncFT, logMessage, 14);
FT_SLOT(CMPIBrokerEncFT, trace, 15);
FT_SLOT(CMPIBrokerEncFT, newCMPIError, 16);
FT_SLOT(CMPIBrokerEncFT, openMessageFile, 17);
FT_SLOT(CMPIBrokerEncFT, closeMessageFile, 18);
FT_SLOT(CMPIBrokerEncFT, getMessage2, 19);
FT_SIZE(CMPIBrokerEncFT, 20);

FT_SLOT(CMPIBrokerExtFT, resolveFileName, 0);
FT_SLOT(CMPIBrokerExtFT, newThread, 1);
FT_SLOT(CMPIBrokerExtFT, joinThread, 2);
FT_SLOT(CMPIBrokerExtFT, exitThread, 3);
FT_SLOT(CMPIBrokerExtFT, cancelThread, 4);
FT_SLOT(CMPIBrokerExtFT, threadSleep, 5);
FT_SLOT(CMPIBrokerExtFT, threadOnce, 6);
FT_SLOT(CMPIBrokerExtFT, createThreadKey, 7);
FT_SLOT(CMPIBrokerExtFT, destroyThreadKey, 8);
FT_SLOT(CMPIBrokerExtFT, getThreadSpecific, 9);
FT_SLOT(CMPIBrokerExtFT, setThreadSpecific, 10);
FT_SLOT(CMPIBrokerExtFT, newMutex, 11);
FT_SLOT(CMPIBrokerExtFT, destroyMutex, 12);
FT_SLOT(CMPIBrokerExtFT, lockMutex, 13);
FT_SLOT(CMPIBrokerExtFT, unlockMutex, 14);
FT_SLOT(CMPIBrokerExtFT, newCondition, 15);
FT_SLOT(CMPIBrokerExtFT, destroyCondition, 16);
FT_SLOT(CMPIBrokerExtFT, condWait, 17);
FT_SLOT(CMPIBrokerExtFT, timedCondWait, 18);
FT_SLOT(CMPIBrokerExtFT, signalCondition, 19);
FT_SIZE(CMPIBrokerExtFT, 20);

FT_SLOT(CMPIBrokerMemFT, mark, 0);
FT_SLOT(CMPIBrokerMemFT, release, 1);
FT_SLOT(CMPIBrokerMemFT, cmpiMalloc, 2);
FT_SLOT(CMPIBrokerMemFT, cmpiCalloc, 3);
FT_SLOT(CMPIBrokerMemFT, cmpiRealloc, 4);
FT_SLOT(CMPIBrokerMemFT, cmpiStrDup, 5);
FT_SLOT(CMPIBrokerMemFT, cmpiFree, 6);
FT_SLOT(CMPIBrokerMemFT, freeInstance, 7);
FT_SLOT(CMPIBrokerMemFT, freeObjectPath, 8);
FT_SLOT(CMPIBrokerMemFT, freeArgs, 9);
FT_SLOT(CMPIBrokerMemFT, freeString, 10);
FT_SLOT(CMPIBrokerMemFT, freeArray, 11);
FT_SLOT(CMPIBrokerMemFT, freeDateTime, 12);
FT_SLOT(CMPIBrokerMemFT, freeSelectExp, 13);
FT_SIZE(CMPIBrokerMemFT, 14);

/* ---- Object tables ----------------------------------------------------------- */
FT_SLOT(CMPIContextFT, release, 0);
FT_SLOT(CMPIContextFT, clone, 1);
FT_SLOT(CMPIContextFT, getEntry, 2);
FT_SLOT(CMPIContextFT, getEntryAt, 3);
FT_SLOT(CMPIContextFT, getEntryCount, 4);
FT_SLOT(CMPIContextFT, addEntry, 5);
FT_SIZE(CMPIContextFT, 6);

FT_SLOT(CMPIResultFT, returnData, 2);
FT_SLOT(CMPIResultFT, returnInstance, 3);
FT_SLOT(CMPIResultFT, returnObjectPath, 4);
FT_SLOT(CMPIResultFT, returnDone, 5);
FT_SLOT(CMPIResultFT, returnError, 6);
FT_SIZE(CMPIResultFT, 7);

FT_SLOT(CMPIInstanceFT, getProperty, 2);
FT_SLOT(CMPIInstanceFT, getPropertyAt, 3);
FT_SLOT(CMPIInstanceFT, getPropertyCount, 4);
FT_SLOT(CMPIInstanceFT, setProperty, 5);
FT_SLOT(CMPIInstanceFT, getObjectPath, 6);
FT_SLOT(CMPIInstanceFT, setPropertyFilter, 7);
FT_SLOT(CMPIInstanceFT, setObjectPath, 8);
FT_SLOT(CMPIInstanceFT, setPropertyWithOrigin, 9);
FT_SIZE(CMPIInstanceFT, 10);

FT_SLOT(CMPIObjectPathFT, setNameSpace, 2);
FT_SLOT(CMPIObjectPathFT, getNameSpace, 3);
FT_SLOT(CMPIObjectPathFT, setHostname, 4);
FT_SLOT(CMPIObjectPathFT, getHostname, 5);
FT_SLOT(CMPIObjectPathFT, setClassName, 6);
FT_SLOT(CMPIObjectPathFT, getClassName, 7);
FT_SLOT(CMPIObjectPathFT, addKey, 8);
FT_SLOT(CMPIObjectPathFT, getKey, 9);
FT_SLOT(CMPIObjectPathFT, getKeyAt, 10);
FT_SLOT(CMPIObjectPathFT, getKeyCount, 11);
FT_SLOT(CMPIObjectPathFT, setNameSpaceFromObjectPath, 12);
FT_SLOT(CMPIObjectPathFT, setHostAndNameSpaceFromObjectPath, 13);
FT_SLOT(CMPIObjectPathFT, getClassQualifier, 14);
FT_SLOT(CMPIObjectPathFT, getPropertyQualifier, 15);
FT_SLOT(CMPIObjectPathFT, getMethodQualifier, 16);
FT_SLOT(CMPIObjectPathFT, getParameterQualifier, 17);
FT_SLOT(CMPIObjectPathFT, toString, 18);
FT_SIZE(CMPIObjectPathFT, 19);

FT_SLOT(CMPIArgsFT, addArg, 2);
FT_SLOT(CMPIArgsFT, getArg, 3);
FT_SLOT(CMPIArgsFT, getArgAt, 4);
FT_SLOT(CMPIArgsFT, getArgCount, 5);
FT_SIZE(CMPIArgsFT, 6);

FT_SLOT(CMPIStringFT, release, 0);
FT_SLOT(CMPIStringFT, clone, 1);
FT_SLOT(CMPIStringFT, getCharPtr, 2);
FT_SIZE(CMPIStringFT, 3);

FT_SLOT(CMPIArrayFT, getSize, 2);
FT_SLOT(CMPIArrayFT, getSimpleType, 3);
FT_SLOT(CMPIArrayFT, getElementAt, 4);
FT_SLOT(CMPIArrayFT, setElementAt, 5);
FT_SIZE(CMPIArrayFT, 6);

FT_SLOT(CMPIEnumerationFT, getNext, 2);
FT_SLOT(CMPIEnumerationFT, hasNext, 3);
FT_SLOT(CMPIEnumerationFT, toArray, 4);
FT_SIZE(CMPIEnumerationFT, 5);

FT_SLOT(CMPIDateTimeFT, getBinaryFormat, 2);
FT_SLOT(CMPIDateTimeFT, getStringFormat, 3);
FT_SLOT(CMPIDateTimeFT, isInterval, 4);
FT_SIZE(CMPIDateTimeFT, 5);

FT_SLOT(CMPISelectExpFT, evaluate, 2);
FT_SLOT(CMPISelectExpFT, getString, 3);
FT_SLOT(CMPISelectExpFT, getDOC, 4);
FT_SLOT(CMPISelectExpFT, getCOD, 5);
FT_SLOT(CMPISelectExpFT, evaluateUsingAccessor, 6);
FT_SIZE(CMPISelectExpFT, 7);

FT_SIZE(CMPISelectCondFT, 4);
FT_SIZE(CMPISubCondFT, 5);
FT_SIZE(CMPIPredicateFT, 4);

FT_SLOT(CMPIErrorFT, getErrorType, 2);
FT_SLOT(CMPIErrorFT, getCIMStatusCode, 14);
FT_SLOT(CMPIErrorFT, getMessageArguments, 16);
FT_SLOT(CMPIErrorFT, setErrorType, 17);
FT_SLOT(CMPIErrorFT, setMessageArguments, 25);
FT_SIZE(CMPIErrorFT, 26);

/* ---- Provider tables ------------------------------------------------------------ */
LAYOUT_ASSERT(offsetof(CMPIInstanceMIFT, miVersion) == 4 && offsetof(CMPIInstanceMIFT, miName) == 8,
              "MI table head");
HDR_SLOT(CMPIInstanceMIFT, cleanup, 0);
HDR_SLOT(CMPIInstanceMIFT, enumerateInstanceNames, 1);
HDR_SLOT(CMPIInstanceMIFT, enumerateInstances, 2);
HDR_SLOT(CMPIInstanceMIFT, getInstance, 3);
HDR_SLOT(CMPIInstanceMIFT, createInstance, 4);
HDR_SLOT(CMPIInstanceMIFT, modifyInstance, 5);
HDR_SLOT(CMPIInstanceMIFT, deleteInstance, 6);
HDR_SLOT(CMPIInstanceMIFT, execQuery, 7);
HDR_SIZE(CMPIInstanceMIFT, 8);

HDR_SLOT(CMPIAssociationMIFT, cleanup, 0);
HDR_SLOT(CMPIAssociationMIFT, associators, 1);
HDR_SLOT(CMPIAssociationMIFT, associatorNames, 2);
HDR_SLOT(CMPIAssociationMIFT, references, 3);
HDR_SLOT(CMPIAssociationMIFT, referenceNames, 4);
HDR_SIZE(CMPIAssociationMIFT, 5);

HDR_SLOT(CMPIMethodMIFT, cleanup, 0);
HDR_SLOT(CMPIMethodMIFT, invokeMethod, 1);
HDR_SIZE(CMPIMethodMIFT, 2);

HDR_SLOT(CMPIPropertyMIFT, setProperty, 1);
HDR_SLOT(CMPIPropertyMIFT, getProperty, 2);
HDR_SLOT(CMPIPropertyMIFT, setPropertyWithOrigin, 3);
HDR_SIZE(CMPIPropertyMIFT, 4);

HDR_SLOT(CMPIIndicationMIFT, cleanup, 0);
HDR_SLOT(CMPIIndicationMIFT, authorizeFilter, 1);
HDR_SLOT(CMPIIndicationMIFT, mustPoll, 2);
HDR_SLOT(CMPIIndicationMIFT, activateFilter, 3);
HDR_SLOT(CMPIIndicationMIFT, deActivateFilter, 4);
HDR_SLOT(CMPIIndicationMIFT, enableIndications, 5);
HDR_SLOT(CMPIIndicationMIFT, disableIndications, 6);
HDR_SIZE(CMPIIndicationMIFT, 7);

#endif /* VELDRA_CMPI_LAYOUT_CHECKS_H */
