#pragma once

#include <QImage>

#include <array>

/// How bright and how colored an image is shown. What is recorded and saved stays as the camera made it.
struct Tones {
    static constexpr std::array<const char*, 4> kLuts = {"Linear", "Gamma 1.5", "Gamma 2.2", "Inverse"};
    static constexpr std::array<const char*, 5> kSaturations = {"0 %", "50 %", "100 %", "150 %", "200 %"};
    static constexpr int kSaturationStep = 50; // percent, from one of these to the next

    int lut = 0;          // of kLuts
    int saturation = 100; // percent; of color images only

    bool isPlain() const { return lut == 0 && saturation == 100; }
    /// The image as it is shown. It has 8 bits a sample, gray or RGB.
    QImage applied(const QImage& image) const;
    bool operator==(const Tones& other) const { return lut == other.lut && saturation == other.saturation; }
};
