// With the old string ABI, each copy of a string asks the C library whether the process has
// threads, to spare itself an atomic operation when it has none. The C library of the test set does
// not have the variable yet (GLIBC_2.32), and a file that asked for it would not be loaded there.
// This one stands in its place, within the plug-in file only; its value means that there are other
// threads, which is always safe.

extern "C" {
extern __attribute__((visibility("hidden"))) char __libc_single_threaded;
char __libc_single_threaded = 0;
}
