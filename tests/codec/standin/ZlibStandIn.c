/* A stand-in for zlib, built in several variants for the loader's tests. Each variant
 * exports a different subset of compress2 / compress / uncompress / crc32, and counts the
 * calls it receives so a test can tell which library and which function did the work.
 * compress and compress2 write a valid zlib stream of stored blocks. Every variant also
 * exports a function that calls a callback of the caller's. */

#include <stddef.h>
#include <string.h>

#if defined(_WIN32)
#define STANDIN_EXPORT __declspec(dllexport)
#else
#define STANDIN_EXPORT __attribute__((visibility("default")))
#endif

static int compressCalls;
static int compress2Calls;
static int lastLevel = -100;

static unsigned long StandInCrc(unsigned long crc, const unsigned char* p, size_t n) {
    crc = ~crc & 0xFFFFFFFFul;
    while (n--) {
        crc ^= *p++;
        for (int k = 0; k < 8; ++k) crc = (crc & 1) ? 0xEDB88320ul ^ (crc >> 1) : crc >> 1;
    }
    return ~crc & 0xFFFFFFFFul;
}

static int StoredStream(unsigned char* dest, unsigned long* destLen, const unsigned char* src,
                        unsigned long srcLen) {
    const unsigned long blocks = srcLen / 65535 + 1;
    const unsigned long need = 2 + blocks * 5 + srcLen + 4;
    if (*destLen < need) return -5; /* Z_BUF_ERROR */
    unsigned char* out = dest;
    *out++ = 0x78;
    *out++ = 0x01;
    unsigned long pos = 0;
    for (unsigned long b = 0; b < blocks; ++b) {
        const unsigned long n = srcLen - pos < 65535 ? srcLen - pos : 65535;
        *out++ = (unsigned char)(b + 1 == blocks);
        *out++ = (unsigned char)n;
        *out++ = (unsigned char)(n >> 8);
        *out++ = (unsigned char)~n;
        *out++ = (unsigned char)(~n >> 8);
        if (n) memcpy(out, src + pos, n);
        out += n;
        pos += n;
    }
    unsigned long s1 = 1, s2 = 0;
    for (unsigned long i = 0; i < srcLen; ++i) {
        s1 = (s1 + src[i]) % 65521;
        s2 = (s2 + s1) % 65521;
    }
    *out++ = (unsigned char)(s2 >> 8);
    *out++ = (unsigned char)s2;
    *out++ = (unsigned char)(s1 >> 8);
    *out++ = (unsigned char)s1;
    *destLen = (unsigned long)(out - dest);
    return 0;
}

STANDIN_EXPORT int iw_standin_compress_calls(void) { return compressCalls; }
STANDIN_EXPORT int iw_standin_compress2_calls(void) { return compress2Calls; }
STANDIN_EXPORT int iw_standin_last_level(void) { return lastLevel; }
STANDIN_EXPORT const char* iw_standin_name(void) { return STANDIN_NAME; }

/* Calls the caller's routine back, as a C library that takes a callback does. */
STANDIN_EXPORT int iw_standin_call_back(int (*callback)(void*, int), void* context, int value) {
    return callback(context, value) + 1;
}

STANDIN_EXPORT int compress(unsigned char* dest, unsigned long* destLen, const unsigned char* src,
                            unsigned long srcLen) {
    ++compressCalls;
    return StoredStream(dest, destLen, src, srcLen);
}

#if !defined(STANDIN_NO_COMPRESS2)
STANDIN_EXPORT int compress2(unsigned char* dest, unsigned long* destLen, const unsigned char* src,
                             unsigned long srcLen, int level) {
    ++compress2Calls;
    lastLevel = level;
    return StoredStream(dest, destLen, src, srcLen);
}
#endif

STANDIN_EXPORT int uncompress(unsigned char* dest, unsigned long* destLen, const unsigned char* src,
                              unsigned long srcLen) {
    (void)dest;
    (void)destLen;
    (void)src;
    (void)srcLen;
    return -3; /* Z_DATA_ERROR: the stand-ins do not inflate */
}

#if !defined(STANDIN_NO_CRC32)
STANDIN_EXPORT unsigned long crc32(unsigned long crc, const unsigned char* buf, unsigned int len) {
    return StandInCrc(crc, buf, len);
}
#endif
