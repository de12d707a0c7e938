#pragma once

#include <QObject>

/*! Kinds of label that draw attention to something new. */
namespace UTDiscoverabilityEnum {
Q_NAMESPACE

enum DiscoverabilityLabelType : int {
    IconWithTextTag,
    IconTag,
    TextTag,
    IconWithBorder,
    IconBadge,
    NewFeature,
    TipHelp,
    TipShortcut,
    BetaTextTag
};
Q_ENUM_NS(DiscoverabilityLabelType)

} // namespace UTDiscoverabilityEnum
