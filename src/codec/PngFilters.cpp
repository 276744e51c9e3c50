#include "codec/PngFilters.h"

#include <cstring>

#include "codec/PngFormat.h"

namespace iw::png {
namespace {

// Reconstruction, byte by byte: Recon(x) = Filt(x) + predictor, modulo 256. The stride is
// a template argument for the common pixel sizes so that the loops compile to straight
// code.
template <std::size_t Stride>
void UnfilterSub(std::uint8_t* row, std::size_t count, std::size_t stride) {
    const std::size_t s = Stride ? Stride : stride;
    for (std::size_t i = s; i < count; ++i)
        row[i] = static_cast<std::uint8_t>(row[i] + row[i - s]);
}

void UnfilterUp(std::uint8_t* row, const std::uint8_t* prior, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i)
        row[i] = static_cast<std::uint8_t>(row[i] + prior[i]);
}

template <std::size_t Stride>
void UnfilterAverage(std::uint8_t* row, const std::uint8_t* prior, std::size_t count,
                     std::size_t stride) {
    const std::size_t s = Stride ? Stride : stride;
    const std::size_t lead = s < count ? s : count;
    for (std::size_t i = 0; i < lead; ++i)
        row[i] = static_cast<std::uint8_t>(row[i] + (prior[i] >> 1));
    for (std::size_t i = lead; i < count; ++i) {
        row[i] = static_cast<std::uint8_t>(row[i] + ((row[i - s] + prior[i]) >> 1));
    }
}

template <std::size_t Stride>
void UnfilterPaeth(std::uint8_t* row, const std::uint8_t* prior, std::size_t count,
                   std::size_t stride) {
    const std::size_t s = Stride ? Stride : stride;
    const std::size_t lead = s < count ? s : count;
    // In the first pixel a and c are 0, so the predictor is b.
    for (std::size_t i = 0; i < lead; ++i)
        row[i] = static_cast<std::uint8_t>(row[i] + prior[i]);
    for (std::size_t i = lead; i < count; ++i) {
        row[i] =
            static_cast<std::uint8_t>(row[i] + PaethPredictor(row[i - s], prior[i], prior[i - s]));
    }
}

template <std::size_t Stride>
bool UnfilterRowsWith(std::uint8_t* data, std::size_t rows, std::size_t rowBytes,
                      std::size_t stride, const std::uint8_t* zeroRow) {
    const std::uint8_t* prior = zeroRow;
    for (std::size_t y = 0; y < rows; ++y) {
        std::uint8_t* line = data + y * (rowBytes + 1);
        std::uint8_t* row = line + 1;
        switch (line[0]) {
            case kFilterNone:
                break;
            case kFilterSub:
                UnfilterSub<Stride>(row, rowBytes, stride);
                break;
            case kFilterUp:
                UnfilterUp(row, prior, rowBytes);
                break;
            case kFilterAverage:
                UnfilterAverage<Stride>(row, prior, rowBytes, stride);
                break;
            case kFilterPaeth:
                UnfilterPaeth<Stride>(row, prior, rowBytes, stride);
                break;
            default:
                return false;
        }
        prior = row;
    }
    return true;
}

}  // namespace

bool UnfilterRows(std::uint8_t* data, std::size_t rows, std::size_t rowBytes, std::size_t stride) {
    if (rows == 0 || rowBytes == 0) return true;
    // The first row's "row above" is zero. A row of zeros as long as the row would be a
    // large allocation for wide images, so the first row is handled on its own when it
    // uses a filter that looks up: with a zero prior row Up is None, Average halves a and
    // Paeth is Sub.
    std::uint8_t* row = data + 1;
    switch (data[0]) {
        case kFilterNone:
        case kFilterUp:
            break;
        case kFilterSub:
        case kFilterPaeth:
            for (std::size_t i = stride; i < rowBytes; ++i) {
                row[i] = static_cast<std::uint8_t>(row[i] + row[i - stride]);
            }
            break;
        case kFilterAverage:
            for (std::size_t i = stride; i < rowBytes; ++i) {
                row[i] = static_cast<std::uint8_t>(row[i] + (row[i - stride] >> 1));
            }
            break;
        default:
            return false;
    }
    if (rows == 1) return true;
    std::uint8_t* rest = data + rowBytes + 1;
    // From the second row on, the row above is the (already reconstructed) previous row.
    const std::uint8_t* above = row;
    auto run = [&](auto unfilter) { return unfilter(rest, rows - 1, rowBytes, stride, above); };
    switch (stride) {
        case 1:
            return run(UnfilterRowsWith<1>);
        case 2:
            return run(UnfilterRowsWith<2>);
        case 3:
            return run(UnfilterRowsWith<3>);
        case 4:
            return run(UnfilterRowsWith<4>);
        case 6:
            return run(UnfilterRowsWith<6>);
        case 8:
            return run(UnfilterRowsWith<8>);
        default:
            return run(UnfilterRowsWith<0>);
    }
}

void FilterRow(std::uint8_t type, const std::uint8_t* row, const std::uint8_t* prior,
               std::size_t count, std::size_t stride, std::uint8_t* out) {
    // Bytes of the first pixel have no left neighbour (a = c = 0).
    const std::size_t lead = stride < count ? stride : count;
    switch (type) {
        case kFilterSub:
            std::memcpy(out, row, lead);
            for (std::size_t i = lead; i < count; ++i) {
                out[i] = static_cast<std::uint8_t>(row[i] - row[i - stride]);
            }
            break;
        case kFilterUp:
            for (std::size_t i = 0; i < count; ++i)
                out[i] = static_cast<std::uint8_t>(row[i] - prior[i]);
            break;
        case kFilterAverage:
            for (std::size_t i = 0; i < lead; ++i) {
                out[i] = static_cast<std::uint8_t>(row[i] - (prior[i] >> 1));
            }
            for (std::size_t i = lead; i < count; ++i) {
                out[i] = static_cast<std::uint8_t>(row[i] - ((row[i - stride] + prior[i]) >> 1));
            }
            break;
        case kFilterPaeth:
            for (std::size_t i = 0; i < lead; ++i)
                out[i] = static_cast<std::uint8_t>(row[i] - prior[i]);
            for (std::size_t i = lead; i < count; ++i) {
                out[i] = static_cast<std::uint8_t>(
                    row[i] - PaethPredictor(row[i - stride], prior[i], prior[i - stride]));
            }
            break;
        default:
            std::memcpy(out, row, count);
            break;
    }
}

}  // namespace iw::png
