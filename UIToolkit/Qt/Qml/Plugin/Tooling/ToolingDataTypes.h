#pragma once

// The native data types as the tools see them; see ToolingTypes.h for why this is a file of its own.

#include "UTColorData.h"
#include "UTColorSetData.h"
#include "UTEventData.h"
#include "UTEventFilterData.h"
#include "UTKeyEventData.h"
#include "UTLinkData.h"
#include "UTListData.h"
#include "UTPillButtonData.h"
#include "UTPopOverData.h"
#include "UTRichTextAreaData.h"
#include "UTShortcutOverride.h"
#include "UTToolTipData.h"

#include <QtQml/qqml.h>

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

struct UTEventFilterDataTooling
{
    Q_GADGET
    QML_FOREIGN(UTEventFilterData)
    QML_NAMED_ELEMENT(UTEventFilterData)
    QML_ATTACHED(UTEventFilterData)
    QML_UNCREATABLE("UTEventFilterData attached property.")
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

struct UTPillButtonDataTooling
{
    Q_GADGET
    QML_FOREIGN(UTPillButtonData)
    QML_NAMED_ELEMENT(UTPillButtonData)
    QML_ATTACHED(UTPillButtonData)
    QML_UNCREATABLE("UTPillButtonData attached property.")
};

struct UTRichTextAreaDataTooling
{
    Q_GADGET
    QML_FOREIGN(UTRichTextAreaData)
    QML_NAMED_ELEMENT(UTRichTextAreaData)
    QML_ATTACHED(UTRichTextAreaData)
    QML_UNCREATABLE("UTRichTextAreaData attached property.")
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

struct UTToolTipDataTooling
{
    Q_GADGET
    QML_FOREIGN(UTToolTipData)
    QML_NAMED_ELEMENT(UTToolTipData)
    QML_ATTACHED(UTToolTipData)
    QML_UNCREATABLE("UTToolTipData attached property.")
};
