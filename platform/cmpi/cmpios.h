/*
 * Platform types of the CMPI interface (POSIX flavour).
 *
 * Object managers hand providers opaque thread, mutex and condition handles
 * through the extended broker table; on Linux these are plain pointers and
 * the thread-local key is a pthread key.
 */
#ifndef VELDRA_CMPIOS_H
#define VELDRA_CMPIOS_H

#include <pthread.h>
#include <stddef.h>

#define CMPI_THREAD_RETURN void*
#define CMPI_THREAD_TYPE void*
#define CMPI_MUTEX_TYPE void*
#define CMPI_COND_TYPE void*
#define CMPI_THREAD_KEY_TYPE pthread_key_t
/* The calling convention of thread start routines: the C default on Linux. */
#define CMPI_THREAD_CDECL

/* Entry points must keep their C names when a provider is written in C++. */
#ifdef __cplusplus
#define CMPI_EXTERN_C extern "C"
#else
#define CMPI_EXTERN_C
#endif

#endif /* VELDRA_CMPIOS_H */
