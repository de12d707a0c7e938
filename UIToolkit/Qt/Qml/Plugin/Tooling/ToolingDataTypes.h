#pragma once

// The native data types as the tools see them; see ToolingTypes.h for why this is a file of its own.

#include "UTBlockButtonData.h"
#include "UTCallControlButtonData.h"
#include "UTChipData.h"
#include "UTColorData.h"
#include "UTColorSetData.h"
#include "UTDynamicResourceData.h"
#include "UTEventData.h"
#include "UTEventFilterData.h"
#include "UTIconButtonData.h"
#include "UTIconData.h"
#include "UTKeyEventData.h"
#include "UTLinkData.h"
#include "UTListData.h"
#include "UTMultilinePillButtonData.h"
#include "UTPillButtonData.h"
#include "UTPopOverData.h"
#include "UTRectangleButtonData.h"
#include "UTRichTextAreaData.h"
#include "UTRoundButtonData.h"
#include "UTShortcutOverride.h"
#include "UTTextButtonData.h"
#include "UTToolTipData.h"
#include "UTWatermarkData.h"

#include <QtQml/qqml.h>

struct UTCallControlButtonDataTooling
{
    Q_GADGET
    QML_FOREIGN(UTCallControlButtonData)
    QML_NAMED_ELEMENT(UTCallControlButtonData)
    QML_ATTACHED(UTCallControlButtonData)
    QML_UNCREATABLE("UTCallControlButtonData attached property.")
};

struct UTColorSetDataTooling
{
    Q_GADGET
    QML_FOREIGN(UTColorSetData)
    QML_NAMED_ELEMENT(UTColorSetData)
    QML_ATTACHED(UTColorSetData)
    QML_UNCREATABLE("UTColorSetData attached property.")
};

struct UTColorDataTooling
{
    Q_GADGET
    QML_FOREIGN(UTColorData)
    QML_NAMED_ELEMENT(UTColorData)
    QML_ATTACHED(UTColorData)
    QML_UNCREATABLE("UTColorData attached property.")
};

struct UTEventDataTooling
{
    Q_GADGET
    QML_FOREIGN(UTEventData)
    QML_NAMED_ELEMENT(UTEventData)
};

struct UTBlockButtonDataTooling
{
    Q_GADGET
    QML_FOREIGN(UTBlockButtonData)
    QML_NAMED_ELEMENT(UTBlockButtonData)
    QML_ATTACHED(UTBlockButtonData)
    QML_UNCREATABLE("UTBlockButtonData attached property.")
};

struct UTChipDataTooling
{
    Q_GADGET
    QML_FOREIGN(UTChipData)
    QML_NAMED_ELEMENT(UTChipData)
    QML_ATTACHED(UTChipData)
    QML_UNCREATABLE("UTChipData attached property.")
};

struct UTEventFilterDataTooling
{
    Q_GADGET
    QML_FOREIGN(UTEventFilterData)
    QML_NAMED_ELEMENT(UTEventFilterData)
    QML_ATTACHED(UTEventFilterData)
    QML_UNCREATABLE("UTEventFilterData attached property.")
};

struct UTIconButtonDataTooling
{
    Q_GADGET
    QML_FOREIGN(UTIconButtonData)
    QML_NAMED_ELEMENT(UTIconButtonData)
    QML_ATTACHED(UTIconButtonData)
    QML_UNCREATABLE("UTIconButtonData attached property.")
};

struct UTKeyEventDataTooling
{
    Q_GADGET
    QML_FOREIGN(UTKeyEventData)
    QML_NAMED_ELEMENT(UTKeyEventData)
    QML_ATTACHED(UTKeyEventData)
    QML_UNCREATABLE("UTKeyEventData attached property.")
};

struct UTLinkDataTooling
{
    Q_GADGET
    QML_FOREIGN(UTLinkData)
    QML_NAMED_ELEMENT(UTLinkData)
};

struct UTListDataTooling
{
    Q_GADGET
    QML_FOREIGN(UTListData)
    QML_NAMED_ELEMENT(UTListData)
};

struct UTMultilinePillButtonDataTooling
{
    Q_GADGET
    QML_FOREIGN(UTMultilinePillButtonData)
    QML_NAMED_ELEMENT(UTMultilinePillButtonData)
    QML_ATTACHED(UTMultilinePillButtonData)
    QML_UNCREATABLE("UTMultilinePillButtonData attached property.")
};

struct UTPillButtonDataTooling
{
    Q_GADGET
    QML_FOREIGN(UTPillButtonData)
    QML_NAMED_ELEMENT(UTPillButtonData)
    QML_ATTACHED(UTPillButtonData)
    QML_UNCREATABLE("UTPillButtonData attached property.")
};

struct UTRectangleButtonDataTooling
{
    Q_GADGET
    QML_FOREIGN(UTRectangleButtonData)
    QML_NAMED_ELEMENT(UTRectangleButtonData)
    QML_ATTACHED(UTRectangleButtonData)
    QML_UNCREATABLE("UTRectangleButtonData attached property.")
};

struct UTRichTextAreaDataTooling
{
    Q_GADGET
    QML_FOREIGN(UTRichTextAreaData)
    QML_NAMED_ELEMENT(UTRichTextAreaData)
    QML_ATTACHED(UTRichTextAreaData)
    QML_UNCREATABLE("UTRichTextAreaData attached property.")
};

struct UTRoundButtonDataTooling
{
    Q_GADGET
    QML_FOREIGN(UTRoundButtonData)
    QML_NAMED_ELEMENT(UTRoundButtonData)
    QML_ATTACHED(UTRoundButtonData)
    QML_UNCREATABLE("UTRoundButtonData attached property.")
};

struct UTShortcutOverrideTooling
{
    Q_GADGET
    QML_FOREIGN(UTShortcutOverride)
    QML_NAMED_ELEMENT(UTShortcutOverride)
    QML_ATTACHED(UTShortcutOverride)
    QML_UNCREATABLE("UTShortcutOverride attached property.")
};

struct UTPopOverDataTooling
{
    Q_GADGET
    QML_FOREIGN(UTPopOverData)
    QML_NAMED_ELEMENT(UTPopOverData)
    QML_ATTACHED(UTPopOverData)
    QML_UNCREATABLE("UTPopOverData attached property.")
};

struct UTTextButtonDataTooling
{
    Q_GADGET
    QML_FOREIGN(UTTextButtonData)
    QML_NAMED_ELEMENT(UTTextButtonData)
    QML_ATTACHED(UTTextButtonData)
    QML_UNCREATABLE("UTTextButtonData attached property.")
};

struct UTToolTipDataTooling
{
    Q_GADGET
    QML_FOREIGN(UTToolTipData)
    QML_NAMED_ELEMENT(UTToolTipData)
    QML_ATTACHED(UTToolTipData)
    QML_UNCREATABLE("UTToolTipData attached property.")
};

struct UTIconDataTooling
{
    Q_GADGET
    QML_FOREIGN(UTIconData)
    QML_ANONYMOUS
};

struct UTDynamicResourceDataTooling
{
    Q_GADGET
    QML_FOREIGN(UTDynamicResourceData)
    QML_NAMED_ELEMENT(UTDynamicResourceData)
    QML_ATTACHED(UTDynamicResourceData)
    QML_UNCREATABLE("UTDynamicResourceData attached property.")
};

struct UTWatermarkDataTooling
{
    Q_GADGET
    QML_FOREIGN(UTWatermarkData)
    QML_NAMED_ELEMENT(UTWatermarkData)
    QML_ATTACHED(UTWatermarkData)
    QML_UNCREATABLE("UTWatermarkData attached property.")
};
