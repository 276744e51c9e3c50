#pragma once
// Why a PNG was not read or written. Errors are values inside the codec; the caller turns
// them into the system's own message where the user is told.

namespace iw {

enum class PngError {
    None,
    TooShort,             // 56 bytes or less (files), or shorter than the signature
    BadSignature,         // not a PNG at all: the caller goes on to other formats
    TruncatedChunk,       // a chunk that runs past the end of the data
    ChunkTooLong,         // a chunk length above 2^31 - 1
    MissingHeader,        // IDAT, PLTE or tRNS before IHDR, or no IHDR at all
    BadHeader,            // IHDR of the wrong length, a second IHDR, or bad field values
    TooLarge,             // the image passes the caller's decode limits
    BadPalette,           // PLTE of a bad length or for a type that has none
    BadTransparency,      // tRNS of a bad length
    BadCrc,               // an IDAT whose CRC does not match (checked with zlib loaded)
    NoImageData,          // no IDAT data
    MissingPalette,       // a palette image without PLTE
    DecompressionFailed,  // the zlib stream is broken or does not hold the whole image
    BadFilter,            // a row filter type above 4
    OutOfMemory,          // the image could not be allocated
    ReadFailed,           // the file could not be read
    EncodeFailed,         // the writer's compression failed
    WriteFailed,          // the file could not be written
    Declined,             // the file exists and the caller did not allow replacing it
};

const char* PngErrorText(PngError error);

}  // namespace iw
