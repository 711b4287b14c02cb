#include "livecontrol/interface/IMG_FrameBuffer.h"

#include <QDebug>
#include <QRect>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

namespace {

constexpr int kNarrowValues = 256;
/// Neighbours often have the same value, and a counter that was just written is slow to read: so samples take
/// turns on some tables. A multiple of one and of three channels, so that a table serves one channel.
constexpr int kTables = 6;
/// So many samples make up for emptying and reading the table of pairs.
constexpr qint64 kManySamples = 1 << 19;
/// Wide samples whose bins are worked out in one go, which the compiler does several at a time.
constexpr int kBlock = 192;

/// Where the samples go and how.
struct Target {
    quint32* bins;
    int channels;
    int binCount;
    float scale;

    int binOf(float sample) const {
        return static_cast<int>(std::min(sample * scale, static_cast<float>(binCount - 1)));
    }
};

/// Counts 8-bit samples by their value, and puts the values into bins at the end.
class NarrowCounter {
public:
    explicit NarrowCounter(const Target& target)
        : m_target(target), m_tabled(kTables % target.channels == 0) {}

    void add(const quint8* sample, int count) {
        if (!m_tabled) {
            for (int i = 0; i < count; ++i) {
                const int row = i % m_target.channels * m_target.binCount;
                ++m_target.bins[row + m_target.binOf(sample[i])];
            }
            return;
        }
        const quint8* const end = sample + count;
        for (; end - sample >= kTables; sample += kTables) {
            ++m_tables[0][sample[0]];
            ++m_tables[1][sample[1]];
            ++m_tables[2][sample[2]];
            ++m_tables[3][sample[3]];
            ++m_tables[4][sample[4]];
            ++m_tables[5][sample[5]];
        }
        for (int table = 0; sample != end; ++sample, ++table) {
            ++m_tables[table][*sample];
        }
    }

    void finish() {
        for (int value = 0; value < kNarrowValues; ++value) {
            const int bin = m_target.binOf(static_cast<float>(value));
            for (int table = 0; table < kTables; ++table) {
                m_target.bins[table % m_target.channels * m_target.binCount + bin] += m_tables[table][value];
            }
        }
    }

private:
    Target m_target;
    bool m_tabled;
    std::array<std::array<quint32, kNarrowValues>, kTables> m_tables{};
};

/// Counts 8-bit samples of one channel two at a time by the values of both: a processor writes one counter at
/// a time, and that is what counting takes.
class PairCounter {
public:
    explicit PairCounter(const Target& target) : m_target(target), m_rest(target) {}

    void add(const quint8* sample, int count) {
        const quint8* const end = sample + count;
        for (; end - sample >= static_cast<qptrdiff>(sizeof(quint64)); sample += sizeof(quint64)) {
            quint64 word = 0;
            std::memcpy(&word, sample, sizeof(word));
            ++m_pairs[word & 0xFFFFU];
            ++m_pairs[word >> 16 & 0xFFFFU];
            ++m_pairs[word >> 32 & 0xFFFFU];
            ++m_pairs[word >> 48];
        }
        m_rest.add(sample, static_cast<int>(end - sample));
    }

    void finish() {
        std::array<quint32, kNarrowValues> counts{};
        const quint32* pair = m_pairs.data();
        for (quint32& ofOne : counts) {
            quint32 sum = 0;
            for (quint32& ofOther : counts) {
                sum += *pair;
                ofOther += *pair++;
            }
            ofOne += sum;
        }
        for (int value = 0; value < kNarrowValues; ++value) {
            m_target.bins[m_target.binOf(static_cast<float>(value))] += counts[value];
        }
        m_rest.finish();
    }

private:
    Target m_target;
    NarrowCounter m_rest;
    std::array<quint32, kNarrowValues * kNarrowValues> m_pairs{};
};

/// Counts wide samples, whose values are too many for a table on the stack.
class WideCounter {
public:
    explicit WideCounter(const Target& target)
        : m_target(target), m_block(kBlock / target.channels * target.channels) {}

    void add(const quint16* sample, int count) {
        while (count > 0) {
            const int samples = std::min(m_block, count);
            for (int i = 0; i < samples; ++i) {
                m_index[i] = m_target.binOf(sample[i]);
            }
            countBlock(samples);
            sample += samples;
            count -= samples;
        }
    }

    void finish() {}

private:
    void countBlock(int samples) {
        int i = 0;
        while (i < samples) {
            quint32* row = m_target.bins;
            for (int channel = 0; channel < m_target.channels; ++channel, row += m_target.binCount) {
                ++row[m_index[i++]];
            }
        }
    }

    Target m_target;
    int m_block;
    std::array<int, kBlock> m_index{};
};

/// The part of a row that an ellipse covers, as columns from `first` up to before `last`.
struct Columns {
    int first;
    int last;
};

/// The ellipse inscribed in a rectangle of pixels.
class Ellipse {
public:
    explicit Ellipse(const QRect& rect)
        : m_radiusX((rect.right() - rect.left() + 1) / 2.0),
          m_radiusY((rect.bottom() - rect.top() + 1) / 2.0),
          m_centerX((rect.left() + rect.right() + 1) / 2.0),
          m_centerY((rect.top() + rect.bottom() + 1) / 2.0) {}

    /// An ellipse has no gaps, so the columns between the first and the last one inside are inside too.
    Columns columns(int y, const QRect& scanned) const {
        Columns found{scanned.left(), scanned.right() + 1};
        while (found.first < found.last && !contains(found.first, y)) {
            ++found.first;
        }
        while (found.last > found.first && !contains(found.last - 1, y)) {
            --found.last;
        }
        return found;
    }

private:
    bool contains(int x, int y) const {
        const double dx = (x + 0.5 - m_centerX) / m_radiusX;
        const double dy = (y + 0.5 - m_centerY) / m_radiusY;
        return dx * dx + dy * dy <= 1.0;
    }

    double m_radiusX;
    double m_radiusY;
    double m_centerX;
    double m_centerY;
};

/// Which pixels count.
struct Region {
    QRect scanned; ///< What is walked through.
    QRect rect;    ///< The region itself.
    bool ellipse;
    bool inside;

    Columns columns(int y) const {
        if (ellipse) {
            return Ellipse(rect).columns(y, scanned);
        }
        if (y < rect.top() || y > rect.bottom()) {
            return {scanned.right() + 1, scanned.right() + 1};
        }
        return {rect.left(), rect.right() + 1};
    }
};

template <class Counter, class Sample>
void countRegion(const Sample* plane, int stride, const Target& target, const Region& region) {
    Counter counter(target);
    for (int y = region.scanned.top(); y <= region.scanned.bottom(); ++y) {
        const Sample* const row = plane + static_cast<qptrdiff>(y) * stride;
        const auto add = [&](int first, int last) {
            counter.add(row + static_cast<qptrdiff>(first) * target.channels,
                        (last - first) * target.channels);
        };
        const Columns in = region.columns(y);
        if (region.inside) {
            add(in.first, in.last);
        } else {
            add(region.scanned.left(), in.first);
            add(in.last, region.scanned.right() + 1);
        }
    }
    counter.finish();
}

} // namespace

void IMG_FrameBuffer::getHistogramBins(quint32* bins, int channels, int binCount, qint8 bitDepth,
                                       const QRect* rect, bool ellipse, bool inside) {
    const QRect full(0, 0, width, height);
    const QRect region = rect ? rect->normalized() : full;
    if (rect && !contains(region)) {
        return;
    }
    if (channels < 1 || channels > kBlock || binCount < 1) {
        return;
    }
    const int frameDepth = bitsPerSample <= 8 ? bitsPerSample : significantBits;
    const int depth = bitDepth >= 1 ? bitDepth : frameDepth;
    if (depth < 1) {
        return; // a frame without a picture
    }
    const Target target{bins, channels, binCount,
                        static_cast<float>(binCount - 1) / (std::ldexp(1.0F, depth) - 1.0F)};
    const Region counted{rect && inside ? region : full, region, ellipse, inside};
    if (bitsPerSample > 8 && depth > 8) {
        if (samples16) {
            countRegion<WideCounter>(samples16, stride, target, counted);
        }
        return;
    }
    if (bitsPerSample > 8) {
        fillSamples8();
    }
    if (!samples8) {
        return;
    }
    if (channels == 1 && qint64(counted.scanned.width()) * counted.scanned.height() >= kManySamples) {
        countRegion<PairCounter>(samples8, stride, target, counted);
    } else {
        countRegion<NarrowCounter>(samples8, stride, target, counted);
    }
}

bool IMG_FrameBuffer::contains(const QRect& region) const {
    const char* fault = nullptr;
    if (region.width() > width || region.height() > height) {
        fault = "size over flow";
    } else if (region.top() < 0 || region.left() < 0 || region.bottom() >= height ||
               region.right() >= width) {
        fault = "coord over flow";
    }
    if (fault) {
        qCritical() << "IMG_FrameBuffer::getHistogramBins"
                    << "illegal Parameter" << fault << region;
    }
    return !fault;
}

void IMG_FrameBuffer::fillSamples8() {
    if (significantBits <= 8 || !samples16 || !samples8) {
        return;
    }
    const qptrdiff count = static_cast<qptrdiff>(stride) * height;
    const int shift = significantBits - 8;
    const quint16* const from = samples16;
    quint8* const to = samples8;
#pragma omp parallel for schedule(static)
    for (qptrdiff i = 0; i < count; ++i) {
        to[i] = static_cast<quint8>(std::min(from[i] >> shift, 255));
    }
}
