#pragma once

#include <QObject>

/*! Kinds of alert banner, and where its icon and which font it takes. */
namespace UTAlertBannerEnum {
Q_NAMESPACE

enum class BannerType : int {
    None,
    Error,
    ErrorAlignLeft,
    ErrorWithDismiss,
    ErrorWithButton,
    Warning,
    WarningAlignLeft,
    WarningWithDismiss,
    WarningWithButton,
    Success,
    SuccessAlignLeft,
    Announcement,
    AnnouncementAlignLeft,
    AnnouncementWithDismiss,
    Transient,
    TransientAlignLeft,
    PersonalAssistant,
    AiAssistant,
    General,
    GeneralAlignLeft,
    NewFeature
};
Q_ENUM_NS(BannerType)

enum class BannerIconPositionType : int { LeftTop, Center };
Q_ENUM_NS(BannerIconPositionType)

enum class BannerFontType : int { BodyPrimary, BodySecondary };
Q_ENUM_NS(BannerFontType)

} // namespace UTAlertBannerEnum
