#include "UTWatermarkData.h"

#include <array>

namespace {

struct Metrics
{
    int fontPointSize;
    int height;
    int width;
    int angle;
};

// By UTWatermarkEnum::WatermarkSize.
constexpr std::array<Metrics, 3> table = {{
    /* Large */ {20, 110, 80, -20},
    /* Medium */ {16, 100, 72, -15},
    /* Small */ {12, 90, 60, -10},
}};

} // namespace

UTWatermarkData::UTWatermarkData(QObject *attachee)
    : KObject(attachee)
    , m_fontPointSize(table[UTWatermarkEnum::Medium].fontPointSize)
    , m_watermarkHeight(table[UTWatermarkEnum::Medium].height)
    , m_watermarkWidth(table[UTWatermarkEnum::Medium].width)
    , m_rotationAngle(table[UTWatermarkEnum::Medium].angle)
{
    connect(this, &UTWatermarkData::watermarkSizeChanged, this, &UTWatermarkData::refresh);
}

void UTWatermarkData::refresh()
{
    if (size_t(m_watermarkSize) >= table.size())
        return;
    const Metrics &metrics = table[size_t(m_watermarkSize)];
    setFontPointSize(metrics.fontPointSize);
    setWatermarkHeight(metrics.height);
    setWatermarkWidth(metrics.width);
    setRotationAngle(metrics.angle);
}
