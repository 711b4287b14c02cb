#include "livecontrol/live/HistogramFigures.h"

namespace histogram {

namespace {

constexpr int kLargestUnit = 10'000'000;
constexpr int kMaxDivisions = 4;

/// The next smaller one of 1, 2, 5, 10, 20, ...; 0 after 1.
int nextSmaller(int unit) {
    int leading = unit;
    while (leading >= 10) {
        leading /= 10;
    }
    return leading == 5 ? unit / 5 * 2 : unit / 2;
}

/// A bin's number on a scale of `bitDepth` bits; bins are those of 8 bits.
int onScale(int bin, int bitDepth) { return bitDepth >= 8 ? bin << (bitDepth - 8) : bin; }

} // namespace

Division verticalDivision(int peak) {
    Division division;
    for (int unit = kLargestUnit; unit > 0; unit = nextSmaller(unit)) {
        const int parts = peak / unit;
        if (parts > kMaxDivisions) {
            break;
        }
        if (parts >= 2) {
            division = {parts, unit};
        }
    }
    return division;
}

int horizontalLabel(int i, int divisions, int bitDepth) {
    return i == 0 ? 0 : (1 << bitDepth) / divisions * i - 1;
}

Statistics statistics(const Row& row, int bitDepth) {
    Statistics result;
    quint64 sum = 0;
    quint64 weighted = 0;
    for (int bin = 0; bin < kBins; ++bin) {
        const quint64 count = row[bin];
        if (count == 0) {
            continue;
        }
        if (result.min < 0) {
            result.min = onScale(bin, bitDepth);
        }
        result.max = onScale(bin, bitDepth);
        sum += count;
        weighted += count * bin;
    }
    if (sum > 0) {
        result.average = onScale(static_cast<int>(weighted / sum), bitDepth);
    }
    return result;
}

} // namespace histogram
