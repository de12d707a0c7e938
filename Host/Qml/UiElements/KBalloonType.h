#pragma once

#include "KBalloon.h"

#include <qqmlregistration.h>

struct KBalloonType
{
    Q_GADGET
    QML_FOREIGN(KBalloon)
    QML_NAMED_ELEMENT(KBalloon)
};
