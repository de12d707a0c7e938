#pragma once

// Declarations for the tools only: qmllint, the language server and the QML compiler read the type
// descriptions that are generated from this file. The plugin itself never links it, because a
// declarative registration would win over the ones that the plugin makes at run time.

#include "UTAlertBannerEnum.h"
#include "UTButtonSize.h"
#include "UTButtonStyle.h"
#include "UTButtonType.h"
#include "UTCallControlButtonEnum.h"
#include "UTChipStyle.h"
#include "UTDiscoverabilityEnum.h"
#include "UTIndentationBarEnum.h"
#include "UTIndicatorBadgeEnum.h"
#include "UTListAvatarSearchItem.h"
#include "UTMenuEnum.h"
#include "UTPopOverEnum.h"
#include "UTPopupEnum.h"
#include "UTTextButtonEnum.h"
#include "UTTooltipEnum.h"
#include "UTWatermarkEnum.h"

#include <QMovie>
#include <QtQml/qqml.h>

namespace UTAlertBannerEnumTooling {
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(UTAlertBannerEnum)
QML_NAMED_ELEMENT(UTAlertBannerEnum)
} // namespace UTAlertBannerEnumTooling

namespace UTButtonSizeTooling {
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(UTButtonSize)
QML_NAMED_ELEMENT(UTButtonSize)
} // namespace UTButtonSizeTooling

namespace UTButtonStyleTooling {
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(UTButtonStyle)
QML_NAMED_ELEMENT(UTButtonStyle)
} // namespace UTButtonStyleTooling

namespace UTButtonTypeTooling {
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(UTButtonType)
QML_NAMED_ELEMENT(UTButtonType)
} // namespace UTButtonTypeTooling

namespace UTCallControlButtonEnumTooling {
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(UTCallControlButtonEnum)
QML_NAMED_ELEMENT(UTCallControlButtonEnum)
} // namespace UTCallControlButtonEnumTooling

namespace UTChipStyleTooling {
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(UTChipStyle)
QML_NAMED_ELEMENT(UTChipStyle)
} // namespace UTChipStyleTooling

namespace UTDiscoverabilityEnumTooling {
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(UTDiscoverabilityEnum)
QML_NAMED_ELEMENT(UTDiscoverabilityEnum)
} // namespace UTDiscoverabilityEnumTooling

namespace UTIndentationBarEnumTooling {
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(UTIndentationBarEnum)
QML_NAMED_ELEMENT(UTIndentationBarEnum)
} // namespace UTIndentationBarEnumTooling

namespace UTIndicatorBadgeEnumTooling {
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(UTIndicatorBadgeEnum)
QML_NAMED_ELEMENT(UTIndicatorBadgeEnum)
} // namespace UTIndicatorBadgeEnumTooling

namespace UTListAvatarSearchItemTooling {
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(UTListAvatarSearchItem)
QML_NAMED_ELEMENT(UTListAvatarSearchItem)
} // namespace UTListAvatarSearchItemTooling

namespace UTMenuEnumTooling {
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(UTMenuEnum)
QML_NAMED_ELEMENT(UTMenuEnum)
} // namespace UTMenuEnumTooling

namespace UTPopOverEnumTooling {
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(UTPopOverEnum)
QML_NAMED_ELEMENT(UTPopOverEnum)
} // namespace UTPopOverEnumTooling

namespace UTPopupEnumTooling {
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(UTPopupEnum)
QML_NAMED_ELEMENT(UTPopupEnum)
} // namespace UTPopupEnumTooling

namespace UTTextButtonEnumTooling {
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(UTTextButtonEnum)
QML_NAMED_ELEMENT(UTTextButtonEnum)
} // namespace UTTextButtonEnumTooling

namespace UTTooltipEnumTooling {
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(UTTooltipEnum)
QML_NAMED_ELEMENT(UTTooltipEnum)
} // namespace UTTooltipEnumTooling

namespace UTWatermarkEnumTooling {
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(UTWatermarkEnum)
QML_NAMED_ELEMENT(UTWatermarkEnum)
} // namespace UTWatermarkEnumTooling

struct KMovieTooling
{
    Q_GADGET
    QML_FOREIGN(QMovie)
    QML_NAMED_ELEMENT(KMovie)
};
