#include "DataRegistration.h"

#include "AwaitedData.h"
#include "UTAlertBannerEnum.h"
#include "UTBlockButtonData.h"
#include "UTButtonSize.h"
#include "UTButtonStyle.h"
#include "UTButtonType.h"
#include "UTCallControlButtonData.h"
#include "UTCallControlButtonEnum.h"
#include "UTChipData.h"
#include "UTChipStyle.h"
#include "UTColorData.h"
#include "UTColorSetData.h"
#include "UTDiscoverabilityEnum.h"
#include "UTDynamicResource.h"
#include "UTDynamicResourceData.h"
#include "UTEventData.h"
#include "UTEventFilterData.h"
#include "UTIconButtonData.h"
#include "UTIndentationBarEnum.h"
#include "UTIndicatorBadgeEnum.h"
#include "UTKeyEventData.h"
#include "UTLinkData.h"
#include "UTListAvatarSearchItem.h"
#include "UTListData.h"
#include "UTMenuEnum.h"
#include "UTMultilinePillButtonData.h"
#include "UTPillButtonData.h"
#include "UTPopOverData.h"
#include "UTPopOverEnum.h"
#include "UTPopupEnum.h"
#include "UTRectangleButtonData.h"
#include "UTRichTextAreaData.h"
#include "UTRoundButtonData.h"
#include "UTShortcutOverride.h"
#include "UTTextButtonData.h"
#include "UTTextButtonEnum.h"
#include "UTToolTipData.h"
#include "UTTooltipEnum.h"
#include "UTWatermarkData.h"
#include "UTWatermarkEnum.h"

#include <QMovie>
#include <QtQml/qqml.h>

namespace {

// A fixed name, not derived from the main module's URI.
constexpr const char *dataUri = "UIToolkitQml_Private_Data";

template<typename T>
void registerAttached(const char *name)
{
    qmlRegisterUncreatableType<T>(dataUri, 1, 0, name, QLatin1StringView(name) + QStringLiteral(" attached property."));
}

void registerEnum(const QMetaObject &metaObject, const char *uri, const char *name)
{
    qmlRegisterUncreatableMetaObject(metaObject, uri, 1, 0, name,
                                     QLatin1StringView(name) + QStringLiteral(" enum property."));
}

// Makes the enumerations known by name, so that they travel in variants and queued signals and
// print their keys.
template<typename... Enums>
void registerMetaTypes()
{
    (qRegisterMetaType<Enums>(), ...);
}

} // namespace

void DataRegistration::registerAll(const char *uri)
{
    registerAttached<UTPillButtonData>("UTPillButtonData");
    registerAttached<UTTextButtonData>("UTTextButtonData");
    registerAttached<UTMultilinePillButtonData>("UTMultilinePillButtonData");
    registerAttached<UTRectangleButtonData>("UTRectangleButtonData");
    registerAttached<UTRoundButtonData>("UTRoundButtonData");
    registerAttached<UTIconButtonData>("UTIconButtonData");
    registerAttached<UTChipData>("UTChipData");
    registerAttached<UTPopOverData>("UTPopOverData");
    registerAttached<UTCallControlButtonData>("UTCallControlButtonData");
    registerAttached<UTBlockButtonData>("UTBlockButtonData");
    registerAttached<UTColorSetData>("UTColorSetData");
    registerAttached<UTWatermarkData>("UTWatermarkData");
    registerAttached<UTRichTextAreaData>("UTRichTextAreaData");
    registerAttached<UTToolTipData>("UTToolTipData");
    registerAttached<UTDynamicResourceData>("UTDynamicResourceData");
    registerAttached<UTKeyEventData>("UTKeyEventData");
    registerAttached<UTEventFilterData>("UTEventFilterData");
    registerAttached<UTShortcutOverride>("UTShortcutOverride");
    registerAttached<UTColorData>("UTColorData");

    qmlRegisterType<UTEventData>(dataUri, 1, 0, "UTEventData");
    qmlRegisterType<UTListData>(dataUri, 1, 0, "UTListData");
    qmlRegisterType<UTLinkData>(dataUri, 1, 0, "UTLinkData");

    qmlRegisterType<QMovie>(uri, 1, 0, "KMovie");

    registerEnum(UTButtonStyle::staticMetaObject, uri, "UTButtonStyle");
    registerEnum(UTButtonSize::staticMetaObject, uri, "UTButtonSize");
    registerEnum(UTButtonType::staticMetaObject, uri, "UTButtonType");
    registerEnum(UTChipStyle::staticMetaObject, uri, "UTChipStyle");

    registerMetaTypes<
        UTButtonStyle::Style, UTButtonSize::Size, UTButtonType::Type, UTChipStyle::Style,
        UTCallControlButtonEnum::ButtonType, UTCallControlButtonEnum::ButtonStyle, UTCallControlButtonEnum::ButtonSize,
        UTCallControlButtonEnum::ButtonState, UTTextButtonEnum::TextButtonColorStyle,
        UTTextButtonEnum::TextButtonSizeStyle, UTAlertBannerEnum::BannerType, UTAlertBannerEnum::BannerIconPositionType,
        UTAlertBannerEnum::BannerFontType, UTIndicatorBadgeEnum::IndicatorBadgeType, UTIndentationBarEnum::Type,
        UTListAvatarSearchItem::Action, UTListAvatarSearchItem::Style, UTListAvatarSearchItem::SourceModule,
        UTPopOverEnum::Size, UTPopOverEnum::ArrowAnchor, UTPopOverEnum::ArrowAlignment, UTTooltipEnum::TooltipStyle,
        UTTooltipEnum::ArrowAnchor, UTTooltipEnum::ArrowAlignment, UTPopupEnum::Alignment, UTMenuEnum::Style,
        UTMenuEnum::Size, UTDiscoverabilityEnum::DiscoverabilityLabelType, UTWatermarkEnum::WatermarkSize,
        UTDynamicResource::Type>();
}
