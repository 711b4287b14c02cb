// Counting the pixels of a frame, against a well-known library's histogram of the same frame and against only
// reading it; and the reduction of a wide frame to 8 bits against a copy.

#include "bench/RatioReporter.h"
#include "livecontrol/interface/IMG_FrameBuffer.h"

#include <QRect>

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>
#include <random>
#include <vector>

namespace {

constexpr int kBins = 256;

/// A picture like that of a camera: a wide gradient, a bright spot and noise.
struct Picture {
    Picture(const char* text, int width, int height, int bits, bool color, const QRect& area)
        : name(text), rect(area), channels(color ? 3 : 1) {
        frame.width = width;
        frame.height = height;
        frame.stride = width * channels;
        frame.bitsPerSample = frame.significantBits = static_cast<quint8>(bits);
        frame.isColor = color;
        const auto count = static_cast<size_t>(frame.stride) * height;
        narrow.resize(count);
        wide.resize(count);
        std::mt19937 random(7);
        std::normal_distribution<float> noise(0, 0.01F);
        const int full = (1 << bits) - 1;
        for (size_t i = 0; i < count; ++i) {
            const auto x = static_cast<float>(i % frame.stride) / static_cast<float>(frame.stride);
            const size_t row = i / frame.stride;
            const auto y = static_cast<float>(row) / static_cast<float>(height);
            const float spot = std::max(0.0F, 0.3F - std::abs(x - 0.4F) - std::abs(y - 0.5F));
            const float level = std::clamp(0.1F + 0.4F * x + spot + noise(random), 0.0F, 1.0F);
            wide[i] = static_cast<quint16>(level * static_cast<float>(full));
            narrow[i] = static_cast<quint8>(bits > 8 ? wide[i] >> (bits - 8) : wide[i]);
        }
        frame.samples8 = narrow.data();
        frame.samples16 = bits > 8 ? wide.data() : nullptr;
    }

    bool isWide() const { return frame.samples16; }
    cv::Mat mat() {
        const int depth = isWide() ? CV_16U : CV_8U;
        void* const data = isWide() ? static_cast<void*>(wide.data()) : narrow.data();
        const cv::Mat whole(frame.height, frame.width, CV_MAKETYPE(depth, channels), data);
        return whole(cv::Rect(rect.x(), rect.y(), rect.width(), rect.height()));
    }

    std::string name;
    IMG_FrameBuffer frame;
    QRect rect;
    int channels;
    std::vector<quint8> narrow;
    std::vector<quint16> wide;
};

void countBins(benchmark::State& state, Picture* picture) {
    std::array<quint32, 3 * kBins> bins{};
    for (auto _ : state) {
        picture->frame.getHistogramBins(bins.data(), picture->channels, kBins,
                                        static_cast<qint8>(picture->frame.bitsPerSample), &picture->rect,
                                        false, true);
        benchmark::DoNotOptimize(bins);
    }
}

/// One call a channel, since one for all of them would count their combinations.
void countWithOpenCv(benchmark::State& state, Picture* picture) {
    const cv::Mat image = picture->mat();
    const float range[] = {0, static_cast<float>(1 << picture->frame.bitsPerSample)};
    const float* ranges[] = {range};
    const int sizes[] = {kBins};
    std::array<cv::Mat, 3> histograms;
    for (auto _ : state) {
        for (int channel = 0; channel < picture->channels; ++channel) {
            cv::calcHist(&image, 1, &channel, cv::Mat(), histograms[channel], 1, sizes, ranges);
        }
        benchmark::DoNotOptimize(histograms);
    }
}

/// Each byte once, eight at a time.
void readBytes(benchmark::State& state, Picture* picture) {
    const size_t words = picture->narrow.size() / sizeof(quint64);
    for (auto _ : state) {
        quint64 sum = 0;
        for (size_t i = 0; i < words; ++i) {
            quint64 word = 0;
            std::memcpy(&word, picture->narrow.data() + i * sizeof(word), sizeof(word));
            sum += word;
            benchmark::DoNotOptimize(sum);
        }
    }
}

/// A depth of 8 makes the narrow plane; the region of one pixel keeps the counting out of it.
void narrow(benchmark::State& state, Picture* picture) {
    std::array<quint32, kBins> bins{};
    const QRect pixel(0, 0, 1, 1);
    for (auto _ : state) {
        picture->frame.getHistogramBins(bins.data(), 1, kBins, 8, &pixel, false, true);
        benchmark::DoNotOptimize(picture->narrow.data());
    }
}

void copyPlane(benchmark::State& state, Picture* picture) {
    std::vector<quint16> copy(picture->wide.size());
    for (auto _ : state) {
        std::copy(picture->wide.begin(), picture->wide.end(), copy.begin());
        benchmark::DoNotOptimize(copy.data());
        benchmark::ClobberMemory();
    }
}

std::vector<std::unique_ptr<Picture>> pictures() {
    std::vector<std::unique_ptr<Picture>> all;
    for (const auto& [width, height] : {std::pair(1280, 1024), std::pair(4096, 2304)}) {
        for (const int bits : {8, 12}) {
            for (const bool color : {false, true}) {
                for (const bool isWhole : {true, false}) {
                    const QRect area = isWhole ? QRect(0, 0, width, height) : QRect(200, 150, 64, 48);
                    const std::string name = std::to_string(width) + "x" + std::to_string(height) + " " +
                                             std::to_string(bits) + " bits " + (color ? "colour" : "mono") +
                                             (isWhole ? " whole" : " 64x48");
                    all.push_back(std::make_unique<Picture>(name.c_str(), width, height, bits, color, area));
                }
            }
        }
    }
    return all;
}

void add(const std::string& name, void (*run)(benchmark::State&, Picture*), Picture* picture,
         bool isParallel) {
    auto* const added =
        benchmark::RegisterBenchmark(name.c_str(), run, picture)->Unit(benchmark::kMicrosecond);
    if (isParallel) {
        added->UseRealTime();
    }
}

} // namespace

int main(int argc, char** argv) {
    cv::setNumThreads(1); // the counting takes one thread too
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    const auto all = pictures();
    for (const auto& picture : all) {
        add("bins/" + picture->name, countBins, picture.get(), false);
        add("peer/" + picture->name, countWithOpenCv, picture.get(), false);
        const bool isWhole = picture->rect.width() == picture->frame.width;
        if (isWhole && !picture->isWide()) {
            add("read/" + picture->name, readBytes, picture.get(), false);
        }
        if (isWhole && picture->isWide() && picture->channels == 1) {
            add("narrow/" + picture->name, narrow, picture.get(), true);
            add("copy/" + picture->name, copyPlane, picture.get(), true);
        }
    }
    benchmark::RunSpecifiedBenchmarks(&reporter);

    std::printf("\n");
    for (const auto& picture : all) {
        reporter.ratio(("bins / OpenCV's calcHist, " + picture->name).c_str(), "bins/" + picture->name,
                       "peer/" + picture->name, "below 1");
        const bool isWhole = picture->rect.width() == picture->frame.width;
        if (isWhole && !picture->isWide()) {
            reporter.ratio(("bins / reading the bytes, " + picture->name).c_str(), "bins/" + picture->name,
                           "read/" + picture->name, "at most 4");
        }
        if (isWhole && picture->isWide() && picture->channels == 1) {
            reporter.ratio(("to 8 bits / a copy, " + picture->name).c_str(),
                           "narrow/" + picture->name + "/real_time", "copy/" + picture->name + "/real_time",
                           "none");
        }
    }
    return 0;
}
