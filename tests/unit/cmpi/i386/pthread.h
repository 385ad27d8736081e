/* The one type cmpios.h takes from <pthread.h>, as glibc declares it on
   i386. Lets the 32-bit layout be checked on a machine without 32-bit
   system headers; only the syntax-only check in CMakeLists.txt uses it. */
#ifndef VELDRA_I386_PTHREAD_STUB_H
#define VELDRA_I386_PTHREAD_STUB_H
typedef unsigned int pthread_key_t;
#endif
