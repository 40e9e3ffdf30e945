// With the old string ABI, each copy of a string reads this variable of the C library: in a process
// without threads it saves an atomic operation. The variable exists since GLIBC_2.32. The test
// set's C library is assumed to be older, and a file that needs the variable would not load there.
// This definition replaces it within the plug-in file only. 0 means that the process may have other
// threads, which is always safe.

extern "C" {
extern __attribute__((visibility("hidden"))) char __libc_single_threaded;
char __libc_single_threaded = 0;
}
