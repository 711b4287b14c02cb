#pragma once

class QImage;

/// Blurs a picture that is out of focus: each sample becomes the mean of a square round it. The formats of a
/// Frame; a radius below 1 pixel changes nothing.
void blurImage(QImage& image, int radius);
