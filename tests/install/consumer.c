/* tests/install/consumer.c: a C11 program as a user would write it. Prints the path of the library it runs on. */
#define _GNU_SOURCE /* dladdr */
#include <dlfcn.h>
#include <kvri.h>
#include <stdio.h>
#include <string.h>

enum { width = 37, height = 5, channels = 3 };

static int fail(const char* what) {
    fprintf(stderr, "consumer.c: %s\n", what);
    return 1;
}

int main(void) {
    const KvriSize size = {width, height};
    const Kvr8u colour[channels] = {10, 20, 30};
    int srcStep, dstStep;
    Kvr8u* src = kvriMalloc_8u_C3(width, height, &srcStep);
    Kvr8u* dst = kvriMalloc_8u_C3(width, height, &dstStep);
    if (src == NULL || dst == NULL) return fail("no memory");
    memset(dst, 0, (size_t)dstStep * height);
    if (kvriSet_8u_C3R(colour, src, srcStep, size) != kvrStatusOk) return fail("set");
    if (kvriCopy_8u_C3R(src, srcStep, dst, dstStep, size) != kvrStatusOk) return fail("copy");
    for (int y = 0; y < height; ++y)
        for (int i = 0; i < width * channels; ++i)
            if (dst[y * dstStep + i] != colour[i % channels]) return fail("wrong sample");
    if (kvriCopy_8u_C3R(NULL, srcStep, dst, dstStep, size) != kvrStatusNullPointer) return fail("null accepted");
    kvriFree(src);
    kvriFree(dst);

    const KvrLibraryVersion* version = kvriGetLibVersion();
    if (version->major != 8 || version->minor != 2 || version->update != 3) return fail("wrong version");
    if (strncmp(version->version, "8.2.3", 5) != 0) return fail("wrong version text");

    Dl_info library;
    if (dladdr(version, &library) == 0) return fail("the version record belongs to no library");
    puts(library.dli_fname);
    return 0;
}
