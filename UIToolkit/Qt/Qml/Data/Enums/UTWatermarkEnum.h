#pragma once

#include <QObject>

/*! Sizes of a watermark. */
namespace UTWatermarkEnum {
Q_NAMESPACE

enum WatermarkSize : int { Large, Medium, Small };
Q_ENUM_NS(WatermarkSize)

} // namespace UTWatermarkEnum
