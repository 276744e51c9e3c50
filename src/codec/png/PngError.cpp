#include "codec/png/PngError.h"

namespace iw {

const char* PngErrorText(PngError error) {
    switch (error) {
        case PngError::None:
            return "no error";
        case PngError::TooShort:
            return "the data is too short to be a PNG";
        case PngError::BadSignature:
            return "the data does not begin with the PNG signature";
        case PngError::TruncatedChunk:
            return "a chunk runs past the end of the data";
        case PngError::ChunkTooLong:
            return "a chunk length is above 2^31 - 1";
        case PngError::MissingHeader:
            return "the IHDR chunk is missing or not first";
        case PngError::BadHeader:
            return "the IHDR chunk is invalid";
        case PngError::TooLarge:
            return "the image is larger than allowed";
        case PngError::BadPalette:
            return "the PLTE chunk is invalid";
        case PngError::BadTransparency:
            return "the tRNS chunk is invalid";
        case PngError::BadCrc:
            return "an IDAT chunk fails its CRC check";
        case PngError::NoImageData:
            return "there is no image data";
        case PngError::MissingPalette:
            return "a palette image has no PLTE chunk";
        case PngError::DecompressionFailed:
            return "the image data does not decompress";
        case PngError::BadFilter:
            return "a row has an unknown filter type";
        case PngError::OutOfMemory:
            return "there is not enough memory for the image";
        case PngError::ReadFailed:
            return "the file could not be read";
        case PngError::EncodeFailed:
            return "the image data could not be compressed";
        case PngError::WriteFailed:
            return "the file could not be written";
        case PngError::Declined:
            return "the existing file was kept";
    }
    return "unknown error";
}

}  // namespace iw
