#pragma once

#include <QObject>

/*! Vocabulary of a search result row: its action, kind, and the module that shows it. */
namespace UTListAvatarSearchItem {
Q_NAMESPACE

enum Action : int {
    None,
    AvatarAction,
    ChatAction,
    SmsAction,
    CallAction,
    VideoAction,
    TransferNowAction,
    ConsultFirstAction,
    MeetAction,
    DeviceVideoAction,
    AddContactAction,
    MoreOptionsAction
};
Q_ENUM_NS(Action)

enum Style : int { People, Meeting, Call, Space, Device, Contact };
Q_ENUM_NS(Style)

enum SourceModule : int {
    Default,
    Calling,
    CallingTransfer,
    CallingConference,
    MessageMention,
    Keyboardshortcuts,
    MeetingScheduler,
    AIAssistantMention,
    AddContact
};
Q_ENUM_NS(SourceModule)

} // namespace UTListAvatarSearchItem
