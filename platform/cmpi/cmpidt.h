/*
 * CMPI data types: scalar types, type codes, value states, CMPIValue,
 * CMPIData, CMPIStatus and the return codes, invocation flags, context
 * entry names and broker capability masks.
 *
 * These are our own declarations of the CMPI 2.0 C interface. Every number
 * and every layout here is fixed by the standard, because object managers
 * built against their own copy (SFCB, OpenPegasus) pass these structures
 * across the library boundary: change nothing without checking
 * tests/unit/cmpi.
 */
#ifndef VELDRA_CMPIDT_H
#define VELDRA_CMPIDT_H

#include "cmpios.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Versions ---------------------------------------------------------- */

#define CMPIVersion085 85
#define CMPIVersion086 86
#define CMPIVersion087 87
#define CMPIVersion090 90
#define CMPIVersion100 100
#define CMPIVersion200 200

/* A provider may ask for the level it needs; we only describe 2.0. */
#ifndef CMPI_VERSION
#define CMPI_VERSION 200
#endif
#if CMPI_VERSION != 200
#error "platform/cmpi declares CMPI 2.0 only (CMPI_VERSION 200)"
#endif

/* Levels are cumulative: a 2.0 table carries every older member too. */
#define CMPI_VER_86 1
#define CMPI_VER_87 1
#define CMPI_VER_90 1
#define CMPI_VER_100 1
#define CMPI_VER_200 1
#define CMPICurrentVersion CMPIVersion200

typedef int CMPIVersion;

/* ---- Counts and scalars ------------------------------------------------ */

typedef unsigned int CMPICount;

typedef unsigned char CMPIBoolean;
typedef unsigned short CMPIChar16;
typedef unsigned char CMPIUint8;
typedef unsigned short CMPIUint16;
typedef unsigned int CMPIUint32;
typedef unsigned long long CMPIUint64;
typedef signed char CMPISint8;
typedef short CMPISint16;
typedef int CMPISint32;
typedef long long CMPISint64;
typedef float CMPIReal32;
typedef double CMPIReal64;

/* ---- Encapsulated types (opaque handles with function tables) ---------- */

typedef struct _CMPIBroker CMPIBroker;
typedef struct _CMPIContext CMPIContext;
typedef struct _CMPIResult CMPIResult;
typedef struct _CMPIInstance CMPIInstance;
typedef struct _CMPIObjectPath CMPIObjectPath;
typedef struct _CMPIArgs CMPIArgs;
typedef struct _CMPIString CMPIString;
typedef struct _CMPIArray CMPIArray;
typedef struct _CMPIEnumeration CMPIEnumeration;
typedef struct _CMPIDateTime CMPIDateTime;
typedef struct _CMPISelectExp CMPISelectExp;
typedef struct _CMPISelectCond CMPISelectCond;
typedef struct _CMPISubCond CMPISubCond;
typedef struct _CMPIPredicate CMPIPredicate;
typedef struct _CMPIError CMPIError;

typedef struct _CMPIBrokerFT CMPIBrokerFT;
typedef struct _CMPIBrokerEncFT CMPIBrokerEncFT;
typedef struct _CMPIBrokerExtFT CMPIBrokerExtFT;
typedef struct _CMPIBrokerMemFT CMPIBrokerMemFT;
typedef struct _CMPIContextFT CMPIContextFT;
typedef struct _CMPIResultFT CMPIResultFT;
typedef struct _CMPIInstanceFT CMPIInstanceFT;
typedef struct _CMPIObjectPathFT CMPIObjectPathFT;
typedef struct _CMPIArgsFT CMPIArgsFT;
typedef struct _CMPIStringFT CMPIStringFT;
typedef struct _CMPIArrayFT CMPIArrayFT;
typedef struct _CMPIEnumerationFT CMPIEnumerationFT;
typedef struct _CMPIDateTimeFT CMPIDateTimeFT;
typedef struct _CMPISelectExpFT CMPISelectExpFT;
typedef struct _CMPISelectCondFT CMPISelectCondFT;
typedef struct _CMPISubCondFT CMPISubCondFT;
typedef struct _CMPIPredicateFT CMPIPredicateFT;
typedef struct _CMPIErrorFT CMPIErrorFT;

/* ---- Values ------------------------------------------------------------ */

/* Raw memory passed through CMPI_ptr values. */
typedef struct _CMPIValuePtr {
    void* ptr;
    CMPICount length;
} CMPIValuePtr;

typedef union _CMPIValue {
    CMPIUint64 uint64;
    CMPIUint32 uint32;
    CMPIUint16 uint16;
    CMPIUint8 uint8;
    CMPISint64 sint64;
    CMPISint32 sint32;
    CMPISint16 sint16;
    CMPISint8 sint8;
    CMPIReal64 real64;
    CMPIReal32 real32;
    CMPIBoolean boolean;
    CMPIChar16 char16;

    CMPIInstance* inst;
    CMPIObjectPath* ref;
    CMPIArgs* args;
    CMPISelectExp* filter;
    CMPIEnumeration* Enum;
    CMPIArray* array;
    CMPIString* string;
    char* chars;
    CMPIDateTime* dateTime;
    CMPIValuePtr dataPtr;

    /* Older aliases that some providers still use. */
    CMPISint8 Byte;
    CMPISint16 Short;
    CMPISint32 Int;
    CMPISint64 Long;
    CMPIReal32 Float;
    CMPIReal64 Double;
} CMPIValue;

/* ---- Type codes -------------------------------------------------------- */

typedef unsigned short CMPIType;

#define CMPI_null 0

#define CMPI_SIMPLE 0x0002
#define CMPI_boolean 0x0002
#define CMPI_char16 0x0003

#define CMPI_REAL 0x0008
#define CMPI_real32 0x0008
#define CMPI_real64 0x000C

#define CMPI_UINT 0x0080
#define CMPI_uint8 0x0080
#define CMPI_uint16 0x0090
#define CMPI_uint32 0x00A0
#define CMPI_uint64 0x00B0
#define CMPI_SINT 0x00C0
#define CMPI_sint8 0x00C0
#define CMPI_sint16 0x00D0
#define CMPI_sint32 0x00E0
#define CMPI_sint64 0x00F0
#define CMPI_INTEGER (CMPI_UINT | CMPI_SINT)

#define CMPI_ENC 0x1000
#define CMPI_instance 0x1000
#define CMPI_ref 0x1100
#define CMPI_args 0x1200
#define CMPI_class 0x1300
#define CMPI_filter 0x1400
#define CMPI_enumeration 0x1500
#define CMPI_string 0x1600
#define CMPI_chars 0x1700
#define CMPI_dateTime 0x1800
#define CMPI_ptr 0x1900
#define CMPI_charsptr 0x1A00

/* An array is its element code with this bit set. */
#define CMPI_ARRAY 0x2000
#define CMPI_SIMPLEA (CMPI_ARRAY | CMPI_SIMPLE)
#define CMPI_booleanA (CMPI_ARRAY | CMPI_boolean)
#define CMPI_char16A (CMPI_ARRAY | CMPI_char16)
#define CMPI_REALA (CMPI_ARRAY | CMPI_REAL)
#define CMPI_real32A (CMPI_ARRAY | CMPI_real32)
#define CMPI_real64A (CMPI_ARRAY | CMPI_real64)
#define CMPI_UINTA (CMPI_ARRAY | CMPI_UINT)
#define CMPI_uint8A (CMPI_ARRAY | CMPI_uint8)
#define CMPI_uint16A (CMPI_ARRAY | CMPI_uint16)
#define CMPI_uint32A (CMPI_ARRAY | CMPI_uint32)
#define CMPI_uint64A (CMPI_ARRAY | CMPI_uint64)
#define CMPI_SINTA (CMPI_ARRAY | CMPI_SINT)
#define CMPI_sint8A (CMPI_ARRAY | CMPI_sint8)
#define CMPI_sint16A (CMPI_ARRAY | CMPI_sint16)
#define CMPI_sint32A (CMPI_ARRAY | CMPI_sint32)
#define CMPI_sint64A (CMPI_ARRAY | CMPI_sint64)
#define CMPI_INTEGERA (CMPI_ARRAY | CMPI_INTEGER)
#define CMPI_ENCA (CMPI_ARRAY | CMPI_ENC)
#define CMPI_stringA (CMPI_ARRAY | CMPI_string)
#define CMPI_charsA (CMPI_ARRAY | CMPI_chars)
#define CMPI_dateTimeA (CMPI_ARRAY | CMPI_dateTime)
#define CMPI_instanceA (CMPI_ARRAY | CMPI_instance)
#define CMPI_refA (CMPI_ARRAY | CMPI_ref)
#define CMPI_charsptrA (CMPI_ARRAY | CMPI_charsptr)

/* Key types of an object path; meaningful only with CMPI_keyValue set. */
#define CMPI_keyInteger CMPI_sint64
#define CMPI_keyString CMPI_string
#define CMPI_keyBoolean CMPI_boolean
#define CMPI_keyRef CMPI_ref

/* Operand types of query predicates. */
#define CMPI_charString CMPI_string
#define CMPI_integerString (CMPI_string | CMPI_sint64)
#define CMPI_realString (CMPI_string | CMPI_real64)
#define CMPI_numericString (CMPI_string | CMPI_sint64 | CMPI_real64)
#define CMPI_booleanString (CMPI_string | CMPI_boolean)
#define CMPI_dateTimeString (CMPI_string | CMPI_dateTime)
#define CMPI_classNameString (CMPI_string | CMPI_class)
#define CMPI_nameString (CMPI_string | 0x1A00)

/* Short names kept for source compatibility with older providers. */
#define CMPI_Byte CMPI_sint8
#define CMPI_Short CMPI_sint16
#define CMPI_Int CMPI_sint32
#define CMPI_Long CMPI_sint64
#define CMPI_Float CMPI_real32
#define CMPI_Double CMPI_real64
#define CMPI_ByteA CMPI_sint8A
#define CMPI_ShortA CMPI_sint16A
#define CMPI_IntA CMPI_sint32A
#define CMPI_LongA CMPI_sint64A
#define CMPI_FloatA CMPI_real32A
#define CMPI_DoubleA CMPI_real64A

/* ---- Value states (bits, combined) ------------------------------------- */

typedef unsigned short CMPIValueState;

#define CMPI_goodValue 0x0000
#define CMPI_nullValue 0x0100
#define CMPI_keyValue 0x0200
#define CMPI_notFound 0x0400
#define CMPI_badValue 0x8000

/* A value with its type and state, as every accessor returns it. */
typedef struct _CMPIData {
    CMPIType type;
    CMPIValueState state;
    CMPIValue value;
} CMPIData;

/* Property accessor handed to select expressions. */
typedef CMPIData CMPIAccessor(const char* propertyName, void* parm);

typedef void* CMPIMsgFileHandle;
typedef void CMPIGcStat;

/* ---- Invocation flags and context entries ------------------------------ */

typedef unsigned int CMPIFlags;

#define CMPI_FLAG_LocalOnly 1
#define CMPI_FLAG_DeepInheritance 2
#define CMPI_FLAG_IncludeQualifiers 4
#define CMPI_FLAG_IncludeClassOrigin 8

#define CMPIPrincipal "CMPIPrincipal"
#define CMPIInvocationFlags "CMPIInvocationFlags"
#define CMPIInitNameSpace "CMPIInitNameSpace"
#define CMPIRole "CMPIRole"
#define CMPIAcceptLanguage "CMPIAcceptLanguage"
#define CMPIContentLanguage "CMPIContentLanguage"

/* ---- Return codes and status ------------------------------------------- */

typedef enum _CMPIrc {
    CMPI_RC_OK = 0,
    CMPI_RC_ERR_FAILED = 1,
    CMPI_RC_ERR_ACCESS_DENIED = 2,
    CMPI_RC_ERR_INVALID_NAMESPACE = 3,
    CMPI_RC_ERR_INVALID_PARAMETER = 4,
    CMPI_RC_ERR_INVALID_CLASS = 5,
    CMPI_RC_ERR_NOT_FOUND = 6,
    CMPI_RC_ERR_NOT_SUPPORTED = 7,
    CMPI_RC_ERR_CLASS_HAS_CHILDREN = 8,
    CMPI_RC_ERR_CLASS_HAS_INSTANCES = 9,
    CMPI_RC_ERR_INVALID_SUPERCLASS = 10,
    CMPI_RC_ERR_ALREADY_EXISTS = 11,
    CMPI_RC_ERR_NO_SUCH_PROPERTY = 12,
    CMPI_RC_ERR_TYPE_MISMATCH = 13,
    CMPI_RC_ERR_QUERY_LANGUAGE_NOT_SUPPORTED = 14,
    CMPI_RC_ERR_INVALID_QUERY = 15,
    CMPI_RC_ERR_METHOD_NOT_AVAILABLE = 16,
    CMPI_RC_ERR_METHOD_NOT_FOUND = 17,
    /* Answers of cleanup() only. */
    CMPI_RC_DO_NOT_UNLOAD = 50,
    CMPI_RC_NEVER_UNLOAD = 51,
    /* Raised by the object manager's own services. */
    CMPI_RC_ERR_INVALID_HANDLE = 60,
    CMPI_RC_ERR_INVALID_DATA_TYPE = 61,
    CMPI_RC_ERROR_SYSTEM = 100,
    CMPI_RC_ERROR = 200
} CMPIrc;

typedef struct _CMPIStatus {
    CMPIrc rc;
    CMPIString* msg;
} CMPIStatus;

/* ---- Broker capabilities (brokerCapabilities masks) -------------------- */

#define CMPI_MB_Class_0 0x00000001
#define CMPI_MB_Class_1 0x00000003
#define CMPI_MB_Class_2 0x00000007

#define CMPI_MB_Supports_PropertyMI 0x00000100
#define CMPI_MB_Supports_IndicationMI 0x00000200
#define CMPI_MB_Supports_IndicationPolling 0x00000400
#define CMPI_MB_Supports_QueryNormalization 0x00000800
#define CMPI_MB_Supports_Qualifier 0x00001000
#define CMPI_MB_Supports_Schema 0x00003000
#define CMPI_MB_Supports_MemEnhancements 0x00004000
#define CMPI_MB_Supports_Extended_Error 0x00008000

#define CMPI_MB_BasicRead 0x00000001
#define CMPI_MB_BasicWrite 0x00000003
#define CMPI_MB_InstanceManipulation 0x00000007
#define CMPI_MB_AssociationTraversal 0x00000009
#define CMPI_MB_QueryExecution 0x00000011
#define CMPI_MB_QueryNormalization 0x00000031
#define CMPI_MB_Indications 0x00000081
#define CMPI_MB_BasicQualifierSupport 0x00000047
#define CMPI_MB_OSEncapsulationSupport 0x00000100

/* ---- Queries, logging ---------------------------------------------------- */

typedef enum _CMPIPredOp {
    CMPI_PredOp_Equals = 1,
    CMPI_PredOp_NotEquals = 2,
    CMPI_PredOp_LessThan = 3,
    CMPI_PredOp_GreaterThanOrEquals = 4,
    CMPI_PredOp_GreaterThan = 5,
    CMPI_PredOp_LessThanOrEquals = 6,
    CMPI_PredOp_Isa = 7,
    CMPI_PredOp_NotIsa = 8,
    CMPI_PredOp_Like = 9,
    CMPI_PredOp_NotLike = 10,
    CMPI_PredOp_Not_Null = 11,
    CMPI_PredOp_Null = 12,
    CMPI_PredOp_And = 13,
    CMPI_PredOp_Or = 14
} CMPIPredOp;

typedef enum _CMPISeverity {
    CMPI_SEV_ERROR = 1,
    CMPI_SEV_INFO = 2,
    CMPI_SEV_WARNING = 3,
    CMPI_DEV_DEBUG = 4
} CMPISeverity;

typedef enum _CMPILevel {
    CMPI_LEV_INFO = 1,
    CMPI_LEV_WARNING = 2,
    CMPI_LEV_VERBOSE = 3
} CMPILevel;

typedef enum _CMPISelectCondType { CMPI_COND_DOC = 0, CMPI_COND_COD = 1 } CMPISelectCondType;

/* ---- Extended errors ----------------------------------------------------- */

typedef enum _CMPIErrorType {
    UnknownErrorType = 0,
    OtherErrorType = 1,
    CommunicationsError = 2,
    QualityOfServiceError = 3,
    SoftwareError = 4,
    HardwareError = 5,
    EnvironmentalError = 6,
    SecurityError = 7,
    Oversubscription_Error = 8,
    UnavailableResourceError = 9,
    UnsupportedOperationError = 10
} CMPIErrorType;

typedef enum _CMPIErrorSeverity {
    ErrorSevUnknown = 0,
    ErrorSevLow = 2,
    ErrorSevMedium = 3,
    ErrorSevHigh = 4,
    ErrorSevFatal = 5
} CMPIErrorSeverity;

/* The standard enumerates about 130 causes (the DMTF alert probable causes).
   Only the first two are named here: the rest would put plain words such as
   Timeout into every provider's global scope. Any value of the range fits. */
typedef enum _CMPIErrorProbableCause {
    ErrorProbCauseUnknown = 0,
    ErrorProbCauseOther = 1,
    ErrorProbCauseLast = 130
} CMPIErrorProbableCause;

typedef enum _CMPIErrorSrcFormat {
    CMPIErrSrcUnknown = 0,
    CMPIErrSrcOther = 1,
    CIMObjectHandle = 2
} CMPIErrorSrcFormat;

#ifdef __cplusplus
}
#endif

#endif /* VELDRA_CMPIDT_H */
