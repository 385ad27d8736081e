/* A shared library without any CMPI entry point, to check that loading it
   is refused with a clear error. */
int veldraNotAProvider(void) {
    return 42;
}
