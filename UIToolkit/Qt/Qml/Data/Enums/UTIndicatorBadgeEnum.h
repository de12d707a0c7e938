#pragma once

#include <QObject>

/*! The badges that mark an item. */
namespace UTIndicatorBadgeEnum {
Q_NAMESPACE

enum IndicatorBadgeType : int {
    None,
    Alert,
    AllMention,
    Blocked,
    Disconnect,
    Draft,
    Error,
    ErrorAlert,
    Mention,
    Muted,
    NewlyAdded,
    OutgoingCall,
    PopOut,
    Recording,
    Success,
    Unread,
    Warning,
    WarningAlert,
    Info,
    NewFeature,
    PersonalAssistant,
    AiAssistant,
    TipHelp,
    LiveActive,
    LiveInactive,
    ForwardingInfo,
    MeetingSummary
};
Q_ENUM_NS(IndicatorBadgeType)

} // namespace UTIndicatorBadgeEnum
